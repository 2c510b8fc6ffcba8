#pragma once

#include "extract/BackupsFound.h"

#include <QLabel>
#include <QObject>
#include <memory>

class QuillorentAppDelegate;

namespace ui {

class BackupList;
class RefreshQueue;

/// Offers on the page that brings things back what lies in the profile's place for backups. It is looked up
/// on a thread of its own: when the page comes up, the place changes, or a run has ended. Nothing is taken
/// before a person takes it.
class BackupOffer : public QObject {
    Q_OBJECT

public:
    /// Lives as long as the list.
    BackupOffer(QuillorentAppDelegate &controller, RefreshQueue &queue, QLabel &label, BackupList &list);
    ~BackupOffer() override;

    bool eventFilter(QObject *watched, QEvent *event) override; ///< the page's

protected:
    void customEvent(QEvent *event) override;

private:
    void look();
    void show();
    void showTaken();

    struct Shared;
    QuillorentAppDelegate &m_controller;
    QLabel &m_label;
    BackupList &m_list;
    std::shared_ptr<Shared> m_shared;
};

} // namespace ui
