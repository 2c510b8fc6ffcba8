#include "ui/ProgressFigures.h"

#include "runs/Clock.h"
#include "runs/RunState.h"
#include "ui/Appearance.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTreeWidget>

using namespace std::chrono_literals;

namespace ui {
namespace {

QString dataSize(double bytes)
{
    return QLocale().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeSIFormat);
}

void setCell(QTreeWidgetItem &row, int column, const QString &text)
{
    if (row.text(column) == text) return;
    row.setText(column, text);
    row.setToolTip(column, plainToolTip(text));
}

} // namespace

ProgressFigures::ProgressFigures(const RunState &run, const Widgets &widgets) : m_run(run), m_widgets(widgets)
{
    widgets.itemsRunning.setHeaderLabels({tr("Being worked on"), tr("Stage")});
    QHeaderView &header = *widgets.itemsRunning.header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
    header.setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_timer.setInterval(200ms);
    connect(&m_timer, &QTimer::timeout, this, &ProgressFigures::update);
}

void ProgressFigures::setRunning(bool running)
{
    if (!running) {
        m_timer.stop();
        return;
    }
    update();
    m_timer.start();
}

void ProgressFigures::update()
{
    m_widgets.itemsDone.setText(tr("%1 of %2 items").arg(m_run.foldersDone()).arg(m_run.foldersToDo()));
    m_widgets.bytesDone.setText(tr("%1 of %2").arg(dataSize(m_run.sizeDone()), dataSize(m_run.sizeToDo())));
    m_widgets.elapsed.setText(tr("Time: %1").arg(clockText(m_run.elapsed())));
    updateItems();
}

// Rows are changed in place: a list that is made anew five times a second could not be scrolled.
void ProgressFigures::updateItems()
{
    QTreeWidget &list = m_widgets.itemsRunning;
    const std::vector<RunState::Item> items = m_run.itemsRunning();
    const int count = int(items.size());
    while (list.topLevelItemCount() > count)
        delete list.takeTopLevelItem(list.topLevelItemCount() - 1);
    while (list.topLevelItemCount() < count)
        new QTreeWidgetItem(&list);
    for (int row = 0; row < count; ++row) {
        setCell(*list.topLevelItem(row), 0, items[size_t(row)].path);
        setCell(*list.topLevelItem(row), 1, items[size_t(row)].stage);
    }
}

} // namespace ui
