#include "ui/sheets/ProgressFigures.h"

#include "files/Printable.h"
#include "runs/Clock.h"
#include "runs/ProgressWords.h"
#include "ui/look/Appearance.h"
#include "ui/widgets/RunBar.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QStyledItemDelegate>
#include <QTreeWidget>

using namespace std::chrono_literals;

namespace ui {
namespace {

enum Column { Name, Step, Done };
constexpr int partRole = Qt::UserRole; // how far an item is, in hundredths

/// Draws how far an item is.
class BarDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &cell, const QModelIndex &index) const override
    {
        const int done = index.data(partRole).toInt();
        if (done < 0) return;
        QStyleOptionProgressBar bar;
        bar.rect = cell.rect.adjusted(2, 2, -2, -2);
        bar.palette = cell.palette;
        bar.fontMetrics = cell.fontMetrics;
        bar.direction = cell.direction;
        bar.state = cell.state | QStyle::State_Horizontal;
        bar.maximum = 100;
        bar.progress = done;
        bar.text = index.data(Qt::AccessibleTextRole).toString();
        bar.textVisible = true;
        bar.textAlignment = Qt::AlignCenter;
        QApplication::style()->drawControl(QStyle::CE_ProgressBar, &bar, painter, cell.widget);
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &cell, const QModelIndex &) const override
    {
        return {cell.fontMetrics.averageCharWidth() * 16, cell.fontMetrics.height() + 8};
    }
};

void setText(QTreeWidgetItem &row, Column column, const QString &text)
{
    if (row.text(column) != text) row.setText(column, text);
}

void setPath(QTreeWidgetItem &row, const QString &path)
{
    // A path reads from the left also where the words do not.
    const QString shown = QChar(0x200e) + printableName(path);
    if (row.text(Name) == shown) return;
    row.setText(Name, shown);
    row.setToolTip(Name, plainToolTip(path));
}

void setPart(QTreeWidgetItem &row, const RunFigures::Item &item)
{
    const int hundredths = item.phase == RunItem::Phase::Waiting ? -1 : int(item.done * 100);
    if (row.data(Done, partRole) == hundredths) return;
    row.setData(Done, partRole, hundredths);
    if (hundredths < 0) return;
    row.setData(Done, Qt::AccessibleTextRole,
                QCoreApplication::translate("ProgressFigures", "%1%").arg(QLocale().toString(hundredths)));
}

} // namespace

ProgressFigures::ProgressFigures(const RunState &run, const Widgets &widgets)
    : m_run(run), m_progress(run), m_widgets(widgets)
{
    QTreeWidget &list = widgets.items;
    list.setHeaderLabels({tr("What"), tr("Step"), tr("Done")});
    list.setItemDelegateForColumn(Done, new BarDelegate(&list));
    QHeaderView &header = *list.header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(Name, QHeaderView::Stretch);
    header.setSectionResizeMode(Step, QHeaderView::ResizeToContents);
    header.setSectionResizeMode(Done, QHeaderView::ResizeToContents);
    m_timer.setInterval(200ms);
    connect(&m_timer, &QTimer::timeout, this, &ProgressFigures::update);
}

void ProgressFigures::setRunning(bool running)
{
    if (!running) {
        m_timer.stop();
        return;
    }
    m_progress = RunProgress(m_run);
    m_firstRunning = -1;
    m_widgets.items.clear();
    update();
    m_timer.start();
}

void ProgressFigures::update()
{
    const RunFigures figures = m_progress.look();
    m_widgets.bar.reach(figures.done());
    m_widgets.bytesDone.setText(progressWords::bytes(figures));
    m_widgets.pace.setText(progressWords::pace(figures));
    m_widgets.timeLeft.setText(progressWords::left(figures));
    m_widgets.elapsed.setText(tr("Time: %1").arg(clockText(m_run.elapsed())));
    updateItems(figures.items);
}

// Rows are changed in place: a list that is made anew five times a second could not be scrolled.
void ProgressFigures::updateItems(const std::vector<RunFigures::Item> &items)
{
    QTreeWidget &list = m_widgets.items;
    const int count = int(items.size());
    while (list.topLevelItemCount() > count)
        delete list.takeTopLevelItem(list.topLevelItemCount() - 1);
    while (list.topLevelItemCount() < count)
        new QTreeWidgetItem(&list);
    int firstRunning = -1;
    for (int number = 0; number < count; ++number) {
        const RunFigures::Item &item = items[size_t(number)];
        QTreeWidgetItem &row = *list.topLevelItem(number);
        setPath(row, item.path);
        setText(row, Step, progressWords::step(item));
        setPart(row, item);
        if (firstRunning < 0 && item.phase == RunItem::Phase::Running) firstRunning = number;
    }
    if (firstRunning >= 0 && firstRunning != std::exchange(m_firstRunning, firstRunning))
        list.scrollToItem(list.topLevelItem(firstRunning));
}

} // namespace ui
