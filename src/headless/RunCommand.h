#pragma once

#include "headless/ExitStatus.h"
#include "headless/Password.h"

#include <QObject>
#include <functional>

class QuillorentAppDelegate;
struct Options;

namespace outlets {
class Panel;
class Button;
} // namespace outlets

/// Answers the panels of a run as the options say. What they refuse keeps the run from starting.
class PanelAnswers : public QObject {
public:
    PanelAnswers(QuillorentAppDelegate &delegate, bool yes);

    /// When the panel shows, `answer` closes it. It is called from the event loop.
    void answer(outlets::Panel &panel, std::function<void()> answer);

    /// The same for a question: with --yes it goes on, otherwise `text` goes to standard error.
    void answerQuestion(outlets::Panel &panel, std::function<QString()> text, std::function<void()> goOn,
                        std::function<void()> stop);

    [[nodiscard]] bool refused() const { return m_refused; }

private:
    void refuse(const QString &text);

    QuillorentAppDelegate &m_delegate;
    const bool m_yes;
    bool m_refused = false;
};

/// Takes a password from the options, else asks for it where the profile has none. False, with the reason on
/// standard error, where that fails; no password and no terminal is no failure: the run itself will say so.
[[nodiscard]] bool supplyPassword(QuillorentAppDelegate &delegate, const QString &file, Asking asking);

/// Waits for the end of the run that `start` starts, shows its progress, and cancels it on a signal as
/// `cancelButton` does. Not started where the answers refuse.
[[nodiscard]] ExitStatus runToEnd(QuillorentAppDelegate &delegate, const Options &options,
                                  const PanelAnswers &answers, outlets::Button &cancelButton,
                                  const std::function<void()> &start);
