#pragma once

#include <QList>
#include <memory>

class QuillorentAppDelegate;
class QWidget;

namespace Ui {
class ConsolePanel01;
class PreviewPanel01;
class ProgressPanel01;
class ProgressPanel03;
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
    /// The sheets that stand while something runs; at most one is visible.
    [[nodiscard]] QList<PanelDialog *> progressSheets() const { return {m_progress, m_syncProgress}; }

private:
    std::unique_ptr<Ui::WarningPanel03> m_questionForm;
    std::unique_ptr<Ui::ProgressPanel01> m_progressForm;
    std::unique_ptr<Ui::ProgressPanel03> m_syncProgressForm;
    std::unique_ptr<Ui::PreviewPanel01> m_previewForm;
    std::unique_ptr<Ui::ConsolePanel01> m_consoleForm;
    QList<QWidget *> m_messages; ///< sheets that say something and are closed
    PanelDialog *m_question;
    PanelDialog *m_progress;
    PanelDialog *m_syncProgress;
    PanelDialog *m_preview;
    PanelDialog *m_console;
    std::unique_ptr<ProgressFigures> m_figures;
};

} // namespace ui
