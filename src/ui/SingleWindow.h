#pragma once

#include "ui/Opening.h"

#include <QLocalServer>
#include <QLocalSocket>

namespace ui {

/// Keeps it to one window for each folder of settings: two would each save what the other does not know. A
/// local socket in the user's runtime folder tells whether there is one; the session bus would do so, too,
/// but is not there for everybody who has a display.
class SingleWindow : public QObject {
    Q_OBJECT

public:
    /// `folder` is the folder of settings, which should exist.
    explicit SingleWindow(const QString &folder);

    /// Whether this program may open the window. If not, another has one, brings it to the front, and is told
    /// what was asked for. One that has died, or gives no answer for some seconds, keeps nobody out.
    [[nodiscard]] bool take(const Opening &opening = {});

    /// The next program that starts may open one. Called when the window closes, as what comes after may take
    /// its time.
    void giveUp() { m_server.close(); }

Q_SIGNALS:
    void raiseRequested();
    /// Another program was started, and asks for this.
    void openingRequested(const ui::Opening &opening);

private:
    void answer();
    void listenTo(QLocalSocket &socket);

    const QString m_path;
    QLocalServer m_server;
};

} // namespace ui
