#include "smime/EncryptedMessage.h"

#include "Command.h"
#include "TemporaryFolder.h"
#include "smime/BerReader.h"
#include "smime/Fault.h"
#include "smime/KeyFile.h"
#include "smime/KeyOpener.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

/// Gives a text in pieces of `pieceSize` bytes.
class TextSource final : public ByteSource {
public:
    TextSource(const std::string &text, std::size_t pieceSize) : m_rest(text), m_pieceSize(pieceSize) {}
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

class EncryptedMessage : public testing::Test {
protected:
    void SetUp() override
    {
        writeFile(folder / "F", plain);
        run({"req", "-x509", "-newkey", "rsa:1024", "-nodes", "-keyout", "key", "-out", "cert", "-subj",
             "/CN=test"});
        std::string problem;
        key = readPrivateKey(folder / "key", {}, problem);
        ASSERT_EQ(problem, "");
    }

    void run(const std::vector<std::string> &arguments)
    {
        std::vector<std::string> command{"openssl"};
        command.insert(command.end(), arguments.begin(), arguments.end());
        CommandOptions options;
        options.folder = folder.path();
        ASSERT_EQ(runCommand(command, options).status, 0);
    }

    std::string message(const std::string &form, const std::string &stream)
    {
        run({"smime", "-encrypt", "-aes256", "-binary", "-outform", form, stream, "-in", "F", "-out", "G",
             "cert"});
        return readFile(folder / "G");
    }

    /// Whether the message was taken; everything that holds of each one is checked.
    bool decrypt(const std::string &text, MessageForm form, std::size_t pieceSize)
    {
        TextSource source(text, pieceSize);
        TextSink sink;
        KeyOpener opener(key, nullptr, KeyOpener::Scope::All);
        Fault fault;
        const bool isDone = decryptMessage(source, form, opener, sink, fault);
        EXPECT_NE(isDone, fault.isSet());
        EXPECT_EQ(fault.predicate().find('\n'), std::string::npos);
        content = sink.text;
        reason = fault.predicate();
        return isDone;
    }

    TemporaryFolder folder;
    PrivateKey key;
    const std::string plain = std::string(100, 'x') + "end";
    std::string content;
    std::string reason;
};

TEST_F(EncryptedMessage, IsNeverTakenForWholeWhenItIsCutSpoiltOrGoesOn)
{
    for (const char *const stream : {"-stream", "-noindef"}) {
        for (const MessageForm form : {MessageForm::Smime, MessageForm::Der}) {
            const std::string whole = message(form == MessageForm::Der ? "DER" : "SMIME", stream);
            for (const std::size_t pieceSize : {1U, 67U, 100'000U}) {
                EXPECT_TRUE(decrypt(whole, form, pieceSize)) << reason;
                EXPECT_TRUE(content == plain);
            }
            EXPECT_FALSE(decrypt(whole + "A", form, 67));
            EXPECT_NE(reason.find("goes on"), std::string::npos) << reason;

            // White space at the end of a text may be missing, but no more.
            const std::size_t needed =
                form == MessageForm::Der ? whole.size() : whole.find_last_not_of("\r\n") + 1;
            for (std::size_t size = 0; size < needed; ++size)
                ASSERT_FALSE(decrypt(whole.substr(0, size), form, 4'096)) << size;
            for (std::size_t place = 0; place < whole.size(); ++place) {
                std::string spoilt = whole;
                spoilt[place] = static_cast<char>(spoilt[place] ^ (1 << place % 8));
                // What is spoilt within the content shows only when that is read, or in its padding.
                const bool isDone = decrypt(spoilt, form, 4'096);
                ASSERT_TRUE(!isDone ||
                            (content.size() + 16 >= plain.size() && content.size() <= plain.size() + 16));
            }
        }
    }
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
