#pragma once

#include <QStringList>

/// Paths in their order; a folder gives way to the archives right in it, by name. What is no ".rar" is left
/// out.
[[nodiscard]] QStringList archivesAmong(const QStringList &paths);

/// What a person must know of those of `added` that are not among the archives `extracted`; empty where there
/// is nothing to say. `all` are the archives that are shown.
[[nodiscard]] QString describeLeftOut(const QStringList &added, const QStringList &all,
                                      const QStringList &extracted);

/// Those of `all` that are not among the archives `extracted`, later volumes of a set whose first one is
/// there excepted.
[[nodiscard]] QStringList namesLeftOut(const QStringList &all, const QStringList &extracted);
