#include "ui/Panels.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/Appearance.h"
#include "ui/PanelDialog.h"
#include "ui/ProgressFigures.h"
#include "ui_ConsolePanel01.h"
#include "ui_MessagePanel.h"
#include "ui_PreviewPanel01.h"
#include "ui_ProgressPanel01.h"
#include "ui_ProgressPanel03.h"
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

QString tr(const char *text) { return QCoreApplication::translate("Panels", text); }

QList<QWidget *> makeMessages(QWidget &window)
{
    return {makeMessage(window, u"warningPanel01"_qs, u"warningText01"_qs, tr("Can't start")),
            makeMessage(window, u"certPanel01"_qs, u"certPanelText01"_qs, tr("Certificate not accepted")),
            makeMessage(window, u"pkPanel01"_qs, u"pkPanelText01"_qs, tr("Private key not accepted"))};
}

} // namespace

Panels::Panels(QuillorentAppDelegate &controller, QWidget &window)
    : m_questionForm(std::make_unique<Ui::WarningPanel03>())
    , m_progressForm(std::make_unique<Ui::ProgressPanel01>())
    , m_syncProgressForm(std::make_unique<Ui::ProgressPanel03>())
    , m_previewForm(std::make_unique<Ui::PreviewPanel01>())
    , m_consoleForm(std::make_unique<Ui::ConsolePanel01>())
    , m_messages(makeMessages(window))
    , m_question(makePanel(*m_questionForm, window))
    , m_progress(makePanel(*m_progressForm, window))
    , m_syncProgress(makePanel(*m_syncProgressForm, window))
    , m_preview(makePanel(*m_previewForm, window))
    , m_console(makePanel(*m_consoleForm, window))
    , m_figures(std::make_unique<ProgressFigures>(controller, *m_progressForm))
{
    showIcon(*m_questionForm->questionIcon, u"dialog-question"_qs);
    for (PanelDialog *sheet : progressSheets())
        sheet->keepWindowClosable();
    m_consoleForm->consoleTextView01->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QObject::connect(m_progress, &PanelDialog::visibilityChanged, m_figures.get(),
                     &ProgressFigures::setRunning);
}

Panels::~Panels() = default;

QList<QWidget *> Panels::all() const
{
    return m_messages + QList<QWidget *>{m_question, m_progress, m_syncProgress, m_preview, m_console};
}

} // namespace ui
