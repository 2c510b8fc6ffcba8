#include "ui/Window.h"

#include "app/QuillorentAppDelegate.h"
#include "ui/Actions.h"
#include "ui/Binding.h"
#include "ui/Menu.h"
#include "ui/RunNotices.h"
#include "ui/WindowMemory.h"
#include "ui/look/Appearance.h"
#include "ui/pages/Derived.h"
#include "ui/sheets/Panels.h"
#include "ui/sheets/StopQuestion.h"
#include "ui/sheets/UnsavedChanges.h"
#include "ui/widgets/AccessibleScrollArea.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/OpenPanelDialog.h"
#include "ui/widgets/PanelDialog.h"
#include "ui/widgets/PathDirection.h"
#include "ui/widgets/ScrollingPages.h"
#include "ui/widgets/SpokenSecrets.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace ui {

Window::Window(QuillorentAppDelegate &controller)
    : m_controller(controller), m_form(std::make_unique<Ui::MainWindow>())
{
    keepScrollAreasInBounds();
    keepSecretsUnspoken();
    m_form->setupUi(this);
    finishForm();
    m_panels = std::make_unique<Panels>(controller, *this);
    keepPathsLeftToRight(roots());
    for (QWidget *root : roots())
        dressButtons(*root);
    m_binding = std::make_unique<Binding>(controller.outlets(), roots());
    connectActions(controller, *this, roots());
    for (PanelDialog *sheet : m_panels->progressSheets())
        connect(sheet, &PanelDialog::closeRequested, this, [this, sheet] { askToCancel(*sheet); });
    auto *announcer = new Announcer(*this);
    for (QWidget *root : m_panels->all())
        if (auto *panel = qobject_cast<PanelDialog *>(root)) announcer->readAloud(*panel);
    const auto *notices = new RunNotices(controller, *announcer, m_panels->progressSheets());
    connect(notices, &RunNotices::showRequested, this, &Window::comeToFront);
    m_unsaved = std::make_unique<UnsavedChanges>(controller, *this, *m_form->unsavedText);
    showDerived(controller, *m_form, m_binding->queue());
    connectMenu(*this);
    addShortcuts();
    controller.openPanel = [this](const outlets::OpenPanel &panel) { return askForPaths(panel, this); };
    controller.openAddress = [](const QString &address) { QDesktopServices::openUrl(QUrl(address)); };
    controller.showsUpdates = true;
    controller.asksTwice = true;
}

Window::~Window()
{
    keepPlace(*this, *m_form->mainTabs);
    m_controller.openPanel = [](const outlets::OpenPanel &) { return std::nullopt; };
    m_controller.openAddress = [](const QString &) {};
    m_controller.showsUpdates = false;
    m_controller.asksTwice = false;
}

QList<QWidget *> Window::roots() { return QList<QWidget *>{this} + m_panels->all(); }

void Window::comeToFront()
{
    setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    show();
    raise();
    activateWindow();
}

void Window::open(const Opening &opening)
{
    if (const qsizetype page = Opening::pages().indexOf(opening.page); page >= 0)
        m_form->mainTabs->setCurrentIndex(static_cast<int>(page));
    if (opening.archives.isEmpty()) return;
    m_form->mainTabs->setCurrentWidget(m_form->extractPage);
    m_controller.addArchives(opening.archives);
}

// What a form can't say.
void Window::finishForm()
{
    m_form->prefStepper01->setRange(1, 10'000'000, 1000);
    m_form->prefStepper01->listenTo(*m_form->prefText01);
    letPagesScroll(*m_form->mainTabs);
    fitToShownPage(*m_form->passTabs);
    restorePlace(*this, *m_form->mainTabs);
}

// The menu has those of the window itself.
void Window::addShortcuts()
{
    for (QWidget *root : m_panels->all()) {
        auto *quit = new QShortcut(QKeySequence::Quit, root);
        connect(quit, &QShortcut::activated, this, &QWidget::close);
        auto *guide = new QShortcut(QKeySequence::HelpContents, root);
        connect(guide, &QShortcut::activated, m_form->guideAction, &QAction::trigger);
    }
}

void Window::closeEvent(QCloseEvent *event)
{
    m_mayStop = m_mayStop && m_controller.isRunActive(); // said of this run, not of a later one
    if (m_controller.isRunActive() && !m_mayStop) {
        event->ignore();
        askToStop();
        return;
    }
    if (!m_unsaved->mayClose()) {
        event->ignore();
        return;
    }
    event->accept();
    Q_EMIT closed();
}

// Escape is pressed by mistake, and the work of hours may be behind it.
void Window::askToCancel(const PanelDialog &sheet)
{
    if (m_question || m_controller.isCancelledByUser()) return;
    // "progressPanel01" has "buttonCancel01".
    auto *cancel = sheet.findChild<QAbstractButton *>(u"buttonCancel"_s + sheet.objectName().last(2));
    m_question = ui::askToStop(*this, m_panels->progressSheets(), StopFor::Itself,
                               !m_controller.lookedInto().isEmpty(), [cancel] { cancel->click(); });
}

void Window::askToStop()
{
    if (m_question) return;
    m_question = ui::askToStop(*this, m_panels->progressSheets(), StopFor::Quitting,
                               !m_controller.lookedInto().isEmpty(), [this] {
                                   m_mayStop = true;
                                   close();
                               });
}

} // namespace ui
