#include "app/QuillorentAppDelegate.h"

#include "tools/RegisteredTool.h"

#include <QtGlobal>

namespace {

QuillorentAppDelegate *controller = nullptr;

} // namespace

QuillorentAppDelegate::QuillorentAppDelegate()
{
    Q_ASSERT_X(!controller, "QuillorentAppDelegate", "there is one controller at a time");
    controller = this;
    setToolSettings([this] { return configPlist(); });

    listTableView.setDataSource(&m_listTable);
    extractTableView.setDataSource(&m_extractTable);
    syncTableView.setDataSource(&m_syncTable);
    previewTableView.setDataSource(&m_previewTable);
    pathTableView.setDataSource(&m_pathTable);

    // A program without a front end has nobody who could choose.
    openPanel = [](const outlets::OpenPanel &) { return std::nullopt; };
    openAddress = [](const QString &) {};

    passCombo01.selectIndex(TypedPassword);
    prefSelector01.selectIndex(0);
    prefSelector02.selectIndex(0); // there is one
    checkBox01.setOn(true);
    checkBox03.setOn(true);
    checkBox02.setOn(true);
    secureText01b.setHidden(true);
    keychainClear.setHidden(true);
    keychainUnlock01.setHidden(true);
    for (outlets::Outlet *untilNeeded :
         std::initializer_list<outlets::Outlet *>{&toolsText01, &toolsCancel01, &clearText01, &clearRemove01})
        untilNeeded->setHidden(true);
    currentProfileTextView.setHidden(true);
}

QuillorentAppDelegate::~QuillorentAppDelegate()
{
    setToolSettings([] { return plist::Dictionary(); });
    controller = nullptr;
}

QuillorentAppDelegate &theDelegate()
{
    Q_ASSERT_X(controller, "theDelegate", "called before the controller was made");
    return *controller;
}
