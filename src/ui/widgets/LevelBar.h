#pragma once

#include "outlets/Progress.h"

#include <QWidget>

class QLabel;

namespace ui {

/// Shows a level indicator of tools: a bar in the colour of its range, and the same in words.
class LevelBar : public QWidget {
    Q_OBJECT

public:
    using State = outlets::LevelIndicator::State;

    explicit LevelBar(QWidget *parent = nullptr);

    void setState(const State &state);
    [[nodiscard]] QString text() const;

private:
    class Bar;
    Bar *m_bar;
    QLabel *m_text;
};

} // namespace ui
