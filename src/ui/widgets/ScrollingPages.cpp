#include "ui/widgets/ScrollingPages.h"

#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

namespace ui {
namespace {

void letScroll(QWidget &page)
{
    auto *contents = new QWidget;
    contents->setLayout(page.layout()); // and with it all that is laid out
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus); // the controls have the keyboard, and are scrolled to
    area->setWidget(contents);
    area->viewport()->setAutoFillBackground(false);
    contents->setAutoFillBackground(false);
    auto *column = new QVBoxLayout(&page);
    column->setContentsMargins({});
    column->addWidget(area);
}

void giveRoomToShownPage(QStackedWidget &stack)
{
    for (int page = 0; page < stack.count(); ++page) {
        const bool isShown = page == stack.currentIndex();
        const auto policy = isShown ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        stack.widget(page)->setSizePolicy(policy, policy);
    }
}

} // namespace

void fitToShownPage(QStackedWidget &stack)
{
    QObject::connect(&stack, &QStackedWidget::currentChanged, &stack,
                     [&stack] { giveRoomToShownPage(stack); });
    giveRoomToShownPage(stack);
}

void letPagesScroll(QTabWidget &tabs)
{
    for (int tab = 0; tab < tabs.count(); ++tab)
        if (!tabs.widget(tab)->findChild<QScrollArea *>())
            letScroll(*tabs.widget(tab)); // or does by its form
}

} // namespace ui
