// Runs the commands of docs/recovery.md on what the companions make, with stock tools only.

#include "Command.h"
#include "Credentials.h"
#include "SecretService.h"
#include "TemporaryFolder.h"
#include "Tree.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace fs = std::filesystem;

namespace {

const std::string password = "correct horse ä";

using Commands = std::map<std::string, std::string>;

/// The page's commands for each sample, in the page's order. Before each block of them stands, in a comment,
/// with which samples it is to be tested.
Commands readPage()
{
    Commands commands;
    const std::string text = readFile(QUILLORENT_RECOVERY);
    const std::string fence = "\n```sh\n";
    for (std::size_t at = text.find(fence); at != std::string::npos; at = text.find(fence, at + 1)) {
        const std::string before = text.substr(text.rfind('\n', at - 1) + 1, at);
        const std::size_t start = at + fence.size();
        const std::string mark = "<!-- test: ";
        EXPECT_TRUE(before.starts_with(mark)) << "no test of " << text.substr(start, 80);
        std::istringstream samples(before.substr(mark.size(), before.find(" -->") - mark.size()));
        for (std::string sample; samples >> sample;)
            commands[sample] += text.substr(start, text.find("\n```", start) - start) + "\n";
    }
    return commands;
}

/// By name, what turns Docs.rar into what the machine gets.
Commands samples()
{
    const std::string options = " -a -salt -in Docs.rar -pass env:password -out Docs.rar";
    const std::string aes = "\"$front\" aes-256-cbc" + options + ".aes; ";
    const std::string stock = "openssl aes-256-cbc" + options + ".aes ";
    const std::string pack = " -ep -idq Docs.rar.aes.rar Docs.rar.aes; rm Docs.rar.aes";
    const std::string message =
        "\"$front\" smime -aes256 -encrypt -binary -in Docs.rar -out Docs.rar.smime certificate.pem";
    return {{"whole", aes + "\"$rar\" a -m5" + pack},
            {"long-link", "ln -s $(printf %01024d 0) \"$source/long\"; "
                          "\"$rar\" a -r -ol -m0 -idq Docs.rar \"$source\"; " +
                              aes + "\"$rar\" a -m5" + pack},
            {"volumes", aes + "\"$rar\" a -m5 -v30" + pack}, // more than nine
            // Compressed before it is encrypted, as a profile may ask for.
            {"unar", "rm Docs.rar; \"$rar\" a -r -ol -m3 -s -idq Docs.rar \"$source\"; " + aes +
                         "\"$rar\" a -m5 -v60" + pack},
            {"blowfish", "\"$front\" bf-cbc" + options + ".bf"},
            {"triple-des", "\"$front\" des-ede3-cbc" + options + ".3d"},
            {"older-sha256", stock + "-md sha256"},
            {"older-md5", stock + "-md md5"},
            {"older-pbkdf2", stock + "-pbkdf2"},
            {"certificate", message},
            {"large-certificate", message}};
}

/// A machine that has the archives and nothing else of ours.
class Recovery : public testing::TestWithParam<Commands::value_type> {
protected:
    void SetUp() override
    {
        makeCredentials(machine, "certificate");
        fs::rename(machine / "certificate-key.pem", machine / "key.pem");
        writeFile(source / "large", randomBytes(300'000));
        writeFile(source / "sub folder/Fähre", "text");
        // Two names that look alike.
        writeFile(source / "\u00E4", "one");
        writeFile(source / "a\u0308", "two");
        fs::create_symlink("sub folder/Fähre", source / "link");
        fs::permissions(source / "large", fs::perms{0640});
        ASSERT_EQ(run("cd \"$source\" && touch -d '2001-02-03 04:05:06' large sub*/* sub*").errors, "");
        ASSERT_EQ(run("\"$rar\" a -r -ol -o+ -m0 -t -idq Docs.rar \"$source\"").errors, "");
    }

    /// Runs commands as a person would type them, but with no terminal to ask for the password.
    CommandResult run(const std::string &commands)
    {
        return runCommand({"setsid", "--wait", "bash", "-euo", "pipefail", "-c", commands},
                          {.folder = machine,
                           .environment = {{"LC_ALL", "C.UTF-8"},
                                           {"source", source},
                                           {"rar", QUILLORENT_LIBEXEC "/rar"},
                                           {"front", QUILLORENT_LIBEXEC "/openssl"},
                                           {"password", password}},
                           .input = password + "\n"});
    }

    TemporaryFolder temporary;
    const fs::path source = temporary / "home/Docs";
    const fs::path machine = temporary / "machine";
    Commands page = readPage();
};

TEST_P(Recovery, GivesEverythingBack)
{
    run(GetParam().second);
    fs::remove(machine / "Docs.rar");
    const CommandResult result = run(page[GetParam().first]);
    ASSERT_EQ(result.status, 0) << result.output + result.errors;
    const bool hasModes = GetParam().first != "long-link";
    const TreeComparison comparison{.nanoseconds = false, .linkTimes = hasModes, .modes = hasModes};
    EXPECT_EQ(treeDifference(source, machine / source.relative_path(), comparison), "");
}

INSTANTIATE_TEST_SUITE_P(Page, Recovery, testing::ValuesIn(samples()), [](const auto &each) {
    std::string name = each.param.first;
    std::erase(name, '-');
    return name;
});

TEST_F(Recovery, FindsThePasswordInTheKeychain)
{
    SecretService session;
    session.start();
    ASSERT_EQ(runCommand({"secret-tool", "store", "--label=test", "service",
                          "com.brolvanek.Quillorent.encrypt", "account", "holiday"},
                         {.input = password})
                  .status,
              0);
    EXPECT_EQ(run(page["keychain"]).output, password);
    const CommandResult all = run(page["keychain-all"]);
    EXPECT_NE(all.output.find("secret = " + password), std::string::npos) << all.output;
}

TEST(RecoveryPage, HasATestForEverySample)
{
    Commands known = samples();
    known.insert({{"keychain", {}}, {"keychain-all", {}}});
    const Commands page = readPage();
    EXPECT_TRUE(std::equal(known.begin(), known.end(), page.begin(), page.end(),
                           [](const auto &one, const auto &other) { return one.first == other.first; }));
}

} // namespace
