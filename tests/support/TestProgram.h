#pragma once

#include "TemporaryFolder.h"

#include "app/QuillorentAppDelegate.h"
#include "tools/Threads.h"

#include <filesystem>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The whole program but its front end, in a home of its own, with the settings that a new user gets and
/// short pauses. Its companions are those of the build tree. One at a time.
class TestProgram {
public:
    TestProgram();
    ~TestProgram();

    /// Starts up; verification has ended when it returns.
    void start();
    [[nodiscard]] QuillorentAppDelegate &delegate() { return *m_delegate; }

    [[nodiscard]] const std::filesystem::path &folder() const { return m_folder.path(); }
    [[nodiscard]] QString path(const std::string &name) const; ///< of something in the test's folder

    /// Fills the profile: what is backed up, whereto ("archives" in the test's folder, made here), by which
    /// password.
    void setUpBackup(const QStringList &folders, const QString &password = QStringLiteral("correct horse"));
    void useTool(const QString &name, const std::filesystem::path &executable);
    /// Puts a stub in place of the tool, "RAR", "OpenSSL" or "RSync".
    void useStub(const QString &name, const std::string &behaviour);
    /// From now on, who asks for files or a folder is given this one.
    void choose(const QString &path);

    /// Starts a backup, whatever the destination holds, and waits for its end.
    void backUp();
    void waitForEnd();

    /// The text of the last warning; each is closed as soon as it shows, so that nothing waits for a person.
    [[nodiscard]] QString lastWarning() const { return m_lastWarning; }
    bool closesWarnings = true; ///< off: they wait for a person, or a test that acts as one

    /// Runs the event loop until the condition holds; says whether it did in good time.
    static bool waitUntil(const std::function<bool()> &condition);

private:
    TemporaryFolder m_folder;
    std::unique_ptr<QuillorentAppDelegate> m_delegate;
    QString m_lastWarning;
};

[[nodiscard]] QString toQString(const std::filesystem::path &path);
