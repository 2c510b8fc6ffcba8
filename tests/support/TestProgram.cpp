#include "TestProgram.h"

#include "Stub.h"

#include "app/Translations.h"
#include "keychain/Keychain.h"
#include "runs/Pauses.h"
#include "settings/Paths.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

namespace fs = std::filesystem;

QString toQString(const fs::path &path) { return QString::fromStdString(path.string()); }

TestProgram::TestProgram()
{
    for (const char *name : {"home", "config", "archives"})
        fs::create_directories(m_folder / name);
    qputenv("HOME", (m_folder / "home").string().c_str());
    qputenv("XDG_CONFIG_HOME", (m_folder / "config").string().c_str());
    qputenv("XDG_STATE_HOME", (m_folder / "state").string().c_str());
    quillorentLibrary::setResourceFolder(QStringLiteral(QUILLORENT_TEMPLATES));
    // The plurals of English, too, are a translation.
    [[maybe_unused]] static const bool speaks = (installTranslations(), true);
    pauses() = {.beforeMeasuring = 20ms, .settingsSaved = 20ms, .profilesSaved = 20ms, .profileLoaded = 20ms};
    // Never the keychain of whoever runs the tests; a test that needs one brings a session of its own.
    for (const char *bus : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
        qputenv(bus, "unix:path=/nowhere");
    setKeychain(nullptr);
    m_delegate = std::make_unique<QuillorentAppDelegate>();
    m_delegate->warningPanel01.observe([this] {
        if (!closesWarnings || m_delegate->warningPanel01.place() == outlets::Panel::Place::Hidden) return;
        m_lastWarning = m_delegate->warningText01.text();
        m_delegate->warningPanel01Close();
    });
}

TestProgram::~TestProgram() { m_delegate->endRuns(); }

void TestProgram::start()
{
    m_delegate->applicationDidFinishLaunching();
    if (!m_delegate->configPlist())
        qFatal("the templates of the settings are not where the tests look for them");
    if (!waitForThreads(60s)) qFatal("verification does not end");
}

QString TestProgram::path(const std::string &name) const { return toQString(m_folder / name); }

void TestProgram::setUpBackup(const QStringList &folders, const QString &password)
{
    m_delegate->addFolders(folders);
    choose(path("archives"));
    m_delegate->fileButton01Action();
    m_delegate->passCombo01.selectIndex(PasswordTab::TypedPassword);
    m_delegate->secureText01a.setText(password);
    m_delegate->secureText02.setText(password);
}

void TestProgram::useTool(const QString &name, const fs::path &executable)
{
    m_delegate->configPlist().dictionary(QStringLiteral("external")).setValue(name, toQString(executable));
}

void TestProgram::useStub(const QString &name, const std::string &behaviour)
{
    useTool(name, Stub(m_folder.path(), name.toLower().toStdString(), behaviour).path());
}

void TestProgram::choose(const QString &path)
{
    m_delegate->openPanel = [path](const outlets::OpenPanel &) { return QStringList{path}; };
}

void TestProgram::backUp()
{
    m_delegate->buttonLaunch01b();
    waitForEnd();
}

void TestProgram::waitForEnd()
{
    if (!waitUntil([this] { return !m_delegate->isRunActive(); })) qFatal("the run does not end");
}

bool TestProgram::waitUntil(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(60s);
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
    return true;
}
