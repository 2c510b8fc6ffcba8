#pragma once

#include <QIcon>
#include <QString>

namespace ui {

inline const QString applicationId = QStringLiteral("com.brolvanek.Quillorent");

/// Name, icon and icon theme of the program. Called once, after the application object was made.
void setUpAppearance();

/// The theme's icon, or the program's own where the theme has none of that name.
[[nodiscard]] QIcon themeIcon(const QString &name);

enum class Sign { Good, Bad, Pending };
[[nodiscard]] QIcon stateSign(Sign sign);

/// A tool tip that shows the text as it is, even where it looks like markup.
[[nodiscard]] QString plainToolTip(const QString &text);

} // namespace ui
