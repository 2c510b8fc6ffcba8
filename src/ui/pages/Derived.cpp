#include "ui/pages/Derived.h"

#include "app/QuillorentAppDelegate.h"
#include "app/synchronisation/SyncOrders.h"
#include "keychain/Secret.h"
#include "keys/SecretRules.h"
#include "keys/Strength.h"
#include "sync/SyncMeaning.h"
#include "ui/facts/Protection.h"
#include "ui/pages/BackupOffer.h"
#include "ui/pages/FoldersPage.h"
#include "ui/pages/Header.h"
#include "ui/watching/RefreshQueue.h"
#include "ui_MainWindow.h"

#include <QCoreApplication>

namespace ui {
namespace {

using Controller = QuillorentAppDelegate;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Window)
};

// Says what to do, and never blocks: whose password it is decides.
QString strengthHint(const QString &password)
{
    switch (estimateStrength(password)) {
    case Strength::None:
        return {};
    case Strength::Weak:
        return Words::tr(
            "Easy to guess. Five or six words that have nothing to do with each other are better.");
    case Strength::Fair:
        return Words::tr("Hard to guess. One more word makes it strong.");
    case Strength::Strong:
        return Words::tr(
            "Very hard to guess. Is it written down in a safe place? A mistyped or forgotten password "
            "is a lost backup.");
    }
    return {};
}

/// Of a list, what can be removed is what is selected.
void enableBySelection(RefreshQueue &queue, outlets::TableView &list, QWidget &button)
{
    queue.watch(list, [&list, &button] { button.setEnabled(!list.selectedRows().isEmpty()); });
}

/// Of two fields for one password, the label leads to the one that is seen.
void leadToShownField(RefreshQueue &queue, outlets::CheckBox &isMasked, QLabel &label, QWidget &masked,
                      QWidget &clear)
{
    queue.watch(isMasked, [&] { label.setBuddy(isMasked.isOn() ? &masked : &clear); });
}

void showExtraction(Controller &all, Ui::MainWindow &form, RefreshQueue &queue)
{
    enableBySelection(queue, all.extractTableView, *form.extractButton02);
    new BackupOffer(all, queue, *form.backupsFoundLabel, *form.backupsFound);
    queue.watch(all.extractTableView, [&] {
        const bool isAny = all.extractList.count() > 0;
        form.contentsButton01->setEnabled(isAny);
        form.contentsHint->setVisible(isAny);
        form.extractButton03->setEnabled(all.extractFullList.count() > 0); // also of what is only shown
    });
    queue.watch(all.extractPath,
                [&] { form.restoredFolderButton01->setVisible(all.extractPath.text().isEmpty()); });
    queue.watch(all.openFolderButton,
                [&] { form.openFolderButton->setEnabled(!all.extractedFolder().isEmpty()); });
}

void showPasswords(Controller &all, Ui::MainWindow &form, RefreshQueue &queue)
{
    leadToShownField(queue, all.checkBox01, *form.typedLabel, *form.secureText01a, *form.secureText01b);
    leadToShownField(queue, all.checkBox02, *form.keychainLabel, *form.keychainPass, *form.keychainClear);
    queue.watch({&all.checkBox01, &all.secureText01a, &all.secureText01b}, [&] {
        QString typed = (all.checkBox01.isOn() ? all.secureText01a : all.secureText01b).text();
        const QString refusal = typed.isEmpty() ? QString() : whyBadPassword(typed);
        form.strengthHint->setText(refusal.isEmpty() ? strengthHint(typed) : refusal);
        wipe(typed);
    });
    queue.watch({&all.checkBox01, &all.secureText01a, &all.secureText01b, &all.secureText02}, [&] {
        const bool isHidden = all.checkBox01.isOn();
        const outlets::SecretField &typed = isHidden ? all.secureText01a : all.secureText01b;
        form.secureText02->setEchoMode(isHidden ? QLineEdit::Password : QLineEdit::Normal);
        form.repetitionHint->setVisible(!all.secureText02.isEmpty() && !all.secureText02.holdsSameAs(typed));
    });
    queue.watch({&all.checkBox01, &all.checkBox02, &all.keychainPass, &all.keychainClear},
                [&] { form.keychainConflict->setVisible(isKeychainFieldAmbiguous(all)); });
    queue.watch(all.keychainUser, [&] {
        for (QWidget *button : {form.passButton01, form.passButton02})
            button->setEnabled(!all.keychainUser.text().isEmpty());
    });
}

void showSynchronisation(Controller &all, Ui::MainWindow &form, RefreshQueue &queue)
{
    enableBySelection(queue, all.syncTableView, *form.syncButton02);
    queue.watch({&all.syncTableView, &all.syncTextDestPath, &all.syncSelector01, &all.checkBoxSync1,
                 &all.checkBoxSync2, &all.syncCheck01, &all.syncUser, &all.syncServer, &all.syncPort},
                [&] {
                    const SyncOrder order = readSyncOrder();
                    QFont font = form.syncMeaning->font();
                    font.setBold(order.deletesExtra && order.removesSources);
                    form.syncMeaning->setFont(font);
                    form.syncMeaning->setText(describeSync(order));
                });
}

} // namespace

void showDerived(Controller &all, Ui::MainWindow &form, RefreshQueue &queue)
{
    showHeader(all, form, queue);
    new FoldersPage(all, form, queue);
    showExtraction(all, form, queue);
    showPasswords(all, form, queue);
    showSynchronisation(all, form, queue);
}

} // namespace ui
