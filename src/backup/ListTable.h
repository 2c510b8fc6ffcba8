#pragma once

#include "outlets/TableView.h"

/// The folder list of the current profile: one column, "c10", of paths.
class listTable : public outlets::TableDataSource {
public:
    [[nodiscard]] int numberOfRows() const override;
    [[nodiscard]] QVariant objectValue(const QString &column, int row) const override;
    void setObjectValue(const QVariant &value, const QString &column,
                        int row) override; ///< reloads, changes nothing
};
