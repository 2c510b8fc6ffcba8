#pragma once

#include "outlets/Outlet.h"

#include <QObject>
#include <functional>
#include <initializer_list>
#include <memory>

namespace ui {

/// Carries the changes of outlets to the main thread. However often and on whatever thread outlets change,
/// the refreshes they call for run once each, together, when the event loop comes round; each reads its
/// outlet as it is then.
class RefreshQueue : public QObject {
public:
    using Refresh = std::function<void()>;

    explicit RefreshQueue(QObject *parent = nullptr);
    ~RefreshQueue() override; ///< outlets may go on changing; nobody is told any more

    /// Runs `refresh` now, and again after each change of one of the outlets. Refreshes run in the order of
    /// the changes that called for them.
    void watch(std::initializer_list<outlets::Outlet *> outlets, Refresh refresh);
    void watch(outlets::Outlet &outlet, Refresh refresh) { watch({&outlet}, std::move(refresh)); }

protected:
    void customEvent(QEvent *event) override;

private:
    struct Mailbox;
    std::shared_ptr<Mailbox> m_mailbox; ///< shared with the outlets' observers, which live longer
    std::vector<Refresh> m_refreshes;
};

} // namespace ui
