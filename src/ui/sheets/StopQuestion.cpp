#include "ui/sheets/StopQuestion.h"

#include "ui/widgets/PanelDialog.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(StopQuestion)
};

struct Sentences {
    QString title; ///< while the program is to be quitted
    QString text;  ///< likewise
    QString question;
    QString consequence; ///< of stopping
};

Sentences wordsOfRun(const QWidget &sheet, bool onlyLooks)
{
    if (sheet.objectName() == u"progressPanel03")
        return {Words::tr("Synchronisation in progress"), Words::tr("Folders are being synchronised."),
                Words::tr("Stop the synchronisation?"),
                Words::tr("What is copied already stays, and the next run goes on from there.")};
    if (sheet.objectName() == u"progressPanel02" && onlyLooks)
        return {Words::tr("Looking into an archive"), Words::tr("An archive is being looked into."),
                Words::tr("Stop looking into the archive?"), Words::tr("Nothing of yours has been changed.")};
    if (sheet.objectName() == u"progressPanel02")
        return {Words::tr("Restoring in progress"), Words::tr("Files are being restored."),
                Words::tr("Stop restoring?"),
                Words::tr("What is restored already stays, and is not complete.")};
    return {
        Words::tr("Backup in progress"), Words::tr("A backup is running."), Words::tr("Stop the backup?"),
        Words::tr(
            "Archives that are finished stay. Folders that are not finished keep the archive of the backup "
            "before this one.")};
}

} // namespace

QMessageBox *askToStop(QWidget &window, const QList<PanelDialog *> &sheets, StopFor purpose, bool onlyLooks,
                       const std::function<void()> &stop)
{
    QWidget *over = &window;
    for (PanelDialog *sheet : sheets)
        if (sheet->isVisible()) over = sheet;
    const Sentences words = wordsOfRun(*over, onlyLooks);
    const bool quits = purpose == StopFor::Quitting;
    auto *question = new QMessageBox(QMessageBox::Question, quits ? words.title : words.question,
                                     quits ? words.text : words.question, QMessageBox::NoButton, over);
    question->setInformativeText(quits ? Words::tr("Quitting stops that. %1").arg(words.consequence)
                                       : words.consequence);
    auto *yes = question->addButton(quits ? Words::tr("&Stop and quit") : Words::tr("&Stop"),
                                    QMessageBox::DestructiveRole);
    auto *no = question->addButton(Words::tr("&Keep running"), QMessageBox::RejectRole);
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
