#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"

/// The sheet that stands over the window while a backup runs, and the question before it.
struct BackupProgressSheet : virtual outlets::Registry {
    outlets::Panel progressPanel01{*this, u"progressPanel01"_qs};
    outlets::ProgressBar view01progressIndicator01{*this, u"view01progressIndicator01"_qs};
    outlets::TextField view01progressLabel01{
        *this, u"view01progressLabel01"_qs}; ///< shown while folders are processed
    outlets::TextField view01progressLabel02{*this,
                                             u"view01progressLabel02"_qs}; ///< shown while sizes are measured
    outlets::Button buttonCancel01{*this, u"buttonCancel01"_qs};

    outlets::Panel warningPanel03{*this, u"warningPanel03"_qs}; ///< the destination holds something: go on?
    outlets::TextField folderNotEmptyText02{*this, u"folderNotEmptyText02"_qs};
    outlets::TextField overwritesText02{*this, u"overwritesText02"_qs}; ///< what becomes of that
};
