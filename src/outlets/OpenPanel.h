#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace outlets {

/// What a chooser of files and folders lets the user choose.
struct OpenPanel {
    QString title{};
    bool canChooseFiles = true;
    bool canChooseDirectories = false;
    bool canCreateDirectories = false;
    bool allowsMultipleSelection = false;
    bool resolvesAliases = true;
    QString directory{};            ///< where it opens; empty: where the front end thinks best
    QStringList allowedFileTypes{}; ///< extensions without dot, "" for files that have none; empty: all files
};

/// Asks the user, and waits for the answer; none where the user cancelled. The front end supplies it: a
/// dialog, or what a script says. Called on the main thread.
using OpenPanelAnswer = std::function<std::optional<QStringList>(const OpenPanel &)>;

} // namespace outlets
