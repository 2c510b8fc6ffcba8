#include "ui/Panels.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/Appearance.h"
#include "ui/PanelDialog.h"
#include "ui/ProgressFigures.h"
#include "ui_ConsolePanel01.h"
#include "ui_ProgressPanel01.h"
#include "ui_WarningPanel01.h"
#include "ui_WarningPanel03.h"

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

} // namespace

Panels::Panels(QuillorentAppDelegate &controller, QWidget &window)
    : m_warningForm(std::make_unique<Ui::WarningPanel01>())
    , m_questionForm(std::make_unique<Ui::WarningPanel03>())
    , m_progressForm(std::make_unique<Ui::ProgressPanel01>())
    , m_consoleForm(std::make_unique<Ui::ConsolePanel01>())
    , m_warning(makePanel(*m_warningForm, window))
    , m_question(makePanel(*m_questionForm, window))
    , m_progress(makePanel(*m_progressForm, window))
    , m_console(makePanel(*m_consoleForm, window))
    , m_figures(std::make_unique<ProgressFigures>(controller, *m_progressForm))
{
    showIcon(*m_warningForm->warningIcon, u"dialog-warning"_qs);
    showIcon(*m_questionForm->questionIcon, u"dialog-question"_qs);
    m_progress->keepWindowClosable();
    m_consoleForm->consoleTextView01->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QObject::connect(m_progress, &PanelDialog::visibilityChanged, m_figures.get(),
                     &ProgressFigures::setRunning);
}

Panels::~Panels() = default;

QList<QWidget *> Panels::all() const { return {m_warning, m_question, m_progress, m_console}; }

} // namespace ui
