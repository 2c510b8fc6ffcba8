#pragma once

#include "app/PathListTable.h"

/// The entries that the current profile synchronises.
class syncTable : public PathListTable {
public:
    explicit syncTable(outlets::TableView &view) : PathListTable(QStringLiteral("sync"), view) {}
};
