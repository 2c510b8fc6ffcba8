#pragma once

#include "ui/OutletTableView.h"

namespace ui {

/// A list of paths, one column: takes files and folders that are dropped onto it, tells of the Delete key,
/// and says what to do while it is empty.
class PathListView : public OutletTableView {
    Q_OBJECT

public:
    /// `advice` is shown while the list is empty.
    PathListView(const QString &advice, QWidget *parent);

Q_SIGNALS:
    void pathsDropped(const QStringList &paths);
    void deletePressed();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    const QString m_advice;
};

} // namespace ui
