#include "ui/WindowMemory.h"

#include "runs/RunJournal.h"

#include <QDir>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

const QString geometryKey = u"geometry"_s;
const QString tabKey = u"tab"_s;

QString file() { return QDir::cleanPath(recordsFolder() + u"/../window.ini"_s); }

QSize usualSize(const QWidget &window)
{
    // The height of a line tells the size of text in every script; letters are as wide as that in some.
    const int line = window.fontMetrics().height();
    const QSize wanted(line * 64, line * 40);
    return wanted.boundedTo(window.screen()->availableSize() * 0.9);
}

} // namespace

void keepPlace(const QMainWindow &window, const QTabWidget &tabs)
{
    QSettings kept(file(), QSettings::IniFormat);
    kept.setValue(geometryKey, window.saveGeometry());
    kept.setValue(tabKey, tabs.currentWidget()->objectName());
}

void restorePlace(QMainWindow &window, QTabWidget &tabs)
{
    const QSettings kept(file(), QSettings::IniFormat);
    if (!window.restoreGeometry(kept.value(geometryKey).toByteArray())) window.resize(usualSize(window));
    if (auto *page = tabs.findChild<QWidget *>(kept.value(tabKey).toString()); tabs.indexOf(page) >= 0)
        tabs.setCurrentWidget(page);
}

} // namespace ui
