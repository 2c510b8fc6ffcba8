#include "runs/RunJournal.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSaveFile>
#include <algorithm>
#include <atomic>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(runs)
};

Q_LOGGING_CATEGORY(logRecords, "quillorent.records")

constexpr qsizetype mostKept = 200;

/// Empty where it is written.
QString write(const QString &path, const RunRecord &record)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    // What doesn't fit may show only when the buffer is emptied, and commit() doesn't look at that.
    const bool isWritten = file.write(toJson(record)) >= 0 && file.flush();
    return isWritten && file.commit() ? QString() : file.errorString();
}

void writeOrLog(const QString &path, const RunRecord &record)
{
    if (const QString reason = write(path, record); !reason.isEmpty())
        qCWarning(logRecords).noquote() << path << "can't be written:" << reason;
}

bool isDoneWith(const RunRecord &record)
{
    if (!record.ended.isValid()) return false;
    return std::all_of(record.items.begin(), record.items.end(),
                       [](const ItemRecord &item) { return item.left.isEmpty() && item.former.isEmpty(); });
}

QString nameFor(const RunRecord &record)
{
    static std::atomic<int> count = 0;
    return u"%1-%2-%3.json"_s.arg(record.began.toUTC().toString(u"yyyyMMdd'T'hhmmsszzz"_s))
        .arg(QCoreApplication::applicationPid())
        .arg(++count);
}

} // namespace

QString recordsFolder()
{
    const QString configured = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
    const QString state =
        QDir::isAbsolutePath(configured) ? configured : QDir::home().filePath(u".local/state"_s);
    return QDir::cleanPath(state + u"/quillorent/runs"_s);
}

QString whyNoRecords()
{
    const QString folder = recordsFolder();
    if (!QDir().mkpath(folder)) return Words::tr("the folder \"%1\" can't be made").arg(folder);
    QSaveFile probe(folder + u"/probe"_s);
    if (probe.open(QIODevice::WriteOnly)) return {};
    return u"\"%1\": %2"_s.arg(folder, probe.errorString());
}

RunJournal::RunJournal(RunRecord record)
    : m_path(recordsFolder() + u'/' + nameFor(record)), m_record(std::move(record))
{
}

void RunJournal::begin()
{
    const std::lock_guard lock(m_mutex);
    if (m_record.kind.isEmpty()) return;
    // Nobody has looked for it before a run that starts without a look.
    QDir().mkpath(QFileInfo(m_path).path());
    m_file.setFileName(m_path);
    const bool isOpen = m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                                    QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (!isOpen || m_file.write(recordLine(m_record)) < 0)
        qCWarning(logRecords).noquote() << m_path << "can't be written:" << m_file.errorString();
    if (isOpen) fsync(m_file.handle());
}

void RunJournal::changeItem(qsizetype index, const std::function<void(ItemRecord &)> &step)
{
    const std::lock_guard lock(m_mutex);
    step(m_record.items[index]);
    if (m_file.isOpen()) m_file.write(itemLine(index, m_record.items[index]));
}

void RunJournal::sync()
{
    const std::lock_guard lock(m_mutex);
    if (m_file.isOpen()) fsync(m_file.handle());
}

void RunJournal::end(const std::function<void(RunRecord &)> &step)
{
    const std::lock_guard lock(m_mutex);
    step(m_record);
    m_file.close();
    if (!m_record.kind.isEmpty()) writeOrLog(m_path, m_record);
}

void RunJournal::read(const std::function<void(const RunRecord &)> &reader) const
{
    const std::lock_guard lock(m_mutex);
    reader(m_record);
}

QList<KeptRecord> keptRecords()
{
    QList<KeptRecord> records;
    // The names begin with the time.
    const QDir folder(recordsFolder(), u"*.json"_s, QDir::Name, QDir::Files);
    for (const QString &name : folder.entryList()) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) continue;
        if (auto record = recordFromJson(file.readAll()))
            records.append({file.fileName(), *std::move(record)});
    }
    qsizetype tooMany = records.size() - mostKept;
    records.removeIf([&](const KeptRecord &kept) {
        return tooMany > 0 && isDoneWith(kept.record) && (--tooMany, QFile::remove(kept.path));
    });
    return records;
}

void rewrite(const KeptRecord &kept) { writeOrLog(kept.path, kept.record); }
