#include "app/QuillorentAppDelegate.h"
#include "settings/Paths.h"
#include "ui/Window.h"
#include "ui/look/Appearance.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <ctime>
#include <pthread.h>
#include <thread>

using namespace Qt::StringLiterals;

// How long the window does not answer at the longest while many small files are backed up:
// `xvfb-run -a build/release/bench/window-answer 50000`. Beside it, what the window itself works meanwhile:
// on a busy machine it waits for a processor as well. Whatever takes more than 30 ms of that is told with its
// moment.

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

/// What the thread has worked so far.
Clock::duration workOf(pthread_t thread)
{
    clockid_t clock{};
    timespec time{};
    pthread_getcpuclockid(thread, &clock);
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// Knocks at the main thread's event loop, from another thread, and notes how long it takes to answer.
class Knocker {
public:
    Knocker()
    {
        m_thread = std::jthread([this](const std::stop_token &stop) {
            while (!stop.stop_requested()) {
                const auto knocked = Clock::now();
                m_isAnswered = false;
                const auto work = workOf(m_main);
                QMetaObject::invokeMethod(
                    qApp, [this, knocked, work] { answer(knocked, work); }, Qt::QueuedConnection);
                m_isAnswered.wait(false);
                std::this_thread::sleep_for(1ms);
            }
        });
    }

    void begin() { m_began = Clock::now(), m_longest = m_longestWork = {}; }
    void tell(const char *when) const
    {
        std::printf("%.1f ms %s, %.1f of its own work\n", milliseconds(m_longest), when,
                    milliseconds(m_longestWork));
    }

private:
    void answer(Clock::time_point knocked, Clock::duration workBefore)
    {
        const auto took = Clock::now() - knocked;
        const auto work = workOf(m_main) - workBefore;
        if (work > 30ms)
            std::printf("  %.0f ms of work, %.1f s after the beginning\n", milliseconds(work),
                        milliseconds(knocked - m_began) / 1000);
        m_longest = std::max(m_longest, took);
        m_longestWork = std::max(m_longestWork, work);
        m_isAnswered = true;
        m_isAnswered.notify_one();
    }

    const pthread_t m_main = pthread_self();
    Clock::time_point m_began = Clock::now();
    Clock::duration m_longest{};
    Clock::duration m_longestWork{}; ///< without what others did on its processors meanwhile
    std::atomic<bool> m_isAnswered = false;
    std::jthread m_thread;
};

void writeFiles(const QString &folder, int count)
{
    for (int number = 0; number < count; ++number) {
        const QString in = folder + u'/' + QString::number(number / 500);
        if (number % 500 == 0) QDir().mkpath(in);
        QFile file(in + u'/' + QString::number(number));
        if (!file.open(QIODevice::WriteOnly)) qFatal("no file %s", qUtf8Printable(file.fileName()));
        file.write(QByteArray(2000, char('a' + number % 26)));
    }
}

void processFor(Clock::duration time)
{
    for (const auto end = Clock::now() + time; Clock::now() < end;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    for (const auto &[name, place] :
         {std::pair{"HOME", "home"}, {"XDG_CONFIG_HOME", "config"}, {"XDG_STATE_HOME", "state"}}) {
        const QString path = folder.filePath(QString::fromLatin1(place));
        QDir().mkpath(path);
        qputenv(name, path.toLocal8Bit());
    }
    const QApplication application(argc, argv);
    ui::setUpAppearance();
    quillorentLibrary::setResourceFolder(QStringLiteral(QUILLORENT_TEMPLATES));
    writeFiles(folder.filePath(u"files"_s), argc > 1 ? QByteArray(argv[1]).toInt() : 50'000);
    QDir().mkpath(folder.filePath(u"archives"_s));

    QuillorentAppDelegate controller;
    {
        ui::Window window(controller);
        window.show();
        controller.applicationDidFinishLaunching();
        processFor(3s);
        controller.openPanel = [&](const outlets::OpenPanel &panel) {
            return QStringList{folder.filePath(panel.canChooseFiles ? u"files"_s : u"archives"_s)};
        };
        Knocker knocker;
        controller.folderButton01Action();
        controller.fileButton01Action();
        processFor(3s);
        knocker.tell("while a folder is chosen");
        controller.secureText01a.setText(u"correct horse battery staple"_s);
        controller.secureText02.setText(u"correct horse battery staple"_s);
        processFor(1s);
        knocker.begin();
        window.findChild<QAbstractButton *>(u"buttonLaunch01"_s)->click();
        while (controller.isRunActive())
            processFor(50ms);
        processFor(1s);
        knocker.tell("while it is backed up");
        std::puts(qUtf8Printable(controller.lastRecord().summary));
    }
    controller.endRuns();
    return 0;
}
