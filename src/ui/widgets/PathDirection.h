#pragma once

#include <QList>

class QWidget;

namespace ui {

/// Paths, servers and their like are read from left to right in every language: their fields below `roots`
/// stay so where the rest is mirrored.
void keepPathsLeftToRight(const QList<QWidget *> &roots);

} // namespace ui
