#pragma once

#include "outlets/Controls.h"
#include "outlets/TableView.h"

/// The tab of the folder list: what is backed up, whereto, and how.
struct FolderTab : virtual outlets::Registry {
    outlets::TableView listTableView{*this, u"listTableView"_qs};
    outlets::TextField fileText01{*this, u"fileText01"_qs}; ///< the destination folder
    outlets::CheckBox checkBox03{*this, u"checkBox03"_qs};  ///< date the encrypted file like what it holds
    outlets::CheckBox checkBox04{*this, u"checkBox04"_qs};  ///< split into volumes
    outlets::CheckBox checkBox05{*this, u"checkBox05"_qs};  ///< date the archive like its newest file
    outlets::CheckBox checkBox06{*this, u"checkBox06"_qs};  ///< compress before encrypting
    outlets::TextField prefText01{*this, u"prefText01"_qs}; ///< volume size, thousands of bytes
    outlets::Stepper prefStepper01{*this, u"prefStepper01"_qs};
    outlets::TextField outputText01{*this, u"outputText01"_qs}; ///< how the last run ended
};
