#include "app/QuillorentAppDelegate.h"
#include "keys/CertificateSummary.h"
#include "keys/Certificates.h"
#include "keys/Refusals.h"
#include "keys/SecretRules.h"
#include "tools/Threads.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(passwords)
};

outlets::OpenPanel keyChooser(const QString &title)
{
    return {.title = title,
            .allowedFileTypes = {u"cer"_s, u"p12"_s, u"p15"_s, u"crt"_s, u"der"_s, u"pem"_s, u"pfx"_s,
                                 u"cert"_s, u"txt"_s, u"rtf"_s, u"pk12"_s, u"pk15"_s, u"pkcs12"_s}};
}

void showOrHide(outlets::TextField &field, const QString &text)
{
    field.setText(text);
    field.setHidden(text.isEmpty());
}

/// What a private key that is missing, or belongs to another certificate, means; empty where there is the
/// right one.
QString keyWarning(const QString &certificate, const QString &key)
{
    const QString meaning =
        Words::tr("Nothing that is encrypted for this certificate can be opened without its private key: "
                  "make sure that you have it, and a copy in a safe place.");
    if (key.isEmpty()) return Words::tr("No private key is chosen. ") + meaning;
    if (!QFileInfo(key).isFile()) return Words::tr("The private key is not where it was. ") + meaning;
    if (quillorentLibrary::testKey(certificate, key)) return {};
    return quillorentLibrary::whyNoKey(certificate, key);
}

/// What to tell of the chosen certificate.
struct CertificateNotes {
    QString summary{};
    QString warning{};
};

CertificateNotes notesOn(const QString &certificate)
{
    if (certificate.isEmpty()) return {};
    const auto summary = quillorentLibrary::readCertificateSummary(certificate);
    if (!summary) return {.warning = quillorentLibrary::whyNoCertificate(certificate)};
    const CertificateJudgement judgement = judgeCertificate(certificate);
    QStringList warnings{quillorentLibrary::validityWarning(*summary, QDateTime::currentDateTimeUtc()),
                         judgement.obstacle, judgement.concern};
    warnings.removeAll(QString());
    return {quillorentLibrary::describeCertificate(*summary), warnings.join(u'\n')};
}

} // namespace

// Files may lie on a slow disk, and tools take their time: what looks at them does so on a thread of its own.

void QuillorentAppDelegate::certButton01Action()
{
    const auto chosen = openPanel(keyChooser(Words::tr("Choose a certificate")));
    if (!chosen) return;
    const QString path = chosen->value(0);
    detachThread(u"check-cert"_s, [this, path, record = currentRecord(),
                                   request = m_certificateChoices.begin()] {
        if (path.isEmpty() || !quillorentLibrary::testCert(path, u"Validity"_s)) {
            const QString why = quillorentLibrary::whyNoCertificate(path);
            if (!m_certificateChoices.isNewest(request)) return; // another one was chosen in the meantime
            certPanelText01.setText(why);
            certPanel01.runModal();
            return;
        }
        m_certificateChoices.apply(request, [&] { keepChoice(record, u"lastcertfile"_s, certFile01, path); });
    });
}

void QuillorentAppDelegate::pkButton01Action()
{
    const auto chosen = openPanel(keyChooser(Words::tr("Choose the private key")));
    if (!chosen) return;
    const QString path = chosen->value(0);
    detachThread(u"check-key"_s, [this, path, certificate = certFile01.text(), record = currentRecord(),
                                  request = m_keyChoices.begin()] {
        if (path.isEmpty() || !quillorentLibrary::testKey(certificate, path)) {
            const QString why = quillorentLibrary::whyNoKey(certificate, path);
            if (!m_keyChoices.isNewest(request)) return;
            pkPanelText01.setText(why);
            pkPanel01.runModal();
            return;
        }
        m_keyChoices.apply(request, [&] { keepChoice(record, u"lastpkfile"_s, pkFile01, path); });
    });
}

void QuillorentAppDelegate::keepChoice(const plist::Dictionary &record, const QString &key,
                                       outlets::TextField &field, const QString &path)
{
    record.setValue(key, path);
    if (!record.isSameObject(currentRecord())) return; // another profile was opened in the meantime
    field.setText(path);
    describeKeys();
}

void QuillorentAppDelegate::certButton01ActionEnd() { closeSheet(certPanel01); }

void QuillorentAppDelegate::pkButton01ActionEnd() { closeSheet(pkPanel01); }

void QuillorentAppDelegate::certInfo01()
{
    const QString path = certFile01.text();
    if (path.isEmpty()) return;
    consolePanel01.orderFront();
    consoleTextView01.setText({});
    detachThread(u"show-cert"_s,
                 [this, path] { consoleTextView01.setText(quillorentLibrary::showCert(path)); });
}

void QuillorentAppDelegate::certInfo02()
{
    const QString path = pkFile01.text();
    if (path.isEmpty()) return;
    consolePanel01.orderFront();
    detachThread(u"show-key"_s, [this, path] {
        consoleTextView01.setText(quillorentLibrary::showKey(path).value_or(QString()));
    });
}

void QuillorentAppDelegate::describeKeys()
{
    const int request = m_keyDescriptions.begin();
    detachThread(u"describe-keys"_s, [this, request, certificate = certFile01.text(), key = pkFile01.text()] {
        const CertificateNotes notes = notesOn(certificate);
        const QString missing = certificate.isEmpty() ? QString() : keyWarning(certificate, key);
        m_keyDescriptions.apply(request, [&] {
            showOrHide(certSummary01, notes.summary);
            showOrHide(certWarning01, notes.warning);
            showOrHide(pkWarning01, missing);
        });
    });
}
