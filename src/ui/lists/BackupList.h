#pragma once

#include "extract/BackupsFound.h"

#include <QTreeWidget>

namespace ui {

/// The backups that lie in a place, by what was backed up, with a box each that says whether it is to be
/// brought back. Older ones of the same stand below the newest.
class BackupList : public QTreeWidget {
    Q_OBJECT

public:
    explicit BackupList(QWidget *parent = nullptr);

    void setBackups(const QList<FoundBackup> &backups);
    /// Which of them are to be brought back, by their paths.
    void setTaken(const QStringList &archives);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void taken(const QString &archive, bool isTaken); ///< by a person

private:
    void add(const FoundBackup &backup, QTreeWidgetItem *newest);
    void tellOfBox(QTreeWidgetItem *item, int column);
    [[nodiscard]] int heightOfRows(int rows) const;

    QList<FoundBackup> m_backups;
};

} // namespace ui
