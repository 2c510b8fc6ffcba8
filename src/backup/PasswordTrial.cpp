#include "backup/PasswordTrial.h"

#include "backup/BackupArguments.h"
#include "files/ArchiveFiles.h"
#include "tools/ToolRun.h"

#include <QTemporaryFile>

namespace {

using Verdict = PasswordTrial::Verdict;

// An encrypted file begins with a line of 64 characters that stand for 48 bytes: a mark and the salt, of 8
// each, and 32 of the archive in it, whole blocks of every cipher. An archive begins with six known bytes or
// more, which no wrong password brings about.
constexpr qsizetype lineLength = 64;
constexpr qsizetype plainLength = 32;
constexpr auto saltMark = "U2FsdGVkX1"; // "Salted_" and a part of "_"
constexpr auto archiveMark = "Rar!\x1a\x07";

/// The line, with its end; empty where the archive holds something else, or can't be read.
QByteArray firstLine(const BackupOrder &order, const QString &archive)
{
    const auto printed = firstBytesOf(order.archiver, backupArguments::printContent(archive), lineLength + 1);
    const bool isEncrypted = printed && printed->startsWith(saltMark) && printed->size() == lineLength + 1 &&
                             printed->indexOf('\n') == lineLength;
    return isEncrypted ? *printed : QByteArray();
}

Verdict tryOn(const BackupOrder &order, const QString &archive)
{
    const QByteArray line = firstLine(order, archive);
    QTemporaryFile piece;
    if (line.isEmpty() || !piece.open() || piece.write(line) != line.size() || !piece.flush())
        return Verdict::NotTried;
    QString password = order.password.text();
    QStringList arguments = backupArguments::decryptPiece(order.cipher, piece.fileName(), password);
    const auto plain = firstBytesOf(order.encoder, arguments, plainLength + 1);
    wipe(arguments);
    wipe(password);
    // Anything but so many bytes is what the tool has to say.
    if (!plain || plain->size() != plainLength) return Verdict::NotTried;
    return plain->startsWith(archiveMark) ? Verdict::Opens : Verdict::Wrong;
}

} // namespace

PasswordTrial tryPassword(const BackupOrder &order)
{
    constexpr int most = 3; // damaged ones must not hold up the start
    int tried = 0;
    for (const BackupItem &item : order.items) {
        const QStringList files = filesOfArchive(item.final);
        if (files.isEmpty()) continue;
        const Verdict verdict = tryOn(order, files.first());
        if (verdict != Verdict::NotTried) return {verdict, files.first()};
        if (++tried == most) break;
    }
    return {};
}
