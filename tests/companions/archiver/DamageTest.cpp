#include "ArchiveProcessor.h"
#include "Rar.h"

namespace {

class Damage : public ArchiverTest {
protected:
    /// What is said about an archive of these bytes; empty where all is well.
    std::string problems(const std::string &bytes)
    {
        writeFile(archive, bytes);
        std::string messages;
        archiver::Diagnostics diagnostics(messages);
        archiver::processArchive(archive, archiver::entryTesters(), diagnostics);
        return messages;
    }

    /// A bit of every byte is flipped, and the archive cut at every length.
    std::size_t unnoticedDamages(const std::string &whole)
    {
        EXPECT_EQ(problems(whole), "");
        std::size_t unnoticed = 0;
        for (std::size_t index = 0; index < whole.size(); ++index) {
            for (const int bit : {0, 3, 7}) {
                std::string damaged = whole;
                damaged[index] = static_cast<char>(damaged[index] ^ 1 << bit);
                unnoticed += problems(damaged).empty();
            }
            unnoticed += problems(whole.substr(0, index)).empty();
        }
        return unnoticed;
    }
};

} // namespace

TEST_F(Damage, isFoundWhereverItIs)
{
    // Small enough to try every byte.
    writeFile(source / "a", "some text\n");
    writeFile(source / "b", randomBytes(300));
    writeFile(source / "empty", "");
    fs::create_symlink("a", source / "link");
    ASSERT_EQ(rar({"a", "-r", "-ol", "-m0", "../a.rar", "."}, {.folder = source}).errors, "");
    EXPECT_EQ(unnoticedDamages(readFile(archive)), 0u);

    HandmadeEntry link = storedFile("link", "a");
    link.header.mode = 0120777;
    EXPECT_EQ(unnoticedDamages(handmadeArchive({storedFile("folder\\a", "text"), folderEntry("folder"), link},
                                               archiver::olderFormat)),
              0u);

    writeFile(temporary / "text", base64Text(1500));
    ASSERT_EQ(rar({"a", "-m5", "-ep", archive, temporary / "text"}).errors, "");
    EXPECT_LE(unnoticedDamages(readFile(archive)),
              2u); // the bits behind the last code in a packed block mean nothing
}

TEST_F(Damage, whatIsNoArchiveIsSaidToBeNone)
{
    const std::string path = archive;
    for (const std::string &junk : {std::string(), std::string("Rar!"), randomBytes(100'000)}) {
        writeFile(path, junk);
        for (const std::string command : {"t", "x", "e"})
            EXPECT_EQ(failure(rar({command, "-idq", path})), "\n" + path + " is not a RAR archive\n");
    }
    const std::string pipe = temporary / "pipe"; // nobody would ever write to it
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(rar({"x", pipe}).errors,
              "\nCannot open " + pipe + ": it is no file, but a pipe, a socket or a device\n");
    EXPECT_EQ(rar({"t", path + "x"}).errors, "\nCannot open " + path + "x: No such file or directory\n");
    EXPECT_EQ(rar({"t", temporary.path()}).errors,
              "\nCannot open " + temporary.path().string() + ": Is a directory\n");
}
