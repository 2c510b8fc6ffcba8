#include "PasswordFile.h"

#include "smime/Base64.h"
#include "smime/Crypto.h"

#include <openssl/rand.h>

namespace {

CryptoHandle<EVP_CIPHER> fetchCipher(std::string_view name)
{
    return CryptoHandle<EVP_CIPHER>(EVP_CIPHER_fetch(nullptr, std::string(name).c_str(), nullptr));
}

/// Whether bytes in any pieces, a key and an initialisation vector are all that it takes.
bool isPlain(const EVP_CIPHER *cipher)
{
    constexpr std::array modes{EVP_CIPH_STREAM_CIPHER, EVP_CIPH_ECB_MODE, EVP_CIPH_CBC_MODE,
                               EVP_CIPH_CFB_MODE,      EVP_CIPH_OFB_MODE, EVP_CIPH_CTR_MODE};
    constexpr unsigned long others = EVP_CIPH_FLAG_AEAD_CIPHER | EVP_CIPH_FLAG_CTS;
    return std::ranges::count(modes, EVP_CIPHER_get_mode(cipher)) > 0 &&
           (EVP_CIPHER_get_flags(cipher) & others) == 0;
}

constexpr std::string_view mark = "Salted__";
constexpr std::size_t saltSize = 8;
constexpr std::size_t tellingSize = 16; // whole blocks of every cipher

constexpr std::array<std::string_view, 2> archiveSignatures{std::string_view("Rar!\x1a\x07\x01\x00", 8),
                                                            std::string_view("Rar!\x1a\x07\x00", 7)};

Bytes saltOf(Bytes header) { return header.subspan(mark.size()); }

bool startsWith(Bytes bytes, std::string_view text)
{
    return bytes.size() >= text.size() &&
           std::ranges::equal(bytes.first(text.size()), text, {}, {},
                              [](char letter) { return static_cast<std::uint8_t>(letter); });
}

/// The key with the initialisation vector behind it, as both derivations make them. Empty: the library won't.
base::WipedBytes deriveKey(const EVP_CIPHER *cipher, const KeyDerivation &derivation,
                           std::string_view password, Bytes salt)
{
    const CryptoHandle<EVP_MD> digest = fetchDigest(derivation.digest);
    if (!digest) return {};
    const int size = static_cast<int>(password.size());
    const int keySize = EVP_CIPHER_get_key_length(cipher);
    const int wholeSize = keySize + EVP_CIPHER_get_iv_length(cipher);
    base::WipedBytes key(static_cast<std::size_t>(wholeSize));
    const auto *const text = reinterpret_cast<const unsigned char *>(password.data());
    const int isMade =
        derivation.iterations == 0
            ? EVP_BytesToKey(cipher, digest.get(), salt.data(), text, size, 1, key.data(),
                             key.data() + keySize)
            : PKCS5_PBKDF2_HMAC(password.data(), size, salt.data(), static_cast<int>(salt.size()),
                                static_cast<int>(derivation.iterations), digest.get(), wholeSize, key.data());
    return isMade > 0 ? std::move(key) : base::WipedBytes();
}

bool start(EVP_CIPHER_CTX *context, const EVP_CIPHER *cipher, const base::WipedBytes &key, bool isEncryption,
           bool isPadded)
{
    return context && key.size() > 0 &&
           EVP_CipherInit_ex(context, cipher, nullptr, key.data(),
                             key.data() + EVP_CIPHER_get_key_length(cipher), isEncryption ? 1 : 0) > 0 &&
           EVP_CIPHER_CTX_set_padding(context, isPadded ? 1 : 0) > 0;
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
        m_start = m_bytes.take(tellingSize);
        if (!findKey()) return m_fault.report("cannot be decrypted: libcrypto has no such key");
        return decryptAll() || reportEnd();
    }

private:
    bool readHeader()
    {
        m_header = m_bytes.take(mark.size() + saltSize);
        if (m_header.empty()) return m_fault.report("is empty");
        if (m_header.size() < mark.size() + saltSize) return m_fault.reportCutShort();
        return startsWith(m_header, mark) ||
               m_fault.report("was not encrypted by a password: it begins with a bad magic number");
    }

    /// Leaves the key of the last derivation, where none makes an archive of what the file begins with.
    bool findKey()
    {
        for (const KeyDerivation &each : m_file.derivations) {
            m_key = deriveKey(m_cipher, each, m_password, saltOf(m_header));
            if (m_key.size() == 0) return false;
            m_isArchive = opensArchive();
            if (m_isArchive) break;
        }
        return start(m_front.context(), m_cipher, m_key, false, m_file.isPadded);
    }

    [[nodiscard]] bool opensArchive() const
    {
        const CryptoHandle<EVP_CIPHER_CTX> context(EVP_CIPHER_CTX_new());
        base::WipedBytes plain(2 * tellingSize);
        int size = 0;
        if (m_start.size() < tellingSize || !start(context.get(), m_cipher, m_key, false, false) ||
            EVP_DecryptUpdate(context.get(), plain.data(), &size, m_start.data(), tellingSize) <= 0)
            return false;
        const Bytes content{plain.data(), static_cast<std::size_t>(size)};
        return std::ranges::any_of(archiveSignatures,
                                   [content](auto each) { return startsWith(content, each); });
    }

    bool decryptAll()
    {
        base::BackgroundSink rear(m_front);
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
    std::vector<std::uint8_t> m_header;
    std::vector<std::uint8_t> m_start;
    base::WipedBytes m_key;
    bool m_isArchive = false;
};

} // namespace

bool isCipher(std::string_view name) { return EVP_get_cipherbyname(std::string(name).c_str()) != nullptr; }

LibraryCipher::LibraryCipher(std::string_view name)
    // Naming one provider keeps the library from loading the default one, too.
    : m_standard(OSSL_PROVIDER_load(nullptr, "default")), m_cipher(fetchCipher(name))
{
    if (!m_cipher && isCipher(name)) {
        m_legacy.reset(OSSL_PROVIDER_load(nullptr, "legacy"));
        m_cipher = fetchCipher(name);
    }
    ERR_clear_error();
    if (m_cipher && !isPlain(m_cipher.get())) m_cipher.reset();
}

CryptoHandle<EVP_MD> fetchDigest(std::string_view name)
{
    return CryptoHandle<EVP_MD>(EVP_MD_fetch(nullptr, std::string(name).c_str(), nullptr));
}

bool encryptFile(const PasswordFile &file, std::string_view password, ByteSource &input, ByteSink &output,
                 Fault &fault)
{
    const EVP_CIPHER *const cipher = file.cipher.get();
    std::array<std::uint8_t, mark.size() + saltSize> header{};
    std::ranges::copy(mark, header.begin());
    Base64Sink text(output);
    base::BackgroundSink rear(file.isBase64 ? static_cast<ByteSink &>(text) : output);
    CipherSink front(rear);
    if (RAND_bytes(header.data() + mark.size(), saltSize) <= 0 ||
        !start(front.context(), cipher, deriveKey(cipher, file.derivations.back(), password, saltOf(header)),
               true, file.isPadded))
        return fault.report("cannot be encrypted: libcrypto has no such key");

    bool isWritten = rear.write(header);
    for (Bytes piece; isWritten && !(piece = input.read()).empty();)
        isWritten = front.write(piece);
    return isWritten && !fault.isSet() && front.finish() && rear.finish() &&
           (!file.isBase64 || text.finish());
}

bool decryptFile(const PasswordFile &file, std::string_view password, ByteSource &input, ByteSink &output,
                 Fault &fault)
{
    return Decryption(file, password, input, output, fault).run();
}
