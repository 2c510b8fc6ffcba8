#include "outlets/Controls.h"

#include "keychain/Secret.h"

namespace outlets {

namespace {

QString ownCopy(const QString &text)
{
    return text.isNull() ? QString() : QString(text.constData(), text.size());
}

} // namespace

SecretField::~SecretField() { wipe(m_secret); }

QString SecretField::text() const
{
    const std::lock_guard lock(m_mutex);
    return ownCopy(m_secret);
}

void SecretField::setText(const QString &text)
{
    update([&] {
        if (m_secret == text) return false;
        wipe(m_secret);
        m_secret = ownCopy(text);
        return true;
    });
}

void SecretField::setText(QString &&text)
{
    setText(std::as_const(text));
    wipe(text);
}

bool SecretField::isEmpty() const
{
    const std::lock_guard lock(m_mutex);
    return m_secret.isEmpty();
}

bool SecretField::holdsSameAs(const SecretField &other) const
{
    QString text = other.text();
    const bool isSame = [&] {
        const std::lock_guard lock(m_mutex);
        return m_secret == text;
    }();
    wipe(text);
    return isSame;
}

void Chooser::setTitles(const QStringList &titles)
{
    update([&] {
        if (m_titles == titles) return false;
        m_titles = titles;
        if (!m_titles.contains(m_selected)) m_selected.clear();
        return true;
    });
}

void Chooser::selectTitle(const QString &title)
{
    update([&] {
        const QString known = m_titles.contains(title) ? title : QString();
        if (m_selected == known) return false;
        m_selected = known;
        return true;
    });
}

} // namespace outlets
