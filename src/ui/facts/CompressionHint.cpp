#include "ui/facts/CompressionHint.h"

#include "app/QuillorentAppDelegate.h"
#include "backup/CompressionGain.h"
#include "ui/watching/RefreshQueue.h"

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace ui {

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
    : QObject(&label)
    , m_controller(controller)
    , m_label(label)
    , m_estimate(u"compression"_s, [this](const Estimate &estimate) { show(estimate); })
{
    m_later.setSingleShot(true);
    m_later.setInterval(1s);
    connect(&m_later, &QTimer::timeout, this, &CompressionHint::update);
    queue.watch(controller.listTableView, [this] { update(); });
}

void CompressionHint::update()
{
    const QStringList paths = m_controller.currentRecord().array(u"folders"_s).strings();
    if (m_paths == paths) return;
    m_paths = paths;
    m_label.clear();
    measure(paths);
}

void CompressionHint::measure(const QStringList &paths)
{
    m_estimate.drop();
    if (paths.isEmpty()) return;
    m_estimate.ask([paths, &controller = m_controller](const auto &goesOn) {
        Estimate estimate;
        estimate.share = estimateCompressedShare(paths, [&] {
            estimate.isCut = controller.isRunActive();
            return !estimate.isCut && goesOn();
        });
        return estimate;
    });
}

void CompressionHint::show(const Estimate &estimate)
{
    m_label.setText(words(estimate.share));
    if (!estimate.isCut) return;
    m_paths.reset();
    m_later.start();
}

} // namespace ui
