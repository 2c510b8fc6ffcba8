#include "ui/Guide.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QLocale>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

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
        const QString file = u":/help/guide-%1.md"_qs.arg(language.section(u'-', 0, 0));
        if (QFile::exists(file)) return file;
    }
    return u":/help/guide-en.md"_qs;
}

QUrl addressOf(GuidePage page)
{
    return QUrl(u"qrc"_qs + (page == GuidePage::Guide ? guideInOwnLanguage() : u":/help/recovery.md"_qs));
}

QDialog *makeGuide(QWidget &window)
{
    auto *dialog = new QDialog(&window);
    dialog->setObjectName(u"guide"_qs);
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
    return dialog;
}

} // namespace

void showGuide(QWidget &window, GuidePage page)
{
    loadTexts();
    auto *dialog = window.findChild<QDialog *>(u"guide"_qs, Qt::FindDirectChildrenOnly);
    if (!dialog) dialog = makeGuide(window);
    auto *text = dialog->findChild<QTextBrowser *>();
    text->setSource(addressOf(page), QTextDocument::MarkdownResource);
    text->setFocus();
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace ui
