#include "ui/pages/BackupResult.h"

#include "backup/Advice.h"
#include "extract/ArchiveName.h"
#include "files/Names.h"
#include "ui/look/Appearance.h"
#include "ui/look/Wording.h"
#include "ui/widgets/TextArea.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

int countOf(const RunRecord &record, Outcome outcome)
{
    return int(std::count_if(record.items.begin(), record.items.end(),
                             [outcome](const ItemRecord &item) { return item.outcome == outcome; }));
}

QString named(const ItemRecord &item) { return quillorentLibrary::lastPathComponent(item.path); }

quint64 bytesOf(const RunRecord &record)
{
    quint64 bytes = 0;
    for (const ItemRecord &item : record.items)
        if (item.outcome == Outcome::Succeeded) bytes += item.bytes;
    return bytes;
}

/// "2 of 3 folders", or "3 folders" of as many.
QString shareOf(const RunRecord &record)
{
    const int all = int(record.items.size());
    const int done = countOf(record, Outcome::Succeeded);
    const QString total =
        all == 1 ? BackupResult::tr("1 folder") : BackupResult::tr("%n folders", nullptr, all);
    return done == all ? total
                       : BackupResult::tr("%1 of %2", "3 of 4 folders").arg(QLocale().toString(done), total);
}

QString headlineOf(const RunRecord &record)
{
    const QDateTime when = record.ended.isValid() ? record.ended : record.began;
    const std::chrono::seconds took(record.began.secsTo(when));
    const QString moment = momentText(when);
    const bool isAnyFailed = countOf(record, Outcome::Failed) > 0;
    const QString amount =
        BackupResult::tr("%1 in %2", "48 GB in 11 min").arg(sizeText(bytesOf(record)), durationText(took));
    if (record.outcome == Outcome::Succeeded)
        return QStringList{BackupResult::tr("Backed up %1").arg(moment), shareOf(record), amount}.join(
            u" · "_s);
    if (record.outcome == Outcome::Cancelled)
        return BackupResult::tr("Cancelled %1").arg(moment) + u" · "_s +
               BackupResult::tr("backed up by then: %1").arg(shareOf(record));
    if (!record.ended.isValid())
        return BackupResult::tr("The backup that began %1 was interrupted").arg(moment) + u" · "_s +
               BackupResult::tr("backed up by then: %1").arg(shareOf(record));
    if (!isAnyFailed && countOf(record, Outcome::Skipped) > 0)
        return QStringList{BackupResult::tr("Backed up %1, but not everything").arg(moment), shareOf(record),
                           amount}
            .join(u" · "_s);
    return BackupResult::tr("The backup failed %1").arg(moment) + u" · "_s +
           BackupResult::tr("backed up: %1").arg(shareOf(record));
}

void addFailures(const RunRecord &record, QStringList &lines)
{
    QStringList advice;
    for (const ItemRecord &item : record.items) {
        if (item.outcome != Outcome::Failed) continue;
        lines.append(BackupResult::tr("What failed: “%1” – %2").arg(named(item), item.reason.trimmed()));
        const QString todo = BackupResult::tr("What to do: %1").arg(adviceOnFailure(item.reason));
        if (!advice.contains(todo)) advice.append(todo);
    }
    lines += advice;
    if (!record.ended.isValid())
        lines.append(BackupResult::tr(
            "What to do: back up again. The next backup first puts in order what this one left."));
}

void addSkipped(const RunRecord &record, QStringList &lines)
{
    for (const ItemRecord &item : record.items)
        if (item.outcome == Outcome::Skipped)
            lines.append(BackupResult::tr("Left out: “%1” – %2. Connect its disk, or take it off the list.")
                             .arg(named(item), item.reason));
}

void addWhatWasLeft(const RunRecord &record, QStringList &lines)
{
    bool isAnyClear = false;
    for (const ItemRecord &item : record.items) {
        for (const LeftFile &left : item.left) {
            isAnyClear = isAnyClear || left.isClear;
            lines.append(
                left.isClear
                    ? BackupResult::tr("What was left: \"%1\", which is not encrypted").arg(left.path)
                    : BackupResult::tr("What was left: \"%1\"").arg(left.path));
        }
        for (const Aside &kept : item.kept)
            lines.append(
                BackupResult::tr("“%1” was in the way and is called “%2” now.").arg(kept.from, kept.to));
    }
    const bool isWhole = record.outcome == Outcome::Succeeded || countOf(record, Outcome::Failed) == 0;
    if (!isWhole && !isAnyClear)
        lines.append(
            BackupResult::tr("What was left: nothing. Archives from earlier backups are as they were."));
}

} // namespace

ResultWords wordsOfBackup(const RunRecord &record)
{
    QStringList lines;
    addFailures(record, lines);
    addSkipped(record, lines);
    addWhatWasLeft(record, lines);
    return {headlineOf(record), lines.join(u'\n')};
}

QStringList firstFilesOf(const RunRecord &record)
{
    QStringList files;
    for (const ItemRecord &item : record.items)
        for (const QString &path : item.archives) {
            const std::optional<VolumeName> volume = volumeName(path);
            const bool isLater = volume && volume->isLater();
            if (!isLater && !files.contains(path)) files.append(path);
        }
    return files;
}

BackupResult::BackupResult(QWidget *parent)
    : QWidget(parent), m_sign(new QLabel(this)), m_headline(new QLabel(this)), m_details(new TextArea(this))
{
    m_headline->setObjectName(u"resultHeadline"_s);
    m_headline->setTextFormat(Qt::PlainText);
    m_headline->setWordWrap(true);
    m_headline->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_details->setObjectName(u"resultDetails"_s);
    m_details->setAccessibleName(tr("What failed, what to do and what was left"));
    m_details->setMaximumHeight(fontMetrics().lineSpacing() * 7);

    auto *line = new QHBoxLayout;
    line->addWidget(m_sign);
    line->addWidget(m_headline, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(line);
    column->addWidget(m_details);
    setRecord(std::nullopt);
}

void BackupResult::setRecord(const std::optional<RunRecord> &record)
{
    m_record = record;
    setVisible(record.has_value());
    if (!record) return;
    const ResultWords words = wordsOfBackup(*record);
    const bool isGood = record->outcome == Outcome::Succeeded;
    const bool isBad = !isGood && record->outcome != Outcome::Cancelled;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_sign->setPixmap(stateSign(isGood ? Sign::Good : isBad ? Sign::Bad : Sign::Pending).pixmap(size));
    m_headline->setText(words.headline);
    if (m_details->text() != words.details) m_details->setPlainText(words.details);
    m_details->setVisible(!words.details.isEmpty());
}

} // namespace ui
