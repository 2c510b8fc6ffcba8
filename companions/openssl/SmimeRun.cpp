#include "SmimeRun.h"

#include "Complaint.h"
#include "PassPhrase.h"
#include "Secret.h"
#include "smime/BackgroundSink.h"
#include "smime/KeyOpener.h"
#include "smime/MessageEncryption.h"

namespace {

/// The key with the certificate that tells more of it, where one is known.
struct Identity {
    PrivateKey key;
    Certificate certificate{};

    /// False: `problem` says why.
    bool read(const SmimeDecryption &plan, Secret &passPhrase, std::string &problem)
    {
        const auto &source = plan.passPhraseSource;
        if (source && !fetchPassPhrase(*source, passPhrase, problem)) return false;
        std::optional<std::string_view> text;
        if (source || plan.hasPassPhrase) text = passPhrase.text();
        key = readPrivateKey(plan.keyFile, text, problem);
        passPhrase.wipe();
        if (!key.handle) return false;
        std::string ignored;
        if (plan.recipient)
            certificate = readCertificate(*plan.recipient, problem);
        else if (plan.mentionedCertificate)
            certificate = readCertificate(*plan.mentionedCertificate, ignored);
        return certificate.handle || !plan.recipient;
    }
};

} // namespace

int decryptSmime(const SmimeDecryption &decryption, Secret &passPhrase)
{
    Identity identity;
    std::string problem;
    if (!identity.read(decryption, passPhrase, problem)) {
        complain(problem);
        return 1;
    }
    return convert(decryption.files, [&](ByteSource &input, ByteSink &output, Fault &fault) {
        KeyOpener keys(identity.key, identity.certificate.handle ? &identity.certificate : nullptr,
                       decryption.recipient ? KeyOpener::Scope::Certificate : KeyOpener::Scope::All);
        BackgroundSink rear(output);
        return decryptMessage(input, decryption.form, keys, rear, fault) && rear.finish();
    });
}

int encryptSmime(const SmimeEncryption &encryption)
{
    return convert(encryption.files, [&](ByteSource &input, ByteSink &output, Fault &fault) {
        return encryptMessage(input, encryption.form, encryption.recipients, encryption.cipher.get(), output,
                              fault);
    });
}
