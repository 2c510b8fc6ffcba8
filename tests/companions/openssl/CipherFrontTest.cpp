#include "Front.h"

namespace fs = std::filesystem;

namespace {

class CipherFront : public testing::Test {
protected:
    testing::AssertionResult succeeds(const std::string &program, const std::string &line,
                                      const Arguments &more)
    {
        return isSilentSuccess(runIn(folder, program, line, more));
    }

    TemporaryFolder folder;
    // What a test that is not about the key derivation asks for, so as not to wait for it.
    const Arguments quick = words("-pbkdf2 -iter 1");
};

TEST_F(CipherFront, ExchangesFilesWithTheSystemsTool)
{
    const std::string plain = binaryData(100'003);
    writeFile(folder / "F", plain);
    const Arguments pass{"-a", "-salt", "-pass", "pass:p\xc3\xa4ss w\"or'd"};
    const std::vector<std::pair<std::string, std::string>> ciphers{
        {"aes-256-cbc", ""}, {"des-ede3-cbc", ""}, {"bf-cbc", " -provider legacy -provider default"}};
    for (const auto &[cipher, providers] : ciphers) {
        SCOPED_TRACE(cipher);
        const std::string explicitly = "enc -" + cipher + " -pbkdf2 -iter 600000 -md sha256" + providers;
        EXPECT_TRUE(succeeds(front, cipher + " -in F -out G", pass));
        EXPECT_TRUE(succeeds(stock, explicitly + " -d -in G -out H", pass));
        EXPECT_EQ(readFile(folder / "H"), plain);
        EXPECT_TRUE(succeeds(stock, explicitly + " -in F -out G", pass));
        EXPECT_TRUE(succeeds(front, cipher + " -d -in G -out I", pass));
        EXPECT_EQ(readFile(folder / "I"), plain);
    }
}

TEST_F(CipherFront, KeepsEverySizeAndHandsPasswordsOnByteForByte)
{
    const std::vector<std::pair<std::string, std::size_t>> passwordsAndSizes{
        {"", 0},
        {" two  words ", 1},
        {"-x", 15},
        {"fd:0", 16},
        {"'\"\\$`", 17},
        {"\xff\xfe\r\t\x01", 262'144},
        {std::string(1023, 'x'), 1'000'001}};
    for (const auto &[password, size] : passwordsAndSizes) {
        const Arguments options = quick + Arguments{"-a", "-pass", "pass:" + password};
        writeFile(folder / "F", binaryData(size));
        EXPECT_TRUE(succeeds(front, "aes256 -in F -out G", options));
        for (const std::string &reader : {front, stock}) {
            EXPECT_TRUE(succeeds(reader, "aes256 -d -in G -out H", options));
            EXPECT_EQ(readFile(folder / "H"), binaryData(size)) << reader << " with " << password;
            fs::remove(folder / "H");
        }
    }
}

TEST_F(CipherFront, TellsAFailureAndLeavesNoResult)
{
    writeFile(folder / "F", binaryData(100'000));
    fs::create_directory(folder / "folder");
    // Without salt, so that what a wrong password makes of the padding is the same in every run.
    ASSERT_TRUE(succeeds(front, "aes256 -nosalt -in F -out G -k right", quick));
    for (const char *const failing :
         {"-d -nosalt -in G -out H -pass pass:wrong", "-d -a -in F -out H -k x", "-in missing -out H -k x",
          "-in folder -out H -k x", "-in F -out missing/H -k x", "-in F -out H -pass file:missing"}) {
        const CommandResult result = runIn(folder, front, std::string("aes256 ") + failing, quick);
        EXPECT_NE(result.status, 0) << failing;
        EXPECT_NE(result.output, "") << failing;
        EXPECT_EQ(entriesIn(folder), 3) << failing;
    }
    const CommandResult result = runIn(folder, front, "aes256 -in F -out H", {"-pass", "pass:one\ntwo"});
    EXPECT_TRUE(result.status != 0 && !result.output.empty() && entriesIn(folder) == 3);
}

TEST_F(CipherFront, WritesForTheUserAloneAndWhereALinkLeads)
{
    writeFile(folder / "F", "text");
    writeFile(folder / "old", "older");
    fs::create_symlink("old", folder / "G");
    EXPECT_TRUE(succeeds(front, "aes256 -in F -out G -k x", quick));
    EXPECT_TRUE(fs::is_symlink(folder / "G"));
    EXPECT_TRUE(readFile(folder / "old").starts_with("Salted__"));
    EXPECT_EQ(fs::status(folder / "old").permissions(), fs::perms{0600});
}

TEST_F(CipherFront, WritesStraightToWhatIsNoRegularFile)
{
    writeFile(folder / "F", "text");
    const std::string encrypt = "aes256 -in F -nosalt -k x";
    const std::string output = runIn(folder, front, encrypt, quick).output;
    EXPECT_EQ(output.size(), 16U);
    EXPECT_EQ(runIn(folder, front, encrypt + " -out /dev/stdout", quick).output, output);
    EXPECT_TRUE(succeeds(front, encrypt + " -out /dev/null", quick));
    EXPECT_EQ(entriesIn(folder), 1);
}

TEST_F(CipherFront, DoesOtherwiseWhatTheSystemsToolDoes)
{
    writeFile(folder / "F", "text");
    for (const char *const command : {"-h", "x509 -help", "no-such-command -x", "aes-256-cbc -help",
                                      "smime -encrypt -help", "dgst -sha256 F"}) {
        const CommandResult expected = runIn(folder, stock, command);
        const CommandResult result = runIn(folder, front, command);
        EXPECT_EQ(result.output, expected.output);
        EXPECT_EQ(result.status, expected.status);
    }
}

} // namespace
