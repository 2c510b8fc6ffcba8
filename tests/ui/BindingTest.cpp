#include "TestWindow.h"

#include "ui/watching/RefreshQueue.h"
#include "ui/widgets/PanelDialog.h"
#include "ui/widgets/SpokenSecrets.h"

#include <thread>

namespace {

class BindingTest : public WindowTest {};

QStringList textsOf(const QAccessibleEvent &event)
{
    if (const auto *insert = dynamic_cast<const QAccessibleTextInsertEvent *>(&event))
        return {insert->textInserted()};
    if (const auto *remove = dynamic_cast<const QAccessibleTextRemoveEvent *>(&event))
        return {remove->textRemoved()};
    const auto &update = dynamic_cast<const QAccessibleTextUpdateEvent &>(event);
    return {update.textInserted(), update.textRemoved()};
}

} // namespace

TEST_F(BindingTest, EveryOutletHasOneWidget)
{
    QSet<QString> names;
    for (const outlets::Outlet *outlet : delegate.outlets()) {
        EXPECT_EQ(ui::widgetsNamed(outlet->name(), window.roots()).size(), 1) << outlet->name().toStdString();
        EXPECT_FALSE(names.contains(outlet->name())) << outlet->name().toStdString() << " is there twice";
        names.insert(outlet->name());
    }
}

TEST_F(BindingTest, ManyChangesAreShownOnceAndByTheLastValue)
{
    outlets::Registry registry;
    outlets::TextField field(registry, u"field"_s);
    QStringList shown;
    {
        ui::RefreshQueue queue;
        queue.watch(field, [&] { shown.append(field.text()); });
        std::thread([&] {
            for (int number = 1; number <= 1000; ++number)
                field.setText(QString::number(number));
        }).join();
        settle();
        EXPECT_EQ(shown, (QStringList{QString(), u"1000"_s}));
        field.setText(u"queued when the window goes"_s);
    }
    field.setText(u"later still"_s);
    settle();
    EXPECT_EQ(shown.size(), 2);
}

TEST_F(BindingTest, EscapeAsksThePanelsClosingAction)
{
    for (outlets::Panel *const each :
         {&delegate.warningPanel01, &delegate.warningPanel03, &delegate.warningPanel02,
          &delegate.concernsPanel01, &delegate.extractPanel01, &delegate.savePanel01, &delegate.quitPanel01,
          &delegate.conflictPanel01, &delegate.settingsPanel01, &delegate.consolePanel01}) {
        outlets::Panel &panel = *each;
        const bool asSheet = each != &delegate.consolePanel01 && each != &delegate.settingsPanel01;
        SCOPED_TRACE(panel.name().toStdString());
        asSheet ? panel.beginSheet() : panel.orderFront();
        settle();
        auto &dialog = widget<ui::PanelDialog>(panel.name());
        ASSERT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.windowModality(), asSheet ? Qt::WindowModal : Qt::NonModal);

        QTest::keyClick(&dialog, Qt::Key_Escape);
        settle();
        EXPECT_EQ(panel.place(), outlets::Panel::Place::Hidden);
        EXPECT_FALSE(dialog.isVisible());
    }
}

TEST_F(BindingTest, WhatIsMaskedIsNotSpoken)
{
    auto &field = widget<QLineEdit>(u"secureText01a"_s);
    const QString secret = u"sesame"_s;
    const QAccessibleTextUpdateEvent update(&field, 0, secret, secret);
    const QAccessibleTextInsertEvent insert(&field, 0, secret);
    const QAccessibleTextRemoveEvent remove(&field, 0, secret);
    for (const QAccessibleEvent *event :
         std::initializer_list<const QAccessibleEvent *>{&update, &insert, &remove}) {
        const auto told = ui::withoutSecret(*event);
        ASSERT_TRUE(told && told->type() == event->type());
        for (const QString &text : textsOf(*told))
            EXPECT_EQ(text, u"******"_s);
        field.setEchoMode(QLineEdit::Normal);
        EXPECT_FALSE(ui::withoutSecret(*event)) << "it is shown";
        field.setEchoMode(QLineEdit::Password);
    }
}

// Whoever counts its children asks for one after the other, and meanwhile a scroll bar goes.
TEST_F(BindingTest, AScrollBarThatHasGoneIsNoneForReaders)
{
    QAccessibleInterface &area = *QAccessible::queryAccessibleInterface(&widget(u"foldersScroll"_s));
    ASSERT_GT(area.childCount(), 0);
    EXPECT_TRUE(area.child(0));
    for (const int gone : {-1, area.childCount(), 10'000})
        EXPECT_FALSE(area.child(gone));
}
