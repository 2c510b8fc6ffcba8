#include "ProgramHome.h"

#include <csignal>
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

namespace {

/// A shell on a terminal of its own, which runs the program as its job, tells when it has ended or was
/// stopped, and then waits for a line.
class Session {
public:
    Session(const ProgramHome &home, const std::string &arguments)
    {
        home.writeProfile();
        const std::string script = "set -m; trap : INT QUIT; '" QUILLORENT_RUN "' " + arguments +
                                   "; echo \"left: $?\"; read l; fg; echo \"left: $?\"";
        m_shell = forkpty(&m_terminal, nullptr, nullptr, nullptr);
        if (m_shell != 0) return;
        for (const auto &[name, value] : home.environment)
            setenv(name.c_str(), value.c_str(), 1);
        execlp("timeout", "timeout", "--foreground", "60", "sh", "-c", script.c_str(), nullptr);
        _exit(127);
    }
    ~Session()
    {
        signal(SIGKILL);
        kill(m_shell, SIGKILL);
        waitpid(m_shell, nullptr, 0);
        close(m_terminal);
    }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    void type(const std::string &text) const
    {
        EXPECT_EQ(write(m_terminal, text.data(), text.size()), text.size());
    }
    void signal(int number) const
    {
        if (const pid_t job = tcgetpgrp(m_terminal); job > 1) kill(-job, number);
    }
    /// Waits until the text shows, behind what was waited for before.
    testing::AssertionResult shows(const std::string &text)
    {
        while (shown.find(text, m_seen) == std::string::npos) {
            char byte = 0;
            pollfd source{m_terminal, POLLIN, 0};
            if (poll(&source, 1, 30'000) <= 0 || read(m_terminal, &byte, 1) != 1)
                return testing::AssertionFailure() << text << " is not in: " << shown;
            shown += byte;
        }
        m_seen = shown.size();
        return testing::AssertionSuccess();
    }
    [[nodiscard]] bool echoes() const
    {
        termios settings{};
        tcgetattr(m_terminal, &settings);
        return settings.c_lflag & ECHO;
    }

    std::string shown;

private:
    int m_terminal = -1;
    pid_t m_shell = -1;
    std::size_t m_seen = 0;
};

} // namespace

TEST(Prompt, LeavesTheTerminalAsItWasWhateverEndsOrStopsIt)
{
    const ProgramHome home(QUILLORENT_RUN);
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP}) {
        Session session(home, "backup Mine");
        EXPECT_TRUE(session.shows("archives: "));
        EXPECT_FALSE(session.echoes());
        // Under ThreadSanitizer, a signal is held back that comes before the program waits for one.
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        session.type("secret"); // a part of it, that no shell is to get
        if (number == SIGINT || number == SIGTSTP)
            session.type(number == SIGINT ? "\x03" : "\x1a");
        else
            session.signal(number);
        EXPECT_TRUE(session.shows("left: " + std::to_string(128 + number)));
        EXPECT_TRUE(session.echoes()) << number;
        EXPECT_FALSE(contains(session.shown, "secret"));
        if (number != SIGTSTP) continue;
        session.type("\n");
        EXPECT_TRUE(session.shows("archives: "));
        EXPECT_FALSE(session.echoes()) << "after it goes on";
        session.signal(SIGCONT);
        EXPECT_TRUE(session.shows("archives: "));
        session.type("\x04");
        EXPECT_TRUE(session.shows("No password was typed"));
        EXPECT_TRUE(session.shows("left: 2"));
        EXPECT_TRUE(session.echoes());
    }
}

TEST(Prompt, TakesAPasswordThatIsTypedTheSameWayTwice)
{
    const ProgramHome home(QUILLORENT_RUN);
    std::string shown;
    const auto answer = [&](const std::string &arguments, const std::vector<std::string> &answers,
                            int status) {
        Session session(home, arguments);
        for (const std::string &typed : answers) {
            EXPECT_TRUE(session.shows(": "));
            session.type(typed + "\n");
        }
        EXPECT_TRUE(session.shows("left: " + std::to_string(status)));
        shown += session.shown;
    };
    answer("backup Mine", {"fjord", "other", "fjord", "", "fjord", "Fjord"}, 2);
    EXPECT_EQ(namesIn(home / "archives").size(), 0U);
    answer("backup Mine", {"fjord 7", "fjord 8", "fjord 7", "fjord 7"}, 0);
    EXPECT_TRUE(contains(shown, "are not the same"));
    answer("extract Mine -- '" + home.text("archives") + "'", {"fjord 7"}, 0);
    EXPECT_FALSE(contains(shown, "fjord"));
}
