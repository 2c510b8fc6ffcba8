#pragma once

#include "outlets/Controls.h"
#include "outlets/TableView.h"

/// The tab of synchronisation: what a profile keeps of it.
struct SyncTab : virtual outlets::Registry {
    outlets::TableView syncTableView{*this, u"syncTableView"_qs};
    outlets::Selector syncSelector01{*this, u"syncSelector01"_qs};
    outlets::TextField syncTextSourcePath{*this, u"syncTextSourcePath"_qs};
    outlets::TextField syncTextDestPath{*this, u"syncTextDestPath"_qs};
    outlets::CheckBox checkBoxSync1{*this, u"checkBoxSync1"_qs};
    outlets::CheckBox checkBoxSync2{*this, u"checkBoxSync2"_qs};
    outlets::CheckBox syncCheck01{*this, u"syncCheck01"_qs};
    outlets::View syncView{*this, u"syncView"_qs};
    outlets::TextField syncUser{*this, u"syncUser"_qs};
    outlets::TextField syncServer{*this, u"syncServer"_qs};
    outlets::TextField syncPort{*this, u"syncPort"_qs};
};
