// Pictures of each page and sheet, with a backup and an extraction run between them. usage: OUTPUT-FOLDER
// [dark] [rtl] [POINTS]. The profile is the one of XDG_CONFIG_HOME (see take).

#include "app/Process.h"
#include "app/QuillorentAppDelegate.h"
#include "app/Translations.h"
#include "ui/Window.h"
#include "ui/look/Appearance.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(40, 40, 43));
    palette.setColor(QPalette::Highlight, QColor(60, 120, 200));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(120, 170, 250));
    return palette;
}

class Photographer {
public:
    Photographer(QuillorentAppDelegate &controller, ui::Window &window, const QString &folder)
        : m_controller(controller), m_window(window), m_folder(folder)
    {
    }

    void takeAll()
    {
        takePages();
        takePanels();
        plugIn();
        runAndTake(u"foldersPage"_s, u"buttonLaunch01"_s, u"progressPanel01"_s, u"backup"_s);
        for (const QString &archive :
             QDir(m_controller.fileText01.text()).entryList({u"*.rar"_s}, QDir::Files))
            m_controller.addArchives({m_controller.fileText01.text() + u'/' + archive});
        runAndTake(u"extractPage"_s, u"buttonLaunch02"_s, u"progressPanel02"_s, u"extraction"_s);
        takePages(u"after-"_s);
    }

private:
    void take(QWidget &widget, const QString &name)
    {
        QTest::qWait(50);
        const QString path = m_folder.filePath(u"%1.png"_s.arg(name));
        if (!widget.grab().save(path, "PNG", 0))
            std::fprintf(stderr, "%s can't be written\n", qUtf8Printable(path));
    }

    /// The folder that was missing by now is there, as on a disk that comes back.
    static void plugIn()
    {
        QDir::home().rename(u".unplugged"_s, u"Recipes"_s);
        QTest::qWait(3000);
    }

    QTabWidget &tabs() { return *m_window.findChild<QTabWidget *>(u"mainTabs"_s); }

    void takePages(const QString &prefix = {})
    {
        for (int page = 0; page < tabs().count(); ++page) {
            tabs().setCurrentIndex(page);
            take(m_window, prefix + u"%1-%2"_s.arg(page + 1).arg(tabs().widget(page)->objectName()));
            if (tabs().widget(page)->objectName() == u"passwordsPage" && prefix.isEmpty())
                takePasswordSources();
        }
    }

    void takePasswordSources()
    {
        auto &sources = *m_window.findChild<QComboBox *>(u"passCombo01"_s);
        const int chosen = sources.currentIndex();
        for (int source = 0; source < sources.count(); ++source) {
            sources.setCurrentIndex(source);
            Q_EMIT sources.activated(source);
            take(m_window, u"password-%1"_s.arg(source));
        }
        sources.setCurrentIndex(chosen);
        Q_EMIT sources.activated(chosen);
    }

    void takePanels()
    {
        for (QWidget *panel : m_window.roots()) {
            if (panel == &m_window) continue;
            panel->setAttribute(Qt::WA_DontShowOnScreen);
            panel->show();
            take(*panel, u"panel-"_s + panel->objectName());
            panel->hide();
            panel->setAttribute(Qt::WA_DontShowOnScreen, false);
        }
    }

    QWidget *panel(const QString &name)
    {
        for (QWidget *root : m_window.roots())
            if (root->objectName() == name) return root;
        qFatal("no panel %s", qUtf8Printable(name));
    }

    /// Questions on the way are looked at, and answered by their default button.
    void runAndTake(const QString &page, const QString &button, const QString &sheet, const QString &name)
    {
        tabs().setCurrentWidget(tabs().findChild<QWidget *>(page));
        int questions = 0;
        QTimer answers;
        QObject::connect(&answers, &QTimer::timeout, [&] {
            for (QWidget *root : m_window.roots()) {
                if (root == &m_window || !root->isVisible() || root->objectName().startsWith(u"progress"))
                    continue;
                take(*root, u"question-%1-%2"_s.arg(name).arg(++questions));
                answer(*root);
                return;
            }
        });
        answers.start(300);
        m_window.findChild<QAbstractButton *>(button)->click();
        if (QTest::qWaitFor([&] { return panel(sheet)->isVisible(); }, 5000)) {
            QTest::qWait(1800);
            if (panel(sheet)->isVisible()) take(*panel(sheet), u"progress-"_s + name);
        }
        if (!QTest::qWaitFor([&] { return !m_controller.isRunActive(); }, 120'000))
            qFatal("the run does not end");
        QTest::qWait(500);
        take(m_window, u"result-"_s + name);
    }

    static void answer(QWidget &question)
    {
        QAbstractButton *agrees = nullptr;
        for (auto *button : question.findChildren<QAbstractButton *>()) {
            const QString name = button->objectName();
            if (name.endsWith(u"GoOn") || name.endsWith(u"01b") || name.endsWith(u"02b")) agrees = button;
        }
        if (agrees)
            agrees->click();
        else
            question.close();
    }

    QuillorentAppDelegate &m_controller;
    ui::Window &m_window;
    QDir m_folder;
};

} // namespace

int main(int argc, char *argv[])
{
    prepareProcess();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    installTranslations();
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    ui::setUpAppearance();
    const QStringList words = QApplication::arguments().mid(1);
    if (words.isEmpty() || !QDir().mkpath(words.first())) {
        std::fputs("usage: quillorent-pictures OUTPUT-FOLDER [dark] [rtl] [POINTS]\n", stderr);
        return 64;
    }
    if (words.contains(u"dark"_s)) QApplication::setPalette(darkPalette());
    if (words.contains(u"rtl"_s)) QApplication::setLayoutDirection(Qt::RightToLeft);
    for (const QString &word : words.mid(1))
        if (const int points = word.toInt(); points > 0) {
            QFont font = QApplication::font();
            font.setPointSize(points);
            QApplication::setFont(font);
        }

    QuillorentAppDelegate controller;
    {
        ui::Window window(controller);
        window.show();
        controller.applicationDidFinishLaunching();
        QTest::qWait(1500);
        Photographer(controller, window, words.first()).takeAll();
    }
    controller.applicationWillTerminate();
    return 0;
}
