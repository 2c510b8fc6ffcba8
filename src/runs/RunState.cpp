#include "runs/RunState.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

template <class T>
T read(std::mutex &mutex, const T &member)
{
    const std::lock_guard lock(mutex);
    return member;
}

template <class T>
void write(std::mutex &mutex, T &member, T value)
{
    const std::lock_guard lock(mutex);
    member = std::move(value);
}

using Phase = RunItem::Phase;

auto findItem(std::vector<RunItem> &items, const QString &path, Phase phase)
{
    return std::find_if(items.begin(), items.end(),
                        [&](const RunItem &item) { return item.path == path && item.phase == phase; });
}

} // namespace

double RunState::foldersToDo() const { return read(m_mutex, m_foldersToDo); }
double RunState::foldersDone() const { return read(m_mutex, m_foldersDone); }
double RunState::sizeToDo() const { return read(m_mutex, m_sizeToDo); }
double RunState::sizeDone() const { return read(m_mutex, m_sizeDone); }
std::vector<RunItem> RunState::items() const { return read(m_mutex, m_items); }
bool RunState::cancelFlag() const { return read(m_mutex, m_cancelFlag); }
bool RunState::isRunActive() const { return read(m_mutex, m_runActive); }

void RunState::setFoldersToDo(double count) { write(m_mutex, m_foldersToDo, count); }
void RunState::setFoldersDone(double count) { write(m_mutex, m_foldersDone, count); }
void RunState::setSizeToDo(double bytes) { write(m_mutex, m_sizeToDo, bytes); }
void RunState::setSizeDone(double bytes) { write(m_mutex, m_sizeDone, bytes); }

void RunState::cancelByUser()
{
    const std::lock_guard lock(m_mutex);
    m_cancelFlag = true;
    m_cancelledByUser = true;
}

void RunState::cancelForQuitting()
{
    const std::lock_guard lock(m_mutex);
    m_quitting = true;
    m_cancelFlag = true;
    m_cancelledByUser = true;
}

void RunState::setCancelFlag(bool raised)
{
    const std::lock_guard lock(m_mutex);
    m_cancelFlag = raised || m_quitting;
}

bool RunState::isCancelledByUser() const { return read(m_mutex, m_cancelledByUser); }

QStringList RunState::threadsRunning() const
{
    QStringList paths;
    for (const Item &item : itemsRunning())
        paths.append(item.path);
    return paths;
}

std::vector<RunItem> RunState::itemsRunning() const
{
    std::vector<RunItem> running = items();
    std::erase_if(running, [](const RunItem &item) { return !item.isRunning(); });
    return running;
}

void RunState::setThreadsRunning(const QStringList &paths)
{
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_items, [](const RunItem &item) { return item.isRunning(); });
    for (const QString &path : paths)
        m_items.push_back({.path = path, .phase = Phase::Running});
}

void RunState::addToDo(double bytes)
{
    const std::lock_guard lock(m_mutex);
    m_sizeToDo += bytes;
    ++m_foldersToDo;
}

double RunState::addDone(double bytes)
{
    const std::lock_guard lock(m_mutex);
    ++m_foldersDone;
    return m_sizeDone += bytes;
}

void RunState::planItem(const QString &path, double bytes)
{
    const std::lock_guard lock(m_mutex);
    m_items.push_back({.path = path, .bytes = bytes, .isCounted = true});
}

void RunState::beginItem(const QString &path)
{
    const std::lock_guard lock(m_mutex);
    auto item = findItem(m_items, path, Phase::Waiting);
    if (item == m_items.end()) item = m_items.insert(item, {.path = path});
    item->phase = Phase::Running;
    item->began = item->stageBegan = std::chrono::steady_clock::now();
}

void RunState::setStage(const QString &path, const QString &stage, const StagePlan &plan)
{
    const std::lock_guard lock(m_mutex);
    const auto item = findItem(m_items, path, Phase::Running);
    if (item == m_items.end()) return;
    item->stage = stage;
    item->shareBefore += item->plan.share;
    item->plan = plan;
    item->tool = 0;
    item->stageBegan = std::chrono::steady_clock::now();
}

void RunState::setTool(const QString &path, int processId)
{
    const std::lock_guard lock(m_mutex);
    if (const auto item = findItem(m_items, path, Phase::Running); item != m_items.end())
        item->tool = processId;
}

void RunState::endItem(const QString &path, Phase phase)
{
    const std::lock_guard lock(m_mutex);
    auto item = findItem(m_items, path, Phase::Running);
    if (item == m_items.end()) item = findItem(m_items, path, Phase::Waiting);
    if (item == m_items.end()) return;
    item->phase = phase;
    item->stage.clear();
    if (!item->isCounted) m_items.erase(item);
}

QString RunState::failure() const { return read(m_mutex, m_failure); }

void RunState::setFailure(const QString &path, const QString &reason)
{
    const std::lock_guard lock(m_mutex);
    // Tools that a person has ended complain of that.
    if (m_failure.isEmpty() && !m_cancelledByUser) m_failure = path + u": "_s + reason;
}

bool RunState::tryBeginRun()
{
    const std::lock_guard lock(m_mutex);
    if (m_runActive) return false;
    m_failure.clear();
    m_items.clear();
    m_runActive = true;
    m_cancelFlag = m_quitting;
    m_cancelledByUser = m_quitting;
    m_foldersToDo = m_foldersDone = m_sizeToDo = m_sizeDone = 0;
    m_began = std::chrono::steady_clock::now();
    return true;
}

void RunState::endRun()
{
    const std::lock_guard lock(m_mutex);
    m_runActive = false;
    m_ended = std::chrono::steady_clock::now();
}

std::chrono::milliseconds RunState::elapsed() const
{
    const std::lock_guard lock(m_mutex);
    const auto until = m_runActive ? std::chrono::steady_clock::now() : m_ended;
    return std::chrono::duration_cast<std::chrono::milliseconds>(until - m_began);
}
