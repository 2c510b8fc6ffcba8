#pragma once

#include "outlets/Controls.h"
#include "outlets/TableView.h"

/// The tab of extraction: which archives, whereto, and how they are decrypted.
struct ExtractTab : virtual outlets::Registry {
    /// The choices of `decryptionCombo01` are four methods and, fifth, the automatic one.
    static constexpr int automaticDecryption = 4;

    outlets::TableView extractTableView{*this, QStringLiteral("extractTableView")};
    outlets::TextField extractPath{*this, QStringLiteral("extractPath")}; ///< the extraction folder
    outlets::Selector decryptionCombo01{*this, QStringLiteral("decryptionCombo01")};
    outlets::Button openFolderButton{
        *this, QStringLiteral("openFolderButton")}; ///< carries the folder that it opens
    outlets::TextField outputText02{
        *this,
        QStringLiteral("outputText02")}; ///< how the last run ended, or what is odd about the archives added
};
