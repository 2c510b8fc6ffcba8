#include "headless/RunCommand.h"

#include "app/Process.h"
#include "app/QuillorentAppDelegate.h"
#include "app/TerminationSignals.h"
#include "headless/Options.h"
#include "headless/Password.h"
#include "headless/Print.h"
#include "headless/ProgressLine.h"

#include <QEventLoop>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

/// Lets the program work until `isOver` says so.
template <class IsOver>
void waitUntil(IsOver isOver)
{
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (isOver()) loop.quit();
    });
    look.start(20ms);
    loop.exec();
}

} // namespace

PanelAnswers::PanelAnswers(QuillorentAppDelegate &delegate, bool yes) : m_delegate(delegate), m_yes(yes)
{
    answer(m_delegate.warningPanel01, [this] {
        refuse(m_delegate.warningText01.text());
        m_delegate.warningPanel01Close();
    });
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
            goOn();
            return;
        }
        refuse(text());
        stop();
    });
}

void PanelAnswers::refuse(const QString &text)
{
    printError(text);
    m_refused = true;
}

bool supplyPassword(QuillorentAppDelegate &delegate, const QString &file)
{
    const int source = delegate.passCombo01.selectedIndex();
    if (file.isEmpty() && source == PasswordTab::KeychainPassword) {
        // It was asked for when the profile was opened.
        waitUntil([&] { return !delegate.keychainIndicator01.isAnimating(); });
        if (delegate.passwordSelector().isEmpty()) printError(delegate.keychainText01.text());
    }
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

ExitStatus runToEnd(QuillorentAppDelegate &delegate, const Options &options, const PanelAnswers &answers,
                    outlets::Button &cancelButton, const std::function<void()> &start)
{
    detachInput();
    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::received, &signals,
                     [&] { delegate.buttonKill01(cancelButton); });
    start();
    if (answers.refused()) return NotStarted;
    ProgressLine line(options.progress);
    waitUntil([&] {
        line.show(delegate);
        return !delegate.isRunActive();
    });

    const QString console = delegate.consoleTextView01.text();
    if (!console.isEmpty()) printError(console.trimmed());
    return console.isEmpty() && delegate.failure().isEmpty() && !delegate.isCancelledByUser() ? Done
                                                                                              : RunFailed;
}
