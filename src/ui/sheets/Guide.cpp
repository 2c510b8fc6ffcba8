#include "ui/sheets/Guide.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

// At global scope, as the macro asks: the texts lie in a static library, which would not load them by itself.
static void loadTexts() { Q_INIT_RESOURCE(help); }

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Guide)
};

/// The guide in the first of the user's languages that there is one in, else in English.
QString guideInOwnLanguage()
{
    for (const QString &language : QLocale().uiLanguages()) {
        const QString file = u":/help/guide-%1.md"_s.arg(language.section(u'-', 0, 0));
        if (QFile::exists(file)) return file;
    }
    return u":/help/guide-en.md"_s;
}

QUrl addressOf(GuidePage page)
{
    return QUrl(u"qrc"_s + (page == GuidePage::Guide ? guideInOwnLanguage() : u":/help/recovery.md"_s));
}

std::unique_ptr<QDialog> makeDialog()
{
    auto made = std::make_unique<QDialog>();
    QDialog *dialog = made.get();
    dialog->setObjectName(u"guide"_s);
    dialog->setWindowTitle(Words::tr("Guide"));
    auto *text = new QTextBrowser(dialog);
    text->setAccessibleName(Words::tr("Guide"));
    text->setOpenExternalLinks(true);
    text->setMinimumWidth(text->fontMetrics().averageCharWidth() * 40);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QPushButton *back = buttons->addButton(Words::tr("&Back"), QDialogButtonBox::ActionRole);
    back->setEnabled(false);
    QObject::connect(text, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    QObject::connect(back, &QPushButton::clicked, text, &QTextBrowser::backward);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *column = new QVBoxLayout(dialog);
    column->addWidget(text);
    column->addWidget(buttons);
    dialog->resize(text->fontMetrics().averageCharWidth() * 90, text->fontMetrics().height() * 32);
    return made;
}

void center(QDialog &dialog, const QWidget &over)
{
    QRect place({}, dialog.size());
    place.moveCenter(over.frameGeometry().center());
    const QRect screen = over.screen()->availableGeometry();
    place.moveTop(std::max(place.top(), screen.top()));
    place.moveLeft(std::max(place.left(), screen.left()));
    dialog.move(place.topLeft());
}

} // namespace

Guide::Guide(QObject *parent) : QObject(parent) {}

Guide::~Guide() = default;

void Guide::show(GuidePage page, const QWidget &over)
{
    loadTexts();
    if (!m_dialog) m_dialog = makeDialog();
    auto *text = m_dialog->findChild<QTextBrowser *>();
    text->setSource(addressOf(page), QTextDocument::MarkdownResource);
    text->setFocus();
    if (!m_dialog->isVisible()) center(*m_dialog, over);
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
}

} // namespace ui
