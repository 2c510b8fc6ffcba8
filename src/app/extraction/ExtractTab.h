#pragma once

#include "outlets/Controls.h"
#include "outlets/TableView.h"

/// The tab of extraction: which archives, whereto, and how they are decrypted.
struct ExtractTab : virtual outlets::Registry {
    /// The choices of `decryptionCombo01` are four methods and, fifth, the automatic one.
    static constexpr int automaticDecryption = 4;

    outlets::TableView extractTableView{*this, u"extractTableView"_qs};
    outlets::TextField extractPath{*this, u"extractPath"_qs}; ///< the extraction folder
    outlets::Selector decryptionCombo01{*this, u"decryptionCombo01"_qs};
    outlets::Button openFolderButton{*this, u"openFolderButton"_qs}; ///< carries the folder that it opens
    outlets::TextField outputText02{
        *this, u"outputText02"_qs}; ///< how the last run ended, or what is odd about the archives added
};
