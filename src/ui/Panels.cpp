#include "ui/Panels.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/Appearance.h"
#include "ui/PanelDialog.h"
#include "ui/ProgressFigures.h"
#include "ui_ConcernsPanel01.h"
#include "ui_ConsolePanel01.h"
#include "ui_ExtractPanel01.h"
#include "ui_ProgressPanel01.h"
#include "ui_ProgressPanel02.h"
#include "ui_WarningPanel01.h"
#include "ui_WarningPanel02.h"
#include "ui_WarningPanel03.h"

#include <QFontDatabase>

namespace ui {
namespace {

void showIcon(QLabel &label, const QString &name)
{
    const int size = label.style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    label.setPixmap(themeIcon(name).pixmap(size));
}

template <class Form>
std::unique_ptr<ProgressFigures> makeFigures(const RunState &run, const Form &form, PanelDialog &sheet)
{
    sheet.keepWindowClosable();
    auto figures = std::make_unique<ProgressFigures>(
        run, ProgressFigures::Widgets{*form.itemsDone, *form.bytesDone, *form.elapsed, *form.itemsRunning});
    QObject::connect(&sheet, &PanelDialog::visibilityChanged, figures.get(), &ProgressFigures::setRunning);
    return figures;
}

} // namespace

template <class Form>
Panels::Panel<Form>::Panel(QWidget &window) : form(std::make_unique<Form>()), dialog(new PanelDialog(&window))
{
    form->setupUi(dialog);
}

template <class Form>
Panels::Panel<Form>::~Panel() = default;

Panels::Panels(QuillorentAppDelegate &controller, QWidget &window)
    : m_warning(window)
    , m_extractQuestion(window)
    , m_backupQuestion(window)
    , m_concerns(window)
    , m_damage(window)
    , m_backup(window)
    , m_extraction(window)
    , m_console(window)
    , m_backupFigures(makeFigures(controller, *m_backup.form, *m_backup.dialog))
    , m_extractionFigures(makeFigures(controller, *m_extraction.form, *m_extraction.dialog))
{
    showIcon(*m_warning.form->warningIcon, u"dialog-warning"_qs);
    showIcon(*m_damage.form->damageIcon, u"dialog-warning"_qs);
    showIcon(*m_concerns.form->concernsIcon, u"dialog-question"_qs);
    showIcon(*m_extractQuestion.form->questionIcon, u"dialog-question"_qs);
    showIcon(*m_backupQuestion.form->questionIcon, u"dialog-question"_qs);
    m_console.form->consoleTextView01->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

Panels::~Panels() = default;

QList<QWidget *> Panels::all() const
{
    return {m_warning.dialog, m_extractQuestion.dialog, m_backupQuestion.dialog, m_concerns.dialog,
            m_damage.dialog,  m_backup.dialog,          m_extraction.dialog,     m_console.dialog};
}

QList<PanelDialog *> Panels::progressSheets() const { return {m_backup.dialog, m_extraction.dialog}; }

} // namespace ui
