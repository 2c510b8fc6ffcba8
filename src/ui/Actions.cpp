#include "ui/Actions.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/Binding.h"
#include "ui/lists/ArchiveList.h"
#include "ui/lists/PathList.h"
#include "ui/lists/ToolTable.h"
#include "ui/pages/FoldersPage.h"
#include "ui/widgets/PanelDialog.h"
#include "ui/widgets/SizeEdit.h"
#include "ui/widgets/StepperButtons.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

using Controller = QuillorentAppDelegate;

template <auto action>
void send(const ActionCall &call)
{
    if constexpr (std::is_invocable_v<decltype(action), Controller &, const QString &>)
        (call.controller.*action)(call.text);
    else
        (call.controller.*action)();
}

// The entry that comes to stand in the place of the first removed one is selected: it can be removed next,
// and never more than it by accident.
template <auto list, auto action>
void removeSelected(const ActionCall &call)
{
    outlets::TableView &table = call.controller.*list;
    const int first = table.selectedRow();
    (call.controller.*action)();
    table.setSelectedRows(first < 0 ? QList<int>() : QList<int>{first});
}

template <auto button>
void cancelRun(const ActionCall &call)
{
    call.controller.buttonKill01(call.controller.*button);
}

void openExtractedFolder(const ActionCall &call)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(call.controller.extractedFolder()));
}

void showConsole(const ActionCall &call) { call.controller.consolePanel01.orderFront(); }

void closeConsole(const ActionCall &call) { call.controller.consolePanel01.orderOut(); }

void copyConsole(const ActionCall &call)
{
    QGuiApplication::clipboard()->setText(call.controller.consoleTextView01.text());
}

void showTools(const ActionCall &call)
{
    call.controller.profileButton05ActionEnd();
    auto &tabs = *call.window.findChild<QTabWidget *>(u"mainTabs"_s);
    tabs.setCurrentWidget(tabs.findChild<QWidget *>(u"toolsPage"_s));
}

FoldersPage &foldersPage(const ActionCall &call) { return *call.window.findChild<FoldersPage *>(); }

void removeFolders(const ActionCall &call)
{
    const int first = call.controller.listTableView.selectedRow();
    foldersPage(call).removeSelected();
    call.controller.listTableView.setSelectedRows(first < 0 ? QList<int>() : QList<int>{first});
}

void showPasswords(const ActionCall &call) { foldersPage(call).goTo(Hindrance::Place::Password); }

void openDestination(const ActionCall &call) { foldersPage(call).openDestination(); }

void tryRestore(const ActionCall &call) { foldersPage(call).tryRestore(); }

void openDownloadPage(const ActionCall &call)
{
    call.controller.openBrowserAt(call.controller.downloadButton01);
}

constexpr QLatin1StringView operator""_name(const char *text, size_t size)
{
    return QLatin1StringView(text, qsizetype(size));
}

constexpr ActionRow table[] = {
    {"profileCombo01"_name, send<&Controller::profileCombo01Action>},
    {"profileButton01"_name, send<&Controller::profileButton01Action>},
    {"profileButton02"_name, send<&Controller::profileButton02Action>},
    {"profileButton03"_name, send<&Controller::profileButton03Action>},
    {"profileButton04"_name, send<&Controller::profileButton04Action>},
    {"profileButton05"_name, send<&Controller::profileButton05Action>},
    {"profileButton06"_name, send<&Controller::profileButton06Action>},
    {"profileButton07"_name, send<&Controller::profileButton07Action>},
    {"defaultProfileButton"_name, send<&Controller::setterDefaultProfile>},
    {"autosaveCheck01"_name, send<&Controller::autosaveCheck01Action>},

    {"mainTabs"_name, send<&Controller::tabViewDidSelectTabViewItem>},

    {"folderButton01"_name, send<&Controller::folderButton01Action>},
    {"folderButton02"_name, removeFolders},
    {"fileButton01"_name, send<&Controller::fileButton01Action>},
    {"checkBox04"_name, send<&Controller::prefCheck01Action>},
    {"prefText01"_name, send<&Controller::prefStepper01Action>},
    {"prefStepper01"_name, send<&Controller::prefStepper01Action>},
    {"checkBox05"_name, send<&Controller::checkBox05Action>},
    {"checkBox06"_name, send<&Controller::checkBox06Action>},
    {"protectionButton"_name, showPasswords},
    {"openDestinationButton"_name, openDestination},
    {"tryRestoreButton"_name, tryRestore},
    {"buttonLaunch01"_name, send<&Controller::buttonLaunch01>},

    {"extractButton01"_name, send<&Controller::extractButton01Action>},
    {"extractButton02"_name,
     removeSelected<&Controller::extractTableView, &Controller::extractButton02Action>},
    {"extractButton03"_name, send<&Controller::extractButton03Action>},
    {"contentsButton01"_name, send<&Controller::contentsButton01Action>},
    {"restoredFolderButton01"_name, send<&Controller::takeRestoredFolder>},
    {"extractPathButton"_name, send<&Controller::extractPathButtonAction>},
    {"openFolderButton"_name, openExtractedFolder},
    {"buttonLaunch02"_name, send<&Controller::buttonLaunch02>},

    {"passCombo01"_name, send<&Controller::passCombo01Action>},
    {"checkBox01"_name, send<&Controller::checkBox01Action>},
    {"checkBox02"_name, send<&Controller::checkBox02Action>},
    {"passButton01"_name, send<&Controller::passButton01Action>},
    {"passButton02"_name, send<&Controller::passButton02Action>},
    {"keychainPass"_name, send<&Controller::keychainFieldEdited>},
    {"keychainClear"_name, send<&Controller::keychainFieldEdited>},
    {"keychainUnlock01"_name, send<&Controller::keychainUnlock01Action>},
    {"certButton01"_name, send<&Controller::certButton01Action>},
    {"certInfoButton01"_name, send<&Controller::certInfo01>},
    {"pkButton01"_name, send<&Controller::pkButton01Action>},
    {"certInfoButton02"_name, send<&Controller::certInfo02>},

    {"syncButton01"_name, send<&Controller::syncButton01Action>},
    {"syncButton02"_name, removeSelected<&Controller::syncTableView, &Controller::syncButton02Action>},
    {"syncButtoSrc"_name, send<&Controller::syncButtoSrcAction>},
    {"syncButtoDest"_name, send<&Controller::syncButtoDestAction>},
    {"syncTextDestPath"_name, send<&Controller::syncTextDestPathAction>},
    {"syncSelector01"_name, send<&Controller::syncSelector01Action>},
    {"checkBoxSync1"_name, send<&Controller::checkBoxSync1Action>},
    {"checkBoxSync2"_name, send<&Controller::checkBoxSync2Action>},
    {"syncCheck01"_name, send<&Controller::syncCheck01Action>},
    {"syncUser"_name, send<&Controller::syncCheck02Action>},
    {"syncServer"_name, send<&Controller::syncCheck02Action>},
    {"syncPort"_name, send<&Controller::syncCheck02Action>},
    {"previewButton01"_name, send<&Controller::previewButton01Action>},
    {"buttonLaunch03"_name, send<&Controller::buttonLaunch03>},

    {"toolsCancel01"_name, send<&Controller::toolsCancel01Action>},
    {"clearRemove01"_name, send<&Controller::clearRemove01Action>},

    {"settingsSaveButton"_name, send<&Controller::saveSettings1Action>},
    {"consoleShowButton"_name, showConsole},

    {"profilePanel01"_name, send<&Controller::profileButton03ActionEnd>},
    {"profilePanel01Cancel"_name, send<&Controller::profileButton03ActionEnd>},
    {"profilePanel01Ok"_name, send<&Controller::panel01ok>},
    {"profilePanel02"_name, send<&Controller::profileButton04ActionEnd>},
    {"profilePanel02Cancel"_name, send<&Controller::profileButton04ActionEnd>},
    {"profilePanel02Ok"_name, send<&Controller::panel02ok>},
    {"profilePanel03"_name, send<&Controller::profileButton06ActionEnd>},
    {"profilePanel03Cancel"_name, send<&Controller::profileButton06ActionEnd>},
    {"profilePanel03Ok"_name, send<&Controller::panel03ok>},
    {"profilePanel04"_name, send<&Controller::profileButton07ActionEnd>},
    {"panel04cancel"_name, send<&Controller::profileButton07ActionEnd>},
    {"panel04ok"_name, send<&Controller::panel04ok>},
    {"warningPanel04"_name, send<&Controller::panelNoname>},
    {"warningPanel04CloseButton"_name, send<&Controller::panelNoname>},

    {"savePanel01"_name, send<&Controller::savePanel01Close>},
    {"savePanel01CloseButton"_name, send<&Controller::savePanel01Close>},
    {"settingsPanel01"_name, send<&Controller::settingsPanel01Close>},
    {"settingsPanel01CloseButton"_name, send<&Controller::settingsPanel01Close>},
    {"conflictPanel01"_name, send<&Controller::conflictPanel01Stop>},
    {"conflictPanel01Mine"_name, send<&Controller::conflictPanel01Mine>},
    {"conflictPanel01Theirs"_name, send<&Controller::conflictPanel01Theirs>},
    {"conflictPanel01Stop"_name, send<&Controller::conflictPanel01Stop>},
    {"quitPanel01"_name, send<&Controller::quitPanel01Stay>},
    {"quitPanel01Again"_name, send<&Controller::quitPanel01Again>},
    {"quitPanel01Copy"_name, send<&Controller::quitPanel01Copy>},
    {"quitPanel01Leave"_name, send<&Controller::quitPanel01Leave>},
    {"quitPanel01Stay"_name, send<&Controller::quitPanel01Stay>},

    {"preferencesPanel01"_name, send<&Controller::profileButton05ActionEnd>},
    {"preferencesToolsButton"_name, showTools},
    {"preferencesCloseButton"_name, send<&Controller::profileButton05ActionEnd>},
    {"prefSelector01"_name, send<&Controller::prefSelector01Action>},
    {"prefSelector02"_name, send<&Controller::prefSelector02Action>},
    {"prefCheck02"_name, send<&Controller::prefCheck02Action>},
    {"prefCheck03"_name, send<&Controller::prefCheck03Action>},
    {"updatesCheck01"_name, send<&Controller::updatesCheck01Action>},

    {"buttonCancel01"_name, cancelRun<&Controller::buttonCancel01>},
    {"buttonCancel02"_name, cancelRun<&Controller::buttonCancel02>},
    {"buttonCancel03"_name, cancelRun<&Controller::buttonCancel03>},
    {"previewPanel01"_name, send<&Controller::previewPanel01Close>},
    {"previewPanel01CloseButton"_name, send<&Controller::previewPanel01Close>},
    {"previewPanel01LaunchButton"_name, send<&Controller::previewPanel01Launch>},
    {"warningPanel01"_name, send<&Controller::warningPanel01Close>},
    {"warningPanel01CloseButton"_name, send<&Controller::warningPanel01Close>},
    {"certPanel01"_name, send<&Controller::certButton01ActionEnd>},
    {"certPanel01CloseButton"_name, send<&Controller::certButton01ActionEnd>},
    {"pkPanel01"_name, send<&Controller::pkButton01ActionEnd>},
    {"pkPanel01CloseButton"_name, send<&Controller::pkButton01ActionEnd>},
    {"warningPanel03"_name, send<&Controller::buttonLaunch01Stop>},
    {"buttonLaunch01Stop"_name, send<&Controller::buttonLaunch01Stop>},
    {"buttonLaunch01b"_name, send<&Controller::buttonLaunch01b>},
    {"noPathPanel01"_name, send<&Controller::noPathPanel01Close>},
    {"noPathPanel01CloseButton"_name, send<&Controller::noPathPanel01Close>},
    {"updatePanel01"_name, send<&Controller::updatePanel01Close>},
    {"updateCloseButton"_name, send<&Controller::updatePanel01Close>},
    {"downloadButton01"_name, openDownloadPage},
    {"warningPanel02"_name, send<&Controller::buttonLaunch02Stop>},
    {"buttonLaunch02Stop"_name, send<&Controller::buttonLaunch02Stop>},
    {"buttonLaunch02b"_name, send<&Controller::buttonLaunch02b>},
    {"concernsPanel01"_name, send<&Controller::concernsPanel01Stop>},
    {"concernsPanel01Stop"_name, send<&Controller::concernsPanel01Stop>},
    {"concernsPanel01GoOn"_name, send<&Controller::concernsPanel01GoOn>},
    {"contentsPanel01"_name, send<&Controller::contentsPanel01Close>},
    {"contentsPanel01CloseButton"_name, send<&Controller::contentsPanel01Close>},
    {"contentsPanel01RestoreButton"_name, send<&Controller::contentsPanel01Restore>},
    {"extractPanel01"_name, send<&Controller::stopProcess02b>},
    {"stopProcess02b"_name, send<&Controller::stopProcess02b>},
    {"consolePanel01"_name, closeConsole},
    {"consoleCloseButton"_name, closeConsole},
    {"consoleCopyButton"_name, copyConsole},
    {"consolePanel01Clear"_name, send<&Controller::consolePanel01Action>},
};

/// Connects the signal by which a user's doing shows. Says whether the widget has one.
template <class Perform>
bool connectControl(QWidget &widget, Perform perform)
{
    const auto performPlain = [perform] { perform(QString()); };
    if (auto *box = qobject_cast<QCheckBox *>(&widget))
        return bool(QObject::connect(box, &QCheckBox::toggled, &widget, performPlain));
    if (auto *button = qobject_cast<QAbstractButton *>(&widget))
        return bool(QObject::connect(button, &QAbstractButton::clicked, &widget, performPlain));
    if (auto *combo = qobject_cast<QComboBox *>(&widget))
        return bool(QObject::connect(combo, &QComboBox::activated, &widget, performPlain));
    if (auto *size = qobject_cast<SizeEdit *>(&widget))
        return bool(QObject::connect(size, &SizeEdit::thousandsEdited, &widget, perform));
    if (auto *field = qobject_cast<QLineEdit *>(&widget))
        return bool(QObject::connect(field, &QLineEdit::textChanged, &widget, perform));
    if (auto *stepper = qobject_cast<StepperButtons *>(&widget))
        return bool(QObject::connect(stepper, &StepperButtons::stepped, &widget,
                                     [perform](int value) { perform(QString::number(value)); }));
    if (auto *tabs = qobject_cast<QTabWidget *>(&widget))
        return bool(QObject::connect(tabs, &QTabWidget::currentChanged, &widget, performPlain));
    if (auto *panel = qobject_cast<PanelDialog *>(&widget))
        return bool(QObject::connect(panel, &PanelDialog::closeRequested, &widget, performPlain));
    return false;
}

void connectPathList(Controller &controller, QMainWindow &window, const QString &name,
                     const QString &removeButton, void (Controller::*add)(const QStringList &))
{
    auto *list = window.findChild<PathListView *>(name);
    QObject::connect(list, &PathListView::pathsDropped, list,
                     [&controller, add](const QStringList &paths) { (controller.*add)(paths); });
    QObject::connect(list, &PathListView::deletePressed, window.findChild<QAbstractButton *>(removeButton),
                     &QAbstractButton::click);
}

// What the lists do beyond showing their outlets.
void connectLists(Controller &controller, QMainWindow &window)
{
    connectPathList(controller, window, u"listTableView"_s, u"folderButton02"_s, &Controller::addFolders);
    connectPathList(controller, window, u"extractTableView"_s, u"extractButton02"_s,
                    &Controller::addArchives);
    connectPathList(controller, window, u"syncTableView"_s, u"syncButton02"_s, &Controller::addSyncEntries);
    for (auto *tools : window.findChildren<ToolTableView *>())
        QObject::connect(tools, &ToolTableView::chooseRequested, tools,
                         [&controller] { controller.selectFile(); });
}

} // namespace

std::span<const ActionRow> actionTable() { return table; }

void connectActions(Controller &controller, QMainWindow &window, const QList<QWidget *> &roots)
{
    for (const ActionRow &row : table) {
        const auto perform = [&row, &controller, &window](const QString &text) {
            row.perform({controller, window, text});
        };
        const QList<QWidget *> widgets = widgetsNamed(QString(row.control), roots);
        if (widgets.size() != 1 || !connectControl(*widgets.first(), perform))
            qFatal("no control of the name %s", row.control.data());
    }
    connectLists(controller, window);
}

} // namespace ui
