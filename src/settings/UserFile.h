#pragma once

#include "plist/Dictionary.h"

#include <QLoggingCategory>
#include <QString>
#include <functional>
#include <mutex>

namespace quillorentLibrary {

Q_DECLARE_LOGGING_CATEGORY(logSettings)

/// One of the user's files and the template that it starts from. Any thread may call; what is done to one
/// file is done one after another. Failures are logged, and leave the file as it was.
class UserFile {
public:
    using Path = QString (*)();
    /// The paths are asked for at each use: they follow the environment.
    UserFile(Path path, Path templatePath) : m_path(path), m_templatePath(templatePath) {}

    /// Copies the template where the file is missing or may not be written; a file that may not be written is
    /// moved aside first (see moveAside()).
    void makeUsable();

    /// None where the file can't be read.
    [[nodiscard]] plist::Dictionary read();
    [[nodiscard]] plist::Dictionary readTemplate() const;

    /// None writes nothing. A file that is there but can't be read is kept beside the new one. Gives the
    /// reason where it could not be saved, and an empty text where it was.
    QString save(const plist::Dictionary &dictionary);

    /// Whether the file was last read or saved with just this content. None is what was never read.
    [[nodiscard]] bool holds(const plist::Dictionary &dictionary);

    /// Reads, changes and saves with no other save in between. Does nothing where the file can't be read.
    void change(const std::function<void(const plist::Dictionary &)> &work);

private:
    plist::Dictionary readLocked();
    [[nodiscard]] QString saveLocked(const plist::Dictionary &dictionary);
    [[nodiscard]] QString write(const plist::Dictionary &dictionary) const;

    const Path m_path;
    const Path m_templatePath;
    std::mutex m_mutex;
    plist::Dictionary m_content; // as last read or saved, a copy of its own; guarded by m_mutex
    QString m_reported;          // why the file could not be read the last time; guarded by m_mutex
};

[[nodiscard]] UserFile &settingsFile();
[[nodiscard]] UserFile &profilesFile();

} // namespace quillorentLibrary
