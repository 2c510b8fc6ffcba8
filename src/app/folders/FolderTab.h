#pragma once

#include "outlets/Controls.h"
#include "outlets/TableView.h"

/// The tab of the folder list: what is backed up, whereto, and how.
struct FolderTab : virtual outlets::Registry {
    outlets::TableView listTableView{*this, QStringLiteral("listTableView")};
    outlets::TextField fileText01{*this, QStringLiteral("fileText01")}; ///< the destination folder
    outlets::CheckBox checkBox03{
        *this, QStringLiteral("checkBox03")}; ///< date the encrypted file like what it holds
    outlets::CheckBox checkBox04{*this, QStringLiteral("checkBox04")}; ///< split into volumes
    outlets::CheckBox checkBox05{*this,
                                 QStringLiteral("checkBox05")}; ///< date the archive like its newest file
    outlets::CheckBox checkBox06{*this, QStringLiteral("checkBox06")};  ///< compress before encrypting
    outlets::TextField prefText01{*this, QStringLiteral("prefText01")}; ///< volume size, thousands of bytes
    outlets::Stepper prefStepper01{*this, QStringLiteral("prefStepper01")};
    outlets::TextField outputText01{*this, QStringLiteral("outputText01")}; ///< how the last run ended
};
