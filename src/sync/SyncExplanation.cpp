#include "sync/SyncExplanation.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace {

enum class When { Always, WithPort, WithoutUser };

struct Explanation {
    const char *said;    ///< a pattern of a line that rsync or ssh writes
    const char *meaning; ///< %1 is the server, %2 the destination
    When when = When::Always;
};

// What kept everything from being done stands before what concerns single files; the first that fits counts.
constexpr std::array explanations{
    Explanation{"REMOTE HOST IDENTIFICATION HAS CHANGED",
                "The server \"%1\" shows another key than before; someone may be in its place. Ask who runs "
                "it before you connect again."},
    Explanation{"Host key verification failed",
                "ssh does not know the server \"%1\" yet. Connect to it once in a terminal (ssh %1), compare "
                "the key that it shows, and try again."},
    Explanation{"Could not resolve hostname",
                "There is no server of the name \"%1\", or this computer is offline. Check the name."},
    Explanation{
        "Connection refused",
        "The server \"%1\" refuses the connection. Check that its ssh service runs; a port other than "
        "22 belongs into ~/.ssh/config."},
    Explanation{"Connection timed out|No route to host|Network is unreachable",
                "The server \"%1\" can't be reached. Check the network, and that the server is on."},
    Explanation{
        "Permission denied \\([a-z]",
        "The server \"%1\" did not let you in, since it was sent an empty user name. Fill in the user: "
        "then ssh takes the one from ~/.ssh/config, or else your own.",
        When::WithoutUser},
    Explanation{"Permission denied \\([a-z]",
                "The server \"%1\" did not let you in. Nobody can type a password here: log in by a key that "
                "ssh finds without a question (see ssh-agent, ~/.ssh/config)."},
    Explanation{"rsync: (command )?not found", "The server \"%1\" has no rsync. Install it there."},
    Explanation{"syntax or usage error",
                "rsync does not understand its arguments. Check \"rsyncparams\" and \"rsyncexcludes\" in the "
                "settings file: both must be there, and each be one option."},
    Explanation{"(mkdir|\\[receiver\\] change_dir).*No such file",
                "The server took the port for the beginning of the folder's path. Leave the port empty, and "
                "put it into ~/.ssh/config.",
                When::WithPort},
    Explanation{
        "(mkdir|\\[receiver\\] change_dir).*No such file",
        "The folder in which \"%2\" is to be made does not exist. Connect its disk, or choose another "
        "destination."},
    Explanation{"No space left on device|Disk quota exceeded",
                "The destination is full. Make room there and run it again: what is there is not copied "
                "twice."},
    Explanation{
        "File too large",
        "A file is larger than the destination can take. Choose another disk, or leave the file out."},
    Explanation{"Read-only file system", "The destination \"%2\" can only be read. Choose another one."},
    Explanation{"\\[sender\\].*Permission denied \\(13\\)",
                "You may not read some of the files; they are not copied."},
    Explanation{"Permission denied \\(13\\)",
                "You may not write to the destination \"%2\". Choose another one, or have its permissions "
                "changed."},
    Explanation{"(link_stat|change_dir) .*No such file",
                "An entry of the list is not where it was; it is not copied. Remove it from the list, or "
                "bring it back."},
    Explanation{"file has vanished",
                "Files disappeared while they were to be copied. All others are copied; run it again where "
                "that matters."},
    Explanation{"cannot delete non-empty directory",
                "A folder that is gone here could not be deleted at the destination: it holds files that "
                "rsync leaves alone."},
    Explanation{"Operation not permitted",
                "The destination can't keep all owners, dates or permissions of the files."},
    Explanation{"Broken pipe|Connection (closed|reset)|unexpectedly closed",
                "The connection to \"%1\" ended early. Run it again: what is there is not copied twice."},
    Explanation{"Permanently added",
                "ssh has noted the server's key, and what it said counts as a failure. Run it once more."},
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
    QString text = known == explanations.end() ? u"rsync was not content; what it said follows."_qs
                                               : QString::fromUtf8(known->meaning)
                                                     .replace(u"%1"_qs, order.server)
                                                     .replace(u"%2"_qs, order.destination);
    if (output.contains(u"skipping file deletion")) text += u" Nothing was deleted at the destination."_qs;
    return text;
}
