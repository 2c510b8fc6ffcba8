#pragma once

#include <QByteArray>
#include <array>
#include <csignal>
#include <optional>
#include <termios.h>

/// The signals that end or stop a program, and the one after a stop, are read from a descriptor while it
/// lives. Those that the program was started to ignore stay ignored. There is one of it at a time.
class NoticedSignals {
public:
    NoticedSignals();
    ~NoticedSignals();
    NoticedSignals(const NoticedSignals &) = delete;
    NoticedSignals &operator=(const NoticedSignals &) = delete;

    /// Can be read from when one has come.
    [[nodiscard]] int descriptor() const;
    /// The next one, without waiting; 0: none.
    [[nodiscard]] int next() const;
    /// Lets the signal do what it would have done. Returns where that was not the program's end.
    void obey(int signal);

private:
    static constexpr std::array numbers{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP, SIGCONT};
    std::array<struct sigaction, numbers.size()> m_former{};
};

/// The terminal that the program was started on, for questions whose answers nobody is to see. Whatever ends
/// or stops the program, the terminal shows what is typed from then on, as before.
class Terminal {
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// False: there is none.
    [[nodiscard]] explicit operator bool() const { return m_terminal >= 0; }
    void print(const QByteArray &text) const;
    /// Asks for a line and gives it without its end. None: it ended before, or can't be read; more than a
    /// terminal takes at a time is cut off.
    [[nodiscard]] std::optional<QByteArray> ask(const QByteArray &question);

private:
    void hide();
    void show();
    void answer(int signal, const QByteArray &question);

    int m_terminal;
    bool m_isHidden = false;
    std::optional<termios> m_before;
    NoticedSignals m_signals;
};
