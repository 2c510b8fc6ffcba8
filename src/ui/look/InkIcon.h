#pragma once

#include <QByteArray>
#include <QIcon>
#include <QString>

namespace ui {

/// Whether something in the drawing, an SVG document, has the colour of text.
[[nodiscard]] bool hasInk(const QByteArray &drawing);

/// An icon of such a drawing: what has the colour of text is painted in the one that text has just then, in
/// the light and in the dark, in a row that is selected and on a button that is not available.
[[nodiscard]] QIcon inkIcon(const QString &name, const QByteArray &drawing);

} // namespace ui
