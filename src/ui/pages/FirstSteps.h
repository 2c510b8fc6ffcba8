#pragma once

#include <QFrame>
#include <array>

class QLabel;
class QPushButton;
class QToolButton;

namespace ui {

/// Leads through a first backup: which folders, whereto, by which password. It stands in the place of the
/// list until each step is done or skipped, and never comes again.
class FirstSteps : public QFrame {
    Q_OBJECT

public:
    enum Step { Folders, Place, Password };
    static constexpr int count = 3;

    explicit FirstSteps(QWidget *parent = nullptr);

    /// Shows what is done by now; `isDone` by step.
    void setDone(const std::array<bool, count> &isDone);

    /// Whether it has been seen through on this account, or was never needed. Kept in a file of the state
    /// folder.
    [[nodiscard]] static bool wasSeen();
    static void rememberSeen();

Q_SIGNALS:
    void wanted(ui::FirstSteps::Step step);
    void pathsDropped(const QStringList &paths);
    void finished(); ///< nothing is left to do

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    struct Row {
        QLabel *sign;
        QLabel *title;
        QLabel *text;
        QPushButton *go;
        QToolButton *skip;
        bool isDone = false;
        bool isSkipped = false;
        [[nodiscard]] bool isOver() const { return isDone || isSkipped; }
    };
    [[nodiscard]] Row makeRow(int step, const QString &title, const QString &text, const QString &go);
    void show(int current);
    void goOn();

    std::array<Row, count> m_rows;
};

} // namespace ui
