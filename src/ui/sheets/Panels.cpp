#include "ui/sheets/Panels.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/look/Appearance.h"
#include "ui/sheets/ContentsSheet.h"
#include "ui/sheets/ProgressFigures.h"
#include "ui/widgets/PanelDialog.h"
#include "ui_ChoicePanel.h"
#include "ui_ConcernsPanel01.h"
#include "ui_ConsolePanel01.h"
#include "ui_ContentsPanel01.h"
#include "ui_ExtractPanel01.h"
#include "ui_MessagePanel.h"
#include "ui_NamePanel.h"
#include "ui_PreferencesPanel01.h"
#include "ui_PreviewPanel01.h"
#include "ui_ProfilePanel04.h"
#include "ui_ProgressPanel01.h"
#include "ui_ProgressPanel02.h"
#include "ui_ProgressPanel03.h"
#include "ui_UpdatePanel01.h"
#include "ui_WarningPanel02.h"
#include "ui_WarningPanel03.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Panels)
};

/// The forms are drawn for usual letters.
void growWithText(QWidget &panel)
{
    constexpr int usualLine = 16;
    const int line = panel.fontMetrics().height();
    if (line > usualLine)
        panel.resize((panel.size() * line / usualLine).boundedTo(panel.screen()->availableSize()));
}

template <class Form>
PanelDialog *makePanel(Form &form, QWidget &window)
{
    auto *panel = new PanelDialog(&window);
    form.setupUi(panel);
    growWithText(*panel);
    return panel;
}

template <class Form>
PanelDialog *makeNamedPanel(Form &form, QWidget &window, const QString &name, const QString &title)
{
    PanelDialog *panel = makePanel(form, window);
    panel->setObjectName(name);
    panel->setWindowTitle(title);
    return panel;
}

/// A panel that nothing but its outlets and buttons belongs to.
template <class Form>
PanelDialog *makePlain(QWidget &window)
{
    Form form;
    return makePanel(form, window);
}

void showIcon(QLabel &label, const QString &name)
{
    const int size = label.style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    label.setPixmap(themeIcon(name).pixmap(size));
}

template <class Form, auto icon>
PanelDialog *makeWithIcon(QWidget &window, const QString &iconName)
{
    Form form;
    PanelDialog *panel = makePanel(form, window);
    showIcon(*(form.*icon), iconName);
    return panel;
}

PanelDialog *makePreferences(const QuillorentAppDelegate &controller, QWidget &window)
{
    Ui::PreferencesPanel01 form;
    PanelDialog *panel = makePanel(form, window);
    const auto showStartUp = [&controller, label = form.startUpProfile] {
        const QString name = controller.setting(u"resources"_s, u"selectedprofile"_s).value_or(QString());
        label->setText(name.isEmpty() ? Words::tr("now: the last one of the list")
                                      : Words::tr("now: %1").arg(name));
    };
    QObject::connect(panel, &PanelDialog::visibilityChanged, panel, showStartUp);
    // Its action comes first, whichever is connected first.
    QObject::connect(form.defaultProfileButton, &QAbstractButton::clicked, panel, showStartUp,
                     Qt::QueuedConnection);
    return panel;
}

PanelDialog *makeConsole(QWidget &window)
{
    Ui::ConsolePanel01 form;
    PanelDialog *panel = makePanel(form, window);
    form.consoleTextView01->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return panel;
}

PanelDialog *makeContents(QuillorentAppDelegate &controller, QWidget &window)
{
    Ui::ContentsPanel01 form;
    PanelDialog *panel = makePanel(form, window);
    new ContentsSheet(controller, *panel,
                      {*form.contentsHeading, *form.contentsSearch, *form.contentsTree, *form.contentsChoice,
                       *form.contentsPanel01RestoreButton});
    return panel;
}

/// A sheet that says something and is closed; its button is named after it.
PanelDialog *makeMessage(QWidget &window, const QString &panel, const QString &text, const QString &title)
{
    Ui::MessagePanel form;
    PanelDialog *dialog = makeNamedPanel(form, window, panel, title);
    form.messageText->setObjectName(text);
    form.messageCloseButton->setObjectName(panel + u"CloseButton"_s);
    showIcon(*form.messageIcon, u"dialog-warning"_s);
    return dialog;
}

/// What a sheet is made of that asks what to do about something; the first button is what Return presses.
struct ChoiceSheet {
    QString panel; ///< its buttons are named after it
    QString text;
    QString title;
    QList<std::pair<QString, QString>> buttons; ///< the end of the name, and the title; up to four
};

PanelDialog *makeChoice(QWidget &window, const ChoiceSheet &sheet)
{
    Ui::ChoicePanel form;
    PanelDialog *dialog = makeNamedPanel(form, window, sheet.panel, sheet.title);
    form.choiceText->setObjectName(sheet.text);
    showIcon(*form.choiceIcon, u"dialog-warning"_s);
    QList<QPushButton *> buttons{form.firstButton, form.secondButton, form.otherButton, form.stayButton};
    for (const auto &[name, title] : sheet.buttons) {
        buttons.first()->setObjectName(sheet.panel + name);
        buttons.takeFirst()->setText(title);
    }
    qDeleteAll(buttons);
    return dialog;
}

/// What a sheet that asks for a profile's name is made of.
struct NameSheet {
    QString panel;       ///< its buttons are named after it
    QString profileText; ///< names the profile that it is about; empty where it is about none yet
    QString nameEdit;
    QString title;
    QString okTitle;
    QString advice{};
};

PanelDialog *makeNameSheet(QWidget &window, const NameSheet &sheet)
{
    Ui::NamePanel form;
    PanelDialog *dialog = makeNamedPanel(form, window, sheet.panel, sheet.title);
    form.profileText->setObjectName(sheet.profileText);
    form.nameEdit->setObjectName(sheet.nameEdit);
    form.okButton->setObjectName(sheet.panel + u"Ok"_s);
    form.okButton->setText(sheet.okTitle);
    form.cancelButton->setObjectName(sheet.panel + u"Cancel"_s);
    form.nameAdvice->setText(sheet.advice);
    form.nameAdvice->setHidden(sheet.advice.isEmpty());
    const bool isNew = sheet.profileText.isEmpty();
    form.profileLabel->setHidden(isNew);
    form.profileText->setHidden(isNew);
    if (!isNew) delete form.mustDos01;
    return dialog;
}

QList<QWidget *> makeMessages(QWidget &window)
{
    return {
        makeMessage(window, u"warningPanel01"_s, u"warningText01"_s, Words::tr("Can't start")),
        makeMessage(window, u"warningPanel04"_s, u"warningText04"_s, Words::tr("Name not accepted")),
        makeMessage(window, u"certPanel01"_s, u"certPanelText01"_s, Words::tr("Certificate not accepted")),
        makeMessage(window, u"pkPanel01"_s, u"pkPanelText01"_s, Words::tr("Private key not accepted")),
        makeMessage(window, u"savePanel01"_s, u"saveText01"_s, Words::tr("Can't save")),
        makeMessage(window, u"settingsPanel01"_s, u"settingsText01"_s, Words::tr("Settings and profiles")),
        makeMessage(window, u"noPathPanel01"_s, u"noPathText01"_s, Words::tr("Programs are missing"))};
}

QList<QWidget *> makeQuestions(QWidget &window)
{
    using namespace Ui;
    return {
        makeWithIcon<WarningPanel02, &WarningPanel02::questionIcon>(window, u"dialog-question"_s),
        makeWithIcon<WarningPanel03, &WarningPanel03::questionIcon>(window, u"dialog-question"_s),
        makeWithIcon<ConcernsPanel01, &ConcernsPanel01::concernsIcon>(window, u"dialog-question"_s),
        makeWithIcon<ExtractPanel01, &ExtractPanel01::damageIcon>(window, u"dialog-warning"_s),
        makeChoice(window, {u"conflictPanel01"_s,
                            u"conflictText01"_s,
                            Words::tr("Changed by others, too"),
                            {{u"Mine"_s, Words::tr("&Save what I changed")},
                             {u"Theirs"_s, Words::tr("&Take what is in the file")},
                             {u"Stop"_s, Words::tr("&Cancel")}}}),
        makeChoice(window, {u"quitPanel01"_s,
                            u"quitText01"_s,
                            Words::tr("Can't save"),
                            {{u"Again"_s, Words::tr("&Try again")},
                             {u"Copy"_s, Words::tr("&Save a copy...")},
                             {u"Leave"_s, Words::tr("&Quit without saving")},
                             {u"Stay"_s, Words::tr("&Cancel")}}}),
    };
}

QList<QWidget *> makeProfileSheets(QWidget &window)
{
    return {makeNameSheet(window, {.panel = u"profilePanel01"_s,
                                   .profileText = u"panel01text01"_s,
                                   .nameEdit = u"panel01text02"_s,
                                   .title = Words::tr("Rename a profile"),
                                   .okTitle = Words::tr("&Rename")}),
            makeNameSheet(window, {.panel = u"profilePanel02"_s,
                                   .profileText = {},
                                   .nameEdit = u"panel02text01"_s,
                                   .title = Words::tr("New profile"),
                                   .okTitle = Words::tr("C&reate")}),
            makeNameSheet(
                window,
                {.panel = u"profilePanel03"_s,
                 .profileText = u"panel03text01"_s,
                 .nameEdit = u"panel03text02"_s,
                 .title = Words::tr("Duplicate a profile"),
                 .okTitle = Words::tr("D&uplicate"),
                 .advice = Words::tr(
                     "The two are independent of each other once the profiles are saved and the program is "
                     "started again. Until then a change in one is a change in both.")}),
            makePlain<Ui::ProfilePanel04>(window)};
}

} // namespace

Panels::Panels(QuillorentAppDelegate &controller, QWidget &window)
    : m_all(makeMessages(window) + makeQuestions(window) + makeProfileSheets(window))
{
    m_all += makePreferences(controller, window);
    m_all += {makeConsole(window), makePlain<Ui::PreviewPanel01>(window),
              makePlain<Ui::UpdatePanel01>(window), makeContents(controller, window)};
    addProgressSheet<Ui::ProgressPanel01, &Ui::ProgressPanel01::view01progressIndicator01>(controller,
                                                                                           window);
    addProgressSheet<Ui::ProgressPanel02, &Ui::ProgressPanel02::progress02progressIndicator01>(controller,
                                                                                               window);
    // rsync itself counts what it does.
    m_progressSheets += makePlain<Ui::ProgressPanel03>(window);
    m_progressSheets.last()->keepWindowClosable();
    m_all += m_progressSheets.last();
}

Panels::~Panels() = default;

template <class Form, auto bar>
void Panels::addProgressSheet(const QuillorentAppDelegate &controller, QWidget &window)
{
    Form form;
    PanelDialog *sheet = makePanel(form, window);
    sheet->keepWindowClosable();
    auto figures = std::make_unique<ProgressFigures>(
        controller, ProgressFigures::Widgets{*(form.*bar), *form.bytesDone, *form.pace, *form.timeLeft,
                                             *form.elapsed, *form.itemsRunning});
    QObject::connect(sheet, &PanelDialog::visibilityChanged, figures.get(), &ProgressFigures::setRunning);
    m_figures.push_back(std::move(figures));
    m_progressSheets += sheet;
    m_all += sheet;
}

} // namespace ui
