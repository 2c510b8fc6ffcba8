#include "ui/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>

bool ui::wantsText(int argc, char **argv, const char *version)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Backs up folders into encrypted archives, and brings them back. Opens a window;\n"
                       "quillorent-run does the same without one."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this text."));
    const QCommandLineOption showVersion({QStringLiteral("v"), QStringLiteral("version")},
                                         QStringLiteral("Show the version."));
    parser.addOptions({help, showVersion});
    const QCoreApplication application(argc, argv);
    parser.parse(QCoreApplication::arguments()); // what else there is may be for the toolkit
    if (parser.isSet(help))
        std::fputs(qUtf8Printable(parser.helpText()), stdout);
    else if (parser.isSet(showVersion))
        std::printf("quillorent %s\n", version);
    return parser.isSet(help) || parser.isSet(showVersion);
}
