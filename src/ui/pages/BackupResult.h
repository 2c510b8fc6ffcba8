#pragma once

#include "runs/RunRecord.h"

#include <QLabel>
#include <QWidget>
#include <optional>

namespace ui {

class TextArea;

/// What a record tells a person.
struct ResultWords {
    QString headline;
    QString details; ///< what failed, what to do and what was left; empty where nothing is to be said
};
[[nodiscard]] ResultWords wordsOfBackup(const RunRecord &record);

/// The first files of the archives that the run made: to restore from.
[[nodiscard]] QStringList firstFilesOf(const RunRecord &record);

/// How the last backup ended: a line that stays, and what there is to be said of one that did not go well.
class BackupResult : public QWidget {
    Q_OBJECT

public:
    explicit BackupResult(QWidget *parent = nullptr);

    /// None: there was no backup, and nothing is shown.
    void setRecord(const std::optional<RunRecord> &record);
    [[nodiscard]] const std::optional<RunRecord> &record() const { return m_record; }

private:
    QLabel *m_sign;
    QLabel *m_headline;
    TextArea *m_details;
    std::optional<RunRecord> m_record;
};

} // namespace ui
