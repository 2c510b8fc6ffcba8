#pragma once

#include <QSet>
#include <QStringList>
#include <functional>
#include <mutex>

/// Paths that the archives on their way write to, each for a while. Any thread may call.
class PathsUnderWay {
public:
    /// Takes all of the paths, or none where another has one of them.
    [[nodiscard]] bool take(const QStringList &paths);
    void giveBack(const QStringList &paths);

private:
    std::mutex m_mutex;
    QSet<QString> m_paths; ///< guarded by `m_mutex`
};

/// Those that one archive has.
class HeldPaths {
public:
    explicit HeldPaths(PathsUnderWay &all) : m_all(all) {}
    ~HeldPaths() { letGo(); }
    HeldPaths(const HeldPaths &) = delete;
    HeldPaths &operator=(const HeldPaths &) = delete;

    /// Waits until no other has one of the paths. False where `isCancelled` says so by then.
    [[nodiscard]] bool hold(const QStringList &paths, const std::function<bool()> &isCancelled);
    void letGo();

private:
    PathsUnderWay &m_all;
    QStringList m_paths;
};
