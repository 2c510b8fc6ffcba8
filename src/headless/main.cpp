#include "app/Process.h"
#include "app/QuillorentAppDelegate.h"
#include "app/Translations.h"
#include "headless/BackupCommand.h"
#include "headless/ExtractCommand.h"
#include "headless/Print.h"
#include "headless/SyncCommand.h"
#include "tools/RegisteredTool.h"
#include "tools/Verification.h"

#include <QCoreApplication>
#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(headless)
};

ExitStatus listTools(const QuillorentAppDelegate &delegate)
{
    if (!delegate.configPlist()) return RunFailed; // which is told
    bool allPass = true;
    for (const QString &name : registeredTools()) {
        const bool passes = quillorentLibrary::testAll(name);
        allPass = allPass && passes;
        print(QStringList{name, registeredTool(name), passes ? u"ok"_s : u"not ok"_s}.join(u'\t'));
    }
    return allPass ? Done : RunFailed;
}

ExitStatus listProfiles(const QuillorentAppDelegate &delegate)
{
    if (!delegate.listPlist()) return RunFailed; // likewise
    for (const QString &name : delegate.listPlist().keys())
        print((name == delegate.currentProfile() ? u"* "_s : u"  "_s) + name);
    return Done;
}

/// Whether the profile that was asked for is the current one now.
bool openProfile(QuillorentAppDelegate &delegate, const QString &name)
{
    const QStringList names = delegate.listPlist().keys();
    if (names.isEmpty()) {
        if (delegate.listPlist()) printError(Words::tr("There are no profiles."));
        return false;
    }
    if (name.isEmpty()) return true;
    if (!names.contains(name)) {
        printError(Words::tr("There is no profile \"%1\"; there are: %2.").arg(name, names.join(u", "_s)));
        return false;
    }
    delegate.setterCurrentProfile(name);
    return true;
}

ExitStatus runCommand(QuillorentAppDelegate &delegate, const Options &options)
{
    const auto runForProfile = [&](auto run) {
        return openProfile(delegate, options.profile) ? run(delegate, options) : NotStarted;
    };
    switch (options.command) {
    case Options::Command::Tools:
        return listTools(delegate);
    case Options::Command::Profiles:
        return listProfiles(delegate);
    case Options::Command::Backup:
        return runForProfile(runBackup);
    case Options::Command::Extract:
        return runForProfile(runExtraction);
    case Options::Command::List:
        return runForProfile(runListing);
    case Options::Command::Sync:
        return runForProfile(runSync);
    }
    return WrongUsage;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    installTranslations();
    const ParsedArguments parsed = parseArguments(QCoreApplication::arguments().mid(1));
    if (!parsed.options) {
        std::fputs(qUtf8Printable(parsed.message), parsed.exitStatus == Done ? stdout : stderr);
        return parsed.exitStatus;
    }

    // Standard error is for the person who started this; how an archive's name was read is not for them.
    QLoggingCategory::setFilterRules(u"quillorent.decisions.info=false\nquillorent.decisions.debug=false"_s);
    prepareProcess(parsed.options->passwordFile == u"-");
    QuillorentAppDelegate delegate;
    delegate.verifiesTools = false; // for a table that nobody sees; "tools" looks for itself
    delegate.applicationDidFinishLaunching();
    if (const QString notices = delegate.settingsText01.text(); !notices.isEmpty()) printError(notices);
    const ExitStatus status = runCommand(delegate, *parsed.options);
    // Nothing is saved: a run without a window leaves the user's files as they are.
    delegate.endRuns();
    return status;
}
