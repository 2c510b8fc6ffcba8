#pragma once

#include "ui/Opening.h"
#include "ui/widgets/Motion.h"

#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <memory>

class QuillorentAppDelegate;

namespace Ui {
class MainWindow;
}

namespace ui {

class Binding;
class PanelDialog;
class Panels;
class UnsavedChanges;

/// The main window with its panels: shows a controller's outlets and sends its actions. The controller must
/// live longer, and is asked through the window's file chooser as long as the window lives.
class Window : public QMainWindow {
    Q_OBJECT

public:
    explicit Window(QuillorentAppDelegate &controller);
    ~Window() override;

    /// Everything that shows an outlet stands in one of these: the window and its panels.
    [[nodiscard]] QList<QWidget *> roots();

    void comeToFront(); ///< also where it was minimised
    /// Shows what a start of the program asks for.
    void open(const Opening &opening);

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void finishForm();
    void addShortcuts();
    void askToStop();
    void askToCancel(const PanelDialog &sheet);

    QuillorentAppDelegate &m_controller;
    std::unique_ptr<Ui::MainWindow> m_form;
    std::unique_ptr<Panels> m_panels;
    std::unique_ptr<Binding> m_binding;
    std::unique_ptr<UnsavedChanges> m_unsaved;
    MotionSettings m_motion;
    QPointer<QMessageBox> m_question; ///< while it is asked
    bool m_mayStop = false;           ///< the user agreed to end what runs
};

} // namespace ui
