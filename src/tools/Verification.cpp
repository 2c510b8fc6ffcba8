#include "tools/Verification.h"

#include "files/Names.h"
#include "tools/RegisteredTool.h"

bool quillorentLibrary::test(const QString &launchPath, const QString &expectedHelp,
                             const QString &expectedName)
{
    const QString help = runTool(launchPath, {u"-h"_qs}).text();
    return help.contains(expectedHelp) && lastPathComponent(launchPath).contains(expectedName);
}

bool quillorentLibrary::testAll(const QString &name)
{
    const auto expectedName = toolSetting(u"executables"_qs, name);
    const auto expectedHelp = toolSetting(u"verifiers"_qs, name);
    const auto launchPath = toolSetting(u"external"_qs, name);
    return launchPath && expectedHelp && expectedName && test(*launchPath, *expectedHelp, *expectedName);
}

bool quillorentLibrary::warnsOfItsKeyDerivation(const QString &launchPath)
{
    const QStringList encryptNothing{u"aes-256-cbc"_qs, u"-a"_qs,        u"-salt"_qs,
                                     u"-in"_qs,         u"/dev/null"_qs, u"-out"_qs,
                                     u"/dev/null"_qs,   u"-pass"_qs,     u"pass:x"_qs};
    return runTool(launchPath, encryptNothing).text().contains(u"deprecated key derivation");
}
