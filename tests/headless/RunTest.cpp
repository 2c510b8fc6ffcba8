#include "ProgramHome.h"
#include "SecretService.h"
#include "Stub.h"
#include "Tree.h"

#include <csignal>
#include <gtest/gtest.h>
#include <thread>

namespace fs = std::filesystem;

using namespace std::string_literals;

namespace {

using Words = std::vector<std::string>;

const std::string libexec = QUILLORENT_LIBEXEC;

void expectReasons(const ProgramHome &home, int status,
                   const std::vector<std::pair<Words, std::string>> &argumentsAndReasons)
{
    for (const auto &[arguments, reason] : argumentsAndReasons) {
        const CommandResult result = home.run(arguments);
        EXPECT_EQ(result.status, status) << reason << ": " << result.errors;
        EXPECT_TRUE(contains(result.errors, reason)) << reason << " is not in: " << result.errors;
        EXPECT_FALSE(contains(result.errors, "from a file")) << "the password is shown";
        EXPECT_EQ(result.output, "");
    }
}

/// All but what belongs to the program itself.
TreeSnapshot untouched(const ProgramHome &home)
{
    TreeSnapshot tree = snapshotTree(home.path());
    std::erase_if(tree, [](const auto &entry) {
        const std::string first = fs::path(entry.first).begin()->string();
        return first == "." || first == "state" || first == "config" || first == "tmp";
    });
    return tree;
}

} // namespace

TEST(Run, RefusesWrongUsage)
{
    const ProgramHome home(QUILLORENT_RUN);
    expectReasons(home, 64,
                  {{{}, "command is missing"},
                   {{"restore"}, "\"restore\" is no command"},
                   {{"backup", "--now"}, "now"},
                   {{"backup", "Mine", "Yours"}, "\"Yours\" is one word too many"},
                   {{"tools", "--yes"}, "does not go with"},
                   {{"sync", "--password-file", "/x"}, "does not go with"},
                   {{"backup", "--password-file"}, "password-file"},
                   {{"backup", "--to", "/x"}, "does not go with"},
                   {{"backup", "--", "x.rar"}, "\"x.rar\" is one word too many"},
                   {{"extract", "Mine"}, "Archives are missing"},
                   {{"extract", "--method", "rot13", "--", "x.rar"}, "\"rot13\" is no method"}});
    EXPECT_TRUE(contains(home.run({"--help"}).output, "Exit status"));
}

TEST(Run, ListsProfilesAndTools)
{
    const ProgramHome home(QUILLORENT_RUN);
    EXPECT_EQ(home.run({"profiles"}).output, "  Default profile\n* Mine\n");

    const std::string rows =
        "RAR\t" + libexec + "/rar\tok\nOpenSSL\t" + libexec + "/openssl\tok\nRSync\t/usr/bin/rsync\tok\n";
    const CommandResult good = home.run({"tools"});
    EXPECT_EQ(good.output, rows);
    EXPECT_EQ(good.status, 0);
    // What a new version of the template brings lies in a table of its own.
    home.changeSettings("<string>/usr/bin/rsync",
                        "<string>/nowhere/rsync</string><key>external</key><dict/>"
                        "<key>Number</key><integer>1</integer><key>x</key><string>");
    const CommandResult bad = home.run({"tools"});
    EXPECT_TRUE(contains(bad.output, "RSync\t/nowhere/rsync\tnot ok\n")) << bad.output;
    EXPECT_EQ(bad.status, 1);
}

TEST(Run, SaysWhyItCanNotStart)
{
    const ProgramHome home(QUILLORENT_RUN);
    writeFile(home / "later.part2.rar", "x");
    const std::string password = home.text("password");
    const auto extract = [&](const std::string &archive) {
        return Words{"extract", "Mine", "--password-file", password, "--", archive};
    };
    const auto backUp = [](const std::string &from) {
        return Words{"backup", "Mine", "--password-file", from};
    };
    expectReasons(home, 2,
                  {{{"backup", "Yours"}, "no profile \"Yours\"; there are: Default profile, Mine."},
                   {{"backup", "Mine"}, "No password is given"},
                   {backUp(home.text("nothing")), "Can't read the password from \"" + home.text("nothing")},
                   {backUp("/dev/zero"), "Give a file"},
                   {{"backup", "Default profile", "--password-file", password}, "destination"},
                   {{"sync", "Default profile"}, "The list is empty"},
                   {extract("/no/such.rar"), "There is no archive \"/no/such.rar\""},
                   {extract(home.text("later.part2.rar")), "The first volume is missing"}});
    for (const auto &[content, reason] : std::vector<std::pair<std::string, std::string>>{
             {"", "Write the password there"},
             {"\nfrom a file", "Write the password there"},
             {"from a file\0x"s, "zero byte"},
             {"from a file\rx", "line break"},
             {"from a file\xff", "not UTF-8"},
             {std::string(1024, 'x'), "longer than 1023 bytes"},
             {std::string(8'000'000, 'x'), "Give a file whose first line is the password alone"}}) {
        writeFile(home / "password", content);
        expectReasons(home, 2, {{backUp(password), reason}, {extract(home.text("docs")), reason}});
    }
    writeFile(home.settings(), "damaged");
    expectReasons(home, 2, {{{"backup", "Mine"}, home.settings()}});
    expectReasons(home, 1, {{{"tools"}, home.settings()}});
    EXPECT_EQ(readFile(home.settings()), "damaged");
}

// What is found in which situation is tested with the engines; here is what takes the whole program. An
// obstacle can't be overruled; a concern can, by --yes. Both are told with their paths, and until then
// nothing is touched.
TEST(Run, EndsBeforeAnythingIsTouched)
{
    ProgramHome home(QUILLORENT_RUN);
    home.encryptForCertificate();
    EXPECT_EQ(home.backUp().status, 0);
    const std::string archive = home.text("archives/docs.rar.smime.rar");
    EXPECT_EQ(home.extract({archive}).status, 0);
    const CommandResult done = home.run({"sync", "Mine", "--progress", "--json"});
    EXPECT_TRUE(contains(done.errors, "Synchronised 1 entry") && contains(done.output, "\"sync\""))
        << done.errors;
    EXPECT_EQ(readFile(home / "copy/docs/file"), "content");
    home.record["rsyncdelete1"] = "1";
    const fs::path extracted = home / "out" / home.path().relative_path() / "docs/file";
    writeFile(extracted, "edited");
    writeFile(home / "copy/docs/extra", "there alone");
    writeFile(home / "archives/docs.rar", "photos");
    for (const auto &[words, told] :
         std::vector<std::pair<Words, std::string>>{{{"backup", "Mine"}, home.text("archives/docs.rar")},
                                                    {{"extract", "Mine", "--", archive}, home.text("out")},
                                                    {{"sync", "Mine"}, "--yes"}}) {
        const TreeSnapshot before = untouched(home);
        const CommandResult refused = home.run(words);
        EXPECT_EQ(refused.status, 2) << refused.errors;
        EXPECT_TRUE(contains(refused.errors, told)) << refused.errors;
        EXPECT_EQ(treeDifference(before, untouched(home)), "");
        Words overruling = words;
        overruling.insert(overruling.begin() + 2, "--yes");
        EXPECT_EQ(home.run(overruling).status, 0) << told;
    }
    EXPECT_EQ(readFile(home / "archives/kept-docs.rar"), "photos");
    EXPECT_EQ(readFile(extracted), "content");
    EXPECT_FALSE(fs::exists(home / "copy/docs/extra"));

    fs::permissions(home / "archives", fs::perms(0500));
    fs::permissions(home / "keys/anna.pem", fs::perms(0));
    home.becomeOrdinaryUser();
    const TreeSnapshot before = untouched(home);
    const CommandResult forbidden = home.backUp({"--yes"});
    EXPECT_EQ(forbidden.status, 2);
    for (const char *const path : {"archives", "keys/anna.pem"})
        EXPECT_TRUE(contains(forbidden.errors, home.text(path))) << forbidden.errors;
    EXPECT_EQ(treeDifference(before, untouched(home)), "");
}

TEST(Run, BringsBackWhatItBackedUp)
{
    ProgramHome home(QUILLORENT_RUN);
    home.writeProfile();
    const std::string before = readFile(home.profiles());
    const CommandResult result = home.backUp({"--json", "--progress"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(contains(result.errors, "Backed up 1 of 1")) << result.errors;
    EXPECT_EQ(result.output, home.lastRecord()) << "the run's record";
    EXPECT_TRUE(contains(result.output, home.text("archives/docs.rar.aes.rar"))) << result.output;
    EXPECT_FALSE(contains(result.output, "from a file")) << "the password is kept";
    EXPECT_EQ(readFile(home.profiles()), before) << "a run without a window saves nothing";

    const CommandResult typed =
        home.run({"backup", "Mine", "--password-file", "-", "--yes"}, "from a file\n");
    EXPECT_EQ(typed.status, 0) << typed.errors;

    writeFile(home / "password", "from a mile");
    EXPECT_TRUE(contains(home.backUp({}).errors, "does not open with this password"));
    // A pipe that nobody closes.
    fs::remove(home / "password");
    home.launcher = {"sh", "-c", "mkfifo $0; exec 3<>$0; echo from a file >&3; exec \"$@\"",
                     home.text("password")};
    const CommandResult extracted = home.extract({home.text("archives")}, {"--to", home.text("out")});
    EXPECT_EQ(extracted.status, 0) << extracted.errors;
    home.launcher.clear();
    fs::remove(home / "password");
    writeFile(home / "password", "from a file\r\n");
    EXPECT_TRUE(contains(extracted.errors, "Extracted 1 of 1 into \"" + home.text("out")))
        << extracted.errors;
    EXPECT_EQ(readFile(home / "out" / home.path().relative_path() / "docs/file"), "content");

    const std::string unnamed = home.text("holiday.rar");
    fs::rename(home / "archives/docs.rar.aes.rar", unnamed);
    EXPECT_TRUE(contains(home.extract({unnamed}).errors, "does not tell how it was encrypted"));
    const CommandResult wrong = home.extract({unnamed}, {"--method", "bf", "--yes"});
    EXPECT_EQ(wrong.status, 1);
    // One time in 256 what a wrong cipher makes of the end looks like padding, and the next tool refuses it.
    EXPECT_TRUE(contains(wrong.errors, " ERROR - " + unnamed)) << wrong.errors;
    EXPECT_FALSE(contains(wrong.errors, "from a file")) << "the password is shown";
    EXPECT_EQ(home.extract({unnamed}, {"--yes"}).status, 0);
}

// What a name holds, a terminal would obey.
TEST(Run, ShowsNoControlCharactersOfNames)
{
    const ProgramHome home(QUILLORENT_RUN);
    home.writeProfile();
    writeFile(home / "docs" / "a\n\\\033[2J\302\233\u00e9", "x");
    ASSERT_EQ(home.backUp().status, 0);
    const std::string archive = home.text("a\033[2J\302\233\xe2\x80\xae.rar.aes.rar");
    fs::rename(home / "archives/docs.rar.aes.rar", archive);
    const CommandResult listed = home.run(
        {"list", "Mine", "--password-file", home.text("password"), "--to", home.text("out"), "--", archive});
    EXPECT_TRUE(contains(listed.output, "/docs/a\\n\\\\\\033[2J\\302\\233\u00e9\n")) << listed.output;
    const CommandResult missing = home.extract({archive + "x"});
    for (const std::string &told : {listed.output, listed.errors, missing.errors})
        for (const std::string &obeyed : {"\033"s, "\302\233"s, "\xe2\x80\xae"s})
            EXPECT_FALSE(contains(told, obeyed)) << told;
    EXPECT_TRUE(contains(missing.errors, "a\xef\xbf\xbd[2J")) << missing.errors;
}

TEST(Run, TakesThePasswordFromTheProfilesSource)
{
    ProgramHome home(QUILLORENT_RUN);
    SecretService session;
    home.record["passtype"] = "1";
    home.record["lastkeychainuser"] = "holiday";
    const CommandResult without = home.run({"backup", "Mine"});
    EXPECT_EQ(without.status, 2);
    EXPECT_TRUE(contains(without.errors, "No keychain service runs")) << without.errors;
    EXPECT_TRUE(contains(without.errors, "No password was fetched")) << without.errors;

    session.start();
    runCommand({"secret-tool", "store", "--label=test", "service", "com.brolvanek.Quillorent.encrypt",
                "account", "holiday"},
               {.input = "fjord ¤ 7"});
    const CommandResult kept = home.run({"backup", "Mine"});
    EXPECT_EQ(kept.status, 0) << kept.errors;
    EXPECT_FALSE(contains(kept.errors, "fjord"));
    writeFile(home / "password", "fjord ¤ 7");
    home.record["passtype"] = "0";
    EXPECT_EQ(home.extract({home.text("archives")}).status, 0);
}

TEST(Run, EndsItsToolsOnASignalAndKeepsOthersOut)
{
    const SecretService session;
    const std::string manager = "org.freedesktop.login1";
    const auto sleep =
        session.serve(manager, {"/usr/bin/python3", "-m", "dbusmock", "--system", "--template", "logind"});
    const auto holds = [&] { return session.ask(manager, manager + ".Manager.ListInhibitors"); };
    for (const auto &[signal, name, synchronises] :
         {std::tuple{SIGINT, "rar", false}, {SIGTERM, "rsync", true}}) {
        ProgramHome home(QUILLORENT_RUN);
        const Stub stub(home / "tools", name, "hang Unknown option");
        home.changeSettings(synchronises ? "/usr/bin/rsync" : libexec + "/rar", stub.path());
        home.becomeOrdinaryUser();
        CommandResult result;
        std::thread program([&, sync = synchronises] {
            result = sync ? home.run({"sync", "Mine"}) : home.backUp();
        });
        const int tool = stub.processId();
        waitUntil("a hold", [&] { return contains(holds(), "shutdown"); });
        for (const std::string &word : {"idle:sleep"s, "block"s, synchronises ? "synchronised"s : "backup"s})
            EXPECT_TRUE(contains(holds(), word)) << word << " is not in " << holds();
        if (!synchronises) {
            const CommandResult second = home.backUp({"--yes"});
            EXPECT_EQ(second.status, 2) << second.errors;
            EXPECT_TRUE(contains(second.errors, "nother run")) << second.errors;
            EXPECT_TRUE(contains(second.errors, home.text("archives"))) << second.errors;
        }
        const std::string parent = runCommand({"ps", "-o", "ppid=", "-p", std::to_string(tool)}).output;
        // What can't be looked into belongs to root, whoever runs it.
        const std::string process = "/proc/" + std::to_string(std::stoi(parent));
        const CommandResult owners =
            runCommand({"stat", "-c", "%u", process + "/mem", "/proc/" + std::to_string(tool) + "/mem"});
        EXPECT_TRUE(owners.output.starts_with("0\n") && !owners.output.ends_with("\n0\n")) << owners.output;
        EXPECT_TRUE(contains(readFile(process + "/limits"), "Max core file size        0 "));
        kill(std::stoi(parent), signal);
        program.join();
        EXPECT_EQ(result.status, 1) << result.errors;
        EXPECT_TRUE(contains(result.errors, "Cancelled")) << result.errors;
        EXPECT_NE(kill(tool, 0), 0) << "the tool is left running";
        waitUntil("the end of the hold", [&] { return !contains(holds(), "idle"); });
    }
}
