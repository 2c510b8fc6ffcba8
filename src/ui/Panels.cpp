#include "ui/Panels.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/Appearance.h"
#include "ui/PanelDialog.h"
#include "ui/ProgressFigures.h"
#include "ui_ConsolePanel01.h"
#include "ui_MessagePanel.h"
#include "ui_NamePanel.h"
#include "ui_PreferencesPanel01.h"
#include "ui_ProfilePanel04.h"
#include "ui_ProgressPanel01.h"
#include "ui_UpdatePanel01.h"
#include "ui_WarningPanel03.h"

#include <QCoreApplication>
#include <QFontDatabase>

namespace ui {
namespace {

template <class Form>
PanelDialog *makePanel(Form &form, QWidget &window)
{
    auto *panel = new PanelDialog(&window);
    form.setupUi(panel);
    return panel;
}

void showIcon(QLabel &label, const QString &name)
{
    const int size = label.style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    label.setPixmap(themeIcon(name).pixmap(size));
}

/// A sheet that says something and is closed; its button is named after it.
PanelDialog *makeMessage(QWidget &window, const QString &panel, const QString &text, const QString &title)
{
    Ui::MessagePanel form;
    PanelDialog *dialog = makePanel(form, window);
    dialog->setObjectName(panel);
    dialog->setWindowTitle(title);
    form.messageText->setObjectName(text);
    form.messageCloseButton->setObjectName(panel + u"CloseButton"_qs);
    showIcon(*form.messageIcon, u"dialog-warning"_qs);
    return dialog;
}

/// What a sheet that asks for a profile's name is made of.
struct NameSheet {
    QString panel;       ///< its buttons are named after it
    QString profileText; ///< names the profile that it is about; empty where it is about none yet
    QString nameEdit;
    QString title;
    QString okTitle;
    QString advice;
};

PanelDialog *makeNameSheet(QWidget &window, const NameSheet &sheet)
{
    Ui::NamePanel form;
    PanelDialog *dialog = makePanel(form, window);
    dialog->setObjectName(sheet.panel);
    dialog->setWindowTitle(sheet.title);
    form.profileText->setObjectName(sheet.profileText);
    form.nameEdit->setObjectName(sheet.nameEdit);
    form.okButton->setObjectName(sheet.panel + u"Ok"_qs);
    form.okButton->setText(sheet.okTitle);
    form.cancelButton->setObjectName(sheet.panel + u"Cancel"_qs);
    form.nameAdvice->setText(sheet.advice);
    form.nameAdvice->setHidden(sheet.advice.isEmpty());
    const bool isNew = sheet.profileText.isEmpty();
    form.profileLabel->setHidden(isNew);
    form.profileText->setHidden(isNew);
    if (!isNew) delete form.mustDos01;
    // Where the cursor is when the sheet opens.
    form.nameEdit->setFocus();
    return dialog;
}

QString tr(const char *text) { return QCoreApplication::translate("Panels", text); }

QList<QWidget *> makeMessages(QWidget &window)
{
    return {makeMessage(window, u"warningPanel01"_qs, u"warningText01"_qs, tr("Can't start")),
            makeMessage(window, u"warningPanel04"_qs, u"warningText04"_qs, tr("No such name")),
            makeMessage(window, u"certPanel01"_qs, u"certPanelText01"_qs, tr("Certificate not accepted")),
            makeMessage(window, u"noPathPanel01"_qs, u"noPathText01"_qs, tr("Programs are missing")),
            makeMessage(window, u"pkPanel01"_qs, u"pkPanelText01"_qs, tr("Private key not accepted"))};
}

QList<QWidget *> makeSimplePanels(QWidget &window)
{
    Ui::ProfilePanel04 deletion;
    Ui::PreferencesPanel01 options;
    Ui::UpdatePanel01 update;
    return {
        makeNameSheet(window, {.panel = u"profilePanel01"_qs,
                               .profileText = u"panel01text01"_qs,
                               .nameEdit = u"panel01text02"_qs,
                               .title = tr("Rename a profile"),
                               .okTitle = tr("&Rename"),
                               .advice = {}}),
        makeNameSheet(window, {.panel = u"profilePanel02"_qs,
                               .profileText = {},
                               .nameEdit = u"panel02text01"_qs,
                               .title = tr("New profile"),
                               .okTitle = tr("C&reate"),
                               .advice = {}}),
        makeNameSheet(
            window, {.panel = u"profilePanel03"_qs,
                     .profileText = u"panel03text01"_qs,
                     .nameEdit = u"panel03text02"_qs,
                     .title = tr("Duplicate a profile"),
                     .okTitle = tr("D&uplicate"),
                     .advice = tr("The two are independent of each other once the profiles are saved and the "
                                  "program is started again. Until then a change in one is a change in "
                                  "both.")}),
        makePanel(deletion, window),
        makePanel(options, window),
        makePanel(update, window)};
}

} // namespace

Panels::Panels(QuillorentAppDelegate &controller, QWidget &window)
    : m_questionForm(std::make_unique<Ui::WarningPanel03>())
    , m_progressForm(std::make_unique<Ui::ProgressPanel01>())
    , m_consoleForm(std::make_unique<Ui::ConsolePanel01>())
    , m_simple(makeMessages(window) + makeSimplePanels(window))
    , m_question(makePanel(*m_questionForm, window))
    , m_progress(makePanel(*m_progressForm, window))
    , m_console(makePanel(*m_consoleForm, window))
    , m_figures(std::make_unique<ProgressFigures>(controller, *m_progressForm))
{
    showIcon(*m_questionForm->questionIcon, u"dialog-question"_qs);
    m_progress->keepWindowClosable();
    m_consoleForm->consoleTextView01->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QObject::connect(m_progress, &PanelDialog::visibilityChanged, m_figures.get(),
                     &ProgressFigures::setRunning);
}

Panels::~Panels() = default;

QList<QWidget *> Panels::all() const
{
    return m_simple + QList<QWidget *>{m_question, m_progress, m_console};
}

} // namespace ui
