#pragma once

#include "Diagnostics.h"
#include "Headers.h"

#include <map>
#include <vector>

namespace archiver {

/// The modes and times that folders are to have when all is in them. The room and the time that this takes
/// grow with the lengths of the names, however deep the folders are: an archive may have a hundred thousand
/// in one name.
class FolderAttributes {
public:
    struct State {
        unsigned mode = 0;
        std::optional<Timestamp> modified;
    };

    /// For the folder with that path.
    void set(std::span<const std::string> path, const State &state);
    /// For the folders on that path behind the first `above`, where they have none yet.
    void setMissing(std::span<const std::string> path, std::size_t above, const State &state);

    /// Gives them to the folders below the open folder `root`, from the deepest up: one that its owner may
    /// not enter has to wait for what is in it. What fails is reported.
    void apply(int root, Diagnostics &diagnostics) const;

private:
    struct Folder {
        std::map<std::string, std::size_t> children; // indices of m_folders
        std::optional<State> state;
    };
    struct Level;

    [[nodiscard]] std::size_t child(std::size_t parent, const std::string &name);

    std::vector<Folder> m_folders{1}; // `root` is the first
};

} // namespace archiver
