#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>

class QLabel;
class QMainWindow;
class QuillorentAppDelegate;

namespace ui {

/// Shows what is not saved yet, and asks before it is lost. Controls write into the profiles without a word,
/// so it looks twice a second.
class UnsavedChanges : public QObject {
    Q_OBJECT

public:
    /// All three must outlive it; `text` is where it says what is not saved.
    UnsavedChanges(QuillorentAppDelegate &controller, QMainWindow &window, QLabel &text);

    /// Whether the window may close now. If not, something is being saved or a question is open, and the
    /// window is closed when that has ended so.
    [[nodiscard]] bool mayClose();

private:
    void look();
    [[nodiscard]] bool savesByItself() const; ///< when the window closes
    void ask();
    void closeAnyhow();

    QuillorentAppDelegate &m_controller;
    QMainWindow &m_window;
    QLabel &m_text;
    QPointer<QMessageBox> m_question; ///< while it is asked
    bool m_mayLose = false;           ///< the user said so, or it is saved
};

} // namespace ui
