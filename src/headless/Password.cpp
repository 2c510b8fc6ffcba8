#include "headless/Password.h"

#include "headless/Terminal.h"

#include <QCoreApplication>
#include <QFile>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(headless)
};

constexpr qsizetype longestLine = 4096; // in bytes; no password is longer
constexpr int tries = 3;

PasswordInput refusal(const QString &reason) { return {std::nullopt, reason}; }
PasswordInput nothingTyped() { return refusal(Words::tr("No password was typed. Nothing was done.")); }

QString nameOf(const QString &path)
{
    return path == u"-" ? Words::tr("standard input") : u"\"%1\""_s.arg(path);
}

/// Up to the end of the first line, or `longestLine`: what comes behind is nobody's business, and a pipe may
/// stay open. None, with errno set, where it can't be read.
std::optional<QByteArray> readFirstLine(int file)
{
    std::array<char, 512> piece;
    QByteArray line;
    while (line.size() <= longestLine && !line.contains('\n')) {
        const ssize_t size = read(file, piece.data(), piece.size());
        if (size < 0 && errno == EINTR) continue;
        if (size < 0) return std::nullopt;
        if (size == 0) break;
        line.append(piece.data(), size);
    }
    explicit_bzero(piece.data(), piece.size());
    return line;
}

/// `line` is wiped.
PasswordInput toPassword(QByteArray line, const QString &source)
{
    const qsizetype end = line.indexOf('\n');
    const bool isTooLong = (end < 0 ? line.size() : end) > longestLine;
    QByteArray text = line.left(end < 0 ? line.size() : end);
    while (text.endsWith('\r'))
        text.chop(1);
    const bool isUtf8 = text.isValidUtf8();
    const QString password = isUtf8 ? QString::fromUtf8(text) : QString();
    text.fill('\0');
    line.fill('\0');
    if (isTooLong)
        return refusal(Words::tr("The first line of %1 is longer than any password can be. Give a file whose "
                                 "first line is the password alone.")
                           .arg(source));
    if (!isUtf8)
        return refusal(
            Words::tr("The password in %1 is not UTF-8 text. Save the file as UTF-8.").arg(source));
    return {password, {}};
}

PasswordInput askOnce(Terminal &terminal, const QByteArray &question)
{
    const std::optional<QByteArray> line = terminal.ask(question);
    if (!line) return nothingTyped();
    return toPassword(*line, Words::tr("what was typed"));
}

} // namespace

PasswordInput readPassword(const QString &path)
{
    const int file = path == u"-"
                         ? dup(STDIN_FILENO)
                         : open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    const std::optional<QByteArray> line = file < 0 ? std::nullopt : readFirstLine(file);
    const int error = errno;
    if (file >= 0) close(file);
    if (line) {
        PasswordInput input = toPassword(*line, nameOf(path));
        if (!input.password || !input.password->isEmpty()) return input;
        return refusal(
            Words::tr("The first line of %1 is empty. Write the password there.").arg(nameOf(path)));
    }
    return refusal(Words::tr("Can't read the password from %1: %2. Give another file.")
                       .arg(nameOf(path), QString::fromLocal8Bit(std::strerror(error))));
}

PasswordInput askForPassword(Asking asking)
{
    Terminal terminal;
    if (!terminal) return {};
    for (int i = 0; i < tries; ++i) {
        PasswordInput first = askOnce(terminal, Words::tr("Password for the archives: ").toLocal8Bit());
        if (first.password && first.password->isEmpty()) return nothingTyped();
        if (asking == Asking::Once || !first.password) return first;
        PasswordInput second = askOnce(terminal, Words::tr("The same password again: ").toLocal8Bit());
        if (!second.password || first.password == second.password) return second;
        terminal.print(Words::tr("The two passwords are not the same. Type both again.").toLocal8Bit() +
                       '\n');
    }
    return refusal(Words::tr("The password was not typed the same way twice. Nothing was done."));
}
