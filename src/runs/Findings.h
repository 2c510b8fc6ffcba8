#pragma once

#include <QStringList>

/// What was found by looking before anything is touched: a sentence or two each, what is wrong and what to
/// do.
struct Findings {
    QStringList obstacles{}; ///< would cost files, leave clear text or encrypt with a bad secret
    QStringList concerns{};  ///< what the user may overrule
    QString overwrites{};    ///< a concern of its own: what is there and may be written over; empty: nothing

    void addObstacle(const QString &text) { addTo(obstacles, text); }
    void addConcern(const QString &text) { addTo(concerns, text); }

private:
    static void addTo(QStringList &list, const QString &text)
    {
        if (!text.isEmpty() && !list.contains(text)) list.append(text);
    }
};
