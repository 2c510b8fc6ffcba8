#pragma once

#include <QString>

/// What a file that should hold a certificate or a private key looks like from outside.
enum class KeyFileKind {
    Unreadable,   ///< missing, a folder, or not ours to read
    Empty,        //
    Certificate,  ///< PEM (https://www.rfc-editor.org/rfc/rfc7468)
    PrivateKey,   ///< PEM, in clear
    EncryptedKey, ///< PEM, protected by a pass phrase
    OtherPem,     ///< PEM of something else, such as a public key or a request
    Pkcs12,       ///< container of a key and its certificates, binary
    Der,          ///< other binary ASN.1, as certificates and keys come in
    Unknown,
};

struct KeyFile {
    KeyFileKind kind = KeyFileKind::Unknown;
    QString reason{}; ///< of Unreadable: what the system says
};

/// Looks at the file's first 64 KiB. Of a file with several PEM blocks, a certificate comes before a key.
[[nodiscard]] KeyFile examineKeyFile(const QString &path);
