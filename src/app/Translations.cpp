#include "app/Translations.h"

#include "settings/Paths.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// They live as long as the application.
bool install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    return translator->load(locale, name, u"_"_s, folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

void installTranslations()
{
    const QString ours = quillorentLibrary::resourceFolder() + u"/translations"_s;
    const QLocale locale = QLocale::system();
    install(locale, u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // Its plurals are in a file, too.
    if (!install(locale, u"quillorent"_s, ours)) install(QLocale::English, u"quillorent"_s, ours);
}
