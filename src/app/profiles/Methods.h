#pragma once

#include <QStringList>

namespace quillorentLibrary {

/// The names of the methods that encrypt by a password, by their row in the chooser.
[[nodiscard]] inline QStringList symmetricMethods()
{
    return {QStringLiteral("OpenSSL-AES"), QStringLiteral("OpenSSL-BF"), QStringLiteral("OpenSSL-3D")};
}

} // namespace quillorentLibrary
