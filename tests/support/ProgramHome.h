#pragma once

#include "Command.h"
#include "TemporaryFolder.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// quillorent-run in a home of its own, with one profile, "Mine", beside the one that every user starts with.
/// It backs up to "archives", extracts into "out" and synchronises to "copy", by the password "from a file".
class ProgramHome {
public:
    using Path = std::filesystem::path;

    /// `program` is the executable.
    explicit ProgramHome(std::string program);

    std::vector<std::string> folders;               ///< what the profile backs up; at first "docs"
    std::vector<std::string> entries;               ///< what it synchronises; at first "docs"
    std::map<std::string, std::string> record;      ///< its other values
    std::map<std::string, std::string> environment; ///< of the next runs
    std::vector<std::string> launcher;              ///< words before the program's own

    /// Runs the program, without a terminal, after the profile was written as it stands here.
    CommandResult run(const std::vector<std::string> &arguments, const std::string &input = {}) const;
    CommandResult backUp(const std::vector<std::string> &more = {}) const;
    /// Options come before the archives.
    CommandResult extract(const std::vector<std::string> &archives,
                          const std::vector<std::string> &more = {}) const;

    /// Archives for a certificate of the home's own ("keys"), which spares the slow way from password to key.
    void encryptForCertificate();

    /// Gives all that is there to an ordinary user, whose the next runs are: root may do what is forbidden.
    void becomeOrdinaryUser();

    /// Puts `to` in place of `from` in the settings.
    void changeSettings(const std::string &from, const std::string &to) const;

    /// The last run's record, or the empty string.
    [[nodiscard]] std::string lastRecord() const;

    /// The processes that have the home's path in their arguments.
    [[nodiscard]] std::vector<int> processes() const;

    [[nodiscard]] Path operator/(const std::string &name) const { return m_folder / name; }
    [[nodiscard]] std::string text(const std::string &name) const { return (m_folder / name).string(); }
    [[nodiscard]] const Path &path() const { return m_folder.path(); }
    [[nodiscard]] Path profiles() const
    {
        return m_folder / "config/com.brolvanek.Quillorent.profiles.plist";
    }
    [[nodiscard]] Path settings() const { return m_folder / "config/com.brolvanek.Quillorent.config.plist"; }
    void writeProfile() const;

private:
    [[nodiscard]] CommandResult runWithPassword(std::vector<std::string> arguments,
                                                const std::vector<std::string> &more) const;

    TemporaryFolder m_folder;
    std::string m_program;
};

/// The text with each occurrence of the word replaced.
[[nodiscard]] std::string replaced(std::string text, const std::string &word, const std::string &by);

[[nodiscard]] bool contains(const std::string &text, const std::string &part);

/// The names in a folder, hidden ones too, sorted.
[[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path &folder);
