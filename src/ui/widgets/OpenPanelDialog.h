#pragma once

#include "outlets/OpenPanel.h"

#include <memory>

class QFileDialog;
class QWidget;

namespace ui {

/// Asks the user for files or folders, and waits; none where the user cancelled.
[[nodiscard]] std::optional<QStringList> askForPaths(const outlets::OpenPanel &panel, QWidget *parent);

/// The dialog that askForPaths() shows.
[[nodiscard]] std::unique_ptr<QFileDialog> makeOpenPanelDialog(const outlets::OpenPanel &panel,
                                                               QWidget *parent);

} // namespace ui
