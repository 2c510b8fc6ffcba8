#include "headless/Options.h"

#include "headless/ExitStatus.h"

#include <QCommandLineParser>
#include <QHash>

namespace {

ParsedArguments wrongUsage(const QString &message)
{
    return {std::nullopt, message + u"\nTry \"quillorent-run --help\".\n"_qs, WrongUsage};
}

/// The first option among `used` that `command` has no use for; empty where there is none.
QString firstUseless(const QCommandLineParser &parser, Options::Command command)
{
    if (command == Options::Command::Backup) return {};
    for (const QString &name : parser.optionNames())
        if (command != Options::Command::Sync || name != u"progress") return name;
    return {};
}

} // namespace

ParsedArguments parseArguments(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Runs what Quillorent's window runs, without a window.\n\n"
        "Commands:\n"
        "  backup [PROFILE]   back up the folders of a profile\n"
        "  sync [PROFILE]     synchronise the files and folders of a profile\n"
        "  tools              list the external tools: name, path, ok or not\n"
        "  profiles           list the profiles; * marks the one opened at start-up\n\n"
        "Exit status: 0 done, 1 failed or cancelled, 2 could not start, 64 wrong usage."_qs);
    const QCommandLineOption help({u"h"_qs, u"help"_qs}, u"Show this text."_qs);
    const QCommandLineOption passwordFile(
        u"password-file"_qs, u"Take the password from the first line of FILE; - is standard input."_qs,
        u"FILE"_qs);
    const QCommandLineOption yes(u"yes"_qs, u"Write into a destination that is not empty."_qs);
    const QCommandLineOption progress(u"progress"_qs, u"Show progress even where no terminal is."_qs);
    parser.addOptions({help, passwordFile, yes, progress});
    parser.addPositionalArgument(u"command"_qs, u"backup, sync, tools or profiles."_qs);
    parser.addPositionalArgument(u"PROFILE"_qs,
                                 u"The profile; without it the one that the window would open."_qs);

    if (!parser.parse(QStringList(u"quillorent-run"_qs) + arguments)) return wrongUsage(parser.errorText());
    if (parser.isSet(help)) return {std::nullopt, parser.helpText(), Done};

    static const QHash<QString, Options::Command> commands{{u"backup"_qs, Options::Command::Backup},
                                                           {u"sync"_qs, Options::Command::Sync},
                                                           {u"tools"_qs, Options::Command::Tools},
                                                           {u"profiles"_qs, Options::Command::Profiles}};
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty()) return wrongUsage(u"A command is missing: backup, sync, tools or profiles."_qs);
    const auto command = commands.constFind(words.first());
    if (command == commands.cend())
        return wrongUsage(
            u"\"%1\" is no command; there are backup, sync, tools and profiles."_qs.arg(words.first()));

    const qsizetype atMost =
        *command == Options::Command::Backup || *command == Options::Command::Sync ? 2 : 1;
    if (words.size() > atMost) return wrongUsage(u"\"%1\" is one word too many."_qs.arg(words.at(atMost)));
    if (const QString useless = firstUseless(parser, *command); !useless.isEmpty())
        return wrongUsage(u"\"%1\" does not go with \"%2\"."_qs.arg(useless, words.first()));

    return {Options{.command = *command,
                    .profile = words.value(1),
                    .passwordFile = parser.value(passwordFile),
                    .yes = parser.isSet(yes),
                    .progress = parser.isSet(progress)},
            {},
            Done};
}
