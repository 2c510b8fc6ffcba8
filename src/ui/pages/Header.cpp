#include "ui/pages/Header.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/look/Appearance.h"
#include "ui/watching/RefreshQueue.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Window)
};

/// Names the profile in use, with the sign that it has changes. The title ends with the program's name, so
/// that the toolkit does not append it once more.
QString titleOf(const QString &profile)
{
    if (profile.isEmpty() || profile == u"Quillorent") return u"[*]Quillorent"_s;
    // What the toolkit would take for the sign is doubled.
    return QString(profile).replace(u"[*]"_s, u"[*][*]"_s) + u"[*] — Quillorent"_s;
}

/// Draws the eye to a button as to what is to be pressed next, or leaves it like others.
void accent(QPushButton &button, bool isAccented)
{
    QPalette palette;
    if (isAccented) {
        palette.setBrush(QPalette::Button, palette.highlight());
        palette.setBrush(QPalette::ButtonText, palette.highlightedText());
    }
    button.setPalette(palette);
}

void showWhetherLoaded(const QuillorentAppDelegate &all, QPushButton &load)
{
    const QString chosen = all.profileCombo01.selectedTitle();
    const bool isOther = !chosen.isEmpty() && chosen != all.currentProfileTextView.text();
    accent(load, isOther);
    setPlainToolTip(load, isOther ? Words::tr("Use “%1”, which is chosen but not in use yet").arg(chosen)
                                  : Words::tr("Use the chosen profile; it is in use already"));
}

} // namespace

void showHeader(QuillorentAppDelegate &all, Ui::MainWindow &form, RefreshQueue &queue)
{
    QWidget &window = *form.centralWidget->window();
    queue.watch(all.currentProfileTextView,
                [&] { window.setWindowTitle(titleOf(all.currentProfileTextView.text())); });
    queue.watch({&all.profileCombo01, &all.currentProfileTextView},
                [&] { showWhetherLoaded(all, *form.profileButton02); });
    queue.watch(all.profileCombo01,
                [&] { form.profileButton07->setEnabled(all.profileCombo01.titles().size() > 1); });
}

} // namespace ui
