#pragma once

#include <QProgressBar>

namespace ui {

/// The bar of a run. It never goes back: of what it is told, by the run's counters and by a closer look at
/// its tools, the most counts.
class RunBar : public QProgressBar {
    Q_OBJECT

public:
    explicit RunBar(QWidget *parent = nullptr);

    /// How much there is to do is not known; where it was known before, another run has begun. Moves only
    /// where motion is wanted.
    void setIndeterminate(bool indeterminate);
    void reach(double part); ///< 0 to 1; has no effect as long as nothing is known

private:
    bool m_isIndeterminate = false;
};

} // namespace ui
