#include "Front.h"

namespace {

class SmimeFront : public testing::Test {
protected:
    void SetUp() override
    {
        const std::string request = "req -x509 -newkey rsa:2048 -nodes -keyout key -out cert -days 2";
        ASSERT_EQ(runIn(folder, stock, request + " -subj /CN=test").status, 0);
    }

    CommandResult encrypt(const std::string &tool) const
    {
        return runIn(folder, tool, "smime -aes256 -encrypt -binary -in F -out G cert");
    }

    const std::string decryption = "smime -aes256 -decrypt -binary -in G -out H -inkey key cert";
    TemporaryFolder folder;
};

TEST_F(SmimeFront, ExchangesFilesWithTheSystemsTool)
{
    const std::vector<std::pair<std::string, std::string>> writersAndReaders{
        {front, front}, {front, stock}, {stock, front}};
    for (const std::size_t size : {0U, 1U, 4097U, 1000001U}) {
        const std::string plain = binaryData(size);
        writeFile(folder / "F", plain);
        for (const auto &[writer, reader] : writersAndReaders) {
            EXPECT_TRUE(isSilentSuccess(encrypt(writer)));
            EXPECT_TRUE(isSilentSuccess(runIn(folder, reader, decryption)));
            EXPECT_EQ(readFile(folder / "H"), plain) << size << " bytes, written by " << writer;
            std::filesystem::remove(folder / "H");
        }
    }
}

// The tool alone takes what it can't read for an empty file, and encrypts that without a word.
TEST_F(SmimeFront, TellsWhatCannotBeRead)
{
    std::filesystem::create_directory(folder / "F");
    const CommandResult result = encrypt(front);
    EXPECT_NE(result.status, 0);
    EXPECT_NE(result.output.find("cannot read F"), std::string::npos) << result.output;
    EXPECT_FALSE(std::filesystem::exists(folder / "G"));
}

// A full disk, which the tool alone does not notice while it writes the last bytes of what it decrypted.
TEST_F(SmimeFront, TellsAResultThatDoesNotFit)
{
    writeFile(folder / "F", binaryData(3'000));
    ASSERT_TRUE(isSilentSuccess(encrypt(front)));
    const std::string script = "trap '' XFSZ; ulimit -f 1; exec '" + front + "' " + decryption;
    const CommandResult result = runIn(folder, "sh", "-c", {script});
    EXPECT_NE(result.status, 0);
    EXPECT_NE(result.output.find("cannot write H"), std::string::npos) << result.output;
    EXPECT_FALSE(std::filesystem::exists(folder / "H"));
}

} // namespace
