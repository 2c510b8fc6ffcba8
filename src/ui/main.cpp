#include "app/Process.h"
#include "app/QuillorentAppDelegate.h"
#include "app/TerminationSignals.h"
#include "ui/Appearance.h"
#include "ui/CommandLine.h"
#include "ui/Window.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    // Also where there is no display.
    if (ui::wantsText(argc, argv, QUILLORENT_VERSION)) return 0;
    prepareProcess();
    QApplication application(argc, argv);
    // Closing the window ends the program, and only that: a panel may close while the window is hidden.
    QApplication::setQuitOnLastWindowClosed(false);
    ui::setUpAppearance();

    const auto quit = [] { QCoreApplication::exit(0); };
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::received, &application, quit);

    QuillorentAppDelegate controller;
    {
        ui::Window window(controller);
        QObject::connect(&window, &ui::Window::closed, &application, quit);
        window.show();
        controller.applicationDidFinishLaunching();
        QCoreApplication::exec();
    }
    // Ending saves, and waits for what still works. The user need not look at a window that does not answer:
    // its going reaches the screen first.
    QCoreApplication::processEvents();
    controller.applicationWillTerminate();
    return 0;
}
