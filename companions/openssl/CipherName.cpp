#include "CipherName.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

struct CipherFamily {
    std::string_view name;
    bool isLegacy;
};

// A longer name comes before the one that it begins with. Triple DES is not a legacy cipher, single DES is.
constexpr std::array families{
    CipherFamily{"aes", false},      CipherFamily{"aria", false},    CipherFamily{"camellia", false},
    CipherFamily{"sm4", false},      CipherFamily{"des3", false},    CipherFamily{"des-ede", false},
    CipherFamily{"chacha20", false}, CipherFamily{"des", true},      CipherFamily{"desx", true},
    CipherFamily{"bf", true},        CipherFamily{"blowfish", true}, CipherFamily{"cast", true},
    CipherFamily{"idea", true},      CipherFamily{"rc2", true},      CipherFamily{"rc4", true},
    CipherFamily{"rc5", true},       CipherFamily{"seed", true}};

char toLower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// Whether what follows the family's name is a key size or a mode, as in `aes256`, `cast5-cbc` and `rc4-40`.
bool isVariant(std::string_view rest)
{
    return rest.empty() || rest.front() == '-' || (rest.front() >= '0' && rest.front() <= '9');
}

const CipherFamily *familyOf(std::string_view cipher)
{
    std::string name(cipher);
    std::ranges::transform(name, name.begin(), toLower);
    const auto belongs = [&name](const CipherFamily &family) {
        return name.starts_with(family.name) && isVariant(std::string_view(name).substr(family.name.size()));
    };
    const auto found = std::ranges::find_if(families, belongs);
    return found == families.end() ? nullptr : &*found;
}

} // namespace

bool isCipher(std::string_view name) { return familyOf(name) != nullptr; }

bool needsLegacyProvider(std::string_view cipher)
{
    const CipherFamily *const family = familyOf(cipher);
    return family && family->isLegacy;
}
