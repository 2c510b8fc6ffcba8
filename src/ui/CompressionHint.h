#pragma once

#include <QLabel>
#include <QTimer>
#include <memory>
#include <optional>

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
    ~CompressionHint() override;

protected:
    void customEvent(QEvent *event) override;

private:
    void update();
    void measure(const QStringList &paths);

    struct Shared;
    QuillorentAppDelegate &m_controller;
    QLabel &m_label;
    QTimer m_later;                     ///< while a run is active
    std::optional<QStringList> m_paths; ///< what is measured, or was
    std::shared_ptr<Shared> m_shared;
};

} // namespace ui
