#include "app/folders/Decisions.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Paths.h"

#include <QLoggingCategory>

using namespace Qt::StringLiterals;

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
    return delegate.currentRecord().string(byCertificate ? u"asymencryption"_s : u"symencryption"_s);
}

std::optional<QString> quillorentLibrary::decideEncryption(const std::optional<QString> &file)
{
    return settingOfMethod(u"encparam"_s, file);
}

std::optional<QString> quillorentLibrary::decideExtension(const std::optional<QString> &file)
{
    return settingOfMethod(u"extensions"_s, file);
}

QList<Method> quillorentLibrary::methodsOfSettings()
{
    const plist::Dictionary settings = theDelegate().configPlist();
    const plist::Dictionary extensions = settings.dictionary(u"extensions"_s);
    QList<Method> methods;
    for (const QString &key : extensions.keys())
        methods.append({key, extensions.string(key).value_or(QString()),
                        settings.dictionary(u"encparam"_s).string(key).value_or(QString())});
    return methods;
}

QString quillorentLibrary::detectExtension(const QString &file)
{
    const QString method = methodOfArchive(file, methodsOfSettings());
    if (!method.isEmpty()) qCInfo(logDecisions, "Extension detected for %s", qUtf8Printable(method));
    return method.isNull() ? u""_s : method;
}

QString quillorentLibrary::decideSplit()
{
    const QuillorentAppDelegate &delegate = theDelegate();
    return delegate.checkBox04.isOn() ? u"-v"_s + delegate.partSize() : u""_s;
}

QString quillorentLibrary::decideKeepDate() { return theDelegate().checkBox05.isOn() ? u"-tl"_s : u""_s; }

bool quillorentLibrary::folderIsEmpty(const QString &path)
{
    return theDelegate().prefCheck02.isOn() || holdsNothing(path);
}
