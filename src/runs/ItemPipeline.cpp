#include "runs/ItemPipeline.h"

#include "files/Names.h"
#include "files/PrivateFolder.h"
#include "runs/Run.h"

#include <QCoreApplication>
#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(runs)
};

ToolResult complaint(const QString &sentence) { return {.output = sentence, .wasStarted = false}; }

ToolResult silence() { return {.output = QString()}; }

} // namespace

ItemPipeline::ItemPipeline(Run &run, qsizetype index, const QString &item, const QList<LeftFile> &known)
    : m_run(run), m_index(index), m_item(item), m_known(known)
{
}

bool ItemPipeline::isCancelled() const { return m_run.state().cancelFlag(); }

void ItemPipeline::setStage(const QString &name, const StagePlan &plan) const
{
    m_run.state().setStage(m_item, name, plan);
}

void ItemPipeline::expect(const QStringList &between, const QString &clear, const QString &final)
{
    m_between = between;
    m_clear = clear;
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) {
        if (!final.isEmpty()) item.final = {final};
    });
}

void ItemPipeline::noteBetween(const QString &product)
{
    QList<LeftFile> left = m_strays;
    for (const QString &path : m_between) {
        const auto there = entryAt(path);
        if (!there || !there->isFile()) continue;
        if (path == product)
            m_made.insert(path, there->identity);
        else if (!m_made.value(path).isSameFile(there->identity))
            continue;
        left.append({path, path == m_clear, there->identity});
    }
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) { item.left = left; });
}

bool ItemPipeline::isKnown(const QString &path, const FileIdentity &identity) const
{
    return std::any_of(m_known.begin(), m_known.end(),
                       [&](const LeftFile &left) { return left.path == path && left.identity == identity; });
}

QString ItemPipeline::moveAway(const QString &path)
{
    const auto plan = planAside({path}, u"kept"_s);
    if (!plan) return Words::tr("no other name is free for it");
    const QString to = plan->first().to;
    // A run that was killed may have left it in clear: it is to be named as long as it is there, also where
    // this run is killed in its turn.
    const bool isLeftInClear = std::any_of(m_known.begin(), m_known.end(), [&](const LeftFile &left) {
        return left.path == path && left.isClear && !left.identity;
    });
    if (const auto there = entryAt(path); there && isLeftInClear)
        m_strays.append({to, true, there->identity});
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) {
        item.kept += *plan;
        item.left += m_strays;
    });
    if (const int error = renameToFree(path, to)) {
        m_strays.removeIf([&](const LeftFile &left) { return left.path == to; });
        m_run.journal().changeItem(m_index, [](ItemRecord &item) { item.kept.removeLast(); });
        return qt_error_string(error);
    }
    return {};
}

double ItemPipeline::bytesToDo() const
{
    for (const RunItem &item : m_run.state().itemsRunning())
        if (item.path == m_item) return item.bytes;
    return 0;
}

double ItemPipeline::bytesAt(const QString &path)
{
    const auto there = entryAt(path);
    return there ? double(there->identity.bytes) : 0;
}

/// From now on what comes under the name is this item's, even where the run ends before it can be told from
/// others. Not earlier: until then it may be the user's.
void ItemPipeline::claim(const QString &path)
{
    if (!m_between.contains(path)) return;
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) {
        if (!item.between.contains(path)) item.between.append(path);
        if (path == m_clear) item.clear = path;
    });
}

ToolResult ItemPipeline::makeWay(const QString &path)
{
    ToolResult result = clear(path);
    if (result.isSilent()) claim(path);
    return result;
}

ToolResult ItemPipeline::clear(const QString &path)
{
    const auto there = entryAt(path);
    if (!there) return silence();
    if (there->kind == FileEntry::Kind::Folder)
        return complaint(
            Words::tr("\"%1\" is a folder, and a file of that name is needed for a while. Rename it.")
                .arg(path));
    if (isKnown(path, there->identity)) {
        QFile::remove(path);
    } else if (const QString reason = moveAway(path); !reason.isEmpty()) {
        return complaint(
            Words::tr("\"%1\" is in the way and can't be given another name: %2.").arg(path, reason));
    }
    if (const auto again = entryAt(path))
        return complaint(Words::tr("Something puts %1 under the name \"%2\" again and again. Choose a folder "
                                   "that nobody else writes to.")
                             .arg(describeKind(again->kind), path));
    return silence();
}

ToolResult ItemPipeline::checkInput(const QString &path) const
{
    const auto there = entryAt(path);
    if (!there) return silence(); // a tool complains by itself of what is missing
    const bool isOwn = there->isFile() && m_made.value(path).isSameFile(there->identity);
    if (isOwn) return silence();
    return complaint(
        Words::tr(
            "\"%1\" has been replaced by %2 of somebody else's. Choose a folder that nobody else writes to.")
            .arg(path, describeKind(there->kind)));
}

void ItemPipeline::removeOwn(const QString &path)
{
    const auto there = entryAt(path);
    if (there && there->isFile() && m_made.value(path).isSameFile(there->identity)) QFile::remove(path);
}

ToolResult ItemPipeline::openPrivateFolder(const QString &path)
{
    // Noted before it is there, and again when it can be told from others. Until then it is empty.
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) {
        item.between.append(path);
        item.clear = path;
    });
    if (const int error = makePrivateFolder(path))
        return complaint(Words::tr("\"%1\" can't be made: %2").arg(path, qt_error_string(error)));
    m_privateFolder = path;
    if (const auto made = entryAt(path)) m_strays.append({path, true, made->identity});
    noteBetween();
    return silence();
}

void ItemPipeline::closePrivateFolder()
{
    if (m_privateFolder.isEmpty()) return;
    const auto isIt = [this](const LeftFile &left) { return left.path == m_privateFolder; };
    const auto noted = std::find_if(m_strays.begin(), m_strays.end(), isIt);
    if (noted == m_strays.end() || !removePrivateFolder(m_privateFolder, noted->identity)) return;
    m_strays.erase(noted);
    noteBetween();
}

void ItemPipeline::noteKept(const Aside &kept)
{
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) { item.kept.append(kept); });
}

void ItemPipeline::noteNotKept()
{
    m_run.journal().changeItem(m_index, [](ItemRecord &item) { item.kept.removeLast(); });
}

ToolResult ItemPipeline::runStage(const QString &tool, const QStringList &arguments) const
{
    RunState &state = m_run.state();
    const ToolResult result = runTool(tool, arguments, m_run.lockDescriptor(),
                                      [&](int processId) { state.setTool(m_item, processId); });
    state.setTool(m_item, -1);
    return result;
}

void ItemPipeline::runForLines(const QString &tool, const QStringList &arguments,
                               const std::function<void(const QString &)> &take) const
{
    forEachLineOf(tool, arguments, m_run.lockDescriptor(), take);
}

bool ItemPipeline::judge(const QString &line, const ToolResult &result, bool isMade, const QString &product)
{
    m_succeeded = result.isSilent();
    m_log += line + (m_succeeded ? u" OK - "_s : u" ERROR - "_s) + m_item;
    if (!m_succeeded) return false;
    const QString stage = line.trimmed();
    QString wrong;
    if (result.exitStatus != 0)
        wrong = Words::tr("%1: the tool ended with status %2 and did not say why.")
                    .arg(stage)
                    .arg(result.exitStatus);
    else if (!isMade)
        wrong = Words::tr("%1: the tool said nothing, and did not make \"%2\".").arg(stage, product);
    if (m_distrust.isEmpty()) m_distrust = wrong;
    return wrong.isEmpty();
}

void ItemPipeline::succeed(quint64 bytes)
{
    m_run.monitor().advanced(m_run.state().addDone(double(bytes)));
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) { item.bytes = bytes; });
    // The log of a success is not shown: the console is for failures.
    if (!m_distrust.isEmpty()) m_run.state().setFailure(m_item, m_distrust);
}

void ItemPipeline::fail(const QString &explanation, const QString &reason)
{
    m_log += u"\n *** ERROR! *** "_s + m_item;
    m_run.monitor().logged(explanation + m_log);
    m_run.state().setFailure(m_item, reason);
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) { item.reason = reason; });
    m_run.state().setCancelFlag(true);
}

void ItemPipeline::end(bool isComplete, const QStringList &archives)
{
    noteBetween();
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) {
        if (!m_succeeded || !m_distrust.isEmpty())
            item.outcome = Outcome::Failed;
        else
            item.outcome = isComplete ? Outcome::Succeeded : Outcome::Cancelled;
        if (item.reason.isEmpty()) item.reason = m_distrust;
        item.archives = archives;
    });
    // Told before the worker counts as gone: a new run may begin right after that.
    const bool isLast = m_run.state().foldersDone() == m_run.state().foldersToDo();
    if (isLast || !m_succeeded) m_run.state().setCancelFlag(true);
    using enum RunItem::Phase;
    const bool isDone = m_succeeded && m_distrust.isEmpty();
    m_run.state().endItem(m_item, !isDone ? Failed : isComplete ? Done : LeftOut);
}
