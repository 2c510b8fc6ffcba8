#include "headless/Terminal.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <strings.h>
#include <unistd.h>

namespace {

constexpr std::size_t longestLine = 4096; // in bytes; a terminal takes no more at a time

// A handler can reach only what is global.
std::array<int, 2> ends{-1, -1};

void notice(int signal)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(signal);
    [[maybe_unused]] const ssize_t written = write(ends[1], &byte, 1);
    errno = error;
}

struct sigaction noticing()
{
    struct sigaction action {};
    action.sa_handler = notice;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    return action;
}

} // namespace

NoticedSignals::NoticedSignals()
{
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    const struct sigaction action = noticing();
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        sigaction(numbers[i], nullptr, &m_former[i]);
        if (m_former[i].sa_handler != SIG_IGN) sigaction(numbers[i], &action, nullptr);
    }
}

NoticedSignals::~NoticedSignals()
{
    for (std::size_t i = 0; ends[0] >= 0 && i < numbers.size(); ++i)
        sigaction(numbers[i], &m_former[i], nullptr);
    for (int &end : ends) {
        if (end >= 0) close(end);
        end = -1;
    }
}

int NoticedSignals::descriptor() const { return ends[0]; }

int NoticedSignals::next() const
{
    unsigned char byte = 0;
    return read(ends[0], &byte, 1) == 1 ? byte : 0;
}

void NoticedSignals::obey(int signal)
{
    struct sigaction action {};
    action.sa_handler = SIG_DFL;
    struct sigaction former {};
    sigaction(signal, &action, &former);
    raise(signal); // not to the process: another thread could take it when the handler is back
    sigaction(signal, &former, nullptr);
}

Terminal::Terminal() : m_terminal(open("/dev/tty", O_RDWR | O_CLOEXEC)) {}

Terminal::~Terminal()
{
    show();
    if (m_terminal >= 0) close(m_terminal);
}

void Terminal::print(const QByteArray &text) const
{
    [[maybe_unused]] const ssize_t written =
        write(m_terminal, text.constData(), static_cast<std::size_t>(text.size()));
}

std::optional<QByteArray> Terminal::ask(const QByteArray &question)
{
    hide();
    print(question);
    std::array<char, longestLine> line;
    for (;;) {
        std::array<pollfd, 2> sources{pollfd{m_signals.descriptor(), POLLIN, 0}, {m_terminal, POLLIN, 0}};
        if (poll(sources.data(), sources.size(), -1) < 0 && errno != EINTR) return std::nullopt;
        if (const int signal = m_signals.next()) {
            answer(signal, question);
            continue;
        }
        if (sources[1].revents == 0) continue;
        const ssize_t size = read(m_terminal, line.data(), line.size());
        if (size < 0 && errno == EINTR) continue;
        print("\n");
        if (size <= 0) return std::nullopt;
        QByteArray text(line.data(), size);
        explicit_bzero(line.data(), line.size());
        if (text.endsWith('\n')) text.chop(1);
        return text;
    }
}

/// Once for all questions, for what is typed ahead of one must not be dropped.
void Terminal::hide()
{
    if (m_isHidden) return;
    // What it was before the first time: later it may be hidden already.
    termios before{};
    if (!m_before && tcgetattr(m_terminal, &before) == 0) m_before = before;
    if (!m_before) return;
    termios hidden = *m_before;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    m_isHidden = tcsetattr(m_terminal, TCSAFLUSH, &hidden) == 0;
}

/// What was typed and not read is dropped: it could be a part of a password.
void Terminal::show()
{
    if (m_isHidden) tcsetattr(m_terminal, TCSAFLUSH, &*m_before);
    m_isHidden = false;
}

void Terminal::answer(int signal, const QByteArray &question)
{
    for (; signal != 0; signal = m_signals.next()) {
        // After a stop that nobody could foresee, the shell may have changed the terminal.
        if (signal == SIGCONT) {
            m_isHidden = false;
            continue;
        }
        show();
        print("\n");
        m_signals.obey(signal);
    }
    hide();
    print(question);
}
