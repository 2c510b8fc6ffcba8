#pragma once

#include <QTextEdit>

namespace ui {

/// Sentences of any number and length, which nobody edits: as high as they need, up to its maximum height,
/// and scrolled beyond that. Paths are broken wherever they have to be, which a label can't.
class TextArea : public QTextEdit {
    Q_OBJECT

public:
    explicit TextArea(QWidget *parent = nullptr);

    [[nodiscard]] QString text() const { return toPlainText(); }

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

} // namespace ui
