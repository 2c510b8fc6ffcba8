#include "ToolLocation.h"
#include "TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

TEST(ToolLocation, SkipsItselfUnderAnyNameAndWhatCannotRun)
{
    const TemporaryFolder folder;
    fs::create_symlink("/proc/self/exe", folder / "link");
    writeFile(folder / "plain", "no program");
    std::vector<std::string> candidates{folder / "missing", folder / "plain", folder.path(), folder / "link"};
    const auto self = ownIdentity(nullptr);
    ASSERT_TRUE(self);
    EXPECT_EQ(findTool(candidates, self), std::nullopt);
    candidates.push_back("/bin/sh");
    EXPECT_EQ(findTool(candidates, self), "/bin/sh");
}

TEST(ToolLocation, TakesAbsoluteFoldersOfThePathAfterTheSystems)
{
    const std::vector<std::string> system = toolCandidates(nullptr);
    std::vector<std::string> expected = system;
    expected.insert(expected.end(), {"/opt/a/openssl", "/b/openssl"});
    EXPECT_EQ(toolCandidates("/opt/a::.:bin:/b"), expected);
    EXPECT_EQ(system.front(), "/usr/bin/openssl");
}

} // namespace
