#pragma once

#include "app/PathListTable.h"

/// The folder list of the current profile.
class listTable : public PathListTable {
public:
    explicit listTable(outlets::TableView &view) : PathListTable(QStringLiteral("folders"), view) {}
};
