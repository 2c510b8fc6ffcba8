#pragma once

#include <QWidget>

namespace ui {

class PanelDialog;

/// Says things where the screen is read aloud, after what is being said there; nothing is seen of it. The
/// toolkit has no event for that, but screen readers say the name of a notification that comes to be shown.
class Announcer : public QWidget {
    Q_OBJECT

public:
    explicit Announcer(QWidget &window);

    void say(const QString &text);
    /// Says from now on what there is to read on the panel when it is shown: a reader by itself says labels
    /// only, not texts that scroll.
    void readAloud(PanelDialog &panel);
};

} // namespace ui
