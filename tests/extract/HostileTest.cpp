#include "EngineRun.h"

#include "Rar.h"

namespace fs = std::filesystem;

namespace {

/// Archives of this program's kind whose makers wish to write outside of the extraction folder.
class Hostile : public EngineTest {
protected:
    Hostile()
    {
        writeFile(outside / "file", "untouched");
        writeFile(inner, "");
    }

    /// What a decoder makes of the encrypted file.
    std::string encrypted(const std::string &content) const
    {
        writeFile(inner, content);
        const fs::path made = folder / "made/encrypted";
        runCommand({realOpenSsl.toStdString(), "aes-256-cbc", "-a", "-salt", "-in", inner, "-out", made,
                    "-pass", "pass:correct horse"});
        return readFile(made);
    }

    fs::path outer(const std::string &name, const std::vector<HandmadeEntry> &entries)
    {
        const fs::path path = folder / std::to_string(++count) / (name + ".rar.aes.rar");
        writeFile(path, handmadeArchive(entries));
        return path;
    }

    fs::path archiveOf(const std::string &name, const std::vector<HandmadeEntry> &contents)
    {
        return outer(name, {storedFile(name + ".rar.aes", encrypted(handmadeArchive(contents)))});
    }

    const fs::path outside = folder / "outside";
    const fs::path inner = folder / "made/inner";
    int count = 0;
};

} // namespace

TEST_F(Hostile, NothingLeavesTheFolder)
{
    const std::string file = (outside / "file").string();
    const std::string good = encrypted(handmadeArchive({storedFile("good", "1")}));
    struct Case {
        const char *name;
        Paths listed; ///< extracted one after the other
        bool fails;
    };
    for (const Case &c : {
             Case{"name", {archiveOf("a", {storedFile("../outside/file", "bad")})}, true},
             Case{"link of the archive before",
                  {archiveOf("a", {symbolicLink("door", "../outside")}),
                   archiveOf("b", {storedFile("door/file", "bad")})},
                  true},
             Case{"link of the archive before in the place of the encrypted file",
                  {archiveOf("a", {symbolicLink("b.rar.aes", file), symbolicLink("b.rar", file)}),
                   archiveOf("b", {storedFile("good", "1")})},
                  false},
             Case{"link in the place of the encrypted file",
                  {outer("a", {symbolicLink("a.rar.aes", file)})},
                  true},
             Case{"link in the place of the inner archive",
                  {outer("a", {storedFile("a.rar.aes", good), symbolicLink("a.rar", file)})},
                  false},
             Case{
                 "no encrypted file", {outer("a", {storedFile("one", good), storedFile("two", good)})}, true},
         }) {
        SCOPED_TRACE(c.name);
        const TreeSnapshot before = snapshotTree(outside);
        for (const fs::path &archive : c.listed)
            extract({archive});
        EXPECT_EQ(treeDifference(before, snapshotTree(outside)), "");
        EXPECT_EQ(monitor->record.outcome == Outcome::Failed, c.fails) << summary();
        fs::remove_all(out);
        fs::create_directories(out);
    }
}
