#pragma once

#include <QList>
#include <QString>
#include <optional>

/// About how many bytes an extraction needs, at the moment when it needs most. `archives` are the archives'
/// bytes, with all their volumes; `atOnce` is how many are worked on at the same time.
[[nodiscard]] qint64 roomNeeded(QList<qint64> archives, qsizetype atOnce);

/// Free bytes on the disk of `folder`; none where that can't be found out.
[[nodiscard]] std::optional<qint64> roomFree(const QString &folder);
