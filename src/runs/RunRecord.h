#pragma once

#include "files/Entry.h"
#include "files/SetAside.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

/// How a run, or one of its items, ended.
enum class Outcome { Open, Succeeded, Failed, Skipped, Cancelled };

/// A file that a run left behind although it was to go.
struct LeftFile {
    QString path;
    bool isClear = false; ///< anybody who reads it reads what was to be encrypted
    std::optional<FileIdentity>
        identity{}; ///< none: the run ended before it could tell the file from another
};

/// What became of one item of a run.
struct ItemRecord {
    QString path; ///< what was backed up or extracted
    Outcome outcome = Outcome::Open;
    QString reason{};         ///< why it failed or was skipped
    quint64 bytes = 0;        ///< of the item
    QStringList archives{};   ///< files of the archive that was made
    QStringList between{};    ///< paths of files of the run's own, that exist for a while
    QString clear{};          ///< which of them is not encrypted
    QList<LeftFile> left{};   ///< which of them are there
    QList<Aside> former{};    ///< files of the archive that is being replaced
    QStringList final{};      ///< names that the new archive may take, without those of its volumes
    QDateTime packingSince{}; ///< when its making began; invalid before
    QList<Aside> kept{};      ///< what was in the way and is not the run's: it stays under its other name
    QString contents{};       ///< the deepest folder that all of what an extraction brought back shares
};

/// What a run leaves in writing: for the next run, which tidies up after one that was killed, and for people.
/// No secret is ever in it.
struct RunRecord {
    QString kind{}; ///< "backup", "extract", "look" (into an archive) or "sync"
    QString profile{};
    QString folder{}; ///< where it writes
    QDateTime began{};
    QDateTime ended{}; ///< invalid: it runs, or was killed
    Outcome outcome = Outcome::Open;
    QString summary{};
    QList<ItemRecord> items{};
};

/// As JSON (RFC 8259), UTF-8; times as ISO 8601, numbers beyond 53 bits as texts.
[[nodiscard]] QByteArray toJson(const RunRecord &record);

/// The record of a run that is at work: a line for the record, and later a line for each change of an item;
/// see itemLine(). The JSON of each is in one line.
[[nodiscard]] QByteArray recordLine(const RunRecord &record);
[[nodiscard]] QByteArray itemLine(qsizetype index, const ItemRecord &item);

/// Reads either form; a last line that was not finished is passed over. None where the text is none of a
/// record.
[[nodiscard]] std::optional<RunRecord> recordFromJson(const QByteArray &json);
