#include "ui/pages/FoldersPage.h"

#include "app/QuillorentAppDelegate.h"
#include "backup/BackupLook.h"
#include "ui/facts/CompressionHint.h"
#include "ui/facts/Protection.h"
#include "ui/look/Appearance.h"
#include "ui/look/Wording.h"
#include "ui/pages/FirstSteps.h"
#include "ui/watching/RefreshQueue.h"
#include "ui_MainWindow.h"

#include <QDesktopServices>
#include <QMenu>
#include <QUrl>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

QString volumeHint(const QString &size)
{
    bool isNumber = false;
    const qint64 thousands = size.toLongLong(&isNumber);
    if (!isNumber || thousands <= 0) return FoldersPage::tr("not a size");
    if (thousands > std::numeric_limits<qint64>::max() / 1000) return {};
    return u"= "_s + sizeText(quint64(thousands) * 1000);
}

} // namespace

FoldersPage::FoldersPage(QuillorentAppDelegate &controller, Ui::MainWindow &form, RefreshQueue &queue)
    : QObject(form.foldersPage)
    , m_all(controller)
    , m_form(form)
    , m_facts(controller, queue, this)
    , m_readiness(controller, queue, *form.foldersPage, this)
    , m_undo(new RemovalUndo(controller, queue, {*form.foldersPage, *form.removedText, *form.undoButton}))
{
    // A page looks like the others, though it scrolls where the window is low.
    form.foldersScroll->viewport()->setAutoFillBackground(false);
    form.foldersContent->setAutoFillBackground(false);
    form.listTableView->setFacts(m_facts, ListPurpose::Backup);
    form.syncTableView->setFacts(m_facts, ListPurpose::Synchronisation);
    new CompressionHint(controller, queue, *form.compressionGain);
    offerVolumeSizes();
    form.hindranceList->setTabPredecessor(*form.checkBox03);
    form.archivesBox->hide();
    connect(form.archivesToggle, &QToolButton::toggled, this, [this](bool isOpen) {
        m_form.archivesBox->setVisible(isOpen);
        m_form.archivesToggle->setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
        if (isOpen) showInPage(*m_form.archivesBox);
    });
    connect(form.hindranceList, &HindranceList::placeWanted, this, &FoldersPage::goTo);
    connect(form.secureText02, &QLineEdit::returnPressed, this, &FoldersPage::goOnFromPassword);
    connect(form.mainTabs, &QTabWidget::currentChanged, this, [this] { m_readiness.lookSoon(); });
    connect(&m_readiness, &BackupReadiness::changed, this, [this] {
        showHindrances();
        showProtection();
    });
    connect(&m_facts, &SourceFacts::changed, this, [this] {
        showRoom();
        showResult();
        showOutcomeText();
    });
    connect(&m_facts, &SourceFacts::looked, this, [this] { m_readiness.lookSoon(); });
    watch(queue);
}

void FoldersPage::watch(RefreshQueue &queue)
{
    queue.watch(m_all.listTableView, [this] {
        m_form.folderButton02->setEnabled(!m_all.listTableView.selectedRows().isEmpty());
        showRoom();
    });
    queue.watch({&m_all.passCombo01, &m_all.checkBox01, &m_all.secureText01a, &m_all.secureText01b,
                 &m_all.keychainUser, &m_all.keychainPass, &m_all.keychainClear, &m_all.keychainOrigin,
                 &m_all.certFile01},
                [this] { showProtection(); });
    queue.watch({&m_all.prefText01, &m_all.checkBox04, &m_all.checkBox05, &m_all.checkBox06},
                [this] { showArchives(); });
    queue.watch(m_all.outputText01, [this] { showOutcomeText(); });
    queue.watch(m_all.currentProfileTextView, [this] {
        offerFirstSteps();
        showResult();
        showOutcomeText();
    });
    queue.watch({&m_all.currentProfileTextView, &m_all.listTableView, &m_all.fileText01, &m_all.passCombo01,
                 &m_all.checkBox01, &m_all.secureText01a, &m_all.secureText01b, &m_all.keychainPass,
                 &m_all.keychainClear, &m_all.certFile01},
                [this] { refreshFirstSteps(); });
}

// Once the layout has given it its place.
void FoldersPage::showInPage(QWidget &widget)
{
    QTimer::singleShot(0, &widget, [this, &widget] { m_form.foldersScroll->ensureWidgetVisible(&widget); });
}

// Sizes that media have, and none.
void FoldersPage::offerVolumeSizes()
{
    auto *menu = new QMenu(m_form.volumeSizes);
    const auto offer = [this, menu](const QString &words, const QString &thousands) {
        menu->addAction(words, this, [this, thousands] {
            if (m_form.checkBox04->isChecked() == thousands.isEmpty()) m_form.checkBox04->click();
            if (!thousands.isEmpty()) m_all.prefStepper01Action(thousands);
        });
    };
    offer(tr("700 MB – a CD"), u"700000"_s);
    offer(tr("4.7 GB – a DVD"), u"4700000"_s);
    offer(tr("25 GB – a Blu-ray disc"), u"25000000"_s);
    menu->addSeparator();
    offer(tr("None – one file an archive"), {});
    m_form.volumeSizes->setMenu(menu);
}

void FoldersPage::removeSelected() { m_undo->remove(); }

void FoldersPage::openDestination() const
{
    if (const auto &record = m_form.backupResult->record())
        QDesktopServices::openUrl(QUrl::fromLocalFile(record->folder));
}

void FoldersPage::tryRestore()
{
    const auto &record = m_form.backupResult->record();
    if (!record) return;
    QStringList archives = firstFilesOf(*record);
    const QStringList offered = m_all.extractFullList.strings();
    archives.removeIf([&](const QString &path) { return offered.contains(path); });
    m_form.mainTabs->setCurrentWidget(m_form.extractPage);
    m_all.addArchives(archives);
}

void FoldersPage::goTo(Hindrance::Place place)
{
    using Place = Hindrance::Place;
    QWidget *page = m_form.foldersPage;
    QWidget *field = nullptr;
    switch (place) {
    case Place::Sources:
        field = m_all.listTableView.dataSource()->numberOfRows() > 0
                    ? static_cast<QWidget *>(m_form.listTableView)
                    : m_form.folderButton01;
        break;
    case Place::Destination:
        field = m_form.fileButton01;
        break;
    case Place::VolumeSize:
        m_form.archivesToggle->setChecked(true);
        field = m_form.prefText01;
        break;
    case Place::Password: {
        page = m_form.passwordsPage;
        const int source = m_all.passCombo01.selectedIndex();
        if (source == PasswordTab::KeychainPassword)
            field = m_form.keychainUser;
        else if (source == PasswordTab::Certificate)
            field = m_form.certButton01;
        else
            field = m_all.checkBox01.isOn() ? m_form.secureText01a : m_form.secureText01b;
        break;
    }
    case Place::Certificate:
        page = m_form.passwordsPage;
        field = m_form.certButton01;
        break;
    case Place::Settings:
        page = m_form.toolsPage;
        field = m_form.pathTableView;
        break;
    }
    m_form.mainTabs->setCurrentWidget(page);
    field->setFocus(Qt::OtherFocusReason);
    if (page == m_form.foldersPage) showInPage(*field);
}

// Whoever has typed it twice wants to use it.
void FoldersPage::goOnFromPassword()
{
    QString password = m_all.passwordSelector();
    QString repetition = m_all.secureText02.text();
    const bool isRepeated = !password.isEmpty() && password == repetition;
    wipe(password);
    wipe(repetition);
    if (!isRepeated) return;
    m_form.mainTabs->setCurrentWidget(m_form.foldersPage);
    m_form.buttonLaunch01->setFocus(Qt::OtherFocusReason);
}

// Only on an account that has never backed up anything: who has folders on a list knows the way.
void FoldersPage::offerFirstSteps()
{
    const plist::Dictionary profiles = m_all.listPlist();
    if (m_isFirstStartKnown || !profiles || m_all.currentProfileTextView.text().isEmpty()) return;
    m_isFirstStartKnown = true;
    if (FirstSteps::wasSeen()) return;
    const QStringList names = profiles.keys();
    const bool isUsed = std::any_of(names.begin(), names.end(), [&](const QString &name) {
        return profiles.dictionary(name).array(u"folders"_s).count() > 0;
    });
    if (isUsed) {
        FirstSteps::rememberSeen();
        return;
    }
    m_firstSteps = new FirstSteps(m_form.foldersContent);
    m_firstSteps->setObjectName(u"firstSteps"_s);
    m_form.foldersColumn->insertWidget(m_form.foldersColumn->indexOf(m_form.listArea), m_firstSteps, 1);
    m_form.listArea->hide();
    connect(m_firstSteps, &FirstSteps::wanted, this, &FoldersPage::takeFirstStep);
    connect(m_firstSteps, &FirstSteps::pathsDropped, this,
            [this](const QStringList &paths) { m_all.addFolders(paths); });
    connect(m_firstSteps, &FirstSteps::finished, this, &FoldersPage::endFirstSteps);
}

void FoldersPage::takeFirstStep(int step)
{
    switch (step) {
    case FirstSteps::Folders:
        m_all.folderButton01Action();
        break;
    case FirstSteps::Place:
        m_all.fileButton01Action();
        break;
    default:
        goTo(Hindrance::Place::Password);
    }
}

void FoldersPage::refreshFirstSteps()
{
    if (!m_firstSteps) return;
    QString secret = m_all.passwordSelector();
    m_firstSteps->setDone({m_all.currentRecord().array(u"folders"_s).count() > 0,
                           !m_all.fileText01.text().isEmpty(), !secret.isEmpty()});
    wipe(secret);
}

void FoldersPage::endFirstSteps()
{
    if (!m_firstSteps) return;
    FirstSteps::rememberSeen();
    m_firstSteps->hide();
    m_firstSteps->deleteLater();
    m_firstSteps = nullptr;
    m_form.listArea->show();
    showHindrances();
}

void FoldersPage::showRoom()
{
    const std::optional<qint64> room = m_facts.roomAtDestination();
    const bool isChosen = !m_all.fileText01.text().isEmpty();
    m_form.roomText->setVisible(isChosen && room);
    if (!isChosen || !room) return;
    const QString free = sizeText(quint64(*room));
    const std::optional<quint64> bytes = m_facts.bytesOfAll();
    if (!bytes)
        m_form.roomText->setText(tr("%1 free").arg(free));
    else if (const quint64 needed = roomForBackup(*bytes); needed > quint64(*room))
        m_form.roomText->setText(
            tr("Only %1 free, and a backup needs about %2 while it works").arg(free, sizeText(needed)));
    else
        m_form.roomText->setText(
            tr("%1 free; a backup needs about %2 while it works").arg(free, sizeText(needed)));
}

void FoldersPage::showProtection()
{
    QString text = protectionText(m_all);
    if (m_readiness.verdict() == PasswordTrial::Verdict::Opens)
        text = tr("%1 – it opens the archives that are there").arg(text);
    else if (m_readiness.verdict() == PasswordTrial::Verdict::Wrong)
        text = tr("%1 – it does not open the archives that are there").arg(text);
    m_form.protectionText->setText(breakable(text));
    setPlainToolTip(*m_form.protectionText, text);
}

void FoldersPage::showArchives()
{
    const bool isSplit = m_all.checkBox04.isOn();
    for (QWidget *widget :
         std::initializer_list<QWidget *>{m_form.prefText01, m_form.prefStepper01, m_form.volumeHint})
        widget->setEnabled(isSplit);
    m_form.volumeHint->setText(volumeHint(m_all.prefText01.text()));
    QStringList words;
    words.append(isSplit ? tr("in files of %1").arg(SizeEdit::withUnit(m_all.prefText01.text()))
                         : tr("one file a folder"));
    if (m_all.checkBox06.isOn()) words.append(tr("made smaller"));
    if (m_all.checkBox05.isOn()) words.append(tr("dated like the newest file"));
    m_form.archivesSummary->setText(words.join(tr(", ", "between properties of the archives")));
}

void FoldersPage::showHindrances()
{
    // The steps say the same, one after the other.
    m_form.hindranceList->setHindrances(m_firstSteps ? Hindrances() : m_readiness.hindrances());
}

void FoldersPage::showResult()
{
    const std::optional<RunRecord> &record = m_facts.lastBackup();
    m_form.backupResult->setRecord(record);
    m_form.openDestinationButton->setVisible(record.has_value());
    m_form.tryRestoreButton->setVisible(record && !firstFilesOf(*record).isEmpty());
}

// It says what the result line says, too, of a run that has left a record.
void FoldersPage::showOutcomeText()
{
    const QString text = m_all.outputText01.text();
    if (std::exchange(m_outcome, text) != text) m_outcomeProfile = m_all.currentProfile();
    const auto &record = m_facts.lastBackup();
    const bool isSaid = record && record->summary == text;
    const bool isOfOther = m_outcomeProfile != m_all.currentProfile();
    const bool isHidden = text.isEmpty() || isSaid || isOfOther;
    if (m_all.outputText01.isHidden() != isHidden) m_all.outputText01.setHidden(isHidden);
}

} // namespace ui
