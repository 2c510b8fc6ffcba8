#include "Front.h"

#include <set>

namespace fs = std::filesystem;

namespace {

class SmimeFront : public testing::Test {
protected:
    void SetUp() override
    {
        makeKey(folder);
        makeKey(folder, "2");
    }

    CommandResult encrypt(const std::string &tool) const
    {
        return runIn(folder, tool, "smime -aes256 -encrypt -binary -in F -out G cert");
    }

    TemporaryFolder folder;
};

TEST_F(SmimeFront, ExchangesFilesWithTheSystemsTool)
{
    std::vector<std::string> headers;
    for (const std::size_t size : {0U, 1U, 4'097U, 262'144U, 1'000'001U}) {
        const std::string plain = binaryData(size);
        writeFile(folder / "F", plain);
        for (const auto &[writer, reader] : {std::pair{front, front}, {front, stock}, {stock, front}}) {
            EXPECT_TRUE(isSilentSuccess(encrypt(writer)));
            const std::string message = readFile(folder / "G");
            headers.push_back(message.substr(0, message.find("\n\n") + 2));
            EXPECT_TRUE(isSilentSuccess(
                runIn(folder, reader, "smime -aes256 -decrypt -binary -in G -out H -inkey key cert")));
            EXPECT_EQ(readFile(folder / "H"), plain) << size << " bytes, written by " << writer;
            fs::remove(folder / "H");
        }
    }
    EXPECT_EQ(std::set(headers.begin(), headers.end()).size(), 1U);
}

// A message in one piece can't be decrypted from 1.6 GB on, and the tool says nothing of it.
TEST_F(SmimeFront, EncryptsInPiecesWhateverIsAskedForAndForWhom)
{
    writeFile(folder / "F", binaryData(100'000));
    ASSERT_EQ(runIn(folder, stock, "x509 -in cert2 -outform DER -out der2").status, 0);
    for (const std::string option :
         {"-aes128 -binary", "-noindef -aria256 -binary", "-indef -camellia128 -binary",
          "-stream -aes-256-cfb -binary", "-noindef -binary"}) {
        EXPECT_TRUE(isSilentSuccess(
            runIn(folder, front, "smime -encrypt -outform DER -in F -out G " + option + " cert der2")));
        EXPECT_EQ(readFile(folder / "G").substr(0, 2), "\x30\x80") << option; // a sequence without length
        for (const std::string key : {"key -recip cert", "key2 -recip cert2"})
            EXPECT_TRUE(runIn(folder, stock, "cms -decrypt -binary -inform DER -in G -inkey " + key).output ==
                        readFile(folder / "F"));
    }
    EXPECT_NE(runIn(folder, front, "smime -encrypt -aes256 -binary -in F -out H missing").status, 0);
    EXPECT_NE(runIn(folder, front, "smime -encrypt -aes256 -binary -in missing -out H cert").status, 0);
    EXPECT_FALSE(fs::exists(folder / "H"));
}

TEST_F(SmimeFront, DecryptsWhateverFormTheSystemsToolWrites)
{
    const std::string plain = binaryData(20'001);
    writeFile(folder / "F", plain);
    const std::vector<std::pair<std::string, std::string>> writingsAndReadings{
        {"smime -stream", "-inkey key cert"},
        {"smime -crlfeol", "-inkey key"},
        {"smime -aes256 -outform DER", "-inform DER -inkey key -keyform PEM"},
        {"smime -aes-128-cfb -outform DER -stream", "-inform der -inkey key -recip cert"},
        {"smime -camellia192 -outform PEM", "-inform PEM -inkey key"},
        {"smime -to a@b -subject two_recipients cert2", "-inkey key"},
        {"smime cert2", "-inkey key -recip cert"},
        {"cms -keyid", "-inkey key -recip cert"},
        {"cms -outform DER -recip cert -keyopt rsa_padding_mode:oaep", "-inform DER -inkey key cert"},
        {"cms -recip cert -keyopt rsa_padding_mode:oaep -keyopt rsa_oaep_md:sha256", "-inkey key"},
        {"cms -recip cert -keyopt rsa_padding_mode:oaep -keyopt rsa_oaep_md:sha384 -keyopt rsa_mgf1_md:sha1 "
         "-keyopt rsa_oaep_label:00ff01",
         "-inkey key -recip cert"},
        {"cms -secretkey 000102030405060708090a0b0c0d0e0f -secretkeyid 01", "-inkey key"}};
    for (const auto &[writing, reading] : writingsAndReadings) {
        SCOPED_TRACE(writing);
        Arguments options = words(writing);
        const std::string command = options.front() + " -encrypt -binary -in F -out G";
        options.erase(options.begin());
        if (writing.find("-recip") == std::string::npos) options.push_back("cert");
        EXPECT_TRUE(isSilentSuccess(runIn(folder, stock, command, options)));
        EXPECT_TRUE(isSilentSuccess(runIn(folder, front, "smime -decrypt -in G -out H", words(reading))));
        EXPECT_TRUE(readFile(folder / "H") == plain);
        fs::remove(folder / "H");
    }
}

TEST_F(SmimeFront, TellsInOneLineWhyItDoesNotDecrypt)
{
    writeFile(folder / "F", binaryData(3'000));
    ASSERT_TRUE(isSilentSuccess(encrypt(front)));
    const std::string message = readFile(folder / "G");
    writeFile(folder / "half", message.substr(0, message.size() / 2));
    writeFile(folder / "more", message + "more");
    writeFile(folder / "spoilt", message.substr(0, 900) + "!" + message.substr(901));
    writeFile(folder / "none", "");
    for (
        const std::string command :
        {"pkey -aes128 -passout pass:right -in key -out locked",
         "smime -sign -in F -out signed -nodetach -signer cert -inkey key",
         "ecparam -name prime256v1 -genkey -noout -out ec", "req -x509 -new -key ec -subj /CN=ec -out eccert",
         "cms -encrypt -aes256 -in F -out curve eccert", "cms -encrypt -aes-256-gcm -in F -out sealed cert",
         "cms -encrypt -aes256 -in F -out shared -secretkey 000102030405060708090a0b0c0d0e0f -secretkeyid 01",
         "cms -encrypt -aes256 -in F -out both cert eccert",
         "cms -encrypt -aes256 -in F -out oaep -recip cert -keyopt rsa_padding_mode:oaep"})
        ASSERT_EQ(runIn(folder, stock, command).status, 0) << command;
    const std::string cms = "and can't be opened here: use \"openssl cms -decrypt\"";
    const std::vector<std::pair<std::string, std::string>> argumentsAndReasons{
        {"-in curve -inkey ec eccert", "curve is for an elliptic-curve key, not for an RSA key, " + cms},
        {"-in curve -inkey key cert", "curve is for an elliptic-curve key, not for an RSA key, " + cms},
        {"-in both -inkey ec", "both is for an elliptic-curve key, not for an RSA key, " + cms},
        {"-in both -inkey key2", "both cannot be opened with the private key key2"},
        {"-in oaep -inkey key2", "oaep cannot be opened with the private key key2"},
        {"-in G -inkey ec", "G cannot be opened with the private key ec: it is no RSA key"},
        {"-in shared -inkey key",
         "shared is for a password or a key that both sides have, not for an RSA key, " + cms},
        {"-in sealed -inkey key cert",
         "sealed is encrypted with a cipher that seals it, such as AES-GCM, which can't be opened here: use "
         "\"openssl cms -decrypt\""},
        {"-in G -inkey key2 cert",
         "G was not opened: the private key key2 does not belong to the certificate cert"},
        {"-in G -inkey key2 cert2", "G is not for the certificate cert2"},
        {"-in G -inkey key2", "G cannot be opened with the private key key2"},
        {"-in half -inkey key cert", "half ends too early: it was cut short"},
        {"-in more -inkey key cert", "more goes on after the end of the message"},
        {"-in spoilt -inkey key cert", "spoilt is damaged: its byte 901 is none of a base64 text"},
        {"-in none -inkey key cert", "none is empty"},
        {"-in signed -inkey key cert", "signed is a message, but not an encrypted one"},
        {"-in F -inkey key cert", "F is no S/MIME message"},
        {"-in G -inkey cert", "cert holds no private key"},
        {"-in G -inkey key -recip key", "key holds no certificate"},
        {"-in G -inkey missing", "cannot open missing: No such file or directory"},
        {"-in G -inkey locked",
         "the private key locked is protected by a pass phrase: use a copy of the key that "
         "has none, or -passin"},
        {"-in G -inkey locked -passin pass:wrong", "the pass phrase does not open the private key locked"},
        {"-in G -inkey locked -passin file:missing",
         "cannot take the pass phrase from file:missing: No such file or directory"}};
    const auto entries = entriesIn(folder.path());
    for (const auto &[arguments, reason] : argumentsAndReasons) {
        const CommandResult result = runIn(folder, front, "smime -decrypt -out H " + arguments);
        EXPECT_EQ(result.status, 1) << arguments;
        EXPECT_EQ(result.output, "openssl: " + reason + "\n");
        EXPECT_EQ(entriesIn(folder.path()), entries) << arguments;
    }
    writeFile(folder / "phrase", "right\nrest");
    for (const char *const source : {"pass:right", "file:phrase"})
        EXPECT_TRUE(isSilentSuccess(
            runIn(folder, front, "smime -decrypt -in G -out H -inkey locked -passin", {source})));
}

} // namespace
