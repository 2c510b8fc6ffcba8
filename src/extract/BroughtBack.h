#pragma once

#include <QString>
#include <mutex>
#include <vector>

/// The names of what an archive holds, in eight bytes each: there may be millions. Two names may come to be
/// one, by a chance that nobody will see.
class EntryNames {
public:
    void add(const QString &name);
    /// In order, each once.
    [[nodiscard]] std::vector<quint64> take();

private:
    std::vector<quint64> m_names;
};

/// What the archives of one run bring into the folder, by the names of their entries: none may write over
/// another's. Any thread may call.
class BroughtBack {
public:
    /// Takes the names for one archive. False, and none is taken, where another has one of them already.
    [[nodiscard]] bool claim(EntryNames names);

private:
    std::mutex m_mutex;
    std::vector<quint64> m_names; ///< in order
};
