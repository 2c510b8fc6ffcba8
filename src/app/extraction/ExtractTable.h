#pragma once

#include "outlets/TableView.h"

/// The archives that were added: one column, "c10", of paths.
class extractTable : public outlets::TableDataSource {
public:
    [[nodiscard]] int numberOfRows() const override;
    [[nodiscard]] QVariant objectValue(const QString &column, int row) const override;

    /// Whether the row's archive is one of those that are extracted. The others are shown greyed.
    [[nodiscard]] bool isExtracted(int row) const;
};
