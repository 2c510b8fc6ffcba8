#include "runs/Looks.h"

#include "runs/RunJournal.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(runs)
};

} // namespace

QString whyBusy(const QString &folder)
{
    return Words::tr("Another run is writing into \"%1\", or its tools still are. Wait until it has ended.")
        .arg(folder);
}

QString concernAboutRecords()
{
    const QString reason = whyNoRecords();
    if (reason.isEmpty()) return {};
    return Words::
        tr("It can't be written down what this run does: %1. If it is interrupted, nobody could tell what it "
           "leaves from files of your own.")
            .arg(reason);
}

QString whyOtherOpenSsl()
{
    return Words::tr(
        "The OpenSSL program that is chosen on the Tools tab makes something else of a password than these "
        "archives need, so it can't open them. Choose Quillorent's own there; the password may be right.");
}

bool isWholeArchive(const QString &archiver, const QString &archive)
{
    const ToolResult result = runTool(archiver, {u"t"_s, u"-idq"_s, archive});
    return result.isSilent() && result.exitStatus == 0;
}
