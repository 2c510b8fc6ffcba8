#include "files/Sizes.h"

#include "Command.h"
#include "TestProgram.h"
#include "Tree.h"

#include <gtest/gtest.h>
#include <sstream>

namespace fs = std::filesystem;
using quillorentLibrary::calculateSize;

namespace {

/// The same figure by another tool.
quint64 sizeByFind(const fs::path &folder)
{
    std::istringstream sizes(
        runCommand({"find", folder.string(), "-mindepth", "1", "-printf", "%s\n"}).output);
    quint64 bytes = 0;
    for (quint64 size = 0; sizes >> size;)
        bytes += size;
    return bytes;
}

} // namespace

TEST(CalculateSize, AddsUpEverythingBelow)
{
    const TemporaryFolder folder;
    makeSampleTree(folder / "tree");
    const quint64 expected = sizeByFind(folder / "tree");
    ASSERT_GT(expected, 1'500'000U);
    EXPECT_EQ(calculateSize(toQString(folder / "tree")), expected);
    EXPECT_EQ(calculateSize(toQString(folder / "tree") + u'/'), expected);
}

TEST(CalculateSize, MeasuresFilesLinksAndNothing)
{
    const TemporaryFolder folder;
    writeFile(folder / "file", std::string(12345, 'x'));
    fs::create_symlink("file", folder / "link");
    fs::create_directory_symlink(folder.path(), folder / "loop");
    EXPECT_EQ(calculateSize(toQString(folder / "file")), 12345U);
    EXPECT_EQ(calculateSize(toQString(folder / "link")), 4U) << "a link is not followed";
    EXPECT_EQ(calculateSize(toQString(folder / "missing")), 0U);
    EXPECT_EQ(calculateSize(toQString(folder.path())), sizeByFind(folder.path()))
        << "a link to its parent is no way in";
}
