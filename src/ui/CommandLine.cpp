#include "ui/CommandLine.h"

#include "app/Translations.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>
#include <cstdio>

using namespace Qt::StringLiterals;

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
    m_parser.addOptions(
        {{{QStringLiteral("h"), QStringLiteral("help")}, Words::tr("Show this text.")},
         {{QStringLiteral("v"), QStringLiteral("version")}, Words::tr("Show the version.")},
         {QStringLiteral("page"), Words::tr("Open this page: %1.").arg(Opening::pages().join(u", "_s)),
          Words::tr("page")}});
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

std::optional<Opening> CommandLine::opening()
{
    m_parser.parse(QCoreApplication::arguments());
    Opening opening{.page = m_parser.value(QStringLiteral("page")), .archives = {}};
    if (const QStringList unknown = m_parser.unknownOptionNames(); !unknown.isEmpty())
        return refuse(Words::tr("There is no option \"%1\".").arg(unknown.first()));
    if (m_parser.isSet(QStringLiteral("page")) && !Opening::pages().contains(opening.page))
        return refuse(Words::tr("There is no page \"%1\".").arg(opening.page));
    for (const QString &each : m_parser.positionalArguments()) {
        if (each.isEmpty()) continue;
        const QUrl address(each);
        opening.archives.append(
            QFileInfo(address.isLocalFile() ? address.toLocalFile() : each).absoluteFilePath());
    }
    return opening;
}

std::nullopt_t CommandLine::refuse(const QString &reason) const
{
    std::fprintf(stderr, "quillorent: %s\n\n%s", qUtf8Printable(reason), qUtf8Printable(m_help));
    return std::nullopt;
}

} // namespace ui
