#pragma once

#include <QList>
#include <memory>
#include <vector>

class QuillorentAppDelegate;
class QWidget;

namespace ui {

class PanelDialog;
class ProgressFigures;

/// The panels of the window, made from their forms; the window owns the dialogs.
class Panels {
public:
    Panels(QuillorentAppDelegate &controller, QWidget &window);
    ~Panels();

    [[nodiscard]] const QList<QWidget *> &all() const { return m_all; }
    /// The sheets that stand while something runs; at most one is visible.
    [[nodiscard]] const QList<PanelDialog *> &progressSheets() const { return m_progressSheets; }

private:
    template <class Form, auto bar>
    void addProgressSheet(const QuillorentAppDelegate &controller, QWidget &window);

    QList<QWidget *> m_all;
    QList<PanelDialog *> m_progressSheets;
    std::vector<std::unique_ptr<ProgressFigures>> m_figures; // of the sheets that count items
};

} // namespace ui
