#include "ui/Window.h"

#include "app/QuillorentAppDelegate.h"
#include "keys/Strength.h"
#include "sync/SyncMeaning.h"
#include "ui/Actions.h"
#include "ui/Binding.h"
#include "ui/OpenPanelDialog.h"
#include "ui/PanelDialog.h"
#include "ui/Panels.h"
#include "ui/Protection.h"
#include "ui/UnsavedChanges.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QLocale>
#include <QShortcut>

namespace ui {
namespace {

QString volumeHint(const QString &size)
{
    bool isNumber = false;
    const qint64 thousands = size.toLongLong(&isNumber);
    if (!isNumber || thousands <= 0) return Window::tr("not a size");
    if (thousands > std::numeric_limits<qint64>::max() / 1000) return {};
    return u"= "_qs + QLocale().formattedDataSize(thousands * 1000, 1, QLocale::DataSizeSIFormat);
}

// Says what to do, and never blocks: whose password it is decides.
QString strengthHint(const QString &password)
{
    switch (estimateStrength(password)) {
    case Strength::None:
        return {};
    case Strength::Weak:
        return Window::tr(
            "Easy to guess. Five or six words that have nothing to do with each other are better.");
    case Strength::Fair:
        return Window::tr("Hard to guess. One more word makes it strong.");
    case Strength::Strong:
        return Window::tr(
            "Very hard to guess. Is it written down in a safe place? A mistyped or forgotten password is "
            "a lost backup.");
    }
    return {};
}

struct RunWords {
    QString title;
    QString text;
    QString consequence; ///< of stopping it
};

RunWords wordsOfRun(const QWidget &sheet)
{
    if (sheet.objectName() == u"progressPanel03")
        return {Window::tr("Synchronisation in progress"), Window::tr("rsync is running."),
                Window::tr("Quitting stops it: what is copied stays, and the next run goes on from there.")};
    if (sheet.objectName() == u"progressPanel02")
        return {Window::tr("Extraction in progress"), Window::tr("An extraction is running."),
                Window::tr("Quitting stops it: what is extracted stays, and is not complete.")};
    return {Window::tr("Backup in progress"), Window::tr("A backup is running."),
            Window::tr("Quitting stops it: archives that are finished stay, those being made are not "
                       "completed.")};
}

} // namespace

Window::Window(QuillorentAppDelegate &controller)
    : m_controller(controller), m_form(std::make_unique<Ui::MainWindow>())
{
    m_form->setupUi(this);
    finishForm();
    m_panels = std::make_unique<Panels>(controller, *this);
    m_binding = std::make_unique<Binding>(controller.outlets(), roots());
    connectActions(controller, *this, roots());
    m_unsaved = std::make_unique<UnsavedChanges>(controller, *this, *m_form->unsavedText);
    deriveFromOutlets();
    addShortcuts();
    controller.openPanel = [this](const outlets::OpenPanel &panel) { return askForPaths(panel, this); };
    controller.openAddress = [](const QString &address) { QDesktopServices::openUrl(QUrl(address)); };
    controller.showsUpdates = true;
}

Window::~Window()
{
    m_controller.openPanel = [](const outlets::OpenPanel &) { return std::nullopt; };
    m_controller.openAddress = [](const QString &) {};
    m_controller.showsUpdates = false;
}

QList<QWidget *> Window::roots() { return QList<QWidget *>{this} + m_panels->all(); }

// What a form can't say.
void Window::finishForm()
{
    m_form->prefStepper01->setRange(1, 10'000'000, 1000);
    m_form->prefStepper01->listenTo(*m_form->prefText01);

    QFont bold = m_form->currentProfileTextView->font();
    bold.setBold(true);
    m_form->currentProfileTextView->setFont(bold);
    for (QLabel *output : {m_form->outputText01, m_form->outputText02})
        output->setMinimumHeight(output->fontMetrics().height());
}

void Window::deriveFromOutlets()
{
    QuillorentAppDelegate &all = m_controller;
    RefreshQueue &queue = m_binding->queue();
    queue.watch({&all.passCombo01, &all.checkBox01, &all.secureText01a, &all.secureText01b, &all.keychainUser,
                 &all.keychainPass, &all.keychainClear, &all.certFile01},
                [this] { m_form->protectionText->setText(protectionText(m_controller)); });
    queue.watch({&all.checkBox01, &all.checkBox02, &all.keychainPass, &all.keychainClear},
                [this] { m_form->keychainConflict->setVisible(isKeychainFieldAmbiguous(m_controller)); });
    queue.watch(all.checkBox02, [this] {
        m_form->keychainLabel->setBuddy(m_controller.checkBox02.isOn() ? m_form->keychainPass
                                                                       : m_form->keychainClear);
    });
    queue.watch(all.keychainUser, [this] {
        for (QWidget *button : {m_form->passButton01, m_form->passButton02})
            button->setEnabled(!m_controller.keychainUser.text().isEmpty());
    });
    queue.watch({&all.checkBox01, &all.secureText01a, &all.secureText01b}, [this] {
        const outlets::TextField &typed =
            m_controller.checkBox01.isOn() ? m_controller.secureText01a : m_controller.secureText01b;
        m_form->strengthHint->setText(strengthHint(typed.text()));
    });
    queue.watch(all.checkBox01, [this] {
        m_form->typedLabel->setBuddy(m_controller.checkBox01.isOn() ? m_form->secureText01a
                                                                    : m_form->secureText01b);
    });
    queue.watch(all.profileCombo01, [this] {
        m_form->profileButton07->setEnabled(m_controller.profileCombo01.titles().size() > 1);
    });
    queue.watch(all.listTableView, [this] {
        m_form->folderButton02->setEnabled(!m_controller.listTableView.selectedRows().isEmpty());
    });
    queue.watch(all.extractTableView, [this] {
        m_form->extractButton02->setEnabled(!m_controller.extractTableView.selectedRows().isEmpty());
    });
    // The end of a run is told there.
    queue.watch(all.outputText02,
                [this] { m_form->openFolderButton->setEnabled(!m_controller.extractedFolder().isEmpty()); });
    queue.watch(all.prefText01,
                [this] { m_form->volumeHint->setText(volumeHint(m_controller.prefText01.text())); });
    queue.watch(all.checkBox04, [this] {
        for (QWidget *widget : std::initializer_list<QWidget *>{m_form->prefText01, m_form->prefStepper01,
                                                                m_form->volumeUnit, m_form->volumeHint})
            widget->setEnabled(m_controller.checkBox04.isOn());
    });
    queue.watch(all.syncTableView, [this] {
        m_form->syncButton02->setEnabled(!m_controller.syncTableView.selectedRows().isEmpty());
    });
    queue.watch({&all.syncTableView, &all.syncTextDestPath, &all.syncSelector01, &all.checkBoxSync1,
                 &all.checkBoxSync2, &all.syncCheck01, &all.syncUser, &all.syncServer, &all.syncPort},
                [this] { describeSynchronisation(); });
}

void Window::describeSynchronisation()
{
    const SyncRequest request = readSyncRequest();
    QFont font = m_form->syncMeaning->font();
    font.setBold(request.deletesExtra && request.removesSources);
    m_form->syncMeaning->setFont(font);
    m_form->syncMeaning->setText(describeSync(request));
}

void Window::addShortcuts()
{
    for (QWidget *root : roots()) {
        auto *quit = new QShortcut(QKeySequence::Quit, root);
        connect(quit, &QShortcut::activated, this, &QWidget::close);
    }
}

void Window::closeEvent(QCloseEvent *event)
{
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

void Window::askToStop()
{
    if (m_question) return;
    QWidget *over = this;
    for (PanelDialog *sheet : m_panels->progressSheets())
        if (sheet->isVisible()) over = sheet;
    const RunWords words = wordsOfRun(*over);
    auto *question =
        new QMessageBox(QMessageBox::Question, words.title, words.text, QMessageBox::NoButton, over);
    question->setInformativeText(words.consequence);
    QPushButton *stop = question->addButton(tr("&Stop and quit"), QMessageBox::DestructiveRole);
    QPushButton *keep = question->addButton(tr("&Keep running"), QMessageBox::RejectRole);
    question->setDefaultButton(keep);
    question->setEscapeButton(keep);
    question->setAttribute(Qt::WA_DeleteOnClose);
    connect(stop, &QAbstractButton::clicked, this, [this] {
        m_mayStop = true;
        close();
    });
    // The question goes with the sheet: then the run is over, or cancelled.
    for (PanelDialog *sheet : m_panels->progressSheets())
        connect(sheet, &PanelDialog::visibilityChanged, question, &QDialog::reject);
    m_question = question;
    question->open();
}

} // namespace ui
