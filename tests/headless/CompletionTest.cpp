#include "ProgramHome.h"

#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace {

using Words = std::vector<std::string>;

const std::string completions = QUILLORENT_COMPLETIONS;

/// What bash offers in place of the last word.
std::string offered(const ProgramHome &home, const Words &line)
{
    // compopt works only where somebody types.
    Words command{
        "bash",
        "-c",
        "compopt() { :; }; PATH=$1:$PATH; . \"$2\"; shift 2; COMP_WORDS=(\"$@\") COMP_CWORD=$(($# - 1))\n"
        "_quillorent_run; IFS='|'; printf %s \"${COMPREPLY[*]}\"",
        "bash",
        std::filesystem::path(QUILLORENT_RUN).parent_path(),
        completions + "/quillorent-run.bash",
        "quillorent-run"};
    command.insert(command.end(), line.begin(), line.end());
    auto environment = home.environment;
    environment["XDG_CONFIG_HOME"] = home.text("config");
    return runCommand(command, {.folder = home.text("docs"), .environment = environment}).output;
}

} // namespace

TEST(Completion, OffersWhatFitsThePlaceInBash)
{
    const ProgramHome home(QUILLORENT_RUN);
    EXPECT_EQ(home.run({"profiles"}).status, 0);
    for (const auto &[line, words] : {
             std::pair(Words{""}, "backup|extract|list|sync|tools|profiles"),
             {{"s"}, "sync"},
             {{"--h"}, "--help"},
             {{"backup", ""}, "Default\\ profile|Mine"},
             {{"backup", "--yes", "M"}, "Mine"},
             {{"backup", "Mine", ""}, ""},
             {{"sync", "--"}, "--yes|--json|--progress"},
             {{"extract", "--method", "s"}, "smime"},
             {{"extract", "Mine", "--", "fi"}, "file"},
             {{"tools", ""}, ""},
         })
        EXPECT_EQ(offered(home, line), words);
}

TEST(Completion, KnowsEveryOptionInEveryShell)
{
    for (const std::string program : {QUILLORENT, QUILLORENT_RUN}) {
        const std::string name = std::filesystem::path(program).filename();
        const std::string help = ProgramHome(program).run({"--help"}).output;
        const std::regex option("--([a-z][a-z-]*)");
        std::set<std::string> options;
        for (std::sregex_iterator next(help.begin(), help.end(), option), end; next != end; ++next)
            options.insert((*next)[1]);
        EXPECT_TRUE(options.contains("version"));
        for (const std::string &script : {name + ".bash", "_" + name, name + ".fish"}) {
            const std::string text = readFile(completions + "/" + script);
            for (const std::string &each : options)
                EXPECT_TRUE(contains(text, "--" + each) || contains(text, "-l " + each))
                    << script << ": " << each;
        }
    }
}
