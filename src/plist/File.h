#pragma once

#include "plist/Dictionary.h"

#include <QByteArray>
#include <QString>

namespace plist {

/// How deep the containers of a file may lie in each other; the root dictionary is the first level.
inline constexpr int maximumDepth = 64;

/// How large a file may be, in bytes.
inline constexpr qint64 maximumFileSize = qint64{64} << 20;

/// A dictionary read from a file, or none and the reason.
struct FileContent {
    Dictionary dictionary;
    QString reason; ///< for the log: "file:line: what is wrong"; empty where a dictionary was read
};

/// Reads an XML property list in UTF-8 whose root is a dictionary. Strict, so that nothing is lost by saving
/// what was read: no entities, no unknown elements or attributes, no key twice, no number that is only half
/// one. The elements are those of http://www.apple.com/DTDs/PropertyList-1.0.dtd; binary and old-style lists
/// are refused.
[[nodiscard]] FileContent readFile(const QString &path);

/// A dictionary as the bytes of an XML property list, or the reason why it can't be put into one: characters
/// that XML can't carry, containers below the deepest level, and whatever else readFile() would refuse.
struct Document {
    QByteArray bytes;
    QString reason; ///< empty where `bytes` are whole
};
[[nodiscard]] Document toDocument(const Dictionary &dictionary);

/// Writes the dictionary as an XML property list, readable by the user alone, whole or not at all; a symbolic
/// link is followed. Gives the reason where that failed, and the empty string where it did not. What has no
/// document is not written.
[[nodiscard]] QString writeFile(const QString &path, const Dictionary &dictionary);

} // namespace plist
