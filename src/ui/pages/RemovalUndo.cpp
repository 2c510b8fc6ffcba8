#include "ui/pages/RemovalUndo.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Names.h"
#include "plist/Array.h"
#include "ui/watching/RefreshQueue.h"

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace ui {
namespace {

const QString key = u"folders"_s;
constexpr auto saidFor = 20s; // time enough to read it and to reach the button by the keyboard

} // namespace

RemovalUndo::RemovalUndo(QuillorentAppDelegate &controller, RefreshQueue &queue, const Widgets &widgets)
    : QObject(&widgets.page), m_controller(controller), m_widgets(widgets)
{
    m_action.setObjectName(u"undoRemoveAction"_s);
    m_action.setText(tr("Undo removing from the list"));
    m_action.setShortcut(QKeySequence::Undo);
    m_action.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_action.setEnabled(false);
    widgets.page.addAction(&m_action);
    connect(&m_action, &QAction::triggered, this, &RemovalUndo::undo);
    connect(&widgets.button, &QToolButton::clicked, this, &RemovalUndo::undo);
    m_saying.setSingleShot(true);
    m_saying.setInterval(saidFor);
    connect(&m_saying, &QTimer::timeout, this, [this] { say({}); });
    say({});
    queue.watch(controller.listTableView, [this] { withdrawFromOtherProfile(); });
}

void RemovalUndo::remove()
{
    const plist::Dictionary record = m_controller.currentRecord();
    const QStringList before = record.array(key).strings();
    QList<Entry> removed;
    for (const int row : m_controller.listTableView.selectedRows())
        if (row < before.size()) removed.append({row, before[row]});
    m_controller.folderButton02Action();
    if (removed.isEmpty()) return;
    m_record = record;
    m_removed = removed;
    m_action.setEnabled(true);
    const QString name = quillorentLibrary::lastPathComponent(removed.first().path);
    say(removed.size() == 1 ? tr("“%1” is off the list.").arg(name)
                            : tr("%n entries are off the list.", nullptr, int(removed.size())));
}

void RemovalUndo::undo()
{
    const QStringList now = m_record.array(key).strings();
    QStringList list = now;
    QList<int> rows;
    for (const Entry &entry : m_removed) {
        const qsizetype index = std::min(entry.index, list.size());
        list.insert(index, entry.path);
        rows.append(int(index));
    }
    m_record.setValue(key, plist::Array::make(list));
    m_removed.clear();
    m_action.setEnabled(false);
    say({});
    m_controller.listTableView.reloadData();
    m_controller.listTableView.setSelectedRows(rows);
}

void RemovalUndo::withdrawFromOtherProfile()
{
    if (m_removed.isEmpty() || m_controller.currentRecord().isSameObject(m_record)) return;
    m_removed.clear();
    m_action.setEnabled(false);
    say({});
}

void RemovalUndo::say(const QString &text)
{
    m_widgets.text.setText(text);
    m_widgets.text.setVisible(!text.isEmpty());
    m_widgets.button.setVisible(!text.isEmpty());
    text.isEmpty() ? m_saying.stop() : m_saying.start();
}

} // namespace ui
