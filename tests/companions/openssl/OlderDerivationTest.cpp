#include "Front.h"

#include <array>

namespace fs = std::filesystem;

namespace {

const std::string rar5("Rar!\x1a\x07\x01\x00", 8);
const std::string rar4("Rar!\x1a\x07\x00", 7);

class OlderDerivation : public testing::Test {
protected:
    /// Encrypts by the system's tool to G. With a salt of ours, so that what a wrong password makes of the
    /// padding is the same in every run; such a file comes without it.
    void encrypt(const std::string &plain, const std::string &options, const std::string &password = "right")
    {
        writeFile(folder / "F", plain);
        const Arguments pass{"-pass", "pass:" + password};
        ASSERT_EQ(runIn(folder, stock, "enc -in F -out G -S 53616c7453616c74 " + options, pass).status, 0);
        writeFile(folder / "G", "Salted__SaltSalt" + readFile(folder / "G"));
    }
    CommandResult decrypt(const std::string &options)
    {
        fs::remove(folder / "H");
        return runIn(folder, front, options + " -d -in G -out H");
    }
    /// A bad password, without a word of old ways.
    bool isRefused(const std::string &options)
    {
        const CommandResult result = decrypt(options);
        return result.status != 0 && result.output.find("bad decrypt") != std::string::npos &&
               result.output.find("deprecated") == std::string::npos && !fs::exists(folder / "H");
    }

    TemporaryFolder folder;
};

TEST_F(OlderDerivation, IsFoundForAnArchiveAndForNothingElse)
{
    const std::vector<std::array<std::string, 3>> derivations{// the last is asked of the front
                                                              {"-md sha256", rar5, ""},
                                                              {"-md md5", rar4, ""},
                                                              {"-pbkdf2", rar5, ""},
                                                              {"-md sha1", rar4, " -md sha1"}};
    for (const std::string cipher :
         {"aes-256-cbc", "des-ede3-cbc", "bf-cbc -provider legacy -provider default"})
        for (const auto &[derivation, signature, asked] : derivations) {
            SCOPED_TRACE(cipher + " " + derivation);
            const std::string options = "-" + cipher + " " + derivation;
            const std::string decryption = words(cipher).front() + " -salt" + asked;
            encrypt(signature + binaryData(5'000), options);
            EXPECT_TRUE(isSilentSuccess(decrypt(decryption + " -k right")));
            EXPECT_TRUE(readFile(folder / "H") == readFile(folder / "F"));
            EXPECT_TRUE(isRefused(decryption + " -k wrong"));
            if (cipher.starts_with("bf")) continue; // which cipher it is makes no difference any more
            encrypt("Rar!" + binaryData(5'000), options);
            EXPECT_TRUE(isRefused(decryption + " -k right"));
        }
}

// The password is right, so it must not be called wrong.
TEST_F(OlderDerivation, TellsADamagedArchive)
{
    encrypt(rar5 + binaryData(5'000), "-aes256 -md md5");
    const std::string whole = readFile(folder / "G");
    for (const auto &[size, reason] :
         std::vector<std::pair<std::size_t, std::string>>{{4'000, "is damaged"}, {3'999, "ends too early"}}) {
        writeFile(folder / "G", whole.substr(0, size));
        EXPECT_NE(decrypt("aes256 -k right").output.find(reason), std::string::npos) << size;
        EXPECT_FALSE(fs::exists(folder / "H"));
    }
    encrypt(rar5, "-aes256 -md md5"); // a file of its first two blocks alone
    EXPECT_TRUE(isSilentSuccess(decrypt("aes256 -k right")));
}

TEST_F(OlderDerivation, IsFoundWhereverInputAndPasswordComeFrom)
{
    // More than all pipes on the way hold.
    const std::string plain = rar5 + binaryData(1'000'000);
    encrypt(plain, "-aes256 -md md5");
    ASSERT_EQ(runIn(folder, stock, "base64 -in G -out H").status, 0);
    fs::rename(folder / "H", folder / "G");
    writeFile(folder / "P", "right\nrest");
    writeFile(folder / "PG", "right\n" + readFile(folder / "G"));
    const std::string command = "'" + front + "' aes256 -d -a ";
    for (const char *const line :
         {"-in G -pass file:P", "-in G -pass env:P", "-in G -pass stdin <P", "-in G -pass fd:3 3<P",
          "-in G -pass stdin -pass pass:right </dev/null", "-k right <G", "-in - -k right <G",
          "-pass stdin <PG", "-in /dev/stdin -k right <G", "-pass fd:3 3<P <G"})
        for (const bool isPiped : {false, true}) {
            SCOPED_TRACE(std::string(line) + (isPiped ? ", all of it through pipes" : ""));
            std::string script = command + line;
            if (const auto from = script.find(" <"); isPiped && from != std::string::npos)
                script = "cat " + script.substr(from + 2) + " | " + script.substr(0, from);
            const CommandResult result = runIn(folder, "env", "P=right sh -c", {script});
            EXPECT_TRUE(result.status == 0 && result.output == plain) << result.output.substr(0, 200);
        }
    // A variable can hold what no pipe to the tool can.
    encrypt(rar4 + plain, "-aes256 -md md5", "two\nlines");
    EXPECT_TRUE(isSilentSuccess(
        runIn(folder, "env", "",
              {"P=two\nlines", front, "aes256", "-d", "-in", "G", "-out", "H", "-pass", "env:P"})));
    EXPECT_NE(runIn(folder, front, "aes256 -d -in G -out I -pass fd:9").status, 0);
    EXPECT_NE(runIn(folder, front, "aes256 -d -in missing -out I -k x").status, 0);
    EXPECT_FALSE(fs::exists(folder / "I"));
}

TEST_F(OlderDerivation, IsFoundWithOneQuestionToAPerson)
{
    encrypt(rar5 + binaryData(5'000), "-aes256 -md md5");
    // A terminal of its own.
    const std::string command = "'" + front + "' aes256 -d -in G -out H";
    const CommandResult result =
        runCommand({"script", "-qec", command, "/dev/null"}, {.folder = folder.path(), .input = "right\n"});
    EXPECT_TRUE(result.status == 0 && fs::exists(folder / "H")) << result.output;
    const std::size_t question = result.output.find("password:");
    EXPECT_TRUE(question != std::string::npos && question == result.output.rfind("password:"));
}

} // namespace
