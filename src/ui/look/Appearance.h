#pragma once

#include <QIcon>
#include <QString>

class QWidget;

namespace ui {

inline const QString applicationId = QStringLiteral("com.brolvanek.Quillorent");

/// Name, style and icons of the program. Called once, after the application object was made.
void setUpAppearance();

/// The program's own icon of that name, or the session's theme's where there is none. Its lines have the
/// colour of text.
[[nodiscard]] QIcon themeIcon(const QString &name);

/// Gives the buttons below `root` that have an icon the program's own of that name.
void dressButtons(QWidget &root);

enum class Sign { Good, Bad, Pending };
[[nodiscard]] QIcon stateSign(Sign sign);

/// A tool tip that shows the text as it is, even where it looks like markup.
[[nodiscard]] QString plainToolTip(const QString &text);

/// Gives the widget such a tool tip. People who hear the screen are told the text, without the markup.
void setPlainToolTip(QWidget &widget, const QString &text);

} // namespace ui
