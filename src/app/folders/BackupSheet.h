#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"

/// The sheet that stands over the window while a backup runs, and the question before it.
struct BackupProgressSheet : virtual outlets::Registry {
    outlets::Panel progressPanel01{*this, QStringLiteral("progressPanel01")};
    outlets::ProgressBar view01progressIndicator01{*this, QStringLiteral("view01progressIndicator01")};
    outlets::TextField view01progressLabel01{
        *this, QStringLiteral("view01progressLabel01")}; ///< shown while folders are processed
    outlets::TextField view01progressLabel02{
        *this, QStringLiteral("view01progressLabel02")}; ///< shown while sizes are measured
    outlets::Button buttonCancel01{*this, QStringLiteral("buttonCancel01")};

    outlets::Panel warningPanel03{
        *this, QStringLiteral("warningPanel03")}; ///< the destination holds something: go on?
    outlets::TextField folderNotEmptyText02{*this, QStringLiteral("folderNotEmptyText02")};
    outlets::TextField overwritesText02{*this, QStringLiteral("overwritesText02")}; ///< what becomes of that
};
