#pragma once

#include <QLineEdit>

namespace ui {

/// A size that is typed and shown with its unit, "4.7 GB", and kept as a number of thousand bytes. A number
/// alone means megabytes.
class SizeEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit SizeEdit(QWidget *parent = nullptr);

    /// What can't be understood is kept as it is, and shown so.
    [[nodiscard]] QString thousands() const;
    void setThousands(const QString &thousands); ///< leaves a text that says the same alone

    /// With the largest unit that needs no more than three decimals; the text itself where it is no number.
    [[nodiscard]] static QString withUnit(const QString &thousands);

Q_SIGNALS:
    /// Sent when the user typed.
    void thousandsEdited(const QString &thousands);

private:
    void showSize(const QString &thousands);
};

} // namespace ui
