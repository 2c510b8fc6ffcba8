#pragma once

#include "outlets/TableView.h"

/// The entries that the current profile synchronises: one column, "c10", of paths.
class syncTable : public outlets::TableDataSource {
public:
    [[nodiscard]] int numberOfRows() const override;
    [[nodiscard]] QVariant objectValue(const QString &column, int row) const override;
};
