#pragma once

#include <filesystem>
#include <string>

/// A certificate and its private key, both PEM, made by the OpenSSL tool.
struct Credentials {
    std::filesystem::path certificate;
    std::filesystem::path key;
};

/// Makes `<name>.pem` and `<name>-key.pem` in the folder: RSA, self-signed, for "CN=<name>", valid for so
/// many days; -1: it ended yesterday.
Credentials makeCredentials(const std::filesystem::path &folder, const std::string &name, int days = 730);

/// Runs the OpenSSL tool on words without spaces, in the folder; throws where it fails.
void runOpenSsl(const std::filesystem::path &folder, const std::string &words);
