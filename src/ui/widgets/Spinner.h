#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace ui {

/// A small turning sign that something goes on; draws nothing while it stands still, and keeps its place.
class Spinner : public QWidget {
    Q_OBJECT

public:
    explicit Spinner(QWidget *parent = nullptr);

    [[nodiscard]] bool isTurning() const { return m_turning; }
    void setTurning(bool turning);

    [[nodiscard]] QSize sizeHint() const override { return {16, 16}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateTimer();

    QBasicTimer m_timer;
    bool m_turning = false;
    int m_step = 0;
};

} // namespace ui
