#pragma once

#include "outlets/Panel.h"

#include <QDialog>
#include <QPointer>

namespace ui {

/// Whether one of the program's windows has the keyboard: somebody is looking at it.
[[nodiscard]] bool isProgramInFront();

/// A panel of the program. It takes the keyboard from other windows of the program, never from another
/// program: who works there is told by a notice. The program alone shows and hides it: Escape and the close
/// button only ask for the panel's closing action.
class PanelDialog : public QDialog {
    Q_OBJECT

public:
    explicit PanelDialog(QWidget *parent = nullptr);

    /// As a sheet it leaves the window's frame alone, so that the window can still be closed: only what the
    /// window contains is blocked.
    void keepWindowClosable() { m_windowClosable = true; }

    void setPlace(outlets::Panel::Place place);

    void reject() override;

Q_SIGNALS:
    void closeRequested();
    void visibilityChanged(bool visible);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void openAsSheet();
    void showInFront();
    void focusFirst();
    void blockContents(bool block);

    bool m_windowClosable = false;
    QPointer<QWidget> m_focusBefore; ///< had the keyboard before the window's contents were blocked
};

} // namespace ui
