#pragma once

#include "outlets/TableView.h"

#include <QString>
#include <QStringList>

/// A list of paths in the current profile's record: one column, "c10".
class PathListTable : public outlets::TableDataSource {
public:
    /// `key` is the list's in the record, `view` the table that shows it.
    PathListTable(QString key, outlets::TableView &view) : m_key(std::move(key)), m_view(view) {}

    [[nodiscard]] int numberOfRows() const override;
    [[nodiscard]] QVariant objectValue(const QString &column, int row) const override;
    void setObjectValue(const QVariant &value, const QString &column, int row) override; ///< only reloads

    void add(const QStringList &paths);
    void removeSelected();

private:
    const QString m_key;
    outlets::TableView &m_view;
};
