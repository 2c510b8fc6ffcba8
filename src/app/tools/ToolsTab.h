#pragma once

#include "outlets/Controls.h"
#include "outlets/Progress.h"
#include "outlets/TableView.h"

/// The tab of the external tools.
struct ToolsTab : virtual outlets::Registry {
    outlets::TableView pathTableView{*this, QStringLiteral("pathTableView")};
    outlets::TextField toolsHint01{
        *this, QStringLiteral("toolsHint01")}; ///< what is wrong with a tool that passes its test
    outlets::LevelIndicator level01{*this, QStringLiteral("level01")};
};
