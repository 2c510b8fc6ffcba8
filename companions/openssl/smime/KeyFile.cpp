#include "KeyFile.h"

#include <algorithm>
#include <cerrno>
#include <openssl/err.h>
#include <openssl/pem.h>
#include <system_error>

namespace {

struct PassPhraseRequest {
    std::optional<std::string_view> passPhrase;
    bool isMade = false;
};

/// Gives libcrypto the pass phrase when it comes upon a key that needs one.
int answer(char *buffer, int size, int, void *data)
{
    auto &request = *static_cast<PassPhraseRequest *>(data);
    request.isMade = true;
    if (!request.passPhrase || request.passPhrase->size() > static_cast<std::size_t>(size)) return -1;
    std::ranges::copy(*request.passPhrase, buffer);
    return static_cast<int>(request.passPhrase->size());
}

CryptoHandle<BIO> openFile(const std::string &file, std::string &problem)
{
    errno = 0;
    CryptoHandle<BIO> opened(BIO_new_file(file.c_str(), "rb"));
    if (!opened) problem = "cannot open " + file + ": " + std::generic_category().message(errno);
    ERR_clear_error();
    return opened;
}

CryptoHandle<EVP_PKEY> decode(BIO *bio, PassPhraseRequest &request)
{
    CryptoHandle<EVP_PKEY> key(PEM_read_bio_PrivateKey(bio, nullptr, answer, &request));
    if (key || request.isMade || BIO_seek(bio, 0) != 0) return key;
    key.reset(d2i_PrivateKey_bio(bio, nullptr));
    if (key || BIO_seek(bio, 0) != 0) return key;
    key.reset(d2i_PKCS8PrivateKey_bio(bio, nullptr, answer, &request));
    return key;
}

} // namespace

PrivateKey readPrivateKey(const std::string &file, std::optional<std::string_view> passPhrase,
                          std::string &problem)
{
    PrivateKey key{nullptr, file};
    const CryptoHandle<BIO> bio = openFile(file, problem);
    if (!bio) return key;
    PassPhraseRequest request{passPhrase};
    key.handle = decode(bio.get(), request);
    ERR_clear_error();
    if (key.handle) return key;
    if (!request.isMade)
        problem = file + " holds no private key";
    else if (passPhrase)
        problem = "the pass phrase does not open the private key " + file;
    else
        problem = "the private key " + file +
                  " is protected by a pass phrase: use a copy of the key that has none, or -passin";
    return key;
}

Certificate readCertificate(const std::string &file, std::string &problem)
{
    Certificate certificate{nullptr, file};
    const CryptoHandle<BIO> bio = openFile(file, problem);
    if (!bio) return certificate;
    certificate.handle.reset(PEM_read_bio_X509_AUX(bio.get(), nullptr, nullptr, nullptr));
    if (!certificate.handle && BIO_seek(bio.get(), 0) == 0)
        certificate.handle.reset(d2i_X509_bio(bio.get(), nullptr));
    ERR_clear_error();
    if (!certificate.handle) problem = file + " holds no certificate";
    return certificate;
}
