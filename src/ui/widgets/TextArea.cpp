#include "ui/widgets/TextArea.h"

#include <QScrollBar>
#include <QTextDocument>
#include <cmath>
#include <memory>

namespace ui {

TextArea::TextArea(QWidget *parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(0);
    viewport()->setAutoFillBackground(false);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(document(), &QTextDocument::contentsChanged, this, [this] { updateGeometry(); });
    // The keyboard stops here only where it can do something.
    setFocusPolicy(Qt::ClickFocus);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int, int maximum) { setFocusPolicy(maximum > 0 ? Qt::StrongFocus : Qt::ClickFocus); });
}

int TextArea::heightForWidth(int width) const
{
    const std::unique_ptr<QTextDocument> measured(document()->clone());
    measured->setTextWidth(width);
    return int(std::ceil(measured->size().height()));
}

QSize TextArea::sizeHint() const
{
    const int width = std::max(minimumWidth(), minimumSizeHint().width());
    return {width, std::min(heightForWidth(width), maximumHeight())};
}

QSize TextArea::minimumSizeHint() const { return {80, fontMetrics().height()}; }

} // namespace ui
