#include "app/Translations.h"

#include "settings/Paths.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

/// They live as long as the application.
bool install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    return translator->load(locale, name, u"_"_qs, folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

void installTranslations()
{
    const QString ours = quillorentLibrary::resourceFolder() + u"/translations"_qs;
    const QLocale locale = QLocale::system();
    install(locale, u"qtbase"_qs, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // Its plurals are in a file, too.
    if (!install(locale, u"quillorent"_qs, ours)) install(QLocale::English, u"quillorent"_qs, ours);
}
