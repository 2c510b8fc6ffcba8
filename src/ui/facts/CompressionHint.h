#pragma once

#include "ui/watching/Beside.h"

#include <QLabel>
#include <QTimer>

class QuillorentAppDelegate;

namespace ui {

class RefreshQueue;

/// Says beside the check box what compression gains on the folders of the list. That is measured on a thread
/// of its own, which stops when the list changes, a run begins or the window goes.
class CompressionHint : public QObject {
    Q_OBJECT

public:
    /// Lives as long as the label.
    CompressionHint(QuillorentAppDelegate &controller, RefreshQueue &queue, QLabel &label);

private:
    struct Estimate {
        std::optional<double> share;
        bool isCut = false; ///< by a run
    };
    void update();
    void measure(const QStringList &paths);
    void show(const Estimate &estimate);

    QuillorentAppDelegate &m_controller;
    QLabel &m_label;
    QTimer m_later;                     ///< while a run is active
    std::optional<QStringList> m_paths; ///< what is measured, or was
    Beside<Estimate> m_estimate;
};

} // namespace ui
