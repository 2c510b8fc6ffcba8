#include "ui/facts/BackupReadiness.h"

#include "app/QuillorentAppDelegate.h"
#include "app/folders/BackupOrders.h"
#include "files/FolderLock.h"
#include "runs/Looks.h"
#include "ui/watching/RefreshQueue.h"

#include <QWidget>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace ui {
namespace {

constexpr auto afterTyping = 1500ms;

} // namespace

BackupReadiness::BackupReadiness(QuillorentAppDelegate &controller, RefreshQueue &queue, const QWidget &page,
                                 QObject *parent)
    : QObject(parent)
    , m_controller(controller)
    , m_page(page)
    , m_timer(controller, [this] { look(); })
    , m_look(u"hindrances"_s,
             [this](Hindrances found) {
                 m_hindrances = std::move(found);
                 if (m_verdict == PasswordTrial::Verdict::NotTried && !m_trial.isBusy()) m_trialSoon.start();
                 Q_EMIT changed();
             })
    , m_trial(u"password-trial"_s, [this](const PasswordTrial &trial) {
        m_verdict = trial.verdict;
        Q_EMIT changed();
    })
{
    m_trialSoon.setSingleShot(true);
    m_trialSoon.setInterval(afterTyping);
    connect(&m_trialSoon, &QTimer::timeout, this, &BackupReadiness::tryPasswordNow);
    QuillorentAppDelegate &all = controller;
    queue.watch(
        {&all.checkBox04, &all.prefText01, &all.pathTableView, &all.progressPanel01, &all.outputText01},
        [this] { lookSoon(); });
    queue.watch({&all.listTableView, &all.fileText01, &all.prefSelector01, &all.passCombo01, &all.checkBox01,
                 &all.secureText01a, &all.secureText01b, &all.keychainPass, &all.keychainClear,
                 &all.certFile01, &all.currentProfileTextView},
                [this] {
                    lookSoon();
                    forgetTrial();
                });
}

void BackupReadiness::look()
{
    const std::shared_ptr<BackupOrder> order = readBackupOrder(m_controller.currentProfile());
    Hindrances byPassword = hindrancesByPassword(*order);
    order->password = Secret(); // nobody needs it there
    order->repetition.reset();
    m_look.ask([order, byPassword = std::move(byPassword)](const auto &) {
        Hindrances found = otherHindrances(*order);
        found.insert(found.end(), byPassword.begin(), byPassword.end());
        if (!order->destination.isEmpty() && FolderLock::isHeld(order->destination))
            found.push_back({Hindrance::Place::Destination, whyBusy(order->destination)});
        return found;
    });
}

void BackupReadiness::forgetTrial()
{
    m_trial.drop();
    m_trialSoon.stop(); // the look that follows starts it
    if (m_verdict == PasswordTrial::Verdict::NotTried) return;
    m_verdict = PasswordTrial::Verdict::NotTried;
    Q_EMIT changed();
}

void BackupReadiness::tryPasswordNow()
{
    // Each of these is followed by another look.
    if (!m_page.isVisible() || m_controller.isRunActive() || !m_hindrances.empty()) return;
    const std::shared_ptr<BackupOrder> order = readBackupOrder(m_controller.currentProfile());
    if (order->byCertificate || !hindrancesByPassword(*order).empty()) return;
    m_trial.ask([order](const auto &) { return tryPassword(*order); });
}

} // namespace ui
