#include "app/synchronisation/PreviewTable.h"

#include "sync/Preview.h"

#include <QLocale>

std::shared_ptr<const Preview> previewTable::preview() const
{
    const std::lock_guard lock(m_mutex);
    return m_preview;
}

void previewTable::setPreview(std::shared_ptr<const Preview> preview)
{
    const std::lock_guard lock(m_mutex);
    m_preview = std::move(preview);
}

int previewTable::numberOfRows() const
{
    const auto shown = preview();
    return shown ? int(shown->rows.size()) : 0;
}

QVariant previewTable::objectValue(const QString &column, int row) const
{
    const auto shown = preview();
    // Another preview may have come since the rows were counted.
    if (!shown || row < 0 || std::size_t(row) >= shown->rows.size()) return QString();
    const PreviewRow &cells = shown->rows[std::size_t(row)];
    if (column == u"c10") return describeChange(cells.change, shown->removesSources);
    if (column == u"c20")
        return cells.size > 0 ? QLocale().formattedDataSize(cells.size, 1, QLocale::DataSizeSIFormat)
                              : QString();
    return column == u"c30" ? cells.path : QString();
}
