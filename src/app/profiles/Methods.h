#pragma once

#include <QStringList>

namespace quillorentLibrary {

/// The names of the methods that encrypt by a password, by their row in the chooser.
[[nodiscard]] inline QStringList symmetricMethods()
{
    return {u"OpenSSL-AES"_qs, u"OpenSSL-BF"_qs, u"OpenSSL-3D"_qs};
}

} // namespace quillorentLibrary
