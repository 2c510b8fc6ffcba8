#include "app/QuillorentAppDelegate.h"
#include "extract/Candidates.h"
#include "extract/Concerns.h"
#include "extract/ExtractRun.h"
#include "files/Paths.h"
#include "tools/Threads.h"

namespace {

QString noArchives(const QuillorentAppDelegate &delegate)
{
    const QStringList shown = delegate.extractFullList.strings();
    const QString leftOut = describeLeftOut(shown, shown, {});
    return leftOut.isEmpty() ? u"No archives are chosen. Add those that are to be extracted."_qs : leftOut;
}

/// What keeps an extraction from starting, in words that say what to do; the empty string where nothing does.
QString whatIsMissing(const QuillorentAppDelegate &delegate)
{
    const QString folder = delegate.extractPath.text();
    if (folder.isEmpty())
        return u"No extraction folder is chosen. Choose the folder that the contents go to."_qs;
    // A record without a folder leaves the one of the profile before it on screen.
    if (delegate.currentRecord().string(u"extractpath"_qs) != folder)
        return u"The extraction folder that is shown is not this profile's own. Choose it again."_qs;
    if (delegate.extractList.count() == 0) return noArchives(delegate);
    if (delegate.passCombo01.selectedIndex() == PasswordTab::Certificate && !delegate.pkeySelector())
        return u"No certificate is chosen. Choose one on the Passwords tab."_qs;
    if (delegate.passwordSelector().isEmpty())
        return u"No password is given. Type one on the Passwords tab; without a password nothing is "
               "extracted."_qs;
    if (delegate.isRunActive()) return u"The last run is still ending its tools. Try again in a moment."_qs;
    return {};
}

QString folderMissing(const QString &folder)
{
    if (folder.isEmpty())
        return u"No extraction folder is chosen. Choose the folder that the contents go to."_qs;
    return u"The extraction folder \"%1\" does not exist or is no folder. Connect its disk, or choose "
           "another one."_qs.arg(folder);
}

/// A panel's text: as many lines as a person reads.
QString firstOf(const QStringList &concerns)
{
    constexpr qsizetype most = 8;
    if (concerns.size() <= most) return concerns.join(u'\n');
    return concerns.first(most).join(u'\n') + u"\n… and %1 more."_qs.arg(concerns.size() - most);
}

} // namespace

void QuillorentAppDelegate::buttonLaunch02()
{
    const QString folder = extractPath.text();
    if (!quillorentLibrary::folderExists(folder)) {
        warn(folderMissing(folder));
        return;
    }
    if (quillorentLibrary::folderIsEmpty(folder)) {
        buttonLaunch02b();
        return;
    }
    folderNotEmptyText01.setText(folder);
    warningPanel02.runModal();
}

void QuillorentAppDelegate::buttonLaunch02b()
{
    buttonLaunch02Stop();
    const QString missing = whatIsMissing(*this);
    if (!missing.isEmpty()) {
        warn(missing);
        return;
    }
    const QStringList concerns = extractConcerns(extractList.strings(), extractPath.text());
    if (concerns.isEmpty()) {
        buttonLaunch02c();
        return;
    }
    concernsText01.setText(firstOf(concerns));
    concernsPanel01.runModal();
}

void QuillorentAppDelegate::buttonLaunch02Stop()
{
    warningPanel02.close();
    window.orderFront();
}

void QuillorentAppDelegate::buttonLaunch02c()
{
    concernsPanel01Stop();
    // The panel may have stood for long.
    const QString missing = whatIsMissing(*this);
    if (!missing.isEmpty()) {
        warn(missing);
        return;
    }
    // Set before the thread exists: a second press must find the run.
    beginRun();
    detachThread(u"extract-run"_qs,
                 [profile = currentProfile()] { quillorentLibrary::launchExtract(profile); });
}

void QuillorentAppDelegate::concernsPanel01Stop()
{
    concernsPanel01.close();
    window.orderFront();
}

void QuillorentAppDelegate::stopProcess02b()
{
    extractPanel01.close();
    window.orderFront();
}
