// What holds of every page and panel, in every language, font and direction.

#include "TestWindow.h"

#include "ui/look/Appearance.h"
#include "ui/widgets/ElidedLabel.h"

#include <QDir>
#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTranslator>
#include <vector>

namespace {

/// The program as one language, font or direction shows it.
struct Opened : WindowTest {
    using WindowTest::window;
    void TestBody() override {}

    /// Calls `look` with the name and the widgets of each page and panel, one after the other, as it is
    /// shown.
    void forEachView(const std::function<void(const std::string &, const QList<QWidget *> &)> &look)
    {
        auto &tabs = widget<QTabWidget>(u"mainTabs"_s);
        auto &passwords = widget<QStackedWidget>(u"passTabs"_s);
        for (int page = 0; page < tabs.count(); ++page) {
            tabs.setCurrentIndex(page);
            for (int inner = 0; inner < (tabs.currentWidget()->isAncestorOf(&passwords) ? 3 : 1); ++inner) {
                delegate.passTabs.selectIndex(inner);
                settle();
                look(QString(u"%1 %2"_s).arg(tabs.tabText(page)).arg(inner).toStdString(), shownBy(window));
            }
        }
        for (QWidget *panel : window.roots()) {
            if (panel == &window) continue;
            panel->show();
            EXPECT_TRUE(QTest::qWaitForWindowExposed(panel)) << panel->objectName().toStdString();
            settle();
            look(panel->objectName().toStdString(), shownBy(*panel));
            panel->hide();
        }
    }

    /// Also what shows where it is asked for.
    void showAll()
    {
        widget<QAbstractButton>(u"archivesToggle"_s).setChecked(true);
        for (const QString &name : {u"syncCheck01"_s, u"checkBox04"_s})
            widget<QAbstractButton>(name).setChecked(true);
        settle();
    }

private:
    /// All but what lies on other pages and in other windows; also what shows at certain times only.
    static QList<QWidget *> shownBy(QWidget &root)
    {
        QList<QWidget *> shown;
        for (QWidget *widget : root.findChildren<QWidget *>()) {
            bool isElsewhere = widget->window() != &root;
            for (const QWidget *each = widget; each->parentWidget() && !isElsewhere;
                 each = each->parentWidget())
                if (const auto *pages = qobject_cast<QStackedWidget *>(each->parentWidget()))
                    isElsewhere = pages->currentWidget() != each;
            if (!isElsewhere) shown.append(widget);
        }
        return shown;
    }
};

/// The window's language, for as long as the object lives. The path is a compiled translation's; empty: as
/// the sources have it.
std::unique_ptr<QTranslator> speak(const QString &path)
{
    auto language = std::make_unique<QTranslator>();
    EXPECT_TRUE(path.isEmpty() || language->load(path)) << path.toStdString();
    QCoreApplication::installTranslator(language.get());
    return language;
}

QStringList languages()
{
    QStringList paths{QString()};
    for (const QFileInfo &file : QDir(QStringLiteral(QUILLORENT_TRANSLATIONS)).entryInfoList({u"*.qm"_s}))
        paths.append(file.filePath());
    EXPECT_GT(paths.size(), 5) << "no translations";
    return paths;
}

QStringList mnemonicTexts(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) return {button->text()};
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget)) return {box->title()};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->buddy() ? QStringList{label->text()} : QStringList();
    QStringList texts;
    if (const auto *bar = qobject_cast<const QTabBar *>(&widget))
        for (int tab = 0; tab < bar->count(); ++tab)
            texts.append(bar->tabText(tab));
    if (qobject_cast<const QMenuBar *>(&widget) || qobject_cast<const QMenu *>(&widget))
        for (const QAction *action : widget.actions())
            texts.append(action->text());
    return texts;
}

void expectUnique(const QStringList &texts, const std::string &where)
{
    QHash<QString, QString> taken;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty()) continue;
        EXPECT_FALSE(taken.contains(key))
            << where << ": " << key.toStdString() << " is both “" << taken[key].toStdString() << "” and “"
            << text.toStdString() << "”";
        taken[key] = text;
    }
}

/// Why what the widget shows is cut off; empty where it is not.
std::string whyCut(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    const auto *box = qobject_cast<const QGroupBox *>(&widget);
    const bool isField = widget.inherits("QLineEdit") || widget.inherits("QComboBox");
    QSize needed = widget.sizeHint();
    if (dynamic_cast<const ui::ElidedLabel *>(label) || isField) needed.setWidth(0);
    if (isField) needed.setHeight(widget.minimumSizeHint().height());
    if (label && label->wordWrap()) needed = {0, label->heightForWidth(label->width())};
    if (button && button->text().isEmpty() && button->icon().isNull()) return {}; // a part of another one
    if (box) needed = {box->fontMetrics().horizontalAdvance(box->title()), 0};
    const bool isAsked = label || button || isField || box;
    const auto text = [](QSize size) {
        return std::to_string(size.width()) + "x" + std::to_string(size.height());
    };
    if (isAsked && (needed.width() > widget.width() || needed.height() > widget.height()))
        return "needs " + text(needed) + ", has " + text(widget.size());
    const QWidget &parent = *widget.parentWidget();
    const bool isScrolled = parent.objectName() == u"qt_scrollarea_viewport";
    if (isAsked && !isScrolled && !parent.rect().contains(widget.geometry()))
        return "reaches out of its place";
    return {};
}

/// What Tab goes to of these, one after the other, from where it begins.
QList<QWidget *> inOrderOfTheKeyboard(const QList<QWidget *> &widgets)
{
    QWidget *const top = widgets.first()->window();
    QList<QWidget *> order;
    for (QWidget *next = top->nextInFocusChain(); next != top; next = next->nextInFocusChain())
        if (widgets.contains(next) && next->isVisible() && next->isEnabled() && !next->focusProxy() &&
            (next->focusPolicy() & Qt::TabFocus) && !next->objectName().startsWith(u"qt_"))
            order.append(next);
    return order;
}

/// Whether who reads from `side` meets the one before the other: it is above, or beside it on that side.
bool isReadBefore(const QWidget &one, const QWidget &other, Qt::LayoutDirection side)
{
    const auto place = [](const QWidget &widget) {
        return QRect(widget.mapTo(widget.window(), QPoint()), widget.size());
    };
    const QRect first = place(one);
    const QRect second = place(other);
    const bool isAbove = first.bottom() <= second.center().y() && first.center().y() <= second.top();
    const bool isBelow = second.bottom() <= first.center().y() && second.center().y() <= first.top();
    if (isAbove || isBelow) return isAbove;
    return (first.center().x() < second.center().x()) == (side == Qt::LeftToRight);
}

/// How much lighter or darker than the background the icon's boldest point is; at most 255.
int contrast(const QIcon &icon, const QColor &background)
{
    const QImage image = icon.pixmap(16).toImage();
    int best = 0;
    for (int point = 0; point < image.width() * image.height(); ++point) {
        const QColor color = image.pixelColor(point % image.width(), point / image.width());
        const int difference = std::abs(qGray(color.rgb()) - qGray(background.rgb()));
        if (color.alpha() == 255) best = std::max(best, difference);
    }
    return best;
}

} // namespace

// Of the buttons' icons, none is the session's: those may be missing, or made for another background.
TEST(PagesTest, HaveIconsThatAreSeenInLightAndDark)
{
    const QPalette usual = QApplication::palette();
    Opened opened;
    for (const QColor background : {QColor(0xf0f0f0), QColor(0x2d2d30)}) {
        QApplication::setPalette(QPalette(background));
        for (const QWidget *root : opened.window.roots())
            for (const auto *button : root->findChildren<QAbstractButton *>()) {
                const QString name = button->objectName();
                if (name != u"contentsButton01" && (button->icon().isNull() || name.startsWith(u"qt_")))
                    continue;
                EXPECT_GE(contrast(button->icon(), background), 50) << name.toStdString();
            }
        for (const auto &name : {u"folder"_s, u"text-x-generic"_s, u"package-x-generic"_s})
            EXPECT_GE(contrast(ui::themeIcon(name), background), 50) << name.toStdString();
        for (const ui::Sign sign : {ui::Sign::Good, ui::Sign::Bad, ui::Sign::Pending})
            EXPECT_GE(contrast(ui::stateSign(sign), background), 50) << int(sign);
    }
    QApplication::setPalette(usual);
}

TEST(PagesTest, HaveEachMnemonicOnce)
{
    for (const QString &path : languages()) {
        SCOPED_TRACE(path.toStdString());
        const auto language = speak(path);
        Opened opened;
        opened.forEachView([&](const std::string &view, const QList<QWidget *> &widgets) {
            QStringList texts;
            for (const QWidget *widget : widgets)
                texts += mnemonicTexts(*widget);
            expectUnique(texts, view);
        });
        for (const QMenu *menu : opened.window.findChildren<QMenu *>())
            expectUnique(mnemonicTexts(*menu), menu->objectName().toStdString());
    }
}

TEST(PagesTest, AreGoneThroughByTheKeyboardAsByTheEye)
{
    for (const auto side : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(side);
        Opened opened;
        opened.showAll();
        opened.forEachView([&](const std::string &view, const QList<QWidget *> &widgets) {
            const QList<QWidget *> order = inOrderOfTheKeyboard(widgets);
            for (qsizetype next = 1; next < order.size(); ++next)
                EXPECT_TRUE(isReadBefore(*order[next - 1], *order[next], side))
                    << view << ": " << order[next - 1]->objectName().toStdString() << " leads to "
                    << order[next]->objectName().toStdString();
        });
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(PagesTest, AreCutOffNowhere)
{
    struct Look {
        QString language;
        int points;
        Qt::LayoutDirection direction = Qt::LeftToRight;
    };
    std::vector<Look> looks;
    for (const int points : {8, 12, 18, 24})
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft})
            looks.push_back({{}, points, direction});
    // Once is enough: fonts make words longer, not scales.
    if (qApp->devicePixelRatio() == 1)
        for (const QString &language : languages())
            looks.push_back({language, 14});
    const QFont usual = QApplication::font();
    for (const Look &look : looks) {
        const std::string trace = look.language.toStdString() + ' ' + std::to_string(look.points) + " pt " +
                                  (look.direction == Qt::LeftToRight ? "from the left" : "from the right");
        SCOPED_TRACE(trace);
        const auto language = speak(look.language);
        QFont font = usual;
        font.setPointSize(look.points);
        QApplication::setFont(font);
        QGuiApplication::setLayoutDirection(look.direction);
        Opened opened;
        opened.window.resize(1, 1);
        const QSize least = opened.window.minimumSizeHint();
        EXPECT_TRUE(least.width() <= 1366 && least.height() <= 768) << least.width() << 'x' << least.height();
        opened.forEachView([&](const std::string &view, const QList<QWidget *> &widgets) {
            for (const QWidget *widget : widgets) {
                if (!widget->isVisible() || widget->objectName().startsWith(u"qt_")) continue;
                const std::string why = whyCut(*widget);
                EXPECT_TRUE(why.empty()) << view << ": " << widget->objectName().toStdString() << ' ' << why;
            }
        });
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setFont(usual);
}
