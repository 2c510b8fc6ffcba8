#pragma once

#include <QByteArrayView>
#include <QString>
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

    /// The text as UTF-8.
    [[nodiscard]] static Secret fromText(const QString &text);

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
