#include "headless/ProgressLine.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Names.h"

#include <QLocale>
#include <cstdio>
#include <unistd.h>

namespace {

QString describe(const QuillorentAppDelegate &delegate)
{
    // rsync has no items to count.
    if (const QString line = delegate.progress03progressLabel02.text(); !line.isEmpty()) return line;
    const auto size = [](double bytes) {
        return QLocale().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeSIFormat);
    };
    QStringList running;
    for (const RunState::Item &item : delegate.itemsRunning())
        running.append(quillorentLibrary::lastPathComponent(item.path) + u' ' + item.stage);
    return u"%1 of %2 items, %3 of %4  %5"_qs.arg(
        QString::number(delegate.foldersDone()), QString::number(delegate.foldersToDo()),
        size(delegate.sizeDone()), size(delegate.sizeToDo()), running.join(u", "_qs));
}

} // namespace

ProgressLine::ProgressLine(bool always) : m_onTerminal(isatty(STDERR_FILENO)), m_shows(always || m_onTerminal)
{
}

ProgressLine::~ProgressLine()
{
    if (m_onTerminal && !m_last.isEmpty()) std::fputs("\r\033[K", stderr);
}

void ProgressLine::show(const QuillorentAppDelegate &delegate)
{
    if (!m_shows) return;
    const QString line = describe(delegate);
    if (line == m_last) return;
    m_last = line;
    std::fprintf(stderr, m_onTerminal ? "\r%s\033[K" : "%s\n", qUtf8Printable(line));
    std::fflush(stderr);
}
