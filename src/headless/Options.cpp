#include "headless/Options.h"

#include "headless/ExitStatus.h"

#include <QCommandLineParser>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(headless)
};

using Command = Options::Command;

struct CommandRow {
    Command command;
    QString name;
    qsizetype words; ///< at most, its own name included
    QStringList options;
};

const QList<CommandRow> &commands()
{
    static const QList<CommandRow> rows{
        {Command::Backup, u"backup"_s, 2, {u"password-file"_s, u"yes"_s, u"progress"_s, u"json"_s}},
        {Command::Extract,
         u"extract"_s,
         2,
         {u"to"_s, u"only"_s, u"method"_s, u"password-file"_s, u"yes"_s, u"progress"_s, u"json"_s}},
        {Command::List,
         u"list"_s,
         2,
         {u"to"_s, u"method"_s, u"password-file"_s, u"yes"_s, u"progress"_s, u"json"_s}},
        {Command::Sync, u"sync"_s, 2, {u"yes"_s, u"progress"_s, u"json"_s}},
        {Command::Tools, u"tools"_s, 1, {}},
        {Command::Profiles, u"profiles"_s, 1, {}}};
    return rows;
}

const QStringList methods{u"aes"_s, u"bf"_s, u"3d"_s, u"smime"_s, u"auto"_s};

ParsedArguments wrongUsage(const QString &message)
{
    return {std::nullopt, message + u'\n' + Words::tr("Try \"quillorent-run --help\".") + u'\n', WrongUsage};
}

/// The first option that was given and that the command has no use for; empty where there is none.
QString firstUseless(const QCommandLineParser &parser, const CommandRow &command)
{
    for (const QString &name : parser.optionNames())
        if (!command.options.contains(name)) return name;
    return {};
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(Words::tr(
        "Runs what Quillorent's window runs, without a window.\n"
        "\n"
        "Commands:\n"
        "  backup [PROFILE]                  back up the folders of a profile\n"
        "  extract [PROFILE] -- ARCHIVE...   turn archives back into folders; of a set the first volume,\n"
        "                                    or a folder of archives\n"
        "  list [PROFILE] -- ARCHIVE         tell what an archive holds: bytes, time, path, separated by\n"
        "                                    tabs; needs the password, room and time as extract does\n"
        "  sync [PROFILE]                    synchronise the files and folders of a profile\n"
        "  tools                             list the external tools: name, path, ok or not\n"
        "  profiles                          list the profiles; * marks the one opened at start-up\n"
        "\n"
        "Exit status: 0 done, 1 failed or cancelled, 2 could not start, or was not to\n"
        "go on (see --yes), 64 wrong usage."));
    parser.addOptions(
        {{{u"h"_s, u"help"_s}, Words::tr("Show this text.")},
         {{u"v"_s, u"version"_s}, Words::tr("Show the version.")},
         {u"password-file"_s,
          Words::tr("Take the password from the first line of FILE; - is standard input."), u"FILE"_s},
         {u"only"_s,
          Words::tr(
              "Bring back PATH alone, a file or folder of the one archive, as list tells it; may be given "
              "several times. Nothing is replaced: what is there gets a name that begins with \"kept-\"."),
          u"PATH"_s},
         {u"to"_s, Words::tr("Extract into FOLDER instead of the profile's extraction folder."), u"FOLDER"_s},
         {u"method"_s, Words::tr("Decrypt by METHOD: aes, bf, 3d, smime, or auto, by the archive's name."),
          u"METHOD"_s},
         {u"yes"_s, Words::tr("Go on in spite of what is found before the run: archives that will be "
                              "replaced, too little room, files that will be deleted, and the like. What "
                              "would lose files is refused all the same.")},
         {u"json"_s, Words::tr("Print the run's record on standard output when it has ended.")},
         {u"progress"_s, Words::tr("Show progress even where no terminal is.")}});
    parser.addPositionalArgument(u"command"_s, Words::tr("backup, extract, list, sync, tools or profiles."));
    parser.addPositionalArgument(u"PROFILE"_s,
                                 Words::tr("The profile; without it the one that the window would open."));
}

} // namespace

ParsedArguments parseArguments(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    // Behind "--" stand archives alone, so that none is taken for the profile.
    const qsizetype end = arguments.indexOf(u"--"_s);
    const QStringList archives = end < 0 ? QStringList() : arguments.mid(end + 1);
    if (!parser.parse(QStringList(u"quillorent-run"_s) + arguments.mid(0, end)))
        return wrongUsage(parser.errorText());
    if (parser.isSet(u"help"_s)) return {std::nullopt, parser.helpText(), Done};
    if (parser.isSet(u"version"_s))
        return {std::nullopt, QStringLiteral("quillorent-run " QUILLORENT_VERSION "\n"), Done};

    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return wrongUsage(Words::tr("A command is missing: backup, extract, list, sync, tools or profiles."));
    const auto command = std::find_if(commands().begin(), commands().end(),
                                      [&](const CommandRow &row) { return row.name == words.first(); });
    if (command == commands().end())
        return wrongUsage(
            Words::tr("\"%1\" is no command; there are backup, extract, list, sync, tools and profiles.")
                .arg(words.first()));

    const bool extracts = command->command == Command::Extract || command->command == Command::List;
    if (extracts && archives.isEmpty())
        return wrongUsage(Words::tr("Archives are missing: name them behind \"--\"."));
    const QStringList tooMany = words.mid(command->words) + (extracts ? QStringList() : archives);
    if (!tooMany.isEmpty()) return wrongUsage(Words::tr("\"%1\" is one word too many.").arg(tooMany.first()));
    if (const QString useless = firstUseless(parser, *command); !useless.isEmpty())
        return wrongUsage(Words::tr("\"%1\" does not go with \"%2\".").arg(useless, words.first()));

    const QString method = parser.value(u"method"_s);
    if (parser.isSet(u"method"_s) && !methods.contains(method))
        return wrongUsage(Words::tr("\"%1\" is no method; there are %2.").arg(method, methods.join(u", "_s)));

    return {Options{.command = command->command,
                    .profile = words.value(1),
                    .passwordFile = parser.value(u"password-file"_s),
                    .folder = parser.value(u"to"_s),
                    .method = parser.isSet(u"method"_s) ? std::optional(int(methods.indexOf(method)))
                                                        : std::nullopt,
                    .archives = archives,
                    .only = parser.values(u"only"_s),
                    .yes = parser.isSet(u"yes"_s),
                    .json = parser.isSet(u"json"_s),
                    .progress = parser.isSet(u"progress"_s)},
            {},
            Done};
}
