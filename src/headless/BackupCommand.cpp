#include "headless/BackupCommand.h"

#include "app/Process.h"
#include "app/QuillorentAppDelegate.h"
#include "app/TerminationSignals.h"
#include "headless/Password.h"
#include "headless/Print.h"
#include "headless/ProgressLine.h"

#include <QEventLoop>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

/// Answers the panels of a run; what it refuses keeps the run from starting.
class PanelAnswers : public QObject {
public:
    PanelAnswers(QuillorentAppDelegate &delegate, bool yes) : m_delegate(delegate), m_yes(yes)
    {
        // Answered from the event loop: when a panel tells that it shows, nobody waits for its answer yet.
        const auto later = [this](void (PanelAnswers::*answer)()) {
            return [this, answer] {
                QMetaObject::invokeMethod(
                    this, [this, answer] { (this->*answer)(); }, Qt::QueuedConnection);
            };
        };
        m_delegate.warningPanel01.observe(later(&PanelAnswers::closeWarning));
        m_delegate.warningPanel03.observe(later(&PanelAnswers::answerQuestion));
    }

    [[nodiscard]] bool refused() const { return m_refused; }

private:
    void closeWarning()
    {
        if (m_delegate.warningPanel01.place() == outlets::Panel::Place::Hidden) return;
        refuse(m_delegate.warningText01.text());
        m_delegate.warningPanel01Close();
    }

    void answerQuestion()
    {
        if (m_delegate.warningPanel03.place() == outlets::Panel::Place::Hidden) return;
        if (m_yes) {
            m_delegate.buttonLaunch01b();
            return;
        }
        refuse(
            u"The destination \"%1\" is not empty. Archives of the same name would be replaced; say --yes to go on."_qs
                .arg(m_delegate.folderNotEmptyText02.text()));
        m_delegate.buttonLaunch01Stop();
    }

    void refuse(const QString &text)
    {
        printError(text);
        m_refused = true;
    }

    QuillorentAppDelegate &m_delegate;
    const bool m_yes;
    bool m_refused = false;
};

/// The profile's keychain password was asked for when the profile was opened.
void waitForKeychain(const QuillorentAppDelegate &delegate)
{
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (!delegate.keychainIndicator01.isAnimating()) loop.quit();
    });
    look.start(20ms);
    loop.exec();
    if (delegate.passwordSelector().isEmpty()) printError(delegate.keychainText01.text());
}

/// Whether there is a password, or what stands for one, or the run itself will say that there is none.
bool supplyPassword(QuillorentAppDelegate &delegate, const QString &file)
{
    const int source = delegate.passCombo01.selectedIndex();
    if (!file.isEmpty() && source == PasswordTab::Certificate) {
        printError(u"The profile encrypts for a certificate; a password does not go with it."_qs);
        return false;
    }
    if (file.isEmpty() && source == PasswordTab::KeychainPassword) waitForKeychain(delegate);
    if (file.isEmpty() && !delegate.passwordSelector().isEmpty()) return true;
    if (file.isEmpty() && source == PasswordTab::Certificate) return true;

    const PasswordInput input =
        file.isEmpty() ? askForPassword(u"Password for the archives: "_qs) : readPassword(file);
    if (!input.reason.isEmpty()) printError(input.reason);
    if (!input.password) return input.reason.isEmpty();

    delegate.passCombo01.selectIndex(PasswordTab::TypedPassword);
    delegate.secureText01a.setText(*input.password);
    return true;
}

void waitForEnd(const QuillorentAppDelegate &delegate, bool showProgress)
{
    ProgressLine line(showProgress);
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        line.show(delegate);
        if (!delegate.isRunActive()) loop.quit();
    });
    look.start(20ms);
    loop.exec();
}

} // namespace

ExitStatus runBackup(QuillorentAppDelegate &delegate, const Options &options)
{
    if (!supplyPassword(delegate, options.passwordFile)) return NotStarted;
    detachInput();

    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::received, &signals,
                     [&] { delegate.buttonKill01(delegate.buttonCancel01); });
    const PanelAnswers answers(delegate, options.yes);
    delegate.buttonLaunch01();
    if (answers.refused()) return NotStarted;
    waitForEnd(delegate, options.progress);

    const QString console = delegate.consoleTextView01.text();
    if (!console.isEmpty()) printError(console.trimmed());
    printError(delegate.outputText01.text());
    const bool allDone = !delegate.isCancelledByUser() && delegate.foldersDone() == delegate.foldersToDo();
    return console.isEmpty() && allDone ? Done : RunFailed;
}
