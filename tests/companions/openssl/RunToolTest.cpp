#include "Front.h"
#include "PassPhrase.h"
#include "SystemTool.h"

namespace {

/// Runs a tool with this content, whose standard output is to become the file.
int runScript(const TemporaryFolder &folder, const std::string &content, const std::string &output,
              Secret &password)
{
    writeFile(folder / "tool", content);
    fs::permissions(folder / "tool", fs::perms::owner_all);
    ToolRun run;
    run.arguments = {"aes-256-cbc"};
    run.files.output = output;
    run.hasPassword = !password.text().empty();
    return runTool(folder / "tool", run, password);
}

// A failing run must be seen from what is printed, and must not leave something that looks like a result.
TEST(RunTool, TellsAMisbehavingToolAndLeavesTheOlderResult)
{
    const std::vector<std::pair<std::string, std::string>> toolsAndMessages{
        {"#!/bin/sh\necho half; exit 3", "exit status 3"},
        {"#!/bin/sh\necho half; kill -SEGV $$", "signal 11"},
        {"#!/bin/sh\necho whole; echo odd >&2", "odd"},
        {"no program", "cannot run"}};
    const TemporaryFolder folder;
    Secret password;
    const fs::path results = folder / "results";
    writeFile(results / "G", "older");
    for (const auto &[tool, message] : toolsAndMessages) {
        testing::internal::CaptureStderr();
        EXPECT_NE(runScript(folder, tool, results / "G", password), 0);
        const std::string errors = testing::internal::GetCapturedStderr();
        EXPECT_NE(errors.find(message), std::string::npos) << errors;
        EXPECT_EQ(readFile(results / "G"), "older");
        EXPECT_EQ(entriesIn(results), 1U);
    }
}

TEST(RunTool, WipesThePasswordThatItHandedOn)
{
    const TemporaryFolder folder;
    Secret password;
    const std::string longest(Secret::maximumSize, 'x');
    ASSERT_TRUE(password.assign(longest));
    EXPECT_EQ(runScript(folder, "#!/bin/sh\neval \"cat <&${3#fd:}\"", folder / "got", password), 0);
    EXPECT_EQ(readFile(folder / "got"), longest + "\n");
    EXPECT_EQ(password.text(), "");
}

TEST(ToolLocation, IsTheSystemsFirstAndNeverItselfOrWhatCannotRun)
{
    std::vector<std::string> expected = toolCandidates(nullptr);
    EXPECT_EQ(expected.front(), "/usr/bin/openssl");
    expected.insert(expected.end(), {"/opt/a/openssl", "/b/openssl"});
    EXPECT_EQ(toolCandidates("/opt/a::.:bin:/b"), expected);

    const TemporaryFolder folder;
    fs::create_symlink("/proc/self/exe", folder / "link");
    writeFile(folder / "plain", "no program");
    std::vector<std::string> candidates{folder / "missing", folder / "plain", folder.path(), folder / "link"};
    EXPECT_EQ(findTool(candidates, ownIdentities(nullptr)), std::nullopt);
    candidates.push_back("/bin/sh");
    EXPECT_EQ(findTool(candidates, ownIdentities(nullptr)), "/bin/sh");
}

} // namespace
