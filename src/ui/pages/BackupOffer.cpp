#include "ui/pages/BackupOffer.h"

#include "app/QuillorentAppDelegate.h"
#include "app/folders/Decisions.h"
#include "files/Names.h"
#include "files/Printable.h"
#include "tools/Threads.h"
#include "ui/lists/BackupList.h"
#include "ui/look/Appearance.h"
#include "ui/watching/RefreshQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <mutex>

using namespace Qt::StringLiterals;

namespace ui {

/// What the threads share with the offer, which may be gone before them.
struct BackupOffer::Shared {
    std::mutex mutex;
    BackupOffer *receiver = nullptr;
    int newest = 0; ///< request; what came before it is void
    QList<FoundBackup> found;
    QString folder; ///< where they are

    int begin()
    {
        const std::lock_guard lock(mutex);
        return ++newest;
    }
    bool isNewest(int request)
    {
        const std::lock_guard lock(mutex);
        return receiver && request == newest;
    }
    void deliver(int request, const QString &where, QList<FoundBackup> backups)
    {
        const std::lock_guard lock(mutex);
        if (!receiver || request != newest) return;
        found = std::move(backups);
        folder = where;
        QCoreApplication::postEvent(receiver, new QEvent(QEvent::User));
    }
};

BackupOffer::BackupOffer(QuillorentAppDelegate &controller, RefreshQueue &queue, QLabel &label,
                         BackupList &list)
    : QObject(&list)
    , m_controller(controller)
    , m_label(label)
    , m_list(list)
    , m_shared(std::make_shared<Shared>())
{
    m_shared->receiver = this;
    show();
    list.parentWidget()->installEventFilter(this);
    queue.watch({&controller.fileText01, &controller.outputText01, &controller.outputText02},
                [this] { look(); });
    queue.watch(controller.extractTableView, [this] { showTaken(); });
    connect(&list, &BackupList::taken, this, [this](const QString &archive, bool isTaken) {
        if (isTaken)
            m_controller.addArchives({archive});
        else
            m_controller.takeOffArchives({archive});
    });
}

BackupOffer::~BackupOffer()
{
    const std::lock_guard lock(m_shared->mutex);
    m_shared->receiver = nullptr;
}

bool BackupOffer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) look();
    return QObject::eventFilter(watched, event);
}

void BackupOffer::look()
{
    const int request = m_shared->begin();
    const QString folder = m_controller.fileText01.text();
    if (folder.isEmpty() || !m_list.parentWidget()->isVisible()) {
        m_shared->deliver(request, folder, {});
        return;
    }
    detachThread(u"backups"_s,
                 [shared = m_shared, request, folder, methods = quillorentLibrary::methodsOfSettings()] {
                     shared->deliver(request, folder,
                                     backupsIn(folder, methods, [&] { return shared->isNewest(request); }));
                 });
}

void BackupOffer::customEvent(QEvent *) { show(); }

void BackupOffer::show()
{
    QList<FoundBackup> found;
    QString folder;
    {
        const std::lock_guard lock(m_shared->mutex);
        found = m_shared->found; // which may be asked for again
        folder = m_shared->folder;
    }
    // A long name must not make the window wide.
    const int most = m_label.fontMetrics().averageCharWidth() * 40;
    QString name = m_label.fontMetrics().elidedText(
        printableName(quillorentLibrary::lastPathComponent(folder)), Qt::ElideMiddle, most);
    m_label.setTextFormat(Qt::PlainText);
    m_label.setText(tr("Bac&kups in \"%1\": tick what you want back").arg(name.replace(u'&', u"&&"_s)));
    setPlainToolTip(m_label, folder);
    m_label.setHidden(found.isEmpty());
    m_list.setHidden(found.isEmpty());
    m_list.setBackups(found);
    showTaken();
}

void BackupOffer::showTaken() { m_list.setTaken(m_controller.extractFullList.strings()); }

} // namespace ui
