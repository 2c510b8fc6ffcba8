#include "backup/Decisions.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Names.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(logDecisions, "quillorent.decisions", QtInfoMsg)

std::optional<QString> settingOfMethod(const QString &table, const std::optional<QString> &file)
{
    const std::optional<QString> method =
        file ? quillorentLibrary::detectExtension(*file) : quillorentLibrary::decideMethod();
    return method ? theDelegate().setting(table, *method) : std::nullopt;
}

} // namespace

std::optional<QString> quillorentLibrary::decideMethod()
{
    const QuillorentAppDelegate &delegate = theDelegate();
    const bool byCertificate = delegate.passCombo01.selectedIndex() == PasswordTab::Certificate;
    return delegate.currentRecord().string(byCertificate ? u"asymencryption"_qs : u"symencryption"_qs);
}

std::optional<QString> quillorentLibrary::decideEncryption(const std::optional<QString> &file)
{
    return settingOfMethod(u"encparam"_qs, file);
}

std::optional<QString> quillorentLibrary::decideExtension(const std::optional<QString> &file)
{
    return settingOfMethod(u"extensions"_qs, file);
}

QString quillorentLibrary::detectExtension(const QString &file)
{
    const plist::Dictionary extensions = theDelegate().configPlist().dictionary(u"extensions"_qs);
    QString method;
    for (const QString &piece : lastPathComponent(file).split(u".rar"_qs)) {
        // The last match counts: the method stands last in a name that holds several extensions.
        for (const QString &key : extensions.keys()) {
            if (extensions.string(key) != piece) continue;
            method = key;
            qCInfo(logDecisions, "Extension detected for %s", qUtf8Printable(key));
        }
    }
    return method;
}

QString quillorentLibrary::decideSplit()
{
    const QuillorentAppDelegate &delegate = theDelegate();
    return delegate.checkBox04.isOn() ? u"-v"_qs + delegate.partSize() : u""_qs;
}

QString quillorentLibrary::decideKeepDate() { return theDelegate().checkBox05.isOn() ? u"-tl"_qs : u""_qs; }
