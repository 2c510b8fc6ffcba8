#include "ui/CommandLine.h"

#include "app/Translations.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>
#include <cstdio>

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace

CommandLine::CommandLine(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    installTranslations();
    m_parser.setApplicationDescription(
        Words::tr("Backs up folders into encrypted archives, and brings them back. Opens a window;\n"
                  "quillorent-run does the same without one."));
    m_parser.addOptions({{{QStringLiteral("h"), QStringLiteral("help")}, Words::tr("Show this text.")},
                         {{QStringLiteral("v"), QStringLiteral("version")}, Words::tr("Show the version.")}});
    m_parser.addPositionalArgument(QStringLiteral("archive"), Words::tr("Archives to bring back."),
                                   Words::tr("[archive...]"));
    m_parser.parse(QCoreApplication::arguments()); // what else there is may be for the toolkit
    m_help = m_parser.helpText();
}

bool CommandLine::printsText(const char *version) const
{
    const bool asksForHelp = m_parser.isSet(QStringLiteral("help"));
    const bool asksForVersion = m_parser.isSet(QStringLiteral("version"));
    if (asksForHelp)
        std::fputs(qUtf8Printable(m_help), stdout);
    else if (asksForVersion)
        std::printf("quillorent %s\n", version);
    return asksForHelp || asksForVersion;
}

QStringList CommandLine::archives()
{
    QStringList paths;
    m_parser.parse(QCoreApplication::arguments());
    for (const QString &each : m_parser.positionalArguments()) {
        if (each.isEmpty()) continue;
        const QUrl address(each);
        paths.append(QFileInfo(address.isLocalFile() ? address.toLocalFile() : each).absoluteFilePath());
    }
    return paths;
}

} // namespace ui
