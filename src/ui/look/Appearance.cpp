#include "ui/look/Appearance.h"

#include "files/Printable.h"
#include "ui/look/InkIcon.h"
#include "ui/look/Placeholders.h"
#include "ui/look/TextSizedStyle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QGuiApplication>
#include <QStyle>

using namespace Qt::StringLiterals;

// At global scope, as the macro asks: the icons lie in a static library, which would not load them by itself.
static void loadIcons() { Q_INIT_RESOURCE(icons); }

namespace ui {
namespace {

const QString ownIcons = u":/icons"_s;

QString drawingOf(const QString &name) { return u"%1/%2.svg"_s.arg(ownIcons, name); }

/// The forms ask the session's theme for their icons. It need not have one: what keeps their names is ours.
void letFormsFindIcons()
{
    QIcon::setFallbackSearchPaths(QIcon::fallbackSearchPaths() << ownIcons);
    // Where no theme has a name, the toolkit looks nowhere.
    if (QIcon::themeName().isEmpty()) QIcon::setThemeName(u"hicolor"_s);
}

QString fileOf(Sign sign)
{
    switch (sign) {
    case Sign::Good:
        return u"sign-good"_s;
    case Sign::Bad:
        return u"sign-bad"_s;
    case Sign::Pending:
        break;
    }
    return u"sign-pending"_s;
}

} // namespace

void setUpAppearance()
{
    loadIcons();
    letFormsFindIcons();
    keepPlaceholdersReadable();
    QApplication::setStyle(new TextSizedStyle(QApplication::style()->name()));
    QGuiApplication::setApplicationName(u"quillorent"_s);
    QGuiApplication::setApplicationDisplayName(u"Quillorent"_s);
    QGuiApplication::setDesktopFileName(applicationId);
    QGuiApplication::setWindowIcon(QIcon::fromTheme(applicationId, themeIcon(applicationId)));
}

QIcon themeIcon(const QString &name)
{
    QFile file(drawingOf(name));
    if (!file.open(QIODevice::ReadOnly)) return QIcon::fromTheme(name);
    const QByteArray drawing = file.readAll();
    return hasInk(drawing) ? inkIcon(name, drawing) : QIcon(file.fileName());
}

void dressButtons(QWidget &root)
{
    for (auto *button : root.findChildren<QAbstractButton *>())
        if (const QString name = button->icon().name(); !name.isEmpty()) button->setIcon(themeIcon(name));
}

QIcon stateSign(Sign sign) { return QIcon(drawingOf(fileOf(sign))); }

QString plainToolTip(const QString &text)
{
    // A whole path stands on one line, however long it is.
    return u"<span style='white-space:pre'>%1</span>"_s.arg(printable(text).toHtmlEscaped());
}

void setPlainToolTip(QWidget &widget, const QString &text)
{
    widget.setToolTip(plainToolTip(text));
    widget.setAccessibleDescription(printable(text));
}

} // namespace ui
