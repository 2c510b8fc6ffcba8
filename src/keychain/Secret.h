#pragma once

#include <QByteArrayView>
#include <QStringList>
#include <vector>

/// Bytes that are overwritten when they are given up: a password on its way to or from a keychain. One owner
/// at a time, so that no copy is left behind.
class Secret {
public:
    Secret() = default;
    explicit Secret(QByteArrayView bytes);
    ~Secret();
    Secret(Secret &&other) noexcept;
    Secret &operator=(Secret &&other) noexcept;
    Secret(const Secret &) = delete;
    Secret &operator=(const Secret &) = delete;

    /// The text as UTF-8. One that is given up is overwritten, as wipe() does.
    [[nodiscard]] static Secret fromText(const QString &text);
    [[nodiscard]] static Secret fromText(QString &&text);

    /// The bytes as text; a null string where they are not UTF-8.
    [[nodiscard]] QString text() const;

    /// Seen in place, not copied; ends with the secret.
    [[nodiscard]] QByteArrayView bytes() const;

private:
    void wipeBytes();

    std::vector<char> m_bytes;
};

/// Overwrites the text and makes it null. A text that is shared stays as it is for the others, who hold the
/// same characters: to overwrite it would change it under them.
void wipe(QString &text);

/// The same for each of them.
void wipe(QStringList &texts);

/// Overwrites the text where it lies, with all the room that it has, for all who share it. Only for a text
/// that nobody else is to have.
void wipeInPlace(const QString &text);
