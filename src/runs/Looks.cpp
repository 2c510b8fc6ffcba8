#include "runs/Looks.h"

#include "runs/RunJournal.h"
#include "tools/ToolRun.h"

QString whyBusy(const QString &folder)
{
    return u"Another run is writing into \"%1\", or its tools still are. Wait until it has ended."_qs.arg(
        folder);
}

QString concernAboutRecords()
{
    const QString reason = whyNoRecords();
    if (reason.isEmpty()) return {};
    return u"No record of the run can be kept: %1. What it leaves if it is interrupted could not be told "
           u"from files "
           "of your own."_qs.arg(reason);
}

QString whyOtherOpenSsl()
{
    return u"The OpenSSL that is registered derives keys from passwords in another way than the archives "
           u"need. "
           "Choose Quillorent's own on the Tools tab; the password may be right."_qs;
}

bool isWholeArchive(const QString &archiver, const QString &archive)
{
    const ToolResult result = runTool(archiver, {u"t"_qs, u"-idq"_qs, archive});
    return result.isSilent() && result.exitStatus == 0;
}
