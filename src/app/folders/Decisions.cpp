#include "app/folders/Decisions.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Paths.h"

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

QList<Method> quillorentLibrary::methodsOfSettings()
{
    const plist::Dictionary settings = theDelegate().configPlist();
    const plist::Dictionary extensions = settings.dictionary(u"extensions"_qs);
    QList<Method> methods;
    for (const QString &key : extensions.keys())
        methods.append({key, extensions.string(key).value_or(QString()),
                        settings.dictionary(u"encparam"_qs).string(key).value_or(QString())});
    return methods;
}

QString quillorentLibrary::detectExtension(const QString &file)
{
    const QString method = methodOfArchive(file, methodsOfSettings());
    if (!method.isEmpty()) qCInfo(logDecisions, "Extension detected for %s", qUtf8Printable(method));
    return method.isNull() ? u""_qs : method;
}

QString quillorentLibrary::decideSplit()
{
    const QuillorentAppDelegate &delegate = theDelegate();
    return delegate.checkBox04.isOn() ? u"-v"_qs + delegate.partSize() : u""_qs;
}

QString quillorentLibrary::decideKeepDate() { return theDelegate().checkBox05.isOn() ? u"-tl"_qs : u""_qs; }

bool quillorentLibrary::folderIsEmpty(const QString &path)
{
    return theDelegate().prefCheck02.isOn() || holdsNothing(path);
}
