#pragma once

#include "outlets/TableView.h"

/// The registered tools: "c10" name, "c20" path, "c30" whether it is the right tool (runs it), "c40" empty:
/// the place of the button that chooses a file.
class pathTable : public outlets::TableDataSource {
public:
    [[nodiscard]] int numberOfRows() const override;
    [[nodiscard]] QVariant objectValue(const QString &column, int row) const override;
    void setObjectValue(const QVariant &value, const QString &column, int row) override; ///< "c20" only
    [[nodiscard]] bool isEditable(const QString &column) const override { return column == u"c20"; }
    [[nodiscard]] bool isSlow(const QString &column) const override { return column == u"c30"; }
};
