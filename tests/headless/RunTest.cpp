#include "Command.h"
#include "Credentials.h"
#include "SecretService.h"
#include "Stub.h"
#include "TemporaryFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <regex>
#include <thread>

namespace fs = std::filesystem;

namespace {

/// The program in a home of its own, with one profile called "Mine" beside the one that every user starts
/// with.
class Home {
public:
    Home()
    {
        for (const char *name : {"archives", "config"})
            fs::create_directories(m_folder / name);
        writeFile(m_folder / "docs/file", "content");
        writeFile(m_folder / "password", "from a file\nsecond line");
        EXPECT_EQ(run({"profiles"}).status, 0);
        writeProfile(0);
    }

    /// The source of the password: 0 typed, 1 keychain, 2 certificate; with what the record keeps for it.
    void writeProfile(int source, const std::string &key = "lastcertfile",
                      const std::string &value = {}) const
    {
        const auto entry = [](const std::string &name, const std::string &text) {
            return "<key>" + name + "</key><string>" + text + "</string>";
        };
        writeFile(profiles(),
                  "<plist version=\"1.0\"><dict><key>Default profile</key><dict/><key>Mine</key><dict>"
                  "<key>folders</key><array><string>" +
                      (m_folder / "docs").string() + "</string></array><key>passtype</key><integer>" +
                      std::to_string(source) + "</integer>" +
                      entry("path", (m_folder / "archives").string()) + entry("emptydir", "0") +
                      entry("symencryption", "OpenSSL-AES") + entry("asymencryption", "OpenSSL-SMIME") +
                      entry("rsyncdst", (m_folder / "copy").string()) + entry(key, value) +
                      "<key>sync</key><array><string>" + (m_folder / "docs").string() +
                      "</string></array></dict></dict></plist>");
    }

    [[nodiscard]] CommandResult run(std::vector<std::string> arguments, const std::string &input = {}) const
    {
        arguments.insert(arguments.begin(), {"setsid", "--wait", QUILLORENT_RUN}); // no terminal to ask on
        return runCommand(arguments, {.environment = {{"HOME", m_folder.path().string()},
                                                      {"XDG_CONFIG_HOME", (m_folder / "config").string()},
                                                      {"TMPDIR", m_folder.path().string()}},
                                      .input = input});
    }

    [[nodiscard]] CommandResult backUp(std::vector<std::string> more = {}) const
    {
        std::vector<std::string> arguments{"backup", "Mine", "--password-file",
                                           (m_folder / "password").string()};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run(arguments);
    }

    /// Extracts `archive` into `folder`; the options come before the "--".
    [[nodiscard]] CommandResult extract(const fs::path &archive, const fs::path &folder,
                                        std::vector<std::string> more = {}) const
    {
        fs::create_directories(folder);
        std::vector<std::string> arguments{
            "extract", "Mine", "--to", folder.string(), "--password-file", (m_folder / "password").string()};
        arguments.insert(arguments.end(), more.begin(), more.end());
        arguments.insert(arguments.end(), {"--", archive.string()});
        return run(arguments);
    }

    void useTool(const std::string &standard, const fs::path &replacement) const
    {
        const fs::path settings = m_folder / "config/com.brolvanek.Quillorent.config.plist";
        writeFile(settings,
                  std::regex_replace(readFile(settings), std::regex(standard), replacement.string()));
    }

    [[nodiscard]] fs::path folder() const { return m_folder.path(); }
    [[nodiscard]] fs::path profiles() const
    {
        return m_folder / "config/com.brolvanek.Quillorent.profiles.plist";
    }
    [[nodiscard]] fs::path archive() const { return m_folder / "archives/docs.rar.aes.rar"; }

private:
    TemporaryFolder m_folder;
};

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

/// Whether the archive opens with this password, by the stock tool.
bool opensWith(const Home &home, const std::string &password)
{
    const fs::path opened = home.folder() / "opened";
    fs::create_directories(opened);
    const std::string rar = std::string(QUILLORENT_LIBEXEC) + "/rar";
    EXPECT_EQ(runCommand({rar, "e", "-o+", "-idq", home.archive().string(), opened.string()}).errors, "");
    return runCommand({"openssl", "aes-256-cbc", "-d", "-a", "-pbkdf2", "-iter", "600000", "-md", "sha256",
                       "-in", (opened / "docs.rar.aes").string(), "-out", "/dev/null", "-pass",
                       "pass:" + password})
               .status == 0;
}

} // namespace

TEST(Run, RefusesWrongUsage)
{
    const Home home;
    for (const auto &[arguments, reason] : std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{}, "command is missing"},
             {{"restore"}, "\"restore\" is no command"},
             {{"backup", "--now"}, "now"},
             {{"backup", "Mine", "Yours"}, "\"Yours\" is one word too many"},
             {{"tools", "--yes"}, "does not go with"},
             {{"sync", "--yes"}, "does not go with"},
             {{"backup", "--password-file"}, "password-file"},
             {{"backup", "--to", "/x"}, "does not go with"},
             {{"backup", "--", "x.rar"}, "\"x.rar\" is one word too many"},
             {{"extract", "Mine"}, "Archives are missing"},
             {{"extract", "--method", "rot13", "--", "x.rar"}, "\"rot13\" is no method"},
         }) {
        const CommandResult result = home.run(arguments);
        EXPECT_EQ(result.status, 64) << reason;
        EXPECT_TRUE(contains(result.errors, reason)) << result.errors;
        EXPECT_EQ(result.output, "");
    }
    EXPECT_EQ(home.run({"--help"}).status, 0);
    EXPECT_TRUE(contains(home.run({"--help"}).output, "Exit status"));
}

TEST(Run, ListsProfilesAndTools)
{
    const Home home;
    EXPECT_EQ(home.run({"profiles"}).output, "  Default profile\n* Mine\n");

    const std::string libexec = QUILLORENT_LIBEXEC;
    const std::string rows =
        "RAR\t" + libexec + "/rar\tok\nOpenSSL\t" + libexec + "/openssl\tok\nRSync\t/usr/bin/rsync\tok\n";
    const CommandResult good = home.run({"tools"});
    EXPECT_EQ(good.output, rows);
    EXPECT_EQ(good.status, 0);
    home.useTool("/usr/bin/rsync", "/nowhere/rsync");
    const CommandResult bad = home.run({"tools"});
    EXPECT_TRUE(contains(bad.output, "RSync\t/nowhere/rsync\tnot ok\n")) << bad.output;
    EXPECT_EQ(bad.status, 1);
}

TEST(Run, BacksUpWithAPasswordFromAFileOrStandardInput)
{
    const Home home;
    const std::string before = readFile(home.profiles());
    const CommandResult result = home.backUp();
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(contains(result.errors, "Backed up 1 of 1")) << result.errors;
    ASSERT_TRUE(fs::exists(home.archive()));
    EXPECT_EQ(readFile(home.profiles()), before) << "a run without a window saves nothing";

    fs::remove(home.archive());
    EXPECT_EQ(home.run({"backup", "Mine", "--password-file", "-", "--progress"}, "from a file\n").status, 0);

    // Either way the password is the first line alone.
    EXPECT_TRUE(opensWith(home, "from a file"));
}

TEST(Run, TakesThePasswordFromTheProfilesSource)
{
    const Home home;
    SecretService session;
    home.writeProfile(1, "lastkeychainuser", "holiday");
    const CommandResult without = home.run({"backup", "Mine"});
    EXPECT_EQ(without.status, 2);
    EXPECT_TRUE(contains(without.errors, "No keychain service runs")) << without.errors;
    EXPECT_TRUE(contains(without.errors, "No password was fetched")) << without.errors;

    session.start();
    ASSERT_EQ(runCommand({"secret-tool", "store", "--label=test", "service",
                          "com.brolvanek.Quillorent.encrypt", "account", "holiday"},
                         {.input = "fjord ¤ 7"})
                  .errors,
              "");
    const CommandResult kept = home.run({"backup", "Mine"});
    EXPECT_EQ(kept.status, 0) << kept.errors;
    EXPECT_TRUE(opensWith(home, "fjord ¤ 7"));
    EXPECT_FALSE(contains(kept.errors, "fjord"));

    const Credentials keys = makeCredentials(home.folder(), "anna");
    home.writeProfile(2, "lastcertfile", keys.certificate.string());
    const CommandResult certified = home.run({"backup", "Mine", "--yes"});
    EXPECT_EQ(certified.status, 0) << certified.errors;
    EXPECT_TRUE(fs::exists(home.folder() / "archives/docs.rar.smime.rar"));
}

TEST(Run, SaysWhyItCanNotStart)
{
    struct Case {
        std::vector<std::string> arguments;
        std::string reason;
    };
    const Home home;
    const std::string missing = (home.folder() / "no such file").string();
    for (const Case &c : {
             Case{{"backup", "Yours"}, "no profile \"Yours\"; there are: Default profile, Mine."},
             Case{{"backup", "Mine"}, "No password is given"},
             Case{{"backup", "Mine", "--password-file", missing},
                  "Can't read the password from \"" + missing},
             Case{{"backup", "Default profile", "--password-file", (home.folder() / "password").string()},
                  "not this profile's own"},
         }) {
        const CommandResult result = home.run(c.arguments);
        EXPECT_EQ(result.status, 2) << c.reason;
        EXPECT_TRUE(contains(result.errors, c.reason)) << result.errors;
    }

    writeFile(home.folder() / "archives/other", "x");
    const CommandResult refused = home.backUp();
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(contains(refused.errors, "is not empty")) << refused.errors;
    EXPECT_FALSE(fs::exists(home.archive()));
    EXPECT_EQ(home.backUp({"--yes"}).status, 0);
    EXPECT_TRUE(fs::exists(home.archive()));

    writeFile(home.profiles(), "damaged");
    const CommandResult damaged = home.backUp();
    EXPECT_EQ(damaged.status, 2);
    EXPECT_TRUE(contains(damaged.errors, "can't be read")) << damaged.errors;
}

TEST(Run, FailsWithTheConsoleOnStandardError)
{
    const Home home;
    const Stub openssl(home.folder() / "tools", "openssl", "print bad magic number");
    home.useTool(std::string(QUILLORENT_LIBEXEC) + "/openssl", openssl.path());
    const CommandResult failed = home.backUp();
    EXPECT_EQ(failed.status, 1);
    EXPECT_TRUE(contains(failed.errors, "Encoder ERROR - ")) << failed.errors;
    EXPECT_TRUE(contains(failed.errors, "bad magic number")) << failed.errors;
    EXPECT_FALSE(contains(failed.errors, "from a file")) << "the password is shown";

    fs::remove_all(home.folder() / "docs");
    const CommandResult skipped = home.backUp({"--yes"});
    EXPECT_EQ(skipped.status, 1) << "a folder that is not there is not backed up";
    EXPECT_TRUE(contains(skipped.errors, "Not found: ")) << skipped.errors;
}

TEST(Run, ExtractsWhatItBackedUp)
{
    const Home home;
    const fs::path out = home.folder() / "out";
    const fs::path file = out / (home.folder() / "docs/file").relative_path();
    ASSERT_EQ(home.backUp().status, 0);
    const CommandResult result = home.extract(home.folder() / "archives", out, {"--progress"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(contains(result.errors, "Extracted 1 of 1 into \"" + out.string())) << result.errors;
    EXPECT_EQ(readFile(file), "content");

    const CommandResult refused = home.extract(home.archive(), out);
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(contains(refused.errors, "is not empty")) << refused.errors;
    EXPECT_EQ(home.extract(home.archive(), out, {"--yes", "--method", "aes"}).status, 0);
}

TEST(Run, SaysWhyItDoesNotExtract)
{
    const Home home;
    const fs::path out = home.folder() / "out";
    ASSERT_EQ(home.backUp().status, 0);
    const fs::path unnamed = home.folder() / "holiday.rar";
    fs::copy_file(home.archive(), unnamed);
    const fs::path later = home.folder() / "docs.rar.aes.part2.rar";
    fs::copy_file(home.archive(), later);
    const fs::path damaged = home.folder() / "damaged.rar.aes.rar";
    writeFile(damaged, readFile(home.archive()).substr(0, 200));
    struct Case {
        fs::path archive;
        std::vector<std::string> options;
        int status;
        std::string reason;
    };
    for (const Case &c : {
             Case{"/no/such.rar", {}, 2, "There is no archive \"/no/such.rar\""},
             Case{home.folder() / "password", {}, 2, "No archives are chosen"},
             Case{later, {}, 2, "The first volume is missing"},
             Case{unnamed, {}, 2, "does not tell how it was encrypted"},
             Case{unnamed, {"--method", "bf"}, 1, "DECODE ERROR - " + unnamed.string()},
             Case{unnamed, {"--yes"}, 0, "Extracted 1 of 1"},
             Case{damaged, {}, 1, "is cut short"},
         }) {
        fs::remove_all(out);
        const CommandResult result = home.extract(c.archive, out, c.options);
        EXPECT_EQ(result.status, c.status) << result.errors;
        EXPECT_TRUE(contains(result.errors, c.reason)) << result.errors;
        EXPECT_FALSE(contains(result.errors, "from a file")) << "the password is shown";
    }
    EXPECT_TRUE(contains(
        home.run({"extract", "Mine", "--password-file", "-", "--", home.archive().string()}, "x").errors,
        "No extraction folder is chosen"));
}

TEST(Run, Synchronises)
{
    const Home home;
    const CommandResult done = home.run({"sync", "Mine", "--progress"});
    EXPECT_EQ(done.status, 0) << done.errors;
    EXPECT_TRUE(contains(done.errors, "Synchronised 1 entry")) << done.errors;
    EXPECT_EQ(readFile(home.folder() / "copy/docs/file"), "content");

    fs::remove_all(home.folder() / "docs");
    const CommandResult failed = home.run({"sync", "Mine"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_TRUE(contains(failed.errors, "not where it was")) << failed.errors;
    EXPECT_TRUE(contains(failed.errors, "link_stat")) << failed.errors;

    const CommandResult refused = home.run({"sync", "Default profile"});
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(contains(refused.errors, "The list is empty")) << refused.errors;
}

TEST(Run, EndsItsToolsOnASignal)
{
    for (const auto &[signal, name, synchronises] :
         {std::tuple{SIGINT, "rar", false}, {SIGTERM, "rar", false}, {SIGTERM, "rsync", true}}) {
        const Home home;
        const Stub stub(home.folder() / "tools", name, "hang Unknown option");
        home.useTool(synchronises ? "/usr/bin/rsync" : std::string(QUILLORENT_LIBEXEC) + "/rar", stub.path());
        CommandResult result;
        std::thread program([&, sync = synchronises] {
            result = sync ? home.run({"sync", "Mine", "--progress"}) : home.backUp({"--progress"});
        });
        const int tool = stub.processId();
        const std::string parent = runCommand({"ps", "-o", "ppid=", "-p", std::to_string(tool)}).output;
        kill(std::stoi(parent), signal);
        program.join();
        EXPECT_EQ(result.status, 1) << result.errors;
        EXPECT_TRUE(contains(result.errors, "Cancelled")) << result.errors;
        EXPECT_NE(kill(tool, 0), 0) << "the tool is left running";
    }
}
