#include "app/QuillorentAppDelegate.h"
#include "app/profiles/Methods.h"

using namespace Qt::StringLiterals;

void QuillorentAppDelegate::profileButton05Action() { preferencesPanel01.runModal(); }

void QuillorentAppDelegate::profileButton05ActionEnd() { closeSheet(preferencesPanel01); }

void QuillorentAppDelegate::prefSelector01Action()
{
    const QString method = quillorentLibrary::symmetricMethods().value(prefSelector01.selectedIndex());
    if (!method.isEmpty()) currentRecord().setValue(u"symencryption"_s, method);
}

void QuillorentAppDelegate::prefSelector02Action() {} // one method: there is nothing to keep

void QuillorentAppDelegate::prefCheck02Action()
{
    currentRecord().setSwitch(u"emptydir"_s, prefCheck02.isOn());
}

void QuillorentAppDelegate::prefStepper01Action(const QString &senderText)
{
    showPartSize(senderText);
    currentRecord().setValue(u"part"_s, senderText);
}

void QuillorentAppDelegate::prefCheck01Action() { currentRecord().setSwitch(u"split"_s, checkBox04.isOn()); }

void QuillorentAppDelegate::checkBox05Action()
{
    currentRecord().setSwitch(u"keepdate"_s, checkBox05.isOn());
}

void QuillorentAppDelegate::checkBox06Action()
{
    showCompression(checkBox06.isOn());
    currentRecord().setSwitch(u"compress"_s, checkBox06.isOn());
}

void QuillorentAppDelegate::prefCheck03Action()
{
    showCompression(prefCheck03.isOn());
    checkBox06Action();
}

void QuillorentAppDelegate::autosaveCheck01Action()
{
    configPlist().dictionary(u"resources"_s).setSwitch(u"autosave"_s, autosaveCheck01.isOn());
}
