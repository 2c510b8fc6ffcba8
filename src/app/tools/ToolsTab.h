#pragma once

#include "outlets/Progress.h"
#include "outlets/TableView.h"

/// The tab of the external tools.
struct ToolsTab : virtual outlets::Registry {
    outlets::TableView pathTableView{*this, u"pathTableView"_qs};
    outlets::LevelIndicator level01{*this, u"level01"_qs};
};
