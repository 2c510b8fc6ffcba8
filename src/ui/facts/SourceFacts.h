#pragma once

#include "backup/SourceLook.h"
#include "runs/BackupHistory.h"
#include "ui/watching/Beside.h"
#include "ui/watching/LookTimer.h"

#include <chrono>
#include <unordered_map>
#include <vector>

class QuillorentAppDelegate;

namespace ui {

class RefreshQueue;

/// What is known of the entries of the lists to back up and to synchronise, of their place and of the backups
/// before: found on threads of its own, kept, and looked at again when the list changes, a run has ended, or
/// the program comes to the front. While a run is at work the disk is left to it.
class SourceFacts : public QObject {
    Q_OBJECT

public:
    SourceFacts(QuillorentAppDelegate &controller, RefreshQueue &queue, QObject *parent);

    struct Fact {
        bool isKnown = false; ///< looked at; the rest says nothing before
        SourceState state = SourceState::Fine;
        bool isFile = false;
        std::optional<quint64> bytes; ///< none while they are not known
        QDateTime backedUp;           ///< when last; invalid: never
    };
    [[nodiscard]] Fact of(const QString &path) const;

    /// Of all that is backed up, together; none while one of them is not known.
    [[nodiscard]] std::optional<quint64> bytesOfAll() const;
    [[nodiscard]] std::optional<qint64> roomAtDestination() const { return m_room; } ///< none: not known
    /// The last backup of this profile; none where no record tells of one, or before they were read.
    [[nodiscard]] const std::optional<RunRecord> &lastBackup() const { return m_history.last; }

Q_SIGNALS:
    void changed();
    void looked(); ///< all but the sizes is new

private:
    struct Entry {
        SourceState state = SourceState::Fine;
        bool isFile = false;
    };
    struct Look {
        QString profile;
        std::unordered_map<QString, Entry> entries;
        BackupHistory history;
        std::optional<qint64> room;
    };
    struct Size {
        QString path;
        std::optional<quint64> bytes; ///< none: a run came between
    };
    struct Kept {
        quint64 bytes = 0;
        std::chrono::steady_clock::time_point since;
    };

    void look();
    void take(Look found);
    void measureNext();
    void takeSize(const Size &size);
    [[nodiscard]] QStringList backedUpPaths() const;
    [[nodiscard]] QStringList paths() const; ///< of both lists, each once

    QuillorentAppDelegate &m_controller;
    LookTimer m_timer;
    Beside<Look> m_look;
    Beside<Size> m_measure;
    QString m_profile;
    std::unordered_map<QString, Entry> m_entries;
    std::unordered_map<QString, Kept> m_sizes;
    BackupHistory m_history;
    std::optional<qint64> m_room;
};

} // namespace ui
