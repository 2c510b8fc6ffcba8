#include "ui/widgets/SecretEdit.h"

#include "keychain/Secret.h"

#include <QSignalBlocker>

namespace ui {

// What is typed goes into the room that the text has. One that has to grow is copied, and nobody overwrites
// what it was before.
SecretEdit::SecretEdit(QWidget *parent) : QLineEdit(parent) { setSecret({}); }

SecretEdit::~SecretEdit() { overwrite(); }

void SecretEdit::setSecret(QString &&text)
{
    constexpr qsizetype roomForAny = 2048; // characters; no password may be as long
    QString roomy;
    roomy.reserve(std::max(roomForAny, text.size()));
    roomy += text;
    wipe(text);
    overwrite();
    const QSignalBlocker quiet(this);
    setText(roomy); // shares what it is given
}

bool SecretEdit::holds(const QString &text) const { return this->text() == text; }

void SecretEdit::overwrite() const
{
    wipeInPlace(text()); // shared with the field itself
    if (echoMode() == Normal) wipeInPlace(displayText());
}

} // namespace ui
