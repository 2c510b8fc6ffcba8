#include "headless/Password.h"

#include <QFile>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {

QString reasonOf(const QFile &file)
{
    return u"Can't read the password from \"%1\": %2."_qs.arg(file.fileName(), file.errorString());
}

/// Typed characters are not shown while it lives.
class HiddenTyping {
public:
    explicit HiddenTyping(int terminal) : m_terminal(terminal)
    {
        m_changed = tcgetattr(m_terminal, &m_before) == 0;
        termios hidden = m_before;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        if (m_changed) tcsetattr(m_terminal, TCSAFLUSH, &hidden);
    }
    ~HiddenTyping()
    {
        if (m_changed) tcsetattr(m_terminal, TCSAFLUSH, &m_before);
    }
    HiddenTyping(const HiddenTyping &) = delete;
    HiddenTyping &operator=(const HiddenTyping &) = delete;

private:
    int m_terminal;
    bool m_changed = false;
    termios m_before{};
};

PasswordInput firstLine(QFile &file)
{
    QByteArray line = file.readLine();
    if (line.isEmpty() && file.error() != QFileDevice::NoError) return {std::nullopt, reasonOf(file)};
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    if (!line.isValidUtf8())
        return {std::nullopt, u"The password in \"%1\" is not UTF-8 text."_qs.arg(file.fileName())};
    return {QString::fromUtf8(line), {}};
}

} // namespace

PasswordInput readPassword(const QString &path)
{
    QFile file(path);
    const bool isOpen =
        path == u"-" ? file.open(STDIN_FILENO, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    return isOpen ? firstLine(file) : PasswordInput{std::nullopt, reasonOf(file)};
}

PasswordInput askForPassword(const QString &question)
{
    QFile terminal(u"/dev/tty"_qs);
    if (!terminal.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) return {};
    terminal.write(question.toUtf8());
    const HiddenTyping hidden(terminal.handle());
    PasswordInput answer = firstLine(terminal);
    terminal.write("\n");
    return answer;
}
