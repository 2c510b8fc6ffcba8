#pragma once

#include <QIcon>
#include <QString>

class QWidget;

namespace ui {

inline const QString applicationId = QStringLiteral("com.brolvanek.Quillorent");

/// Name, icon and icon theme of the program. Called once, after the application object was made.
void setUpAppearance();

/// The theme's icon, or the program's own where the theme has none of that name.
[[nodiscard]] QIcon themeIcon(const QString &name);

/// Lets the signs on the buttons below `root` grow with its font.
void scaleIcons(QWidget &root);

enum class Sign { Good, Bad, Pending };
[[nodiscard]] QIcon stateSign(Sign sign);

/// A tool tip that shows the text as it is, even where it looks like markup.
[[nodiscard]] QString plainToolTip(const QString &text);

} // namespace ui
