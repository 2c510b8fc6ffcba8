#pragma once

#include "plist/Dictionary.h"
#include "settings/Store.h"

#include <QLoggingCategory>
#include <QString>
#include <functional>
#include <mutex>

namespace quillorentLibrary {

Q_DECLARE_LOGGING_CATEGORY(logSettings)

/// One of the user's files and the template that it starts from. Any thread may call; what is done to one
/// file is done one after another, and asking about it waits for none of that. Failures are logged, and leave
/// the file as it was.
class UserFile {
public:
    using Path = QString (*)();
    /// The paths are asked for at each use: they follow the environment. `depth` says how far what others
    /// changed in the file is told apart (see reconcile()).
    UserFile(Path path, Path templatePath, int depth)
        : m_path(path), m_templatePath(templatePath), m_depth(depth)
    {
    }

    /// Copies the template where the file is missing or may not be written; a file that may not be written is
    /// moved aside first (see moveAside()).
    void makeUsable();

    /// None where the file can't be read.
    [[nodiscard]] plist::Dictionary read();
    [[nodiscard]] plist::Dictionary readTemplate() const;

    /// See saveSettings().
    Saved save(const plist::Dictionary &dictionary, InConflict inConflict);

    /// Whether the file was last read or saved with just this content. None is what was never read.
    [[nodiscard]] bool holds(const plist::Dictionary &dictionary) const;

    /// Why it could not be read the last time; empty where it could.
    [[nodiscard]] QString whyUnread() const;

    /// What a person should know of what was done to the file; each is given once.
    [[nodiscard]] QStringList takeNotices();
    void notice(const QString &text); ///< logs it, too

    /// Reads, changes and saves with no other save in between. What is new lies on the disk when `atLast` is
    /// called, and takes its place only if that agrees. A file that `work` leaves as it is is not written.
    /// False where anything failed.
    bool change(
        const std::function<void(const plist::Dictionary &)> &work,
        const std::function<bool()> &atLast = [] { return true; });

private:
    plist::Dictionary readLocked();
    /// Both give the reason where it can't be kept, else an empty text.
    [[nodiscard]] QString keepUnreadable(const QString &path);
    [[nodiscard]] QString keepLoser(const QString &path, const plist::Dictionary &mine,
                                    InConflict inConflict);
    void setContent(const plist::Dictionary &content);
    [[nodiscard]] plist::Dictionary content() const;

    const Path m_path;
    const Path m_templatePath;
    const int m_depth;
    std::mutex m_mutex; // held while the file is worked on, which may take as long as the disk wants

    mutable std::mutex m_stateMutex; // held for moments; guards the rest
    plist::Dictionary m_content;     // as last read or saved, a copy of its own that nobody changes
    QString m_contentPath;           // where
    QString m_reason;                // why it could not be read the last time
    QStringList m_notices;
};

[[nodiscard]] UserFile &settingsFile();
[[nodiscard]] UserFile &profilesFile();

} // namespace quillorentLibrary
