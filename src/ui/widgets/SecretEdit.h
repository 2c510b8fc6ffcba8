#pragma once

#include <QLineEdit>

namespace ui {

/// A field that a password is typed into. It keeps the characters in one place for as long as it lives, and
/// overwrites them when they go; single ones stay in what Qt keeps for undoing, and a shown password where it
/// was drawn from.
class SecretEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit SecretEdit(QWidget *parent = nullptr);
    ~SecretEdit() override;

    /// Takes the text in the place of the former one. `text` is overwritten.
    void setSecret(QString &&text);

    /// Whether this is the text; leaves no copy behind.
    [[nodiscard]] bool holds(const QString &text) const;

private:
    void overwrite() const;
};

} // namespace ui
