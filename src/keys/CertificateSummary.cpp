#include "keys/CertificateSummary.h"

#include "keys/SecretRules.h"
#include "tools/RegisteredTool.h"

#include <QLocale>

namespace {

constexpr qint64 soonDays = 30;

/// What follows `label` at the beginning of a line.
QString lineAfter(const QStringList &lines, const QString &label)
{
    for (const QString &line : lines)
        if (line.startsWith(label)) return line.mid(label.size()).trimmed();
    return {};
}

/// Reads the tool's "Nov  1 09:00:00 2026 GMT"; invalid where it is something else.
QDateTime readDate(const QString &text)
{
    QDateTime date = QLocale::c().toDateTime(text.simplified().remove(u" GMT"_qs), u"MMM d hh:mm:ss yyyy"_qs);
    date.setTimeSpec(Qt::UTC);
    return date;
}

QString day(const QDateTime &date) { return date.toLocalTime().date().toString(Qt::ISODate); }

} // namespace

std::optional<CertificateSummary> quillorentLibrary::readCertificateSummary(const QString &certificate)
{
    const ToolResult result = runRegisteredTool(
        u"OpenSSL"_qs, {u"x509"_qs, u"-in"_qs, certificate, u"-inform"_qs, u"PEM"_qs, u"-noout"_qs,
                        u"-subject"_qs, u"-nameopt"_qs, u"RFC2253,-esc_msb,utf8"_qs, u"-dates"_qs});
    const QStringList lines = result.text().split(u'\n');
    CertificateSummary summary{.subject = lineAfter(lines, u"subject="_qs),
                               .key = judgeCertificate(certificate).key,
                               .notBefore = readDate(lineAfter(lines, u"notBefore="_qs)),
                               .notAfter = readDate(lineAfter(lines, u"notAfter="_qs))};
    if (!summary.notBefore.isValid() || !summary.notAfter.isValid()) return std::nullopt;
    return summary;
}

QString quillorentLibrary::describeCertificate(const CertificateSummary &summary)
{
    const QString subject = summary.subject.isEmpty() ? u"(no subject)"_qs : summary.subject;
    const QString key = summary.key.isEmpty() ? QString() : u" – "_qs + summary.key;
    return u"%1%2 – valid from %3 to %4"_qs.arg(subject, key, day(summary.notBefore), day(summary.notAfter));
}

QString quillorentLibrary::validityWarning(const CertificateSummary &summary, const QDateTime &now)
{
    if (now < summary.notBefore)
        return u"This certificate is not valid before %1. Check the computer's clock, or choose another one."_qs
            .arg(day(summary.notBefore));
    if (now > summary.notAfter)
        return u"This certificate has expired on %1. What it encrypted still opens with its "
               "private key; for new archives choose one that is valid."_qs.arg(day(summary.notAfter));
    const qint64 days = now.daysTo(summary.notAfter);
    if (days > soonDays) return {};
    return days == 0 ? u"This certificate expires today."_qs
                     : u"This certificate expires in %1 days, on %2."_qs.arg(QString::number(days),
                                                                             day(summary.notAfter));
}
