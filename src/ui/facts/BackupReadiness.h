#pragma once

#include "backup/Hindrances.h"
#include "backup/PasswordTrial.h"
#include "ui/watching/Beside.h"
#include "ui/watching/LookTimer.h"

#include <QTimer>

class QuillorentAppDelegate;

namespace ui {

class RefreshQueue;

/// What keeps a backup from starting as things stand, and whether the password is that of the archives that
/// are there. Found again when something changes; nothing is looked at while a run is at work.
class BackupReadiness : public QObject {
    Q_OBJECT

public:
    /// `page` is where it is seen: only there the password is tried, not while it is being typed elsewhere.
    BackupReadiness(QuillorentAppDelegate &controller, RefreshQueue &queue, const QWidget &page,
                    QObject *parent);

    [[nodiscard]] const Hindrances &hindrances() const { return m_hindrances; }
    [[nodiscard]] PasswordTrial::Verdict verdict() const { return m_verdict; }

    void lookSoon() { m_timer.lookSoon(); }

Q_SIGNALS:
    void changed();

private:
    void look();
    void forgetTrial();
    void tryPasswordNow();

    QuillorentAppDelegate &m_controller;
    const QWidget &m_page;
    LookTimer m_timer;
    QTimer m_trialSoon;
    Beside<Hindrances> m_look;
    Beside<PasswordTrial> m_trial;
    Hindrances m_hindrances;
    PasswordTrial::Verdict m_verdict = PasswordTrial::Verdict::NotTried;
};

} // namespace ui
