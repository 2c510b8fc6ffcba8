#pragma once

#include <QProxyStyle>

namespace ui {

/// The desktop's style, with icons and boxes to tick as large as the text beside them.
class TextSizedStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                                  const QWidget *widget = nullptr) const override;
};

} // namespace ui
