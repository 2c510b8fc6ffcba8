#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <mutex>

/// What the archives of one run bring into the folder, by the names of their entries: none may write over
/// another's. Any thread may call.
class BroughtBack {
public:
    /// Takes the names for one archive. False, and none is taken, where another has one of them already.
    [[nodiscard]] bool claim(const QStringList &names);

private:
    std::mutex m_mutex;
    QSet<QString> m_names;
};
