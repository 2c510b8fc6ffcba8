#pragma once

#include "plist/Dictionary.h"

#include <QAction>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

class QuillorentAppDelegate;

namespace ui {

class RefreshQueue;

/// Puts back what was removed from the folder list last. Says for a while that it can; its key does until
/// another profile is opened.
class RemovalUndo : public QObject {
    Q_OBJECT

public:
    /// What tells of it, and the button; `page` is where the key is heard.
    struct Widgets {
        QWidget &page;
        QLabel &text;
        QToolButton &button;
    };
    RemovalUndo(QuillorentAppDelegate &controller, RefreshQueue &queue, const Widgets &widgets);

    /// Removes what is selected.
    void remove();

private:
    void undo();
    void withdrawFromOtherProfile();
    void say(const QString &text);

    struct Entry {
        qsizetype index = 0; ///< before it was removed
        QString path;
    };

    QuillorentAppDelegate &m_controller;
    Widgets m_widgets;
    QAction m_action;
    QTimer m_saying;
    plist::Dictionary m_record; ///< that they were removed from
    QList<Entry> m_removed;
};

} // namespace ui
