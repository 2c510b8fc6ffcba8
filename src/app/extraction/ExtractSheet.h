#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"

/// The sheet that stands over the window while archives are extracted, and the questions before it.
struct ExtractSheet : virtual outlets::Registry {
    outlets::Panel progressPanel02{*this, QStringLiteral("progressPanel02")};
    outlets::ProgressBar progress02progressIndicator01{*this,
                                                       QStringLiteral("progress02progressIndicator01")};
    outlets::TextField progress02progressLabel01{
        *this, QStringLiteral("progress02progressLabel01")}; ///< shown while archives are tested
    outlets::TextField progress02progressLabel02{
        *this, QStringLiteral("progress02progressLabel02")}; ///< shown while they are extracted
    outlets::Button buttonCancel02{*this, QStringLiteral("buttonCancel02")};

    outlets::Panel warningPanel02{*this,
                                  QStringLiteral("warningPanel02")}; ///< the folder holds something: go on?
    outlets::TextField folderNotEmptyText01{*this, QStringLiteral("folderNotEmptyText01")};

    outlets::Panel contentsPanel01{*this, QStringLiteral("contentsPanel01")}; ///< what an archive holds

    outlets::Panel extractPanel01{*this, QStringLiteral("extractPanel01")}; ///< an archive failed its test
    outlets::TextField extractPanelText01{*this, QStringLiteral("extractPanelText01")}; ///< which
    outlets::TextField extractReasonText01{*this,
                                           QStringLiteral("extractReasonText01")}; ///< why, and what to do
};
