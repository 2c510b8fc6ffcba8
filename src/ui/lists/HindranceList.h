#pragma once

#include "backup/Hindrances.h"

#include <QFrame>

class QToolButton;
class QVBoxLayout;

namespace ui {

/// All that keeps a backup from starting, a line each, with a button that leads to where it is put right.
class HindranceList : public QFrame {
    Q_OBJECT

public:
    explicit HindranceList(QWidget *parent = nullptr);

    void setHindrances(const Hindrances &hindrances); ///< none: nothing is shown

    /// The control that the keyboard comes from; ours follow it.
    void setTabPredecessor(QWidget &control) { m_predecessor = &control; }

Q_SIGNALS:
    void placeWanted(Hindrance::Place place);

private:
    QToolButton *addLine(const Hindrance &hindrance);

    QVBoxLayout *m_lines;
    QWidget *m_predecessor = nullptr;
    Hindrances m_shown;
};

} // namespace ui
