#include "PasswordFile.h"

#include "smime/BackgroundSink.h"
#include "smime/Base64Sink.h"
#include "smime/Base64Source.h"
#include "smime/CipherSink.h"
#include "smime/Fault.h"

#include <algorithm>
#include <openssl/rand.h>

namespace {

constexpr std::string_view mark = "Salted__";
constexpr std::size_t saltSize = 8;
constexpr std::size_t tellingSize = 16; // whole blocks of every cipher
using Header = std::array<std::uint8_t, mark.size() + saltSize>;

constexpr std::array<std::string_view, 2> archiveSignatures{std::string_view("Rar!\x1a\x07\x01\x00", 8),
                                                            std::string_view("Rar!\x1a\x07\x00", 7)};

Bytes saltOf(const Header &header) { return Bytes(header).subspan(mark.size()); }

bool startsWith(Bytes bytes, std::string_view text)
{
    return bytes.size() >= text.size() &&
           std::ranges::equal(bytes.first(text.size()), text, {}, {},
                              [](char letter) { return static_cast<std::uint8_t>(letter); });
}

bool start(EVP_CIPHER_CTX *context, const EVP_CIPHER *cipher, const KeyMaterial &material, bool isEncryption,
           bool isPadded)
{
    return context &&
           EVP_CipherInit_ex(context, cipher, nullptr, material.key(), material.vector(),
                             isEncryption ? 1 : 0) > 0 &&
           EVP_CIPHER_CTX_set_padding(context, isPadded ? 1 : 0) > 0;
}

bool encrypt(const PasswordFile &file, std::string_view password, ByteSource &input, ByteSink &output,
             Fault &fault)
{
    const EVP_CIPHER *const cipher = file.cipher.get();
    Header header{};
    std::ranges::copy(mark, header.begin());
    KeyMaterial material;
    Base64Sink text(output);
    BackgroundSink rear(file.isBase64 ? static_cast<ByteSink &>(text) : output);
    CipherSink front(rear);
    if (RAND_bytes(header.data() + mark.size(), saltSize) <= 0 ||
        !material.derive(cipher, file.derivations.back(), password, saltOf(header)) ||
        !start(front.context(), cipher, material, true, file.isPadded))
        return fault.report("cannot be encrypted: libcrypto has no such key");

    bool isWritten = rear.write(header);
    for (Bytes piece; isWritten && !(piece = input.read()).empty();)
        isWritten = front.write(piece);
    return isWritten && !fault.isSet() && front.finish() && rear.finish() &&
           (!file.isBase64 || text.finish());
}

class Decryption {
public:
    Decryption(const PasswordFile &file, std::string_view password, ByteSource &input, ByteSink &output,
               Fault &fault)
        : m_file(file)
        , m_cipher(file.cipher.get())
        , m_password(password)
        , m_fault(fault)
        , m_input(input)
        , m_text(m_input, fault, Base64Source::Rules::OfTool)
        , m_bytes(file.isBase64 ? static_cast<ByteSource &>(m_text) : input)
        , m_front(output)
    {
    }

    bool run()
    {
        if (!readHeader()) return false;
        readStart();
        if (!findKey()) return m_fault.report("cannot be decrypted: libcrypto has no such key");
        return decryptAll() || reportEnd();
    }

private:
    bool readHeader()
    {
        std::size_t size = 0;
        while (size < m_header.size()) {
            const auto byte = m_bytes.get();
            if (!byte) return size == 0 ? m_fault.report("is empty") : m_fault.reportCutShort();
            m_header[size++] = *byte;
        }
        return startsWith(m_header, mark) ||
               m_fault.report("was not encrypted by a password: it begins with a bad magic number");
    }

    void readStart()
    {
        while (m_start.size() < tellingSize) {
            const auto byte = m_bytes.get();
            if (!byte) break;
            m_start.push_back(*byte);
        }
    }

    /// Leaves the key of the last derivation, where none makes an archive of what the file begins with.
    bool findKey()
    {
        for (const KeyDerivation &each : m_file.derivations) {
            if (!m_material.derive(m_cipher, each, m_password, saltOf(m_header))) return false;
            m_isArchive = opensArchive();
            if (m_isArchive) break;
        }
        return start(m_front.context(), m_cipher, m_material, false, m_file.isPadded);
    }

    [[nodiscard]] bool opensArchive() const
    {
        const CryptoHandle<EVP_CIPHER_CTX> context(EVP_CIPHER_CTX_new());
        base::WipedBytes plain(2 * tellingSize);
        int size = 0;
        if (m_start.size() < tellingSize || !start(context.get(), m_cipher, m_material, false, false) ||
            EVP_DecryptUpdate(context.get(), plain.data(), &size, m_start.data(), tellingSize) <= 0)
            return false;
        const Bytes content{plain.data(), static_cast<std::size_t>(size)};
        return std::ranges::any_of(archiveSignatures,
                                   [content](auto each) { return startsWith(content, each); });
    }

    bool decryptAll()
    {
        BackgroundSink rear(m_front);
        bool isWritten = rear.write(m_start);
        for (Bytes piece; isWritten && !(piece = m_bytes.available()).empty(); m_bytes.skip(piece.size()))
            isWritten = rear.write(piece);
        return isWritten && !m_fault.isSet() && rear.finish() && m_front.finish();
    }

    bool reportEnd()
    {
        const auto blockSize = static_cast<std::uint64_t>(EVP_CIPHER_get_block_size(m_cipher));
        const bool isCut = m_bytes.position() % blockSize != 0 || (blockSize > 1 && m_start.empty());
        if (isCut) return m_fault.reportCutShort();
        if (m_isArchive) return m_fault.report("is damaged: the password fits, but the end is not there");
        return m_fault.report("cannot be decrypted with this password: bad decrypt");
    }

    const PasswordFile &m_file;
    const EVP_CIPHER *m_cipher;
    std::string_view m_password;
    Fault &m_fault;
    ByteReader m_input;
    Base64Source m_text;
    ByteReader m_bytes;
    CipherSink m_front;
    Header m_header{};
    std::vector<std::uint8_t> m_start;
    KeyMaterial m_material;
    bool m_isArchive = false;
};

} // namespace

Conversion encryption(const PasswordFile &file, std::string_view password)
{
    return [&file, password](ByteSource &input, ByteSink &output, Fault &fault) {
        return encrypt(file, password, input, output, fault);
    };
}

Conversion decryption(const PasswordFile &file, std::string_view password)
{
    return [&file, password](ByteSource &input, ByteSink &output, Fault &fault) {
        return Decryption(file, password, input, output, fault).run();
    };
}
