#pragma once

#include "outlets/Controls.h"
#include "outlets/Progress.h"
#include "outlets/TableView.h"

/// The tab of the external tools.
struct ToolsTab : virtual outlets::Registry {
    outlets::TableView pathTableView{*this, u"pathTableView"_qs};
    outlets::TextField toolsHint01{*this,
                                   u"toolsHint01"_qs}; ///< what is wrong with a tool that passes its test
    outlets::LevelIndicator level01{*this, u"level01"_qs};
};
