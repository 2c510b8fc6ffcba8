#include "app/Process.h"
#include "app/QuillorentAppDelegate.h"
#include "app/TerminationSignals.h"
#include "app/Translations.h"
#include "settings/Paths.h"
#include "ui/CommandLine.h"
#include "ui/SingleWindow.h"
#include "ui/Window.h"
#include "ui/look/Appearance.h"

#include <QApplication>
#include <cstdio>
#include <sysexits.h>

int main(int argc, char *argv[])
{
    // Also where there is no display.
    ui::CommandLine commandLine(argc, argv);
    if (commandLine.printsText(QUILLORENT_VERSION)) return 0;
    prepareProcess();
    QApplication application(argc, argv);
    const std::optional<ui::Opening> opening = commandLine.opening();
    if (!opening) return EX_USAGE;
    // Closing the window ends the program, and only that: a panel may close while the window is hidden.
    QApplication::setQuitOnLastWindowClosed(false);
    installTranslations();
    ui::setUpAppearance();

    static_cast<void>(quillorentLibrary::makePrivateFolder(quillorentLibrary::preferencesFolder()));
    ui::SingleWindow single(quillorentLibrary::preferencesFolder());
    if (!single.take(*opening)) {
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
        QObject::connect(&single, &ui::SingleWindow::openingRequested, &window, &ui::Window::open);
        window.show();
        controller.applicationDidFinishLaunching();
        window.open(*opening);
        QCoreApplication::exec();
        single.giveUp();
    }
    // Ending saves, and waits for what still works. The user need not look at a window that does not answer:
    // its going reaches the screen first.
    QCoreApplication::processEvents();
    controller.applicationWillTerminate();
    return 0;
}
