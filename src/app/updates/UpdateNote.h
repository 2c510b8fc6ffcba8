#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/TextView.h"

/// The note that there is a newer version.
struct UpdateNote : virtual outlets::Registry {
    outlets::Panel updatePanel01{*this, QStringLiteral("updatePanel01")};
    outlets::TextField updateText01{
        *this, QStringLiteral("updateText01")}; ///< which version is there, and which runs
    outlets::TextView updateNotes01{*this, QStringLiteral("updateNotes01")}; ///< what is new in it
    outlets::Button downloadButton01{
        *this, QStringLiteral("downloadButton01")}; ///< carries the address of the download page
};
