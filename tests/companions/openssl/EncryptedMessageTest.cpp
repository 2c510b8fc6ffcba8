#include "smime/EncryptedMessage.h"
#include "Front.h"
#include "PasswordFile.h"
#include "smime/BerReader.h"
#include "smime/Fault.h"
#include "smime/KeyFile.h"
#include "smime/KeyOpener.h"

namespace {

/// Gives a text in pieces of `pieceSize` bytes.
class TextSource final : public ByteSource {
public:
    TextSource(std::string_view text, std::size_t pieceSize) : m_rest(text), m_pieceSize(pieceSize) {}
    Bytes read() override
    {
        const std::string_view piece = m_rest.substr(0, m_pieceSize);
        m_rest.remove_prefix(piece.size());
        return {reinterpret_cast<const std::uint8_t *>(piece.data()), piece.size()};
    }

private:
    std::string_view m_rest;
    std::size_t m_pieceSize;
};

struct TextSink final : public ByteSink {
    bool write(Bytes bytes) override
    {
        text.append(bytes.begin(), bytes.end());
        return true;
    }
    std::string text;
};

// Position by position, which would take a process each through the front.
TEST(EncryptedMessage, IsNeverTakenForWholeWhenItIsCutSpoiltOrGoesOn)
{
    const TemporaryFolder folder;
    makeKey(folder);
    const std::string plain = std::string(100, 'x') + "end";
    writeFile(folder / "F", plain);
    std::string problem;
    const PrivateKey key = readPrivateKey(folder / "key", {}, problem);
    std::string content, reason;
    for (const std::string line : {"SMIME -stream", "SMIME -noindef", "DER -stream", "DER -noindef"}) {
        SCOPED_TRACE(line);
        const MessageForm form = line.starts_with("DER") ? MessageForm::Der : MessageForm::Smime;
        const auto isTaken = [&](std::string_view text, std::size_t pieceSize = 4'096) {
            TextSource source(text, pieceSize);
            TextSink sink;
            KeyOpener opener(key, nullptr, KeyOpener::Scope::All);
            Fault fault;
            const bool isDone = decryptMessage(source, form, opener, sink, fault);
            EXPECT_NE(isDone, fault.isSet());
            content = sink.text;
            reason = fault.predicate();
            return isDone;
        };
        const std::string command = "smime -encrypt -aes256 -binary -in F -outform " + line + " cert";
        const std::string whole =
            runCommand(Arguments{stock} + words(command), {.folder = folder.path()}).output;
        for (const std::size_t pieceSize : {1U, 67U, 100'000U})
            EXPECT_TRUE(isTaken(whole, pieceSize) && content == plain) << reason;
        EXPECT_FALSE(isTaken(whole + "A", 67));
        EXPECT_NE(reason.find("goes on"), std::string::npos) << reason;
        // White space at the end of a text may be missing, but no more.
        const bool isText = form == MessageForm::Smime;
        const std::size_t needed = isText ? whole.find_last_not_of("\r\n") + 1 : whole.size();
        for (std::size_t size = 0; size < needed; ++size)
            ASSERT_FALSE(isTaken(std::string_view(whole).substr(0, size))) << size;
        for (std::size_t place = 0; place < whole.size(); ++place) {
            std::string spoilt = whole;
            spoilt[place] = static_cast<char>(spoilt[place] ^ (1 << place % 8));
            // What is spoilt within the content shows only when that is read, or in its padding.
            ASSERT_TRUE(!isTaken(spoilt) ||
                        (content.size() + 16 >= plain.size() && content.size() <= plain.size() + 16));
            ASSERT_EQ(reason.find('\n'), std::string::npos);
        }
    }
}

// Lines as other tools break them, and the marks that some put around.
TEST(PasswordFile, IsReadWhereTheSystemsToolReadsItAndNeverTakenForWholeWhenItIsNot)
{
    const TemporaryFolder folder;
    const std::string plain = binaryData(3'001);
    writeFile(folder / "F", plain);
    const std::string how = "enc -aes256 -pbkdf2 -iter 1 -k x ";
    writeFile(folder / "G",
              "Salted__SaltSalt" + runIn(folder, stock, how + "-in F -S 53616c7453616c74").output);
    const std::string letters = runIn(folder, stock, "base64 -A -in G").output;
    const auto lines = [&letters](std::size_t width, const std::string &end = "\n") {
        std::string text;
        for (std::size_t i = 0; i < letters.size(); i += width)
            text += letters.substr(i, width) + end;
        return text;
    };
    const PasswordFile file{LibraryCipher("aes256"), true, true, {{1, "sha256"}}};
    std::string reason;
    const auto isTaken = [&](std::string_view text, std::size_t pieceSize = 4'096) {
        TextSource source(text, pieceSize);
        TextSink sink;
        Fault fault;
        const bool isDone = decryption(file, "x")(source, sink, fault);
        EXPECT_TRUE(isDone != fault.isSet() && (!isDone || sink.text == plain));
        reason = fault.predicate();
        return isDone;
    };
    const std::string whole = lines(64);
    const auto spoilt = [&whole](std::size_t place, const std::string &by) {
        return std::string(whole).replace(place, 1, by);
    };
    std::size_t taken = 0;
    for (const std::string &text : {whole,
                                    lines(64, "\r\n"),
                                    lines(76),
                                    lines(75),
                                    lines(7),
                                    lines(1),
                                    lines(1'000),
                                    letters,
                                    whole.substr(0, whole.size() - 1),
                                    "\n\n " + whole,
                                    "-----BEGIN X-----\n" + whole,
                                    whole + "-----END X-----\n",
                                    whole + "\n \t\n",
                                    spoilt(64, "\n\n"),
                                    spoilt(64, " \t\n"),
                                    spoilt(30, "!"),
                                    spoilt(30, std::string(1, '\0')),
                                    spoilt(90, "\f"),
                                    spoilt(1'000, "="),
                                    whole + "AAAA\n",
                                    whole + "!\n",
                                    "Hello\n" + whole}) {
        writeFile(folder / "T", text);
        const CommandResult expected =
            runCommand(words(stock + " " + how + "-d -a -in T"), {.folder = folder.path()});
        const bool isExpected = expected.status == 0 && expected.output == plain;
        for (const std::size_t pieceSize : {1U, 67U, 100'000U})
            EXPECT_TRUE(isTaken(text, pieceSize) || !isExpected) << text.substr(0, 200) << reason;
        taken += isExpected ? 1 : 0;
    }
    EXPECT_GE(taken, 12U);
    for (std::size_t size = 0; size + 1 < whole.size(); ++size)
        ASSERT_FALSE(isTaken(std::string_view(whole).substr(0, size))) << size;
}

// Five gigabytes in one piece, and within them more than a length of four bytes can say.
TEST(BerReader, ReadsOctetStringsOfAnySize)
{
    class HugeSource final : public ByteSource {
    public:
        Bytes read() override { return std::exchange(m_isStarted, true) ? Bytes(m_piece) : Bytes(m_header); }

    private:
        const std::vector<std::uint8_t> m_header{0x04, 0x85, 0x01, 0x40, 0x00, 0x00, 0x00};
        const std::vector<std::uint8_t> m_piece = std::vector<std::uint8_t>(1 << 20);
        bool m_isStarted = false;
    } source;
    ByteReader bytes(source);
    Fault fault;
    BerReader reader(bytes, fault);
    std::uint64_t size = 0;
    EXPECT_TRUE(
        reader.readOctets(ber::octetString, [&size](Bytes piece) { return (size += piece.size()) > 0; }));
    EXPECT_EQ(size, 0x1'4000'0000U);
}

} // namespace
