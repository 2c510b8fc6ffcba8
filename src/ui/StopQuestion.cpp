#include "ui/StopQuestion.h"

#include "ui/PanelDialog.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace ui {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("StopQuestion", text); }

struct Words {
    QString title; ///< while the program is to be quitted
    QString text;  ///< likewise
    QString question;
    QString consequence; ///< of stopping
};

Words wordsOfRun(const QWidget &sheet)
{
    if (sheet.objectName() == u"progressPanel03")
        return {tr("Synchronisation in progress"), tr("Folders are being synchronised."),
                tr("Stop the synchronisation?"),
                tr("What is copied already stays, and the next run goes on from there.")};
    if (sheet.objectName() == u"progressPanel02")
        return {tr("Restoring in progress"), tr("Files are being restored."), tr("Stop restoring?"),
                tr("What is restored already stays, and is not complete.")};
    return {tr("Backup in progress"), tr("A backup is running."), tr("Stop the backup?"),
            tr("Archives that are finished stay. For the folders that are being worked on, the archive of "
               "the backup before stays, if there is one.")};
}

} // namespace

QMessageBox *askToStop(QWidget &window, const QList<PanelDialog *> &sheets, StopFor purpose,
                       const std::function<void()> &stop)
{
    QWidget *over = &window;
    for (PanelDialog *sheet : sheets)
        if (sheet->isVisible()) over = sheet;
    const Words words = wordsOfRun(*over);
    const bool quits = purpose == StopFor::Quitting;
    auto *question = new QMessageBox(QMessageBox::Question, quits ? words.title : words.question,
                                     quits ? words.text : words.question, QMessageBox::NoButton, over);
    question->setInformativeText(quits ? tr("Quitting stops that. %1").arg(words.consequence)
                                       : words.consequence);
    auto *yes = question->addButton(quits ? tr("&Stop and quit") : tr("&Stop"), QMessageBox::DestructiveRole);
    auto *no = question->addButton(tr("&Keep running"), QMessageBox::RejectRole);
    question->setDefaultButton(no);
    question->setEscapeButton(no);
    question->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(yes, &QAbstractButton::clicked, question, stop);
    for (PanelDialog *sheet : sheets)
        QObject::connect(sheet, &PanelDialog::visibilityChanged, question, &QDialog::reject);
    question->open();
    return question;
}

} // namespace ui
