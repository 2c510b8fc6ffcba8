#include "sync/SyncExplanation.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(sync)
};

enum class When { Always, WithPort, WithoutUser };

struct Explanation {
    const char *said;    ///< a pattern of a line that rsync or ssh writes
    const char *meaning; ///< %1 is the server, %2 the destination
    When when = When::Always;
};

// What kept everything from being done stands before what concerns single files; the first that fits counts.
constexpr std::array explanations{
    Explanation{"REMOTE HOST IDENTIFICATION HAS CHANGED",
                QT_TRANSLATE_NOOP("sync", "The server \"%1\" shows another key than before; someone may be "
                                          "in its place. Ask who runs it before you connect again.")},
    Explanation{"Host key verification failed",
                QT_TRANSLATE_NOOP("sync",
                                  "ssh does not know the server \"%1\" yet. Connect to it once in a terminal "
                                  "(ssh %1), compare the key that it shows, and try again.")},
    Explanation{
        "Could not resolve hostname",
        QT_TRANSLATE_NOOP(
            "sync", "There is no server of the name \"%1\", or this computer is offline. Check the name.")},
    Explanation{"Connection refused",
                QT_TRANSLATE_NOOP("sync", "The server \"%1\" refuses the connection. Check that its ssh "
                                          "service runs; a port other than 22 belongs into ~/.ssh/config.")},
    Explanation{
        "Connection timed out|No route to host|Network is unreachable",
        QT_TRANSLATE_NOOP(
            "sync", "The server \"%1\" can't be reached. Check the network, and that the server is on.")},
    Explanation{"Permission denied \\([a-z]",
                QT_TRANSLATE_NOOP(
                    "sync", "The server \"%1\" did not let you in, since it was sent an empty user name. "
                            "Fill in the user: then ssh takes the one from ~/.ssh/config, or else your own."),
                When::WithoutUser},
    Explanation{"Permission denied \\([a-z]",
                QT_TRANSLATE_NOOP(
                    "sync", "The server \"%1\" did not let you in. Nobody can type a password here: log in "
                            "by a key that ssh finds without a question (see ssh-agent, ~/.ssh/config).")},
    Explanation{"rsync: (command )?not found",
                QT_TRANSLATE_NOOP("sync", "The server \"%1\" has no rsync. Install it there.")},
    Explanation{"syntax or usage error",
                QT_TRANSLATE_NOOP(
                    "sync",
                    "rsync does not understand its arguments. Check \"rsyncparams\" and \"rsyncexcludes\" in "
                    "the settings file: both must be there, and each be one option.")},
    Explanation{"(mkdir|\\[receiver\\] change_dir).*No such file",
                QT_TRANSLATE_NOOP("sync", "The server took the port for the beginning of the folder's path. "
                                          "Leave the port empty, and put it into ~/.ssh/config."),
                When::WithPort},
    Explanation{"(mkdir|\\[receiver\\] change_dir).*No such file",
                QT_TRANSLATE_NOOP("sync", "The folder in which \"%2\" is to be made does not exist. Connect "
                                          "its disk, or choose another destination.")},
    Explanation{
        "No space left on device|Disk quota exceeded",
        QT_TRANSLATE_NOOP(
            "sync",
            "The destination is full. Make room there and run it again: what is there is not copied twice.")},
    Explanation{
        "File too large",
        QT_TRANSLATE_NOOP(
            "sync",
            "A file is larger than the destination can take. Choose another disk, or leave the file out.")},
    Explanation{"Read-only file system",
                QT_TRANSLATE_NOOP("sync", "The destination \"%2\" can only be read. Choose another one.")},
    Explanation{"\\[sender\\].*Permission denied \\(13\\)",
                QT_TRANSLATE_NOOP("sync", "You may not read some of the files; they are not copied.")},
    Explanation{"Permission denied \\(13\\)",
                QT_TRANSLATE_NOOP("sync", "You may not write to the destination \"%2\". Choose another one, "
                                          "or have its permissions changed.")},
    Explanation{"(link_stat|change_dir) .*No such file",
                QT_TRANSLATE_NOOP("sync", "An entry of the list is not where it was; it is not copied. "
                                          "Remove it from the list, or bring it back.")},
    Explanation{"file has vanished",
                QT_TRANSLATE_NOOP("sync", "Files disappeared while they were to be copied. All others are "
                                          "copied; run it again where that matters.")},
    Explanation{"cannot delete non-empty directory",
                QT_TRANSLATE_NOOP("sync", "A folder that is gone here could not be deleted at the "
                                          "destination: it holds files that rsync leaves alone.")},
    Explanation{"Operation not permitted",
                QT_TRANSLATE_NOOP(
                    "sync", "The destination can't keep all owners, dates or permissions of the files.")},
    Explanation{
        "Broken pipe|Connection (closed|reset)|unexpectedly closed",
        QT_TRANSLATE_NOOP(
            "sync",
            "The connection to \"%1\" ended early. Run it again: what is there is not copied twice.")},
    Explanation{
        "Permanently added",
        QT_TRANSLATE_NOOP(
            "sync",
            "ssh has noted the server's key, and what it said counts as a failure. Run it once more.")},
};

bool applies(When when, const SyncOrder &order)
{
    switch (when) {
    case When::WithPort:
        return order.isRemote && !order.port.isEmpty();
    case When::WithoutUser:
        return order.user.isEmpty();
    case When::Always:
        break;
    }
    return true;
}

} // namespace

QString explainSync(const QString &output, const SyncOrder &order)
{
    const auto known =
        std::find_if(explanations.begin(), explanations.end(), [&](const Explanation &explanation) {
            const QRegularExpression said(QString::fromUtf8(explanation.said),
                                          QRegularExpression::CaseInsensitiveOption);
            return applies(explanation.when, order) && output.contains(said);
        });
    QString text =
        known == explanations.end()
            ? Words::tr("rsync, the program that copies, reported a problem; its own words follow.")
            : Words::tr(known->meaning).replace(u"%1"_s, order.server).replace(u"%2"_s, order.destination);
    if (output.contains(u"skipping file deletion"))
        text += Words::tr(" Nothing was deleted at the destination.");
    return text;
}
