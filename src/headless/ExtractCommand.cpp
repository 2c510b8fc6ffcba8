#include "headless/ExtractCommand.h"

#include "app/QuillorentAppDelegate.h"
#include "headless/Print.h"
#include "headless/RunCommand.h"

#include <QFileInfo>

namespace {

// An absolute path can't be taken for an option, nor be relative to another folder.
QString absolute(const QString &path) { return QFileInfo(path).absoluteFilePath(); }

/// What the tab of extraction would hold. False, with the reason on standard error, where an archive is
/// missing.
bool fillIn(QuillorentAppDelegate &delegate, const Options &options)
{
    if (!options.folder.isEmpty()) {
        delegate.extractPath.setText(absolute(options.folder));
        delegate.currentRecord().setValue(u"extractpath"_qs, absolute(options.folder));
    }
    if (options.method) delegate.decryptionCombo01.selectIndex(*options.method);

    QStringList archives;
    for (const QString &archive : options.archives) {
        if (!QFileInfo::exists(archive)) {
            printError(u"There is no archive \"%1\"."_qs.arg(archive));
            return false;
        }
        archives.append(absolute(archive));
    }
    delegate.addArchives(archives);
    return true;
}

void answerPanels(QuillorentAppDelegate &delegate, PanelAnswers &answers)
{
    answers.answerQuestion(
        delegate.warningPanel02,
        [&] {
            return u"The extraction folder \"%1\" is not empty. Files of the same name would be "
                   "replaced."_qs.arg(delegate.folderNotEmptyText01.text());
        },
        [&] { delegate.buttonLaunch02b(); }, [&] { delegate.buttonLaunch02Stop(); });
    // Which archive is damaged is said at the end.
    answers.answer(delegate.extractPanel01, [&] { delegate.stopProcess02b(); });
}

} // namespace

ExitStatus runExtraction(QuillorentAppDelegate &delegate, const Options &options)
{
    if (!fillIn(delegate, options)) return NotStarted;
    if (!supplyPassword(delegate, options.passwordFile, Asking::Once)) return NotStarted;

    PanelAnswers answers(delegate, options.yes);
    answerPanels(delegate, answers);
    return runToEnd(delegate, options, answers, delegate.buttonCancel02, [&] { delegate.buttonLaunch02(); });
}
