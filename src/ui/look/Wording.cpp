#include "ui/look/Wording.h"

#include "files/Printable.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Wording)
};

QString clockText(QTime time)
{
    // The shortest form of some locales has seconds, which nobody asks for.
    QString format = QLocale().timeFormat(QLocale::ShortFormat);
    format.remove(u":ss"_s);
    return QLocale().toString(time, format);
}

} // namespace

QString sizeText(quint64 bytes)
{
    return QLocale().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeSIFormat);
}

QString momentText(const QDateTime &moment)
{
    const QDateTime local = moment.toLocalTime();
    const QString time = clockText(local.time());
    const qint64 days = local.date().daysTo(QDate::currentDate());
    if (days == 0) return Words::tr("today at %1").arg(time);
    if (days == 1) return Words::tr("yesterday at %1").arg(time);
    return Words::tr("on %1 at %2").arg(QLocale().toString(local.date(), QLocale::ShortFormat), time);
}

QString durationText(std::chrono::seconds duration)
{
    const auto number = [](qint64 value) { return QLocale().toString(value); };
    const qint64 seconds = duration.count();
    const qint64 minutes = (seconds + 30) / 60;
    if (seconds < 90) return Words::tr("%1 s").arg(number(std::max<qint64>(seconds, 1)));
    if (minutes < 90) return Words::tr("%1 min").arg(number(minutes));
    return Words::tr("%1 h %2 min").arg(number(minutes / 60), number(minutes % 60));
}

QString pathText(const QString &path)
{
    const QString shown = printableName(path);
    if (!QGuiApplication::isRightToLeft()) return shown;
    constexpr char16_t isolate = 0x2066, end = 0x2069; // Unicode's left-to-right isolate
    return isolate + shown + end;
}

QString breakable(const QString &text)
{
    constexpr int longest = 40; // as no word of a language is
    constexpr QChar maybeBreak(0x200b);
    QString all;
    int length = 0;
    for (const QChar unit : printable(text)) {
        length = unit.isSpace() || unit == u'/' ? 0 : length + 1;
        if (length > longest && !unit.isLowSurrogate() && !unit.isMark()) {
            all += maybeBreak;
            length = 1;
        }
        all += unit;
    }
    return all;
}

} // namespace ui
