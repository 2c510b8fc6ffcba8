#include "backup/Advice.h"

#include "tools/ToolRun.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Advice)
};

/// The system's words for an error, in its own language and in that of tools that know no other.
QStringList wordsFor(int error, const QString &english) { return {qt_error_string(error), english}; }

bool namesAny(const QString &reason, const QStringList &words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](const QString &word) { return reason.contains(word, Qt::CaseInsensitive); });
}

} // namespace

QString adviceOnFailure(const QString &reason)
{
    if (namesAny(reason,
                 wordsFor(ENOSPC, u"No space left on device"_s) + wordsFor(EDQUOT, u"Disk quota exceeded"_s)))
        return Words::tr(
            "Make room on the disk of the destination, or choose another one. Then back up again.");
    if (namesAny(reason, wordsFor(EFBIG, u"File too large"_s)))
        return Words::tr(
            "The destination takes no files of that size. Have the archives split into files of less "
            "than 4 GB, and back up again.");
    if (namesAny(reason, wordsFor(EROFS, u"Read-only file system"_s)))
        return Words::tr(
            "Nothing can be written to the destination any more. Connect its disk anew, or choose "
            "another one, and back up again.");
    if (namesAny(reason, wordsFor(EIO, u"Input/output error"_s)))
        return Words::tr(
            "A disk does not work as it should. Check its cable, try another disk as the destination, "
            "and save what is on this one.");
    if (namesAny(reason,
                 wordsFor(EACCES, u"Permission denied"_s) + wordsFor(EPERM, u"Operation not permitted"_s)))
        return Words::tr(
            "Something may not be read or written by you. Change its permissions, or take it off the "
            "list, and back up again.");
    if (tellsThatNotStarted(reason))
        return Words::tr(
            "A program that the backup needs can't be started. The Tools tab shows which one and "
            "lets you choose it.");
    return Words::tr("Back up again. If it fails again, the messages of the tools tell more (Show messages, "
                     "on the Tools tab).");
}
