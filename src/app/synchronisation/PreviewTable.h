#pragma once

#include "outlets/TableView.h"

#include <memory>
#include <mutex>

struct Preview;

/// What the last preview found: "c10" what would happen, "c20" the size, "c30" the path.
class previewTable : public outlets::TableDataSource {
public:
    void setPreview(std::shared_ptr<const Preview> preview);
    [[nodiscard]] std::shared_ptr<const Preview> preview() const; ///< null before the first

    [[nodiscard]] int numberOfRows() const override;
    [[nodiscard]] QVariant objectValue(const QString &column, int row) const override;

private:
    mutable std::mutex m_mutex;
    std::shared_ptr<const Preview> m_preview;
};
