#pragma once

#include <QByteArray>
#include <QString>

/// A list file in the user's temporary folder, or why there is none.
struct ListFile {
    QString path;
    QString reason;
};

/// Makes a new file that the user alone can read, never one that is there already, nor one through a link. It
/// is not removed afterwards.
[[nodiscard]] ListFile makeListFile(const QByteArray &content);
