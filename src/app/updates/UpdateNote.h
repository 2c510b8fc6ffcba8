#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/TextView.h"

/// The note that there is a newer version.
struct UpdateNote : virtual outlets::Registry {
    outlets::Panel updatePanel01{*this, u"updatePanel01"_qs};
    outlets::TextField updateText01{*this, u"updateText01"_qs};  ///< which version is there, and which runs
    outlets::TextView updateNotes01{*this, u"updateNotes01"_qs}; ///< what is new in it
    outlets::Button downloadButton01{*this,
                                     u"downloadButton01"_qs}; ///< carries the address of the download page
};
