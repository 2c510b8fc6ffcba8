#include "headless/ProgressLine.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Names.h"
#include "files/Printable.h"
#include "runs/ProgressWords.h"

#include <QLocale>
#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

QString itemsOf(const RunFigures &figures)
{
    QStringList running;
    for (const RunFigures::Item &item : figures.items)
        if (item.phase == RunItem::Phase::Running)
            running.append(quillorentLibrary::lastPathComponent(item.path) + u": "_s +
                           progressWords::step(item));
    return running.join(u", "_s);
}

QStringList describe(const RunFigures &figures)
{
    QStringList words{itemsOf(figures)};
    if (figures.bytesToDo > 0)
        words =
            QStringList{QLocale().toString(int(figures.done() * 100)) + u'%', progressWords::bytes(figures),
                        progressWords::pace(figures), progressWords::left(figures)} +
            words;
    words.removeAll(QString());
    return words;
}

} // namespace

ProgressLine::ProgressLine(const QuillorentAppDelegate &delegate, bool always)
    : m_delegate(delegate)
    , m_progress(delegate)
    , m_onTerminal(isatty(STDERR_FILENO))
    , m_shows(always || m_onTerminal)
{
}

ProgressLine::~ProgressLine()
{
    if (m_onTerminal && !m_last.isEmpty()) std::fputs("\r\033[K", stderr);
}

void ProgressLine::show()
{
    const auto now = std::chrono::steady_clock::now();
    if (!m_shows || now - m_looked < 200ms) return;
    m_looked = now;
    const RunFigures figures = m_progress.look(now);
    // rsync has no items to count.
    const QString synchronising = m_delegate.progress03progressLabel02.text();
    const QStringList words = synchronising.isEmpty() ? describe(figures) : QStringList{synchronising};
    if (words.isEmpty()) return;
    // Where lines stay, one a step and a hundredth is enough.
    const QString sign =
        m_onTerminal || !synchronising.isEmpty() ? words.join(u' ') : words.first() + itemsOf(figures);
    if (sign == m_last) return;
    m_last = sign;
    const QString line = words.join(u"  "_s);
    std::fprintf(stderr, m_onTerminal ? "\r%s\033[K" : "%s\n", qUtf8Printable(printableName(line)));
    std::fflush(stderr);
}
