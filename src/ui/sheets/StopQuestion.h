#pragma once

#include <QList>
#include <functional>

class QMessageBox;
class QWidget;

namespace ui {

class PanelDialog;

/// What stopping a run is to lead to.
enum class StopFor { Itself, Quitting };

/// Asks whether to stop the run whose sheet is visible among `sheets`, and says what that means; `stop` is
/// called where the answer is yes. `onlyLooks`: what is on the sheet of restoring looks into an archive. The
/// run goes on while the question stands, and the question goes with the sheet: then the run is over, or
/// cancelled. Gives the question, which deletes itself.
QMessageBox *askToStop(QWidget &window, const QList<PanelDialog *> &sheets, StopFor purpose, bool onlyLooks,
                       const std::function<void()> &stop);

} // namespace ui
