#pragma once

#include "outlets/Controls.h"
#include "outlets/TableView.h"

/// The tab of synchronisation: what is copied, whereto, and what becomes of the rest.
struct SyncTab : virtual outlets::Registry {
    outlets::TableView syncTableView{*this, u"syncTableView"_qs};
    outlets::Selector syncSelector01{*this, u"syncSelector01"_qs};          ///< update, or by checksum
    outlets::TextField syncTextSourcePath{*this, u"syncTextSourcePath"_qs}; ///< kept, and not used
    outlets::TextField syncTextDestPath{*this, u"syncTextDestPath"_qs};
    outlets::CheckBox checkBoxSync1{*this, u"checkBoxSync1"_qs}; ///< delete what the source lacks
    outlets::CheckBox checkBoxSync2{*this, u"checkBoxSync2"_qs}; ///< remove the source files
    outlets::CheckBox syncCheck01{*this, u"syncCheck01"_qs};     ///< the destination is on a server
    outlets::View syncView{*this, u"syncView"_qs};               ///< the fields of the server
    outlets::TextField syncUser{*this, u"syncUser"_qs};
    outlets::TextField syncServer{*this, u"syncServer"_qs};
    outlets::TextField syncPort{*this, u"syncPort"_qs};
    outlets::TextField outputText03{*this, u"outputText03"_qs}; ///< how the last run ended
};
