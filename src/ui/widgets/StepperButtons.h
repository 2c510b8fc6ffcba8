#pragma once

#include <QWidget>

class QLineEdit;

namespace ui {

/// Two arrows that step a number up and down; the number itself stands in a field beside them.
class StepperButtons : public QWidget {
    Q_OBJECT

public:
    explicit StepperButtons(QWidget *parent = nullptr);

    [[nodiscard]] int value() const { return m_value; }
    void setValue(int value) { m_value = value; } ///< any value is taken; stepping leads into the range

    void setRange(int lowest, int highest, int step);

    /// The up and down keys step in the field too.
    void listenTo(QLineEdit &field);

Q_SIGNALS:
    /// Sent when the user stepped.
    void stepped(int value);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addArrow(Qt::ArrowType arrow, const QString &name, int direction);
    void step(int direction);

    int m_value = 0;
    int m_lowest = 0;
    int m_highest = 100;
    int m_step = 1;
};

} // namespace ui
