#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <span>

class QMainWindow;
class QWidget;
class QuillorentAppDelegate;

namespace ui {

struct ActionCall {
    QuillorentAppDelegate &controller;
    QMainWindow &window;
    QString text; ///< what the sender holds, where it holds a text or number
};

struct ActionRow {
    QLatin1StringView control; ///< a widget's name; a panel's is its closing
    void (*perform)(const ActionCall &call);
};

/// What each control does when the user presses, chooses, types or closes it.
[[nodiscard]] std::span<const ActionRow> actionTable();

/// Connects the controls to their actions. Comes after the binding: an action reads outlets that the same
/// signal writes.
void connectActions(QuillorentAppDelegate &controller, QMainWindow &window, const QList<QWidget *> &roots);

} // namespace ui
