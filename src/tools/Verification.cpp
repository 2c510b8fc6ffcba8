#include "tools/Verification.h"

#include "files/Names.h"
#include "tools/RegisteredTool.h"

using namespace Qt::StringLiterals;

bool quillorentLibrary::test(const QString &launchPath, const QString &expectedHelp,
                             const QString &expectedName)
{
    const QString help = runTool(launchPath, {u"-h"_s}).text();
    return help.contains(expectedHelp) && lastPathComponent(launchPath).contains(expectedName);
}

bool quillorentLibrary::testAll(const QString &name)
{
    const auto expectedName = toolSetting(u"executables"_s, name);
    const auto expectedHelp = toolSetting(u"verifiers"_s, name);
    const auto launchPath = toolSetting(u"external"_s, name);
    return launchPath && expectedHelp && expectedName && test(*launchPath, *expectedHelp, *expectedName);
}

bool quillorentLibrary::warnsOfItsKeyDerivation(const QString &launchPath)
{
    const QStringList encryptNothing{u"aes-256-cbc"_s, u"-a"_s,        u"-salt"_s, u"-in"_s,   u"/dev/null"_s,
                                     u"-out"_s,        u"/dev/null"_s, u"-pass"_s, u"pass:x"_s};
    return runTool(launchPath, encryptNothing).text().contains(u"deprecated key derivation");
}
