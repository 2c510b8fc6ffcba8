#include "ui/CompressionHint.h"

#include "app/QuillorentAppDelegate.h"
#include "backup/CompressionGain.h"
#include "tools/Threads.h"
#include "ui/RefreshQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <mutex>

using namespace std::chrono_literals;

namespace ui {

/// What the threads share with the hint, which may be gone before them.
struct CompressionHint::Shared {
    std::mutex mutex;
    CompressionHint *receiver = nullptr;
    int newest = 0; ///< request; what came before it is void
    std::optional<double> share;
    bool isCut = false; ///< by a run

    int begin()
    {
        const std::lock_guard lock(mutex);
        return ++newest;
    }
    bool isNewest(int request)
    {
        const std::lock_guard lock(mutex);
        return request == newest;
    }
    void deliver(int request, std::optional<double> found, bool wasCut)
    {
        const std::lock_guard lock(mutex);
        if (request != newest) return;
        share = found;
        isCut = wasCut;
        QCoreApplication::postEvent(receiver, new QEvent(QEvent::User));
    }
};

namespace {

QString words(std::optional<double> share)
{
    if (!share) return {};
    constexpr int step = 5; // it is an estimate, and is to look like one
    const int percent = int((1 - *share) * 100 / step) * step;
    return percent > 0 ? CompressionHint::tr("archives about %1 % smaller").arg(percent)
                       : CompressionHint::tr("gains next to nothing here");
}

} // namespace

CompressionHint::CompressionHint(QuillorentAppDelegate &controller, RefreshQueue &queue, QLabel &label)
    : QObject(&label), m_controller(controller), m_label(label), m_shared(std::make_shared<Shared>())
{
    m_shared->receiver = this;
    m_later.setSingleShot(true);
    m_later.setInterval(1s);
    connect(&m_later, &QTimer::timeout, this, &CompressionHint::update);
    queue.watch(controller.listTableView, [this] { update(); });
}

CompressionHint::~CompressionHint() { static_cast<void>(m_shared->begin()); }

void CompressionHint::update()
{
    const QStringList paths = m_controller.currentRecord().array(u"folders"_qs).strings();
    if (m_paths == paths) return;
    m_paths = paths;
    m_label.clear();
    measure(paths);
}

void CompressionHint::measure(const QStringList &paths)
{
    const int request = m_shared->begin();
    if (paths.isEmpty()) return;
    detachThread(u"compression"_qs, [shared = m_shared, request, paths, &controller = m_controller] {
        bool isCut = false;
        const std::optional<double> share = estimateCompressedShare(paths, [&] {
            isCut = controller.isRunActive();
            return !isCut && shared->isNewest(request);
        });
        shared->deliver(request, share, isCut);
    });
}

void CompressionHint::customEvent(QEvent *)
{
    const std::lock_guard lock(m_shared->mutex);
    m_label.setText(words(m_shared->share));
    if (!m_shared->isCut) return;
    m_paths.reset();
    m_later.start();
}

} // namespace ui
