#include "ui/widgets/PanelDialog.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHideEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QShowEvent>
#include <QWindow>
#include <chrono>
#include <mutex>

using namespace std::chrono_literals;

namespace ui {

using Place = outlets::Panel::Place;

namespace {

constexpr auto passing = 500ms; // from one window to the next

QElapsedTimer &sinceTheKeyboardWent()
{
    static QElapsedTimer timer;
    return timer;
}

void watchTheKeyboard()
{
    static std::once_flag once;
    std::call_once(once, [] {
        QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, qGuiApp, [](const QWindow *focused) {
            if (!focused) sinceTheKeyboardWent().start();
        });
    });
}

} // namespace

bool isProgramInFront()
{
    if (const QWindow *focused = QGuiApplication::focusWindow()) return QWidget::find(focused->winId());
    // One window may have given it up, and the next not have got it yet.
    return sinceTheKeyboardWent().isValid() && !sinceTheKeyboardWent().hasExpired(passing.count());
}

PanelDialog::PanelDialog(QWidget *parent) : QDialog(parent) { watchTheKeyboard(); }

void PanelDialog::setPlace(Place place)
{
    setAttribute(Qt::WA_ShowWithoutActivating, !isProgramInFront());
    if (place != Place::Sheet) blockContents(false);
    if (place == Place::Hidden || (place == Place::Window && isModal())) hide();

    switch (place) {
    case Place::Hidden:
        return;
    case Place::Sheet:
        openAsSheet();
        return;
    case Place::Window:
        setWindowModality(Qt::NonModal);
        showInFront();
        return;
    }
}

void PanelDialog::showInFront()
{
    show();
    if (testAttribute(Qt::WA_ShowWithoutActivating)) return;
    raise();
    activateWindow();
}

void PanelDialog::openAsSheet()
{
    if (!m_windowClosable) {
        setWindowModality(Qt::WindowModal);
        showInFront();
        return;
    }
    // Qt lets no close event through to a window that a modal dialog blocks.
    blockContents(true);
    setWindowModality(Qt::NonModal);
    showInFront();
}

void PanelDialog::blockContents(bool block)
{
    const auto *window = qobject_cast<QMainWindow *>(parentWidget());
    if (!m_windowClosable || !window || window->centralWidget()->isEnabled() != block) return;
    if (block) m_focusBefore = window->focusWidget();
    window->centralWidget()->setEnabled(!block);
    if (!block && m_focusBefore) m_focusBefore->setFocus();
}

void PanelDialog::reject() { Q_EMIT closeRequested(); }

void PanelDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous()) return;
    focusFirst();
    Q_EMIT visibilityChanged(true);
}

// What a person types next is meant for the field that is to be filled; a space must not press a button.
void PanelDialog::focusFirst()
{
    for (auto *button : findChildren<QPushButton *>())
        if (button->isDefault()) button->setFocus();
    for (QWidget *next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
        const auto *edit = qobject_cast<QLineEdit *>(next);
        if (!edit || edit->isReadOnly() || !edit->isEnabled() || !edit->isVisible() ||
            !edit->text().isEmpty())
            continue;
        next->setFocus();
        return;
    }
}

void PanelDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous()) Q_EMIT visibilityChanged(false);
}

} // namespace ui
