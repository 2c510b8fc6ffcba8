#include "app/TerminationSignals.h"

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array handledSignals{SIGINT, SIGTERM, SIGHUP};

// A handler may do little more than write to a pipe, and can reach only what is global.
std::array<int, 2> ends{-1, -1};

void passOn(int signal)
{
    const int error = errno;
    const auto byte = static_cast<unsigned char>(signal);
    [[maybe_unused]] const ssize_t written = write(ends[1], &byte, 1);
    errno = error;
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    m_notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &TerminationSignals::readSignal);

    struct sigaction action {};
    action.sa_handler = passOn;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : handledSignals)
        sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals()
{
    for (const int number : handledSignals)
        signal(number, SIG_DFL);
    delete m_notifier;
    for (int &end : ends) {
        if (end >= 0) close(end);
        end = -1;
    }
}

void TerminationSignals::readSignal()
{
    unsigned char byte = 0;
    while (read(ends[0], &byte, 1) == 1)
        Q_EMIT received(byte);
}
