#include "runs/Looks.h"

#include "runs/RunJournal.h"
#include "tools/ToolRun.h"

#include <QCoreApplication>

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
    return Words::tr("No record of the run can be kept: %1. What it leaves if it is interrupted could not be "
                     "told from files of your own.")
        .arg(reason);
}

QString whyOtherOpenSsl()
{
    return Words::tr("The OpenSSL that is registered derives keys from passwords in another way than the "
                     "archives need. Choose Quillorent's own on the Tools tab; the password may be right.");
}

bool isWholeArchive(const QString &archiver, const QString &archive)
{
    const ToolResult result = runTool(archiver, {u"t"_qs, u"-idq"_qs, archive});
    return result.isSilent() && result.exitStatus == 0;
}
