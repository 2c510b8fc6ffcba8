#include "ui/PreviewTableView.h"

#include <QHeaderView>

namespace ui {

PreviewTableView::PreviewTableView(QWidget *parent) : OutletTableView(parent)
{
    setOutletModel(new OutletTableModel(
        {{u"c10"_qs, tr("What happens")}, {u"c20"_qs, tr("Size")}, {u"c30"_qs, tr("Path")}}, this));
    QHeaderView &header = *horizontalHeader();
    header.setSectionsClickable(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(outletModel().columnOf(u"c30"_qs), QHeaderView::Stretch);
}

} // namespace ui
