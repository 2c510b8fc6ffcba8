#pragma once

#include "ui/lists/OutletTableView.h"

class QMimeData;
class QPainter;

namespace ui {

/// A list of paths: takes files and folders that are dropped onto it and says so while they are held over it,
/// tells of the Delete key, and says what to do while it is empty.
class PathListView : public OutletTableView {
    Q_OBJECT

public:
    /// `advice` is shown while the list is empty.
    PathListView(const QString &advice, QWidget *parent);

    /// The files and folders of this machine that are dragged.
    [[nodiscard]] static QStringList localPaths(const QMimeData &data);
    /// Takes what is dragged where there are any, as a copy; says whether it does.
    static bool acceptPaths(QDropEvent &event);

Q_SIGNALS:
    void pathsDropped(const QStringList &paths);
    void deletePressed();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setHeldOver(bool isHeldOver);
    void paintAdvice(QPainter &painter) const;
    void paintWelcome(QPainter &painter) const;

    const QString m_advice;
    bool m_isHeldOver = false; ///< something that it takes is
};

} // namespace ui
