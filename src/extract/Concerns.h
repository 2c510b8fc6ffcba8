#pragma once

#include <QStringList>

/// What seems to be missing for an extraction, or in its way: a sentence each, none twice. Found by looking
/// at the disk and at the controller's state, before anything is written.
[[nodiscard]] QStringList extractConcerns(const QStringList &archives, const QString &folder);
