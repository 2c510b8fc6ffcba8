#pragma once

#include "outlets/Controls.h"
#include "outlets/TableView.h"

/// The tab of synchronisation: what is copied, whereto, and what becomes of the rest.
struct SyncTab : virtual outlets::Registry {
    outlets::TableView syncTableView{*this, QStringLiteral("syncTableView")};
    outlets::Selector syncSelector01{*this, QStringLiteral("syncSelector01")}; ///< update, or by checksum
    outlets::TextField syncTextSourcePath{*this,
                                          QStringLiteral("syncTextSourcePath")}; ///< kept, and not used
    outlets::TextField syncTextDestPath{*this, QStringLiteral("syncTextDestPath")};
    outlets::CheckBox checkBoxSync1{*this, QStringLiteral("checkBoxSync1")}; ///< delete what the source lacks
    outlets::CheckBox checkBoxSync2{*this, QStringLiteral("checkBoxSync2")}; ///< remove the source files
    outlets::CheckBox syncCheck01{*this, QStringLiteral("syncCheck01")}; ///< the destination is on a server
    outlets::View syncView{*this, QStringLiteral("syncView")};           ///< the fields of the server
    outlets::TextField syncUser{*this, QStringLiteral("syncUser")};
    outlets::TextField syncServer{*this, QStringLiteral("syncServer")};
    outlets::TextField syncPort{*this, QStringLiteral("syncPort")};
    outlets::TextField outputText03{*this, QStringLiteral("outputText03")}; ///< how the last run ended
};
