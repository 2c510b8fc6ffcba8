#include "Front.h"

#include <sys/stat.h>

namespace {

// What a test that is not about the key derivation asks for, so as not to wait for it.
const Arguments quick{"-pbkdf2", "-iter", "1"};

TEST(CipherFront, OpensItsOwnFilesAndExchangesThemWithTheSystemsTool)
{
    const TemporaryFolder folder;
    const std::string plain = binaryData(100'003);
    writeFile(folder / "F", plain);
    const Arguments pass{"-a", "-salt", "-pass", "pass:p\xc3\xa4ss w\"or'd"};
    const std::vector<std::pair<std::string, Arguments>> ciphers{
        {"aes-256-cbc", {}},
        {"des-ede3-cbc", {}},
        {"bf-cbc", {"-provider", "legacy", "-provider", "default"}}};
    for (const auto &[cipher, providers] : ciphers) {
        SCOPED_TRACE(cipher);
        const Arguments stock =
            Arguments{"enc", "-" + cipher, "-pbkdf2", "-iter", "600000", "-md", "sha256"} + providers + pass;
        const auto decryptsWithFront = [&, name = cipher](const std::string &file) {
            return isSilentSuccess(
                       runFront(folder, Arguments{name, "-d", "-in", file, "-out", "H"} + pass)) &&
                   readFile(folder / "H") == plain;
        };
        EXPECT_TRUE(isSilentSuccess(runFront(folder, Arguments{cipher, "-in", "F", "-out", "G"} + pass)));
        EXPECT_TRUE(decryptsWithFront("G"));
        EXPECT_TRUE(isSilentSuccess(runStock(folder, stock + Arguments{"-d", "-in", "G", "-out", "I"})));
        EXPECT_EQ(readFile(folder / "I"), plain);
        EXPECT_TRUE(isSilentSuccess(runStock(folder, stock + Arguments{"-in", "F", "-out", "J"})));
        EXPECT_TRUE(decryptsWithFront("J"));
    }
}

TEST(CipherFront, HandsPasswordsOnByteForByte)
{
    const TemporaryFolder folder;
    writeFile(folder / "F", "text");
    const Arguments passwords{
        "", " two  words ", "-x", "fd:0", "'\"\\$`", "\xff\xfe\r\t\x01", std::string(1023, 'x')};
    for (const std::string &password : passwords) {
        const Arguments pass{"-pass", "pass:" + password};
        EXPECT_TRUE(
            isSilentSuccess(runFront(folder, Arguments{"aes256", "-in", "F", "-out", "G"} + quick + pass)));
        EXPECT_TRUE(isSilentSuccess(
            runStock(folder, Arguments{"aes256", "-d", "-in", "G", "-out", "H"} + quick + pass)));
        EXPECT_EQ(readFile(folder / "H"), "text") << password;
    }
}

TEST(CipherFront, KeepsEverySize)
{
    const TemporaryFolder folder;
    const Arguments options = quick + Arguments{"-a", "-k", "x"};
    for (const std::size_t size : {0U, 1U, 15U, 16U, 17U, 4095U, 262144U, 1000001U}) {
        writeFile(folder / "F", binaryData(size));
        EXPECT_TRUE(
            isSilentSuccess(runFront(folder, Arguments{"aes256", "-in", "F", "-out", "G"} + options)));
        EXPECT_TRUE(
            isSilentSuccess(runFront(folder, Arguments{"aes256", "-d", "-in", "G", "-out", "H"} + options)));
        EXPECT_EQ(readFile(folder / "H"), binaryData(size)) << size;
    }
}

TEST(CipherFront, TellsAFailureAndLeavesNoResult)
{
    const TemporaryFolder folder;
    writeFile(folder / "F", binaryData(100'000));
    std::filesystem::create_directory(folder / "folder");
    // Without salt, so that what a wrong password makes of the padding is the same in every run.
    const Arguments encrypt{"aes256", "-nosalt", "-in", "F", "-out", "G", "-k", "right"};
    ASSERT_TRUE(isSilentSuccess(runFront(folder, encrypt + quick)));
    const std::vector<Arguments> failing{
        {"aes256", "-d", "-nosalt", "-in", "G", "-out", "H", "-pass", "pass:wrong"},
        {"aes256", "-d", "-a", "-in", "F", "-out", "H", "-k", "x"},
        {"aes256", "-in", "missing", "-out", "H", "-k", "x"},
        {"aes256", "-in", "folder", "-out", "H", "-k", "x"},
        {"aes256", "-in", "F", "-out", "missing/H", "-k", "x"},
        {"aes256", "-in", "F", "-out", "H", "-pass", "file:missing"},
        {"aes256", "-in", "F", "-out", "H", "-pass", "pass:one\ntwo"}};
    for (const Arguments &arguments : failing) {
        const CommandResult result = runFront(folder, arguments + quick);
        EXPECT_NE(result.status, 0);
        EXPECT_NE(result.output, "");
        EXPECT_EQ(entriesIn(folder), 3);
    }
}

TEST(CipherFront, WritesForTheUserAloneAndWhereALinkLeads)
{
    const TemporaryFolder folder;
    writeFile(folder / "F", "text");
    writeFile(folder / "old", "older");
    std::filesystem::create_symlink("old", folder / "G");
    EXPECT_TRUE(
        isSilentSuccess(runFront(folder, Arguments{"aes256", "-in", "F", "-out", "G", "-k", "x"} + quick)));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "G"));
    EXPECT_TRUE(readFile(folder / "old").starts_with("Salted__"));
    struct stat status {};
    ASSERT_EQ(stat((folder / "old").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(CipherFront, WritesStraightToWhatIsNoRegularFile)
{
    const TemporaryFolder folder;
    writeFile(folder / "F", "text");
    const Arguments encrypt = Arguments{"aes256", "-in", "F", "-nosalt", "-k", "x"} + quick;
    const CommandResult toStream = runFront(folder, encrypt);
    EXPECT_EQ(toStream.output.size(), 16U);
    EXPECT_EQ(runFront(folder, encrypt + Arguments{"-out", "/dev/stdout"}).output, toStream.output);
    EXPECT_TRUE(isSilentSuccess(runFront(folder, encrypt + Arguments{"-out", "/dev/null"})));
    EXPECT_EQ(entriesIn(folder), 1);
}

TEST(OtherCommands, DoWhatTheSystemsToolDoes)
{
    const TemporaryFolder folder;
    writeFile(folder / "F", "text");
    const std::vector<Arguments> commands{{"-h"},
                                          {"x509", "-help"},
                                          {"no-such-command", "-x"},
                                          {"aes-256-cbc", "-help"},
                                          {"smime", "-encrypt", "-help"},
                                          {"dgst", "-sha256", "F"}};
    for (const Arguments &command : commands) {
        const CommandResult expected = runStock(folder, command);
        const CommandResult result = runFront(folder, command);
        EXPECT_EQ(result.output, expected.output);
        EXPECT_EQ(result.status, expected.status);
    }
}

} // namespace
