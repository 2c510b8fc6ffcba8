#pragma once

#include <QList>
#include <memory>

class QuillorentAppDelegate;
class QWidget;

namespace Ui {
class ConsolePanel01;
class ProgressPanel01;
class WarningPanel03;
} // namespace Ui

namespace ui {

class PanelDialog;
class ProgressFigures;

/// The panels of the window, made from their forms; the window owns the dialogs.
class Panels {
public:
    Panels(QuillorentAppDelegate &controller, QWidget &window);
    ~Panels();

    [[nodiscard]] QList<QWidget *> all() const;
    [[nodiscard]] PanelDialog &progress() const { return *m_progress; }

private:
    std::unique_ptr<Ui::WarningPanel03> m_questionForm;
    std::unique_ptr<Ui::ProgressPanel01> m_progressForm;
    std::unique_ptr<Ui::ConsolePanel01> m_consoleForm;
    QList<QWidget *> m_simple; ///< sheets that nothing but their outlets and buttons belongs to
    PanelDialog *m_question;
    PanelDialog *m_progress;
    PanelDialog *m_console;
    std::unique_ptr<ProgressFigures> m_figures;
};

} // namespace ui
