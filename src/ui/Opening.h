#pragma once

#include <QDataStream>
#include <QStringList>

namespace ui {

/// What a start of the program asks the window for.
struct Opening {
    QString page;         ///< one of pages(); empty: the one that was seen last
    QStringList archives; ///< to be offered for restoring, by absolute paths

    [[nodiscard]] bool isEmpty() const { return page.isEmpty() && archives.isEmpty(); }

    /// The names of the window's pages, in the order of its tabs.
    [[nodiscard]] static QStringList pages()
    {
        return {QStringLiteral("backup"), QStringLiteral("restore"), QStringLiteral("password"),
                QStringLiteral("synchronise"), QStringLiteral("tools")};
    }
};

inline QDataStream &operator<<(QDataStream &stream, const Opening &opening)
{
    return stream << opening.page << opening.archives;
}

inline QDataStream &operator>>(QDataStream &stream, Opening &opening)
{
    return stream >> opening.page >> opening.archives;
}

} // namespace ui
