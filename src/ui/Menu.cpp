#include "ui/Menu.h"

#include "ui/sheets/About.h"
#include "ui/sheets/Guide.h"
#include "ui/widgets/PanelDialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QTabWidget>
#include <array>

namespace ui {
namespace {

struct Pressing {
    const char *action;
    const char *button;        ///< that the action presses
    bool isForReading = false; ///< possible while something runs
};

constexpr std::array pressings{
    Pressing{"newAction", "profileButton04"},           Pressing{"duplicateAction", "profileButton06"},
    Pressing{"renameAction", "profileButton03"},        Pressing{"deleteAction", "profileButton07"},
    Pressing{"loadAction", "profileButton02"},          Pressing{"saveAction", "profileButton01"},
    Pressing{"startUpAction", "defaultProfileButton"},  Pressing{"optionsAction", "profileButton05"},
    Pressing{"backUpAction", "buttonLaunch01"},         Pressing{"restoreAction", "buttonLaunch02"},
    Pressing{"synchroniseAction", "buttonLaunch03"},    Pressing{"previewAction", "previewButton01"},
    Pressing{"addFoldersAction", "folderButton01"},     Pressing{"addArchivesAction", "extractButton01"},
    Pressing{"checkToolsAction", "settingsSaveButton"}, Pressing{"consoleAction", "consoleShowButton", true},
};

struct Viewing {
    const char *action;
    const char *page;
};

constexpr std::array viewings{
    Viewing{"foldersAction", "foldersPage"},     Viewing{"extractAction", "extractPage"},
    Viewing{"passwordsAction", "passwordsPage"}, Viewing{"syncAction", "syncPage"},
    Viewing{"toolsAction", "toolsPage"},
};

/// A part of the form, which without it would not have been built.
template <class Part>
Part &part(QMainWindow &window, const char *name)
{
    auto *found = window.findChild<Part *>(QString::fromLatin1(name));
    if (!found) qFatal("the window has no %s", name);
    return *found;
}

QTabWidget &tabs(QMainWindow &window) { return part<QTabWidget>(window, "mainTabs"); }

PanelDialog *runningSheet(QMainWindow &window)
{
    for (auto *panel : window.findChildren<PanelDialog *>())
        if (panel->isVisible() && panel->objectName().startsWith(u"progressPanel")) return panel;
    return nullptr;
}

bool mayPress(QMainWindow &window, const Pressing &row)
{
    return row.isForReading ||
           (window.centralWidget()->isEnabled() && part<QAbstractButton>(window, row.button).isEnabled());
}

void press(QMainWindow &window, const Pressing &row)
{
    if (!mayPress(window, row)) return;
    auto &button = part<QAbstractButton>(window, row.button);
    // What is done is seen where it is done; reading messages leads nowhere else.
    for (int tab = 0; tab < tabs(window).count() && !row.isForReading; ++tab)
        if (tabs(window).widget(tab)->isAncestorOf(&button)) tabs(window).setCurrentIndex(tab);
    button.click();
}

void connectPressings(QMainWindow &window)
{
    for (const Pressing &row : pressings)
        QObject::connect(&part<QAction>(window, row.action), &QAction::triggered, &window,
                         [&window, &row] { press(window, row); });
}

void connectViewings(QMainWindow &window)
{
    auto *group = new QActionGroup(&window);
    for (const Viewing &row : viewings) {
        auto &action = part<QAction>(window, row.action);
        auto &page = part<QWidget>(window, row.page);
        group->addAction(&action);
        QObject::connect(&action, &QAction::triggered, &window,
                         [&window, &page] { tabs(window).setCurrentWidget(&page); });
    }
    const auto mark = [&window] {
        for (const Viewing &row : viewings)
            if (tabs(window).currentWidget()->objectName() == QLatin1StringView(row.page))
                part<QAction>(window, row.action).setChecked(true);
    };
    QObject::connect(&tabs(window), &QTabWidget::currentChanged, &window, mark);
    mark();
}

void showWhatIsPossible(QMainWindow &window)
{
    for (const Pressing &row : pressings)
        part<QAction>(window, row.action).setEnabled(mayPress(window, row));
    part<QAction>(window, "stopAction").setEnabled(runningSheet(window));
}

// A shortcut must not depend on when its menu was opened last.
void enableAll(QMainWindow &window)
{
    for (const Pressing &row : pressings)
        part<QAction>(window, row.action).setEnabled(true);
    part<QAction>(window, "stopAction").setEnabled(true);
}

} // namespace

void connectMenu(QMainWindow &window)
{
    connectPressings(window);
    connectViewings(window);
    for (const char *name : {"profileMenu", "runMenu", "viewMenu"}) {
        auto &menu = part<QMenu>(window, name);
        QObject::connect(&menu, &QMenu::aboutToShow, &window, [&window] { showWhatIsPossible(window); });
        QObject::connect(&menu, &QMenu::aboutToHide, &window, [&window] { enableAll(window); });
    }
    // The sheet asks what its own close button asks.
    QObject::connect(&part<QAction>(window, "stopAction"), &QAction::triggered, &window, [&window] {
        if (PanelDialog *sheet = runningSheet(window)) sheet->reject();
    });
    QObject::connect(&part<QAction>(window, "quitAction"), &QAction::triggered, &window, &QWidget::close);
    auto *guide = new Guide(&window);
    QObject::connect(&part<QAction>(window, "guideAction"), &QAction::triggered, guide,
                     [guide, &window] { guide->show(GuidePage::Guide, window); });
    QObject::connect(&part<QAction>(window, "recoveryAction"), &QAction::triggered, guide,
                     [guide, &window] { guide->show(GuidePage::Recovery, window); });
    QObject::connect(&part<QAction>(window, "aboutAction"), &QAction::triggered, &window,
                     [&window] { showAbout(window); });
}

} // namespace ui
