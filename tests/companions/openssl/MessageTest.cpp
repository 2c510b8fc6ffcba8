#include "Front.h"
#include "PasswordFile.h"
#include "smime/BerReader.h"
#include "smime/EncryptedMessage.h"
#include "smime/KeyOpener.h"

namespace {

/// Gives a text in pieces.
struct TextSource final : public ByteSource {
    TextSource(std::string_view text, std::size_t size) : rest(text), pieceSize(size) {}
    Bytes read() override
    {
        const std::string_view piece = rest.substr(0, pieceSize);
        rest.remove_prefix(piece.size());
        return {reinterpret_cast<const std::uint8_t *>(piece.data()), piece.size()};
    }
    std::string_view rest;
    std::size_t pieceSize; ///< bytes
};

struct TextSink final : public ByteSink {
    bool write(Bytes bytes) override
    {
        text.append(bytes.begin(), bytes.end());
        return true;
    }
    std::string text;
};

struct Reading {
    bool isTaken;
    std::string content, reason;
};

Reading read(const Conversion &conversion, std::string_view text, std::size_t pieceSize = 4'096)
{
    TextSource source(text, pieceSize);
    TextSink sink;
    Fault fault;
    const bool isDone = conversion(source, sink, fault);
    EXPECT_TRUE(isDone != fault.isSet() && fault.predicate().find('\n') == std::string::npos);
    return {isDone, sink.text, fault.predicate()};
}

// Position by position, which would take a process each through the front.
TEST(EncryptedMessage, IsNeverTakenForWholeWhenItIsCutSpoiltOrGoesOn)
{
    const TemporaryFolder folder;
    makeKey(folder);
    const std::string plain = std::string(100, 'x') + "end";
    writeFile(folder / "F", plain);
    std::string problem;
    const PrivateKey key = readPrivateKey(folder / "key", {}, problem);
    for (const std::string line : {"SMIME -stream", "SMIME -noindef", "DER -stream", "DER -noindef"}) {
        SCOPED_TRACE(line);
        const MessageForm form = line.starts_with("DER") ? MessageForm::Der : MessageForm::Smime;
        const Conversion conversion = [&](ByteSource &input, ByteSink &output, Fault &fault) {
            KeyOpener opener(key, nullptr, KeyOpener::Scope::All);
            return decryptMessage(input, form, opener, output, fault);
        };
        const std::string command = "smime -encrypt -aes256 -binary -in F -outform " + line + " cert";
        const std::string whole = runIn(folder, stock, command).output;
        for (const std::size_t pieceSize : {1U, 67U, 100'000U})
            EXPECT_EQ(read(conversion, whole, pieceSize).content, plain);
        EXPECT_EQ(read(conversion, whole + "A", 67).reason, "goes on after the end of the message");
        // White space at the end of a text may be missing, but no more.
        const auto needed = form == MessageForm::Smime ? whole.find_last_not_of("\r\n") + 1 : whole.size();
        for (std::size_t size = 0; size < needed; ++size)
            ASSERT_FALSE(read(conversion, std::string_view(whole).substr(0, size)).isTaken) << size;
        for (std::size_t place = 0; place < whole.size(); ++place) {
            std::string spoilt = whole;
            spoilt[place] = static_cast<char>(spoilt[place] ^ (1 << place % 8));
            const auto [isTaken, content, reason] = read(conversion, spoilt);
            // What is spoilt within the content shows only when that is read, or in its padding.
            ASSERT_TRUE(!isTaken ||
                        (content.size() + 16 >= plain.size() && content.size() <= plain.size() + 16));
        }
    }
}

// Lines as other tools break them, and the marks that some put around.
TEST(PasswordFile, IsReadWhereTheSystemsToolReadsItAndNeverTakenForWholeWhenItIsNot)
{
    const TemporaryFolder folder;
    const std::string plain = binaryData(3'017);
    writeFile(folder / "F", plain);
    const std::string how = "enc -aes256 -pbkdf2 -iter 1 -k x ";
    writeFile(folder / "G",
              "Salted__SaltSalt" + runIn(folder, stock, how + "-in F -S 53616c7453616c74").output);
    const PasswordFile file{LibraryCipher("aes256"), true, true, {{1, "sha256"}}};
    const Conversion conversion = [&file](ByteSource &input, ByteSink &output, Fault &fault) {
        return decryptFile(file, "x", input, output, fault);
    };
    ASSERT_EQ(runIn(folder, "sh", "-c", {"base64 -w 64 G > T"}).status, 0);
    const std::string whole = readFile(folder / "T");
    std::size_t taken = 0;
    std::istringstream scripts(
        "cat;sed 's/$/\\r/';base64 -w 76 G #;base64 -w 75 G #;base64 -w 7 G #;base64 -w 1 G #;base64 -w 1000 "
        "G #;"
        "base64 -w 0 G #;head -c -1;sed '1i \\\n';sed '1i-----BEGIN X-----';sed '$a-----END X-----';"
        "sed '$s/$/\\n \\t/';sed G;sed 's/^/ \\t/';sed '1s/./!/30';sed '1s/./\\x0/30';sed '2s/./\\f/7';"
        "sed '9s/./=/9';sed '$aAAAA';sed '$a!';sed 1iHello");
    for (std::string script; std::getline(scripts, script, ';');) {
        const std::string text = runIn(folder, "sh", "-c", {script + " T > U; cat U"}).output;
        const CommandResult expected =
            runCommand(words(stock + " " + how + "-d -a -in U"), {.folder = folder.path()});
        const bool isExpected = expected.status == 0 && expected.output == plain;
        for (const std::size_t pieceSize : {1U, 67U, 100'000U}) {
            const auto [isTaken, content, reason] = read(conversion, text, pieceSize);
            EXPECT_TRUE(isTaken ? content == plain : !isExpected) << script << reason;
        }
        taken += isExpected ? 1 : 0;
    }
    EXPECT_GE(taken, 12U);
    for (std::size_t size = 0; size + 1 < whole.size(); ++size)
        ASSERT_FALSE(read(conversion, std::string_view(whole).substr(0, size)).isTaken) << size;
}

// Five gigabytes in one piece, and within them more than a length of four bytes can say.
TEST(BerReader, ReadsOctetStringsOfAnySize)
{
    struct HugeSource final : public ByteSource {
        Bytes read() override { return std::exchange(isStarted, true) ? Bytes(piece) : Bytes(header); }
        bool isStarted = false;
        const std::vector<std::uint8_t> header{0x04, 0x85, 0x01, 0x40, 0x00, 0x00, 0x00};
        const std::vector<std::uint8_t> piece = std::vector<std::uint8_t>(1 << 20);
    } source;
    ByteReader bytes(source);
    Fault fault;
    BerReader reader(bytes, fault);
    std::uint64_t size = 0;
    EXPECT_TRUE(reader.readOctets(ber::octetString, [&size](Bytes piece) { return size += piece.size(); }));
    EXPECT_EQ(size, 0x1'4000'0000U);
}

class SmimeFront : public testing::Test {
protected:
    SmimeFront() { makeKey(folder), makeKey(folder, "2"); }
    TemporaryFolder folder;
    const std::string encryption = "smime -aes256 -encrypt -binary -in F -out G cert";
};

TEST_F(SmimeFront, EncryptsForTheSystemsToolInPieces)
{
    const auto header = [this] { return readFile(folder / "G").substr(0, 190); };
    for (const std::size_t size : {0U, 1U, 4'097U, 262'144U, 1'000'001U}) {
        writeFile(folder / "F", binaryData(size));
        EXPECT_TRUE(isSilentSuccess(runIn(folder, stock, encryption)));
        const std::string expected = header();
        EXPECT_TRUE(isSilentSuccess(runIn(folder, front, encryption)));
        EXPECT_EQ(header(), expected);
        for (const std::string &reader : {front, stock})
            EXPECT_TRUE(runIn(folder, reader, "smime -decrypt -binary -in G -inkey key cert").output ==
                        binaryData(size));
    }
    // A message in one piece can't be decrypted from 1.6 GB on, and the tool says nothing of it.
    ASSERT_EQ(runIn(folder, stock, "x509 -in cert2 -outform DER -out der2").status, 0);
    for (const std::string option :
         {"-aes128", "-noindef -aria256", "-indef -camellia128", "-stream -aes-256-cfb", "-noindef"}) {
        EXPECT_TRUE(isSilentSuccess(runIn(
            folder, front, "smime -encrypt -binary -outform DER -in F -out G " + option + " cert der2")));
        EXPECT_EQ(readFile(folder / "G").substr(0, 2), "\x30\x80") << option; // a sequence without length
        for (const std::string key : {"key -recip cert", "key2 -recip cert2"})
            EXPECT_TRUE(runIn(folder, stock, "cms -decrypt -binary -inform DER -in G -inkey " + key).output ==
                        readFile(folder / "F"));
    }
    for (const std::string rest : {"F -out H missing", "missing -out H cert", "F -out H key"})
        EXPECT_NE(runIn(folder, front, "smime -encrypt -aes256 -binary -in " + rest).status, 0);
    EXPECT_FALSE(fs::exists(folder / "H"));
}

TEST_F(SmimeFront, DecryptsWhateverFormTheSystemsToolWrites)
{
    const std::string plain = binaryData(20'001);
    writeFile(folder / "F", plain);
    const std::vector<std::pair<std::string, std::string>> writingsAndReadings{
        {"smime -stream cert", "-inkey key cert"},
        {"smime -crlfeol cert", "-inkey key"},
        {"smime -aes256 -outform DER cert", "-inform DER -inkey key -keyform PEM"},
        {"smime -aes-128-cfb -outform DER -stream cert", "-inform der -inkey key -recip cert"},
        {"smime -camellia192 -outform PEM cert", "-inform PEM -inkey key"},
        {"smime -to a@b -subject two_recipients cert2 cert", "-inkey key"},
        {"smime cert2 cert", "-inkey key -recip cert"},
        {"cms -keyid cert", "-inkey key -recip cert"},
        {"cms -outform DER -recip cert -keyopt rsa_padding_mode:oaep", "-inform DER -inkey key cert"},
        {"cms -recip cert -keyopt rsa_padding_mode:oaep -keyopt rsa_oaep_md:sha256", "-inkey key"},
        {"cms -recip cert -keyopt rsa_padding_mode:oaep -keyopt rsa_oaep_md:sha384 -keyopt rsa_mgf1_md:sha1 "
         "-keyopt rsa_oaep_label:00ff01",
         "-inkey key -recip cert"},
        {"cms -secretkey 000102030405060708090a0b0c0d0e0f -secretkeyid 01 cert", "-inkey key"}};
    for (const auto &[writing, reading] : writingsAndReadings) {
        SCOPED_TRACE(writing);
        std::string command = writing;
        command.insert(command.find(' '), " -encrypt -binary -in F -out G");
        EXPECT_TRUE(isSilentSuccess(runIn(folder, stock, command)));
        EXPECT_TRUE(isSilentSuccess(runIn(folder, front, "smime -decrypt -in G -out H", words(reading))));
        EXPECT_TRUE(readFile(folder / "H") == plain);
        fs::remove(folder / "H");
    }
}

TEST_F(SmimeFront, TellsInOneLineWhyItDoesNotDecrypt)
{
    writeFile(folder / "F", binaryData(3'000));
    ASSERT_TRUE(isSilentSuccess(runIn(folder, front, encryption)));
    writeFile(folder / "spoilt", readFile(folder / "G").replace(900, 1, "!"));
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
        {"-in spoilt -inkey key cert", "spoilt is damaged: its byte 901 is none of a base64 text"},
        {"-in /dev/null -inkey key cert", "/dev/null is empty"},
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
        EXPECT_EQ(result.output, "openssl: " + reason + "\n");
        EXPECT_TRUE(result.status == 1 && entriesIn(folder.path()) == entries) << arguments;
    }
    writeFile(folder / "phrase", "right\nrest");
    for (const char *const source : {"pass:right", "file:phrase"})
        EXPECT_TRUE(isSilentSuccess(
            runIn(folder, front, "smime -decrypt -in G -out H -inkey locked -passin", {source})));
}

} // namespace
