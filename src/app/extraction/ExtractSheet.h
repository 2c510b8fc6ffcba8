#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"

/// The sheet that stands over the window while archives are extracted, and the questions before it.
struct ExtractSheet : virtual outlets::Registry {
    outlets::Panel progressPanel02{*this, u"progressPanel02"_qs};
    outlets::ProgressBar progress02progressIndicator01{*this, u"progress02progressIndicator01"_qs};
    outlets::TextField progress02progressLabel01{
        *this, u"progress02progressLabel01"_qs}; ///< shown while archives are tested
    outlets::TextField progress02progressLabel02{
        *this, u"progress02progressLabel02"_qs}; ///< shown while they are extracted
    outlets::Button buttonCancel02{*this, u"buttonCancel02"_qs};

    outlets::Panel warningPanel02{*this, u"warningPanel02"_qs}; ///< the folder holds something: go on?
    outlets::TextField folderNotEmptyText01{*this, u"folderNotEmptyText01"_qs};

    outlets::Panel contentsPanel01{*this, u"contentsPanel01"_qs}; ///< what an archive holds

    outlets::Panel extractPanel01{*this, u"extractPanel01"_qs};               ///< an archive failed its test
    outlets::TextField extractPanelText01{*this, u"extractPanelText01"_qs};   ///< which
    outlets::TextField extractReasonText01{*this, u"extractReasonText01"_qs}; ///< why, and what to do
};
