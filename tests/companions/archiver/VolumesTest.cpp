#include "Companion.h"
#include "Rar.h"
#include "Tree.h"

namespace fs = std::filesystem;

namespace {

using Volumes = ArchiverTest;

/// A set of five volumes, to one of which something happens.
class BrokenSet : public ArchiverTest {
protected:
    void SetUp() override
    {
        writeFile(temporary / "file", base64Text(60'000));
        ASSERT_EQ(packFile(archive, temporary / "file", "-v10").errors, "");
        volumes = volumesOf(archive);
        ASSERT_EQ(volumes.size(), 5u);
    }

    /// `message` has a # for the path of the volume it is about. Makes the set whole again.
    void expectMessage(std::string message, std::size_t about, std::size_t first = 0)
    {
        message = "\n" + message.replace(message.find('#'), 1, volumes[about]) + "\n";
        EXPECT_EQ(failure(rar({"t", "-idq", volumes[first]})), message);
        EXPECT_EQ(rar({"e", "-o+", "-idq", volumes[first], out}).errors, message);
        EXPECT_TRUE(fs::is_empty(out));
        SetUp();
    }

    std::vector<fs::path> volumes;
};

} // namespace

TEST_F(Volumes, setsOfManySizesAreReadByAll)
{
    const std::string content = base64Text(160'000);
    writeFile(temporary / "file", content);
    for (const auto &[volume, first] : std::vector<std::pair<std::string, std::string>>{
             {"-v61", "a.part1.rar"}, {"-v11", "a.part01.rar"}, {"-v1", "a.part001.rar"}}) {
        ASSERT_EQ(packFile(archive, temporary / "file", volume).errors, "");
        const std::vector<fs::path> volumes = volumesOf(archive);
        EXPECT_EQ(volumes.front().filename(), first);
        EXPECT_EQ(rar({"t", "-idq", volumes.front()}).errors, "");
        expectContent(volumes, content);
        EXPECT_EQ(entriesIn(temporary.path()),
                  volumes.size() + 1); // the set before has other names, and is gone
    }
}

TEST_F(BrokenSet, isReportedAndNothingExtracted)
{
    fs::remove(volumes[2]);
    expectMessage("Cannot find volume #", 2);
    fs::resize_file(volumes[2], 5000);
    expectMessage("file: Unexpected end of archive #", 2);
    std::string bytes = readFile(volumes[1]);
    bytes[5000] ^= 1;
    writeFile(volumes[1], bytes);
    expectMessage("file: packed data checksum error in volume #", 1);
    writeFile(volumes[3], "");
    expectMessage("# is not a RAR archive", 3);
    fs::rename(volumes[3], volumes[2]);
    expectMessage("# is volume 4 of a set, where volume 3 was expected", 2);
    expectMessage("# is not the first volume: start with the first one", 1, 1);

    writeFile(temporary / "else", base64Text(60'000));
    ASSERT_EQ(packFile(temporary / "b.rar", temporary / "else", "-v10").errors, "");
    fs::rename(temporary / "b.part2.rar", volumes[1]);
    expectMessage("# does not continue file: it belongs to another set of volumes", 1);
}
