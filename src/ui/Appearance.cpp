#include "ui/Appearance.h"

#include "ui/Placeholders.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QStyle>

// At global scope, as the macro asks: the icons lie in a static library, which would not load them by itself.
static void loadIcons() { Q_INIT_RESOURCE(icons); }

namespace ui {
namespace {

const QString systemIcons = u"/usr/share/icons"_qs;
const QString ownIcons = u":/icons"_qs;

void chooseIconTheme()
{
    QStringList paths = QIcon::themeSearchPaths();
    if (!paths.contains(systemIcons)) paths.append(systemIcons);
    QIcon::setThemeSearchPaths(paths);
    QIcon::setFallbackSearchPaths(QIcon::fallbackSearchPaths() << ownIcons);

    // A session that names no theme gets the one that nearly every system has.
    if (QIcon::themeName().isEmpty() || QIcon::themeName() == u"hicolor") QIcon::setThemeName(u"Adwaita"_qs);
}

QString fileOf(Sign sign)
{
    switch (sign) {
    case Sign::Good:
        return u"sign-good"_qs;
    case Sign::Bad:
        return u"sign-bad"_qs;
    case Sign::Pending:
        break;
    }
    return u"sign-pending"_qs;
}

} // namespace

void setUpAppearance()
{
    loadIcons();
    chooseIconTheme();
    keepPlaceholdersReadable();
    QGuiApplication::setApplicationName(u"quillorent"_qs);
    QGuiApplication::setApplicationDisplayName(u"Quillorent"_qs);
    QGuiApplication::setDesktopFileName(applicationId);
    QGuiApplication::setWindowIcon(themeIcon(applicationId));
}

QIcon themeIcon(const QString &name) { return QIcon::fromTheme(name); }

void scaleIcons(QWidget &root)
{
    const int usual = root.style()->pixelMetric(QStyle::PM_SmallIconSize);
    const int size = std::max(usual, root.fontMetrics().height());
    for (auto *button : root.findChildren<QAbstractButton *>())
        button->setIconSize(QSize(size, size));
}

QIcon stateSign(Sign sign) { return QIcon(u"%1/%2.svg"_qs.arg(ownIcons, fileOf(sign))); }

QString plainToolTip(const QString &text)
{
    // A whole path stands on one line, however long it is.
    return u"<span style='white-space:pre'>%1</span>"_qs.arg(text.toHtmlEscaped());
}

} // namespace ui
