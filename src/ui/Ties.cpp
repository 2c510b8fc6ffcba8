#include "ui/Ties.h"

#include "files/Printable.h"
#include "keychain/Secret.h"
#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"
#include "outlets/TableView.h"
#include "outlets/TextView.h"
#include "ui/lists/OutletTableView.h"
#include "ui/look/Appearance.h"
#include "ui/look/Wording.h"
#include "ui/widgets/LevelBar.h"
#include "ui/widgets/PanelDialog.h"
#include "ui/widgets/RunBar.h"
#include "ui/widgets/SecretEdit.h"
#include "ui/widgets/SizeEdit.h"
#include "ui/widgets/Spinner.h"
#include "ui/widgets/StepperButtons.h"
#include "ui/widgets/TextArea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTextCursor>

// Widgets tell of the user's doing by signals that setting them from here does not send, so nothing echoes. A
// screen reader or a keyboard on the screen fills in fields and ticks boxes without textEdited and clicked:
// of those it is textChanged and toggled, and what the program sets, it sets without a word.

namespace ui {
namespace {

/// Of a fixed text; others stay as they are.
QString inUsersLanguage(const QString &text)
{
    return QCoreApplication::translate("outlets", text.toUtf8().constData());
}

void connectWidget(RefreshQueue &queue, outlets::TextField &field, QLineEdit &edit)
{
    queue.watch(field, [&field, &edit] {
        // Setting the text that is there already would move the cursor away under the typing user.
        if (edit.text() == field.text()) return;
        const QSignalBlocker quiet(edit);
        edit.setText(field.text());
        if (!edit.isReadOnly()) return;
        edit.setCursorPosition(0);
        setPlainToolTip(edit, field.text());
    });
    QObject::connect(&edit, &QLineEdit::textChanged, &edit,
                     [&field](const QString &text) { field.setText(text); });
}

void connectWidget(RefreshQueue &queue, outlets::TextField &field, SizeEdit &edit)
{
    queue.watch(field, [&field, &edit] { edit.setThousands(field.text()); });
    QObject::connect(&edit, &SizeEdit::thousandsEdited, &edit,
                     [&field](const QString &thousands) { field.setText(thousands); });
}

void connectWidget(RefreshQueue &queue, outlets::SecretField &field, SecretEdit &edit)
{
    queue.watch(field, [&field, &edit] {
        QString text = field.text();
        if (!edit.holds(text)) edit.setSecret(std::move(text));
        wipe(text);
    });
    QObject::connect(&edit, &QLineEdit::textChanged, &edit,
                     [&field](const QString &text) { field.setText(text); });
}

void connectWidget(RefreshQueue &queue, outlets::TextField &field, QLabel &label)
{
    label.setTextFormat(Qt::PlainText);
    // A label whose text stands in the form keeps it until the program has another.
    if (field.text().isEmpty()) field.setText(label.text());
    queue.watch(field, [&field, &label] {
        const QString text = inUsersLanguage(field.text());
        label.setText(label.wordWrap() ? breakable(text) : printable(text));
    });
}

void connectWidget(RefreshQueue &queue, outlets::TextField &field, TextArea &area)
{
    queue.watch(field, [&field, &area] {
        // Set anew, it would forget how far it is scrolled and what is selected.
        if (area.text() != field.text()) area.setPlainText(field.text());
    });
}

void connectWidget(RefreshQueue &queue, outlets::CheckBox &outlet, QCheckBox &box)
{
    queue.watch(outlet, [&outlet, &box] {
        const QSignalBlocker quiet(box);
        box.setChecked(outlet.isOn());
    });
    QObject::connect(&box, &QCheckBox::toggled, &box, [&outlet](bool on) { outlet.setOn(on); });
}

void connectWidget(RefreshQueue &queue, outlets::Button &outlet, QPushButton &button)
{
    queue.watch(outlet, [&outlet, &button] {
        if (!outlet.title().isEmpty()) button.setText(inUsersLanguage(outlet.title()));
    });
}

void connectWidget(RefreshQueue &queue, outlets::Stepper &outlet, StepperButtons &buttons)
{
    queue.watch(outlet, [&outlet, &buttons] { buttons.setValue(outlet.value()); });
    QObject::connect(&buttons, &StepperButtons::stepped, &buttons,
                     [&outlet](int value) { outlet.setValue(value); });
}

void connectWidget(RefreshQueue &queue, outlets::Selector &outlet, QComboBox &combo)
{
    queue.watch(outlet, [&outlet, &combo] { combo.setCurrentIndex(outlet.selectedIndex()); });
    QObject::connect(&combo, &QComboBox::activated, &combo,
                     [&outlet](int index) { outlet.selectIndex(index); });
}

void connectWidget(RefreshQueue &queue, outlets::Selector &outlet, QStackedWidget &pages)
{
    queue.watch(outlet, [&outlet, &pages] { pages.setCurrentIndex(outlet.selectedIndex()); });
}

void connectWidget(RefreshQueue &queue, outlets::Chooser &outlet, QComboBox &combo)
{
    queue.watch(outlet, [&outlet, &combo, shown = QStringList()]() mutable {
        if (const QStringList titles = outlet.titles(); titles != shown) {
            shown = titles;
            combo.clear();
            for (const QString &title : titles)
                combo.addItem(printableName(title));
        }
        combo.setCurrentIndex(int(shown.indexOf(outlet.selectedTitle())));
    });
    QObject::connect(&combo, &QComboBox::activated, &combo,
                     [&outlet](int index) { outlet.selectIndex(index); });
}

void connectWidget(RefreshQueue &queue, outlets::ProgressBar &outlet, RunBar &bar)
{
    queue.watch(outlet, [&outlet, &bar] {
        const auto state = outlet.state();
        bar.setIndeterminate(state.indeterminate);
        bar.reach(state.maximum > 0 ? state.value / state.maximum : 0);
    });
}

void connectWidget(RefreshQueue &queue, outlets::ProgressIndicator &outlet, Spinner &spinner)
{
    queue.watch(outlet, [&outlet, &spinner] { spinner.setTurning(outlet.isAnimating()); });
}

void connectWidget(RefreshQueue &queue, outlets::LevelIndicator &outlet, LevelBar &bar)
{
    queue.watch(outlet, [&outlet, &bar] { bar.setState(outlet.state()); });
}

void appendText(QPlainTextEdit &view, const QString &text)
{
    QScrollBar &scroll = *view.verticalScrollBar();
    const bool atEnd = scroll.value() == scroll.maximum();
    QTextCursor cursor(view.document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text);
    if (atEnd) scroll.setValue(scroll.maximum());
}

void connectWidget(RefreshQueue &queue, outlets::TextView &outlet, QPlainTextEdit &view)
{
    queue.watch(outlet, [&outlet, &view, shown = QString()]() mutable {
        const QString text = outlet.text();
        if (!shown.isEmpty() && text.startsWith(shown))
            appendText(view, text.mid(shown.size()));
        else
            view.setPlainText(text);
        shown = text;
    });
}

void connectWidget(RefreshQueue &queue, outlets::TableView &outlet, OutletTableView &view)
{
    queue.watch(outlet, [&outlet, &view, reloads = -1]() mutable {
        OutletTableModel &model = view.outletModel();
        // What is selected is the outlet's business: a reload that drops rows must not change it half-way.
        const QList<int> selected = outlet.selectedRows();
        model.setSource(outlet.dataSource());
        if (const int now = outlet.reloads(); std::exchange(reloads, now) != now) model.reload();
        if (view.selectedRows() != selected) view.selectRows(selected);
        outlet.setSelectedRows(view.selectedRows());
    });
    QObject::connect(&view, &OutletTableView::selectedRowsChanged, &view,
                     [&outlet](const QList<int> &rows) { outlet.setSelectedRows(rows); });
}

void connectWidget(RefreshQueue &queue, outlets::Panel &outlet, PanelDialog &panel)
{
    queue.watch(outlet, [&outlet, &panel] { panel.setPlace(outlet.place()); });
}

// The main window is always there; the program only brings it to the front.
void connectWidget(RefreshQueue &queue, outlets::Panel &outlet, QMainWindow &window)
{
    queue.watch(outlet, [&outlet, &window, raised = 0]() mutable {
        if (const int times = outlet.timesOrderedFront(); std::exchange(raised, times) == times) return;
        window.raise();
        window.activateWindow();
    });
}

void connectWidget(RefreshQueue &, outlets::View &, QWidget &) {}

void showUnlessHidden(RefreshQueue &queue, outlets::Outlet &outlet, QWidget &widget)
{
    queue.watch(outlet, [&outlet, &widget] { widget.setHidden(outlet.isHidden()); });
}

template <class O, class W>
bool tieAs(RefreshQueue &queue, outlets::Outlet &outlet, QWidget &widget)
{
    auto *knownOutlet = dynamic_cast<O *>(&outlet);
    auto *knownWidget = dynamic_cast<W *>(&widget);
    if (!knownOutlet || !knownWidget) return false;
    connectWidget(queue, *knownOutlet, *knownWidget);
    if (!std::is_same_v<O, outlets::Panel>) showUnlessHidden(queue, outlet, widget);
    return true;
}

} // namespace

bool tie(RefreshQueue &queue, outlets::Outlet &outlet, QWidget &widget)
{
    using namespace outlets;
    // A password in any other widget would leave copies.
    if (dynamic_cast<SecretField *>(&outlet)) return tieAs<SecretField, SecretEdit>(queue, outlet, widget);
    return tieAs<TextField, SizeEdit>(queue, outlet, widget) ||
           tieAs<TextField, QLineEdit>(queue, outlet, widget) ||
           tieAs<TextField, QLabel>(queue, outlet, widget) ||
           tieAs<TextField, TextArea>(queue, outlet, widget) ||
           tieAs<CheckBox, QCheckBox>(queue, outlet, widget) ||
           tieAs<Button, QPushButton>(queue, outlet, widget) ||
           tieAs<Stepper, StepperButtons>(queue, outlet, widget) ||
           tieAs<Selector, QComboBox>(queue, outlet, widget) ||
           tieAs<Selector, QStackedWidget>(queue, outlet, widget) ||
           tieAs<Chooser, QComboBox>(queue, outlet, widget) ||
           tieAs<ProgressBar, RunBar>(queue, outlet, widget) ||
           tieAs<ProgressIndicator, Spinner>(queue, outlet, widget) ||
           tieAs<LevelIndicator, LevelBar>(queue, outlet, widget) ||
           tieAs<TextView, QPlainTextEdit>(queue, outlet, widget) ||
           tieAs<TableView, OutletTableView>(queue, outlet, widget) ||
           tieAs<Panel, PanelDialog>(queue, outlet, widget) ||
           tieAs<Panel, QMainWindow>(queue, outlet, widget) || tieAs<View, QWidget>(queue, outlet, widget);
}

} // namespace ui
