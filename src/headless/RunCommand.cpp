#include "headless/RunCommand.h"

#include "app/Process.h"
#include "app/QuillorentAppDelegate.h"
#include "app/TerminationSignals.h"
#include "headless/Options.h"
#include "headless/Print.h"
#include "headless/ProgressLine.h"
#include "keys/SecretRules.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(headless)
};

/// Lets the program work until `isOver` says so.
template <class IsOver>
void waitUntil(IsOver isOver)
{
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (isOver()) loop.quit();
    });
    look.start(5ms); // a run that is over is not waited for
    loop.exec();
}

/// Those of this run and of the ones before it.
void tellOfClearFiles(const QuillorentAppDelegate &delegate)
{
    if (const QString clear = delegate.clearText01.text(); !clear.isEmpty())
        printError(clear + u'\n' + Words::tr("Do the same again, or remove them."));
}

/// Prints how the run ended, for people and, where it is wanted, for programs.
ExitStatus tellEnd(const QuillorentAppDelegate &delegate, const Options &options)
{
    const RunRecord record = delegate.lastRecord();
    if (const QString console = delegate.consoleTextView01.text(); !console.isEmpty())
        printError(console.trimmed());
    printError(record.summary);
    tellOfClearFiles(delegate);
    if (options.json) print(QString::fromUtf8(toJson(record)).trimmed());
    return record.outcome == Outcome::Succeeded ? Done : RunFailed;
}

} // namespace

PanelAnswers::PanelAnswers(QuillorentAppDelegate &delegate, bool yes) : m_delegate(delegate), m_yes(yes)
{
    answer(m_delegate.warningPanel01, [this] {
        refuse(m_delegate.warningText01.text());
        m_delegate.warningPanel01Close();
    });
    answerQuestion(
        m_delegate.concernsPanel01, [this] { return m_delegate.concernsText01.text(); },
        [this] { m_delegate.concernsPanel01GoOn(); }, [this] { m_delegate.concernsPanel01Stop(); });
}

void PanelAnswers::answer(outlets::Panel &panel, std::function<void()> answer)
{
    // Looked at from the event loop: when a panel tells that it shows, nobody waits for its answer yet.
    auto *look = new QTimer(this);
    connect(look, &QTimer::timeout, this, [&panel, answer = std::move(answer)] {
        if (panel.place() != outlets::Panel::Place::Hidden) answer();
    });
    look->start(20ms);
}

void PanelAnswers::answerQuestion(outlets::Panel &panel, std::function<QString()> text,
                                  std::function<void()> goOn, std::function<void()> stop)
{
    answer(panel, [this, text = std::move(text), goOn = std::move(goOn), stop = std::move(stop)] {
        if (m_yes) {
            printError(text());
            goOn();
            return;
        }
        refuse(text() + u'\n' + Words::tr("Say --yes to go on all the same."));
        stop();
    });
}

void PanelAnswers::refuse(const QString &text)
{
    printError(text);
    m_refused = true;
}

bool supplyPassword(QuillorentAppDelegate &delegate, const QString &file, Asking asking)
{
    const int source = delegate.passCombo01.selectedIndex();
    if (file.isEmpty() && source == PasswordTab::KeychainPassword) {
        // It was asked for when the profile was opened.
        waitUntil([&] { return !delegate.keychainIndicator01.isAnimating(); });
        if (delegate.passwordSelector().isEmpty()) printError(delegate.keychainText01.text());
    }
    if (file.isEmpty() && !delegate.passwordSelector().isEmpty()) return true;
    if (file.isEmpty() && source == PasswordTab::Certificate) return true;

    const PasswordInput input = file.isEmpty() ? askForPassword(asking) : readPassword(file);
    if (!input.reason.isEmpty()) printError(input.reason);
    if (!input.password) return input.reason.isEmpty();
    if (const QString refusal = whyBadPassword(*input.password); !refusal.isEmpty()) {
        printError(refusal);
        return false;
    }

    delegate.passCombo01.selectIndex(PasswordTab::TypedPassword);
    delegate.secureText01a.setText(*input.password);
    return true;
}

ExitStatus runToEnd(QuillorentAppDelegate &delegate, const Options &options, const PanelAnswers &answers,
                    outlets::Button &cancelButton, const std::function<void()> &start)
{
    detachInput();
    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::received, &signals,
                     [&] { delegate.buttonKill01(cancelButton); });
    start();
    ProgressLine line(delegate, options.progress);
    QString told;
    waitUntil([&] {
        line.show();
        if (const QString atWork = delegate.toolsText01.text(); atWork != told && !atWork.isEmpty())
            printError(told = atWork);
        return !delegate.isRunActive();
    });
    if (!answers.refused()) return tellEnd(delegate, options);
    tellOfClearFiles(delegate);
    return NotStarted;
}
