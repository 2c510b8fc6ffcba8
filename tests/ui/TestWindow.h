#pragma once

#include "TestProgram.h"

#include "ui/Binding.h"
#include "ui/Window.h"
#include "ui/pages/FirstSteps.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

/// The program with its window, started up.
class WindowTest : public testing::Test {
protected:
    explicit WindowTest(bool isFirstStart = false)
    {
        if (!isFirstStart) ui::FirstSteps::rememberSeen();
        program.closesWarnings = false;
        window.show();
        program.start();
        settle();
        // The table of tools has started them; a test that exchanges one must not have the new one looked at.
        if (!waitForThreads(60s)) qFatal("a tool does not end");
        settle();
    }

    /// Everything that is due on the main thread has happened.
    static void settle()
    {
        for (int round = 0; round < 5; ++round)
            QCoreApplication::processEvents();
    }

    static constexpr auto waitUntil = &TestProgram::waitUntil;

    /// Whatever runs has ended, and is shown.
    void waitForEnd()
    {
        program.waitForEnd();
        EXPECT_TRUE(waitForThreads(60s));
        settle();
    }

    /// The one widget of that name, which must be of that class.
    template <class W = QWidget>
    W &widget(const QString &name)
    {
        const QList<QWidget *> found = ui::widgetsNamed(name, window.roots());
        auto *wanted = found.size() == 1 ? dynamic_cast<W *>(found.first()) : nullptr;
        if (!wanted) qFatal("no widget %s", qUtf8Printable(name));
        return *wanted;
    }

    /// What a label, a field or a text of the window says.
    QString said(const QString &name)
    {
        const QWidget &by = widget(name);
        return by.property(by.inherits("QTextEdit") ? "plainText" : "text").toString();
    }
    /// Whether it comes to say these words, perhaps among others.
    testing::AssertionResult says(const QString &name, const QString &words)
    {
        const bool isSaid = waitUntil([&] { return said(name).contains(words); });
        return (isSaid ? testing::AssertionSuccess() : testing::AssertionFailure()) << qPrintable(said(name));
    }

    void click(const QString &name)
    {
        // Near its beginning: a check box listens on its sign and words only.
        QWidget &control = widget(name);
        QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(10, control.height() / 2));
        settle();
    }

    /// Types into a field, in place of what it holds.
    void fill(const QString &name, const QString &text)
    {
        auto &field = widget<QLineEdit>(name);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
        settle();
    }

    void drop(QAbstractItemView &list, const QList<QUrl> &urls)
    {
        QMimeData dropped;
        dropped.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list.viewport(), &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list.viewport(), &drop);
        settle();
    }

    void showTab(const QString &page)
    {
        widget<QTabWidget>(QStringLiteral("mainTabs")).setCurrentWidget(&widget(page));
        settle();
    }

    /// Opens another profile.
    void open(const plist::Dictionary &record)
    {
        delegate.listPlist().setValue(u"other"_s, record);
        delegate.setterCurrentProfile(u"other"_s);
        settle();
    }

    /// Types into whatever of the window has the keyboard, as a person does.
    static void type(const QWidget &top, const QString &text)
    {
        for (const QChar character : text)
            QTest::keyClick(top.windowHandle(), character.toLatin1());
        settle();
    }

    /// Clicks a button whose action waits for a panel; `answer` is given once the panel is there.
    void clickAndAnswer(const QString &button, const QString &panel, const std::function<void()> &answer)
    {
        doAndAnswer([&] { click(button); }, panel, answer);
    }
    void doAndAnswer(const std::function<void()> &act, const QString &panel,
                     const std::function<void()> &answer)
    {
        bool answered = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            if (answered || !widget(panel).isVisible()) return;
            answered = true;
            answer();
        });
        timer.start(5);
        act();
        EXPECT_TRUE(waitUntil([&] { return answered; })) << panel.toStdString() << " did not appear";
        settle();
    }

    TestProgram program;
    QuillorentAppDelegate &delegate = program.delegate();
    ui::Window window{delegate};
};
