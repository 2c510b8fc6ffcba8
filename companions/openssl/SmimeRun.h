#pragma once

#include "CipherName.h"
#include "FileConversion.h"
#include "smime/EncryptedMessage.h"
#include "smime/KeyFile.h"

#include <optional>
#include <string>
#include <vector>

class Secret;

/// A decryption with a certificate's private key that the front does itself: the system's tool holds the
/// whole message in memory and takes none that is larger than 2 GB.
struct SmimeDecryption {
    FilePair files;
    MessageForm form = MessageForm::Smime;
    std::string keyFile;
    /// The certificate of the only recipient to try. Nothing: all are tried.
    std::optional<std::string> recipient;
    /// A certificate that was named besides. It only helps to say why a message can't be opened.
    std::optional<std::string> mentionedCertificate;
    /// Where the key's pass phrase comes from: fetchPassPhrase().
    std::optional<std::string> passPhraseSource;
    /// The key's pass phrase was on the command line, in the secret that goes with the plan.
    bool hasPassPhrase = false;
};

/// An encryption for the owners of certificates. The system's tool does it on one core.
struct SmimeEncryption {
    FilePair files;
    MessageForm form = MessageForm::Smime;
    LibraryCipher cipher;
    std::vector<Certificate> recipients;
};

/// Both carry it out. Where anything fails, one line on standard error says why, and no result is left
/// behind. Returns the exit status for the program; a signal that asks to stop ends the program.
[[nodiscard]] int decryptSmime(const SmimeDecryption &decryption, Secret &passPhrase);
[[nodiscard]] int encryptSmime(const SmimeEncryption &encryption);
