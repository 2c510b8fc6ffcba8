#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"
#include "outlets/TableView.h"

/// The sheet that stands over the window while rsync runs, and the panel of what it would do.
struct SyncSheet : virtual outlets::Registry {
    outlets::Panel progressPanel03{*this, u"progressPanel03"_qs};
    outlets::ProgressBar progress03progressIndicator01{*this, u"progress03progressIndicator01"_qs};
    outlets::TextField progress03progressLabel01{*this, u"progress03progressLabel01"_qs}; ///< what is done
    outlets::TextField progress03progressLabel02{*this, u"progress03progressLabel02"_qs}; ///< how far it is
    outlets::Button buttonCancel03{*this, u"buttonCancel03"_qs};

    outlets::Panel previewPanel01{*this, u"previewPanel01"_qs};
    outlets::TextField previewText01{*this, u"previewText01"_qs}; ///< how much of what
    outlets::TableView previewTableView{*this, u"previewTableView"_qs};
};
