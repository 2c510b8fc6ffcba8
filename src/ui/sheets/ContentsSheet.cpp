#include "ui/sheets/ContentsSheet.h"

#include "app/QuillorentAppDelegate.h"
#include "files/Names.h"
#include "ui/look/Appearance.h"
#include "ui/look/Wording.h"
#include "ui/widgets/PanelDialog.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTreeView>

namespace ui {
namespace {

QString dataSize(qint64 bytes) { return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat); }

QString duration(std::chrono::milliseconds took)
{
    const int seconds = int((took.count() + 999) / 1000);
    return seconds < 100 ? ContentsSheet::tr("%n second(s)", nullptr, seconds)
                         : ContentsSheet::tr("%n minute(s)", nullptr, (seconds + 59) / 60);
}

} // namespace

ContentsSheet::ContentsSheet(QuillorentAppDelegate &controller, PanelDialog &sheet, const Widgets &widgets)
    : QObject(&sheet), m_controller(controller), m_widgets(widgets)
{
    QTreeView &tree = widgets.tree;
    tree.setModel(&m_model);
    tree.setUniformRowHeights(true);
    tree.setAllColumnsShowFocus(true);
    tree.header()->setStretchLastSection(false);
    tree.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree.header()->setResizeContentsPrecision(100);
    tree.header()->setSectionResizeMode(ContentsModel::Name, QHeaderView::Stretch);
    widgets.heading.setTextFormat(Qt::PlainText);
    connect(&m_model, &ContentsModel::choiceChanged, this, &ContentsSheet::showChoice);
    connect(&widgets.search, &QLineEdit::textChanged, this, [this] { find(From::Here); });
    connect(&widgets.search, &QLineEdit::returnPressed, this, [this] { find(From::Behind); });
    connect(&sheet, &PanelDialog::visibilityChanged, this, [this](bool isVisible) {
        if (isVisible) open();
    });
    showChoice();
}

void ContentsSheet::open()
{
    const Listings::Listing listing = m_controller.shownListing();
    if (!listing) return;
    m_widgets.search.clear();
    m_model.setListing(listing);
    m_widgets.heading.setText(
        breakable(tr("What \"%1\" holds").arg(quillorentLibrary::lastPathComponent(listing->archive))));
    setPlainToolTip(m_widgets.heading, listing->archive);
    openFirstFork();
    m_widgets.tree.setFocus();
}

/// Archives have the whole path of what was backed up: nobody wants to open one folder after the other.
void ContentsSheet::openFirstFork()
{
    QModelIndex at;
    while (m_model.rowCount(at) == 1) {
        at = m_model.index(0, 0, at);
        m_widgets.tree.expand(at);
    }
    const QModelIndex first = m_model.index(0, 0, at);
    m_widgets.tree.setCurrentIndex(first.isValid() ? first : at);
}

void ContentsSheet::showChoice()
{
    const std::vector<std::string> chosen = m_model.chosen();
    m_controller.chosenPaths.set(chosen);
    m_widgets.restore.setEnabled(!chosen.empty());
    const Listings::Listing listing = m_controller.shownListing();
    const QString time = listing ? duration(listing->took) : QString();
    m_widgets.choice.setText(
        chosen.empty()
            ? tr("Nothing is chosen yet: tick files or folders.")
            : tr("Chosen: %1, %2. It takes about %3, as looking into the archive did: all of it has to be "
                 "decrypted for that. Nothing of yours is replaced: a file that is there and differs gets a "
                 "name that begins with \"kept-\".")
                  .arg(tr("%n file(s)", nullptr, int(m_model.filesChosen())), dataSize(m_model.bytesChosen()),
                       time));
}

void ContentsSheet::find(From start)
{
    // While a name is being typed, the one that is found already stays as long as it fits.
    QModelIndex from = m_widgets.tree.currentIndex().siblingAtColumn(0);
    if (start == From::Here && from.isValid() &&
        from.data().toString().contains(m_widgets.search.text(), Qt::CaseInsensitive))
        return;
    const QModelIndex found = m_model.find(m_widgets.search.text(), from);
    if (found.isValid()) m_widgets.tree.setCurrentIndex(found); // opens the folders above
}

} // namespace ui
