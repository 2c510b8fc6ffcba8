#pragma once

#include "app/Guarded.h"
#include "app/Latest.h"
#include "app/MainWindow.h"
#include "app/Messages.h"
#include "app/extraction/ExtractSheet.h"
#include "app/extraction/ExtractTab.h"
#include "app/extraction/ExtractTable.h"
#include "app/extraction/Listings.h"
#include "app/folders/BackupSheet.h"
#include "app/folders/FolderTab.h"
#include "app/folders/ListTable.h"
#include "app/passwords/PasswordTab.h"
#include "app/profiles/OptionsPanel.h"
#include "app/profiles/ProfileSheets.h"
#include "app/profiles/SavePanels.h"
#include "app/synchronisation/PreviewTable.h"
#include "app/synchronisation/SyncSheet.h"
#include "app/synchronisation/SyncTab.h"
#include "app/synchronisation/SyncTable.h"
#include "app/tools/PathTable.h"
#include "app/tools/ToolsTab.h"
#include "app/updates/UpdateNote.h"
#include "plist/Value.h"
#include "runs/RunRecord.h"
#include "runs/RunState.h"
#include "settings/Store.h"
#include "sync/SyncOrder.h"

#include <atomic>
#include <functional>
#include <memory>

struct Findings;
struct Preview;
struct RunStart;
struct SavedFile;
class RunMonitor;

/// The controller: all state of the program, what every control holds, and what every control does. It knows
/// no toolkit; a front end shows its outlets and calls its actions, on the main thread.
class QuillorentAppDelegate : public RunState,
                              public MainWindowOutlets,
                              public FolderTab,
                              public BackupProgressSheet,
                              public PasswordTab,
                              public ExtractTab,
                              public ExtractSheet,
                              public SyncTab,
                              public SyncSheet,
                              public OptionsPanel,
                              public ProfileSheets,
                              public SavePanels,
                              public ToolsTab,
                              public UpdateNote,
                              public Messages {
public:
    QuillorentAppDelegate();
    ~QuillorentAppDelegate();

    // State
    Guarded<plist::Dictionary> configPlist;    ///< settings; none where their file can't be read
    Guarded<plist::Dictionary> listPlist;      ///< profile name to record; none where the file can't be read
    Guarded<QString> currentProfile;           ///< the profile shown and acted on
    Guarded<plist::Dictionary> defaultProfile; ///< what a new profile starts with
    Guarded<QString> tempFile;                 ///< list file of the sync that runs
    Guarded<QString> partSize;                 ///< volume size, thousands of bytes, as text
    plist::Array extractList = plist::Array::make();     ///< archives to extract
    plist::Array extractFullList = plist::Array::make(); ///< archives shown
    Guarded<RunRecord> lastRecord; ///< of the run that ended last; without a kind before one has
    /// The deepest folder of all that the last extraction brought back; empty unless all of it succeeded.
    [[nodiscard]] QString extractedFolder() const { return openFolderButton.alternateTitle(); }
    Listings listings;           ///< of archives that were looked into
    Guarded<QString> lookedInto; ///< the archive that the run of that tab only looks into; else empty
    Guarded<Listings::Listing> shownListing;       ///< the one that `contentsPanel01` shows
    Guarded<std::vector<std::string>> chosenPaths; ///< what is chosen there, as the archive has it
    /// On: a synchronisation that deletes shows first what. Off: it is a concern like others. Set before it
    /// starts.
    bool previewsDeletions = true;
    /// On: the tools are verified when the program starts, which takes each of them a moment and some of them
    /// more. Set before.
    bool verifiesTools = true;
    /// On: whoever types a password types it twice, the second time into `secureText02`. Set before it is
    /// asked for.
    bool asksTwice = false;
    Guarded<bool> compliance;           ///< every registered tool is the right one
    Guarded<int> compliant;             ///< how many are
    Guarded<int> compliantBase;         ///< how many are registered
    std::atomic<int> verifications = 0; ///< that run: until they end, the three above say nothing

    /// The record of the current profile; none where there is no such profile.
    [[nodiscard]] plist::Dictionary currentRecord() const { return listPlist().dictionary(currentProfile()); }

    /// The text under `key` in the settings' dictionary `table`; none where either is missing.
    [[nodiscard]] std::optional<QString> setting(const QString &table, const QString &key) const
    {
        return configPlist().dictionary(table).string(key);
    }

    /// Shows `warningPanel01` with the text, and waits until it is closed.
    void warn(const QString &text);

    // Start-up and quitting
    void applicationDidFinishLaunching();
    /// Saves what is changed where the settings say so, and asks nobody any more; then endRuns(). Takes a
    /// second or two.
    void applicationWillTerminate();
    /// Saves what is changed, and returns at once. What fails is told in `quitPanel01`, and asked about.
    void saveForQuitting();
    [[nodiscard]] bool savesForQuitting() const { return m_savesForQuitting; }
    /// Whether that ended so that the program may end; true once for each time.
    [[nodiscard]] bool takeMayQuit() { return m_mayQuit.exchange(false); }
    void quitPanel01Again();
    void quitPanel01Copy();  ///< into a folder of the user's choice
    void quitPanel01Leave(); ///< without saving
    void quitPanel01Stay();
    /// Cancels for good and returns when no thread and no tool is left.
    void endRuns();

    // Profiles and settings
    QString loadProfiles(); ///< the profile to open; none (a null string) where there is no profile
    void refreshProfileCombo();
    void setterCurrentProfile(const QString &name);
    void profileCombo01Action();
    void profileButton01Action(); ///< save the profiles
    void profileButton02Action(); ///< load the chosen profile
    void profileButton03Action(); ///< rename
    void profileButton03ActionEnd();
    void panel01ok();
    void profileButton04Action(); ///< make a new one
    void profileButton04ActionEnd();
    void panel02ok();
    void profileButton05Action(); ///< show its processing options
    void profileButton05ActionEnd();
    void profileButton06Action(); ///< duplicate
    void profileButton06ActionEnd();
    void panel03ok();
    void profileButton07Action(); ///< delete
    void profileButton07ActionEnd();
    void panel04ok();
    void panelNoname(); ///< close the sheet that refuses a name
    [[nodiscard]] bool noRepeatedProfileName(const QString &name) const; ///< no profile has it yet
    void setterDefaultProfile();                                         ///< open this profile at start-up
    void saveSettings1Action();
    void conflictPanel01Mine(); ///< where others have changed the file as well
    void conflictPanel01Theirs();
    void conflictPanel01Stop(); ///< save neither
    void savePanel01Close();
    void settingsPanel01Close();
    void autosaveCheck01Action();
    void updatesCheck01Action();
    void prefSelector01Action();
    void prefSelector02Action();
    void prefCheck02Action();
    void prefStepper01Action(const QString &senderText); ///< sent by `prefStepper01` and by `prefText01`
    void prefCheck01Action();                            ///< `checkBox04`
    void checkBox05Action();
    void checkBox06Action();
    void prefCheck03Action(); ///< the same, where the other options are

    // Folders
    void folderButton01Action();
    void folderButton02Action();
    void fileButton01Action();
    void addFolders(const QStringList &paths); ///< chosen in a panel, or dropped onto the list

    // Backup
    void buttonLaunch01();
    void buttonLaunch01b();
    void buttonLaunch01Stop();
    void buttonKill01(outlets::Button &sender);
    void killer();

    // Extraction
    /// The paths that are not those of later volumes, in their order.
    [[nodiscard]] QStringList filterForExtraction(const QStringList &paths) const;
    void extractButton01Action();               ///< add
    void extractButton02Action();               ///< remove
    void extractButton03Action();               ///< clear
    void addArchives(const QStringList &paths); ///< chosen in a panel, or dropped onto the list
    void takeOffArchives(const QStringList &paths);
    void extractPathButtonAction();
    void takeRestoredFolder();     ///< a folder of that name in the home becomes the one to extract into
    void contentsButton01Action(); ///< look into the selected archive, or the only one
    void lookInto(const QStringList &archives);
    void showContents(const Listings::Listing &listing); ///< any thread
    void contentsPanel01Restore();                       ///< what is chosen there
    void contentsPanel01Close();
    void restoreChosen(const QStringList &archives, const std::vector<std::string> &chosen);
    void buttonLaunch02();
    void buttonLaunch02b();
    void buttonLaunch02Stop();
    void stopProcess02b();
    // Synchronisation
    void syncButton01Action();                     ///< add
    void syncButton02Action();                     ///< remove
    void addSyncEntries(const QStringList &paths); ///< chosen in a panel, or dropped onto the list
    void syncButtoSrcAction();
    void syncButtoDestAction();
    void syncTextDestPathAction(); ///< typed, as a folder on a server must be
    void syncSelector01Action();
    void checkBoxSync1Action();
    void checkBoxSync2Action();
    void syncCheck01Action();
    void syncCheck02Action(); ///< user, server and port
    void buttonLaunch03();
    void previewButton01Action();
    void showPreview(const std::shared_ptr<const Preview> &preview); ///< any thread
    void previewPanel01Close();
    void previewPanel01Launch(); ///< do what the preview shows

    // Passwords and keys
    [[nodiscard]] QString passwordSelector() const; ///< password, or path of the certificate
    [[nodiscard]] bool pkeySelector() const;        ///< no certificate is wanted, or one is chosen
    void passCombo01Action();
    void checkBox01Action();
    void checkBox02Action();
    void passButton01Action();  ///< fetch the password from the keychain
    void passButton02Action();  ///< store it there
    void keychainFieldEdited(); ///< what was typed over it is no account's password any more
    void keychainUnlock01Action();
    void certButton01Action(); ///< choose the certificate
    void certButton01ActionEnd();
    void pkButton01Action(); ///< choose the private key
    void pkButton01ActionEnd();
    void certInfo01();   ///< show the certificate in the console
    void certInfo02();   ///< show the private key in the console
    void describeKeys(); ///< tell of the chosen certificate, and of a key that is missing or does not belong

    // Tools
    void selectFile();

    void tabViewDidSelectTabViewItem(); ///< tells of tools that are missing
    void noPathPanel01Close();

    // Updates
    void checkForUpdatesAtStart();
    void updatePanel01Close();
    void openBrowserAt(const outlets::Button &sender); ///< the address that the button carries

    // Messages
    void concernsPanel01GoOn(); ///< in spite of what was found before the run
    void concernsPanel01Stop();
    void toolsCancel01Action(); ///< end the tools that a failed run has left
    void clearRemove01Action(); ///< remove what runs have left in clear
    void showLeftInClear();     ///< any thread
    void warningPanel01Close();
    void consolePanel01Action();

private:
    void applyRecord(const plist::Dictionary &record);
    void showPartSize(const QString &size);
    void showCompression(bool isOn);
    void showSwitches();   ///< those of the settings
    void showFilesAgain(); ///< others have changed what is shown; any thread
    void tellOfFiles(const QStringList &notices);

    // On threads that save
    enum class QuitChoice { Stay, Again, Copy, Leave };
    /// Gives what to tell whoever thinks that it is saved: nothing where it is. None: they chose not to.
    [[nodiscard]] std::optional<QString> save(const SavedFile &file);
    [[nodiscard]] std::optional<quillorentLibrary::InConflict> askInConflict(const QString &text);
    void tellUnlessSaved(const QStringList &failures);
    [[nodiscard]] bool isUnsaved(const SavedFile &file) const;
    [[nodiscard]] bool saveOrAsk();                         ///< whether the program may end
    [[nodiscard]] std::optional<QStringList> saveChanged(); ///< what failed; none as for save()
    [[nodiscard]] QStringList saveCopies();                 ///< what failed
    void answerConflict(std::optional<quillorentLibrary::InConflict> choice);
    void answerQuitting(QuitChoice choice);

    void closeSheet(outlets::Panel &sheet);
    /// Lets the user choose one folder, shows it, and keeps it under `key` in the current record.
    void chooseFolder(const QString &title, outlets::TextField &field, const QString &key);

    /// Starts a run, where none is active, once the keychain has answered. `prepare` reads all that is live,
    /// on the main thread.
    void startRun(const QString &threadName, const std::function<RunStart()> &prepare);
    void carryOut(const RunStart &start);
    [[nodiscard]] bool isWanted(const RunStart &start, const Findings &findings);
    [[nodiscard]] bool askToGoOn(outlets::Panel &panel);
    void answer(outlets::Panel &panel, bool goesOn);

    enum class PreviewFor { Looking, Question };
    void previewFirst(const SyncOrder &order, RunMonitor &monitor, PreviewFor purpose,
                      const std::shared_ptr<const Preview> &confirmed = {});
    [[nodiscard]] RunStart prepareSync(bool isPreview);
    [[nodiscard]] RunStart prepareTransfer(const SyncOrder &order);
    [[nodiscard]] RunStart prepareConfirmed(const SyncOrder &order);

    /// Says so where there are no profiles to add to, for their file can't be read.
    [[nodiscard]] bool canHaveProfiles();
    [[nodiscard]] bool acceptName(const QString &name,
                                  outlets::Panel &sheet); ///< or says why not, in its place
    void showProfile(const QString &name);

    /// Keeps the path of a certificate or a key that was found good in the record that it was chosen for.
    void keepChoice(const plist::Dictionary &record, const QString &key, outlets::TextField &field,
                    const QString &path);
    [[nodiscard]] outlets::SecretField &shownKeychainField();
    template <class Ask>
    void askKeychain(Ask ask);
    void forgetKeychainAnswers();

    Latest m_keychainRequests;
    Latest m_certificateChoices;
    Latest m_keyChoices;
    Latest m_keyDescriptions;
    std::atomic<bool> m_goesOn = false; ///< the answer to the question that was asked last
    Guarded<SyncOrder> m_previewedOrder;

    std::mutex m_saveQuestions; // held while one is asked, never on the main thread
    std::mutex m_fileNotices;
    Guarded<std::optional<quillorentLibrary::InConflict>> m_conflictChoice;
    Guarded<QString> m_copyFolder;
    std::atomic<QuitChoice> m_quitChoice = QuitChoice::Stay;
    std::atomic<bool> m_savesForQuitting = false;
    std::atomic<bool> m_mayQuit = false;
    std::atomic<bool> m_leavesUnsaved = false; ///< the user said so
    std::atomic<bool> m_endsUnasked = false;   ///< there is no window any more

    listTable m_listTable{listTableView};
    extractTable m_extractTable;
    syncTable m_syncTable{syncTableView};
    previewTable m_previewTable;
    pathTable m_pathTable;
};

/// The one controller, from its construction to its destruction. Any thread may call.
QuillorentAppDelegate &theDelegate();
