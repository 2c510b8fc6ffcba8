#pragma once

#include <QList>
#include <memory>

class QuillorentAppDelegate;
class QWidget;

namespace Ui {
class ConcernsPanel01;
class ConsolePanel01;
class ExtractPanel01;
class ProgressPanel01;
class ProgressPanel02;
class WarningPanel01;
class WarningPanel02;
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
    [[nodiscard]] QList<PanelDialog *> progressSheets() const;

private:
    /// A dialog, and the form that it was made from.
    template <class Form>
    struct Panel {
        explicit Panel(QWidget &window);
        ~Panel();
        std::unique_ptr<Form> form;
        PanelDialog *dialog;
    };

    Panel<Ui::WarningPanel01> m_warning;
    Panel<Ui::WarningPanel02> m_extractQuestion;
    Panel<Ui::WarningPanel03> m_backupQuestion;
    Panel<Ui::ConcernsPanel01> m_concerns;
    Panel<Ui::ExtractPanel01> m_damage;
    Panel<Ui::ProgressPanel01> m_backup;
    Panel<Ui::ProgressPanel02> m_extraction;
    Panel<Ui::ConsolePanel01> m_console;
    std::unique_ptr<ProgressFigures> m_backupFigures;
    std::unique_ptr<ProgressFigures> m_extractionFigures;
};

} // namespace ui
