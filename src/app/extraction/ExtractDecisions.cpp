#include "app/extraction/ExtractDecisions.h"

#include "app/QuillorentAppDelegate.h"
#include "app/folders/Decisions.h"
#include "extract/ArchiveName.h"
#include "extract/ExtractArguments.h"
#include "tools/RegisteredTool.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString nameOfMethod(int choice)
{
    static const QStringList methods{u"OpenSSL-AES"_s, u"OpenSSL-BF"_s, u"OpenSSL-3D"_s, u"OpenSSL-SMIME"_s};
    return methods.value(choice, methods.first());
}

} // namespace

QStringList QuillorentAppDelegate::filterForExtraction(const QStringList &paths) const
{
    // Over the whole path, folders included.
    static const QRegularExpression laterVolume(
        QRegularExpression::anchoredPattern(u".*part.*[2-9].*|.*part.*11.*|.*part.*10.*"_s),
        QRegularExpression::DotMatchesEverythingOption);
    QStringList candidates;
    for (const QString &path : paths)
        if (!laterVolume.match(path).hasMatch()) candidates.append(path);
    return candidates;
}

bool quillorentLibrary::testFileToExtract(const QString &archive)
{
    return runRegisteredTool(u"RAR"_s, extractArguments::test(archive)).isSilent();
}

std::optional<QString> quillorentLibrary::decideDecryption(const QString &archive)
{
    const QuillorentAppDelegate &delegate = theDelegate();
    const int choice = delegate.decryptionCombo01.selectedIndex();
    if (choice == ExtractTab::automaticDecryption) return decideEncryption(withoutVolumePart(archive));
    return delegate.setting(u"encparam"_s, nameOfMethod(choice));
}
