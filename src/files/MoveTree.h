#pragma once

#include "files/SetAside.h"

#include <functional>
#include <string>

/// Moves files and folders, by their paths, from one folder to the same place in another. Nothing that is
/// there is replaced: a folder takes up what it doesn't have yet, a file that is the same stays, and any
/// other gets the name "kept-NAME". No link is followed in either folder. Paths are bytes, in no encoding.
class MoveTree {
public:
    struct Events {
        std::function<void(const Aside &)> keep; ///< before something gets another name
        std::function<void()> keptAsItWas;       ///< that failed
        std::function<bool()> goesOn;            ///< asked now and then; no ends it
    };

    /// Both are absolute.
    MoveTree(std::string from, std::string to, Events events);

    /// Whether `path` (relative, without "..") leads to something, through folders alone.
    [[nodiscard]] bool has(const std::string &path) const;

    /// Moves what is at `path`, by renaming where that can be done. Folders on the way there are made with
    /// the rights and times of those where it comes from. The reason where it failed, else empty; then what
    /// was not moved stays.
    [[nodiscard]] QString move(const std::string &path);

private:
    class Folder;
    struct Pair;

    [[nodiscard]] QString moveBelow(const Pair &parents, const std::string &path, std::size_t from);
    [[nodiscard]] QString place(const Pair &in, const std::string &name);
    [[nodiscard]] QString merge(const Pair &in, const std::string &name);
    [[nodiscard]] QString rename(const Pair &in, const std::string &name);
    [[nodiscard]] QString copy(const Pair &in, const std::string &name);
    [[nodiscard]] QString keep(const Pair &in, const std::string &name);

    const std::string m_from;
    const std::string m_to;
    const Events m_events;
};
