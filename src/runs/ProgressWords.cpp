#include "runs/ProgressWords.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(runs)
};

// The names that stages have, and what is said of them.
const QHash<QString, const char *> &stages()
{
    static const QHash<QString, const char *> words{
        {u"storing"_s, QT_TRANSLATE_NOOP("runs", "Collecting")},
        {u"encrypting"_s, QT_TRANSLATE_NOOP("runs", "Encrypting")},
        {u"packing"_s, QT_TRANSLATE_NOOP("runs", "Packing")},
        {u"finishing"_s, QT_TRANSLATE_NOOP("runs", "Finishing")},
        {u"testing"_s, QT_TRANSLATE_NOOP("runs", "Testing")},
        {u"unpacking"_s, QT_TRANSLATE_NOOP("runs", "Unpacking")},
        {u"decrypting"_s, QT_TRANSLATE_NOOP("runs", "Decrypting")},
        {u"extracting"_s, QT_TRANSLATE_NOOP("runs", "Restoring")},
        {u"placing"_s, QT_TRANSLATE_NOOP("runs", "Putting in place")},
        {u"copying"_s, QT_TRANSLATE_NOOP("runs", "Copying")},
        {u"comparing"_s, QT_TRANSLATE_NOOP("runs", "Comparing")},
    };
    return words;
}

} // namespace

QString progressWords::size(double bytes)
{
    return QLocale().formattedDataSize(qint64(bytes), 1, QLocale::DataSizeSIFormat);
}

QString progressWords::bytes(const RunFigures &figures)
{
    if (figures.bytesToDo <= 0) return {};
    return Words::tr("%1 of %2").arg(size(figures.bytesDone), size(figures.bytesToDo));
}

QString progressWords::pace(const RunFigures &figures)
{
    return figures.bytesPerSecond ? Words::tr("%1/s").arg(size(*figures.bytesPerSecond)) : QString();
}

// Roughly: nobody can know it better, and a figure that flickers is not read.
QString progressWords::left(const RunFigures &figures)
{
    if (!figures.left) return {};
    const qint64 seconds = figures.left->count();
    const QLocale locale;
    if (seconds < 10) return Words::tr("A few seconds left");
    if (seconds < 100) return Words::tr("About %1 s left").arg(locale.toString((seconds + 9) / 10 * 10));
    const qint64 minutes = (seconds + 30) / 60;
    if (minutes < 100) return Words::tr("About %1 min left").arg(locale.toString(minutes));
    return Words::tr("About %1 h left").arg(locale.toString((minutes + 30) / 60));
}

QString progressWords::step(const RunFigures::Item &item)
{
    switch (item.phase) {
    case RunItem::Phase::Waiting:
        return Words::tr("Waiting");
    case RunItem::Phase::Running:
        break;
    case RunItem::Phase::Done:
        return Words::tr("Done");
    case RunItem::Phase::Failed:
        return Words::tr("Failed");
    case RunItem::Phase::LeftOut:
        return Words::tr("Left out");
    }
    const char *const words = stages().value(item.stage);
    return words ? Words::tr(words) : item.stage;
}
