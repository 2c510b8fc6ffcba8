#include "KeyDerivation.h"

std::vector<std::string> derivationOptions(const KeyDerivation &derivation, bool withDigest)
{
    std::vector<std::string> options;
    if (derivation.iterations > 0) options = {"-pbkdf2", "-iter", std::to_string(derivation.iterations)};
    if (withDigest) options.insert(options.end(), {"-md", std::string(derivation.digest)});
    return options;
}
