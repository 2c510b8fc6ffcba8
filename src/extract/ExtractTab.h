#pragma once

#include "outlets/Controls.h"
#include "outlets/TableView.h"

/// The tab of extraction: what a profile keeps of it.
struct ExtractTab : virtual outlets::Registry {
    /// The choices of `decryptionCombo01` are four methods and, fifth, the automatic one.
    static constexpr int automaticDecryption = 4;

    outlets::TableView extractTableView{*this, u"extractTableView"_qs};
    outlets::TextField extractPath{*this, u"extractPath"_qs};
    outlets::Selector decryptionCombo01{*this, u"decryptionCombo01"_qs};
};
