#include "ui/lists/PreviewTableView.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace ui {

PreviewTableView::PreviewTableView(QWidget *parent) : OutletTableView(parent)
{
    setOutletModel(new OutletTableModel(
        {{u"c10"_s, tr("What happens")}, {u"c20"_s, tr("Size")}, {u"c30"_s, tr("Path")}}, this));
    QHeaderView &header = *horizontalHeader();
    header.setSectionsClickable(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(outletModel().columnOf(u"c30"_s), QHeaderView::Stretch);
}

} // namespace ui
