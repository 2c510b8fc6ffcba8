#include "app/ItemPipeline.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Sizes.h"
#include "tools/ToolRun.h"

#include <QFile>

ItemPipeline::ItemPipeline(const QString &item) : m_delegate(theDelegate()), m_item(item) {}

bool ItemPipeline::isCancelled() const { return m_delegate.cancelFlag(); }

void ItemPipeline::removeIfGoingOn(const QString &path) const
{
    if (goesOn()) QFile::remove(path);
}

void ItemPipeline::judge(const QString &line, const ToolResult &result)
{
    m_succeeded = result.isSilent();
    m_log += line + (m_succeeded ? u" OK - "_qs : u" ERROR - "_qs) + m_item;
}

void ItemPipeline::succeed(outlets::ProgressBar &bar)
{
    bar.setValue(m_delegate.addDone(double(quillorentLibrary::calculateSize(m_item))));
    // The log of a success is not shown: the console is for failures.
}

void ItemPipeline::fail(const QString &explanation, const QString &reason)
{
    m_log += u"\n *** ERROR! *** "_qs + m_item;
    m_delegate.consoleTextView01.append(explanation + m_log);
    m_delegate.setFailure(m_item, reason);
    m_delegate.setCancelFlag(true);
}

void ItemPipeline::end()
{
    // Told before the worker counts as gone: a new run may begin right after that.
    const bool isLast = m_delegate.foldersDone() == m_delegate.foldersToDo();
    if (isLast || !m_succeeded) m_delegate.setCancelFlag(true);
    m_delegate.endItem(m_item);
}
