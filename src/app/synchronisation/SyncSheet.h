#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"
#include "outlets/TableView.h"

/// The sheet that stands over the window while rsync runs, and the panel of what it would do.
struct SyncSheet : virtual outlets::Registry {
    outlets::Panel progressPanel03{*this, QStringLiteral("progressPanel03")};
    outlets::ProgressBar progress03progressIndicator01{*this,
                                                       QStringLiteral("progress03progressIndicator01")};
    outlets::TextField progress03progressLabel01{
        *this, QStringLiteral("progress03progressLabel01")}; ///< what is done
    outlets::TextField progress03progressLabel02{
        *this, QStringLiteral("progress03progressLabel02")}; ///< how far it is
    outlets::Button buttonCancel03{*this, QStringLiteral("buttonCancel03")};

    outlets::Panel previewPanel01{*this, QStringLiteral("previewPanel01")};
    outlets::TextField previewText01{*this, QStringLiteral("previewText01")}; ///< how much of what
    outlets::TableView previewTableView{*this, QStringLiteral("previewTableView")};
};
