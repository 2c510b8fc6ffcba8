#include "keys/CertificateSummary.h"

#include "keys/SecretRules.h"
#include "tools/RegisteredTool.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(keys)
};

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
    QDateTime date = QLocale::c().toDateTime(text.simplified().remove(u" GMT"_s), u"MMM d hh:mm:ss yyyy"_s);
    date.setTimeSpec(Qt::UTC);
    return date;
}

QString day(const QDateTime &date)
{
    return QLocale().toString(date.toLocalTime().date(), QLocale::ShortFormat);
}

} // namespace

std::optional<CertificateSummary> quillorentLibrary::readCertificateSummary(const QString &certificate)
{
    const ToolResult result = runRegisteredTool(
        u"OpenSSL"_s, {u"x509"_s, u"-in"_s, certificate, u"-inform"_s, u"PEM"_s, u"-noout"_s, u"-subject"_s,
                       u"-nameopt"_s, u"RFC2253,-esc_msb,utf8"_s, u"-dates"_s});
    const QStringList lines = result.text().split(u'\n');
    CertificateSummary summary{.subject = lineAfter(lines, u"subject="_s),
                               .key = judgeCertificate(certificate).key,
                               .notBefore = readDate(lineAfter(lines, u"notBefore="_s)),
                               .notAfter = readDate(lineAfter(lines, u"notAfter="_s))};
    if (!summary.notBefore.isValid() || !summary.notAfter.isValid()) return std::nullopt;
    return summary;
}

QString quillorentLibrary::describeCertificate(const CertificateSummary &summary)
{
    const QString subject = summary.subject.isEmpty() ? Words::tr("(no subject)") : summary.subject;
    const QString key = summary.key.isEmpty() ? QString() : u" – "_s + summary.key;
    return Words::tr("%1%2 – valid from %3 to %4")
        .arg(subject, key, day(summary.notBefore), day(summary.notAfter));
}

QString quillorentLibrary::validityWarning(const CertificateSummary &summary, const QDateTime &now)
{
    if (now < summary.notBefore)
        return Words::
            tr("This certificate is not valid before %1. Check the computer's clock, or choose another one.")
                .arg(day(summary.notBefore));
    if (now > summary.notAfter)
        return Words::tr("This certificate has expired on %1. What it encrypted still opens with its private "
                         "key; for new archives choose one that is valid.")
            .arg(day(summary.notAfter));
    const qint64 days = now.daysTo(summary.notAfter);
    if (days > soonDays) return {};
    if (days == 0) return Words::tr("This certificate expires today.");
    if (days == 1) return Words::tr("This certificate expires tomorrow.");
    return Words::tr("This certificate expires in %n days, on %1.", nullptr, int(days))
        .arg(day(summary.notAfter));
}
