#pragma once

#include "ui/lists/OutletTableView.h"

namespace ui {

/// What a synchronisation would do, a row each.
class PreviewTableView : public OutletTableView {
    Q_OBJECT

public:
    explicit PreviewTableView(QWidget *parent = nullptr);
};

} // namespace ui
