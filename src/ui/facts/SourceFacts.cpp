#include "ui/facts/SourceFacts.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Room.h"
#include "files/Sizes.h"
#include "ui/watching/RefreshQueue.h"

#include <QFileInfo>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace ui {
namespace {

constexpr auto stale = 10min;

} // namespace

SourceFacts::SourceFacts(QuillorentAppDelegate &controller, RefreshQueue &queue, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
    , m_timer(controller, [this] { look(); })
    , m_look(u"folder-facts"_s, [this](Look found) { take(std::move(found)); })
    , m_measure(u"folder-sizes"_s, [this](const Size &size) { takeSize(size); })
{
    queue.watch({&controller.listTableView, &controller.syncTableView, &controller.fileText01,
                 &controller.outputText01, &controller.progressPanel01},
                [this] { m_timer.lookSoon(); });
    queue.watch(controller.currentProfileTextView, [this] {
        if (m_profile == m_controller.currentProfile()) return;
        m_history = {}; // it is another's
        m_timer.lookSoon();
    });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) m_timer.lookSoon();
    });
}

QStringList SourceFacts::backedUpPaths() const
{
    return m_controller.currentRecord().array(u"folders"_s).strings();
}

QStringList SourceFacts::paths() const
{
    QStringList all = backedUpPaths() + m_controller.currentRecord().array(u"sync"_s).strings();
    all.removeDuplicates();
    return all;
}

void SourceFacts::look()
{
    const QStringList list = paths();
    m_look.ask([profile = m_controller.currentProfile(), destination = m_controller.fileText01.text(),
                sources = std::vector<QString>(list.begin(), list.end())](const auto &goesOn) {
        Look found{.profile = profile, .entries = {}, .history = backupHistory(profile), .room = {}};
        for (const QString &source : sources) {
            if (!goesOn()) break;
            found.entries[source] = {stateOfSource(source, destination), QFileInfo(source).isFile()};
        }
        if (!destination.isEmpty() && goesOn()) found.room = roomFree(destination);
        return found;
    });
}

void SourceFacts::take(Look found)
{
    m_profile = found.profile;
    m_entries = std::move(found.entries);
    m_history = std::move(found.history);
    m_room = found.room;
    Q_EMIT changed();
    Q_EMIT looked();
    measureNext();
}

// One after another: the disk is not to be busy in several places.
void SourceFacts::measureNext()
{
    if (m_measure.isBusy()) return;
    const auto now = std::chrono::steady_clock::now();
    for (const QString &path : paths()) {
        const auto entry = m_entries.find(path);
        if (entry == m_entries.end() || entry->second.state == SourceState::Missing) continue;
        const auto kept = m_sizes.find(path);
        if (kept != m_sizes.end() && now - kept->second.since < stale) continue;
        m_measure.ask([path, &controller = m_controller](const auto &goesOn) {
            bool isCut = false;
            const quint64 bytes = quillorentLibrary::calculateSize(path, [&] {
                isCut = controller.isRunActive() || !goesOn();
                return !isCut;
            });
            return Size{path, isCut ? std::nullopt : std::optional(bytes)};
        });
        return;
    }
}

void SourceFacts::takeSize(const Size &size)
{
    if (!size.bytes) {
        m_timer.lookSoon();
        return;
    }
    m_sizes[size.path] = {*size.bytes, std::chrono::steady_clock::now()};
    Q_EMIT changed();
    measureNext();
}

SourceFacts::Fact SourceFacts::of(const QString &path) const
{
    Fact fact;
    if (const auto good = m_history.good.find(path); good != m_history.good.end()) {
        fact.backedUp = good->second.when;
        fact.bytes = good->second.bytes; // until it is measured
    }
    if (const auto kept = m_sizes.find(path); kept != m_sizes.end()) fact.bytes = kept->second.bytes;
    const auto entry = m_entries.find(path);
    if (entry == m_entries.end()) return fact;
    fact.isKnown = true;
    fact.state = entry->second.state;
    fact.isFile = entry->second.isFile;
    if (fact.state == SourceState::Missing) fact.bytes.reset();
    return fact;
}

std::optional<quint64> SourceFacts::bytesOfAll() const
{
    quint64 bytes = 0;
    for (const QString &path : backedUpPaths()) {
        const Fact fact = of(path);
        const bool isLeftOut =
            fact.isKnown && (fact.state == SourceState::Missing || fact.state == SourceState::Unsuitable);
        if (isLeftOut) continue;
        if (!fact.bytes) return std::nullopt;
        bytes += *fact.bytes;
    }
    return bytes;
}

} // namespace ui
