#include "app/Process.h"
#include "app/QuillorentAppDelegate.h"
#include "app/TerminationSignals.h"
#include "app/Translations.h"
#include "settings/Paths.h"
#include "ui/Appearance.h"
#include "ui/CommandLine.h"
#include "ui/SingleWindow.h"
#include "ui/Window.h"

#include <QApplication>
#include <cstdio>

int main(int argc, char *argv[])
{
    // Also where there is no display.
    ui::CommandLine commandLine(argc, argv);
    if (commandLine.printsText(QUILLORENT_VERSION)) return 0;
    prepareProcess();
    QApplication application(argc, argv);
    // Closing the window ends the program, and only that: a panel may close while the window is hidden.
    QApplication::setQuitOnLastWindowClosed(false);
    installTranslations();
    ui::setUpAppearance();

    static_cast<void>(quillorentLibrary::makePrivateFolder(quillorentLibrary::preferencesFolder()));
    ui::SingleWindow single(quillorentLibrary::preferencesFolder());
    if (!single.take(commandLine.archives())) {
        std::fputs("Quillorent is open already; its window comes to the front.\n", stderr);
        return 0;
    }

    const auto quit = [] { QCoreApplication::exit(0); };
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::received, &application, quit);

    QuillorentAppDelegate controller;
    {
        ui::Window window(controller);
        QObject::connect(&window, &ui::Window::closed, &application, quit);
        QObject::connect(&single, &ui::SingleWindow::raiseRequested, &window, &ui::Window::comeToFront);
        QObject::connect(&single, &ui::SingleWindow::archivesGiven, &window, &ui::Window::offer);
        window.show();
        controller.applicationDidFinishLaunching();
        window.offer(commandLine.archives());
        QCoreApplication::exec();
        single.giveUp();
    }
    // Ending saves, and waits for what still works. The user need not look at a window that does not answer:
    // its going reaches the screen first.
    QCoreApplication::processEvents();
    controller.applicationWillTerminate();
    return 0;
}
