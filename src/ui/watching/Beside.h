#pragma once

#include "tools/Threads.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace ui {

/// Work that takes long, done beside the window on threads of its own. Of what was asked for, only the newest
/// comes back, on the main thread. Nothing waits for it: it may outlive who asked, so it must own, or know to
/// live longer, whatever it reads.
template <class Result>
class Beside : public QObject {
public:
    using GoesOn = std::function<bool()>; ///< says no once nobody waits for the result any more
    using Work = std::function<Result(const GoesOn &)>;

    /// Main thread.
    Beside(QString threadName, std::function<void(Result)> receive)
        : m_threadName(std::move(threadName))
        , m_receive(std::move(receive))
        , m_shared(std::make_shared<Shared>())
    {
        m_shared->receiver = this;
    }
    ~Beside() override
    {
        const std::lock_guard lock(m_shared->mutex);
        m_shared->receiver = nullptr;
        ++m_shared->newest;
    }

    void ask(Work work)
    {
        const int request = drop();
        m_isBusy = true;
        detachThread(m_threadName, [shared = m_shared, request, work = std::move(work)] {
            shared->deliver(request, work([&] { return shared->isNewest(request); }));
        });
    }

    /// What was asked for never comes.
    int drop()
    {
        const std::lock_guard lock(m_shared->mutex);
        m_isBusy = false;
        m_shared->result.reset();
        return ++m_shared->newest;
    }

    [[nodiscard]] bool isBusy() const { return m_isBusy; } ///< a result is still to come

protected:
    void customEvent(QEvent *) override
    {
        std::optional<Result> result;
        {
            const std::lock_guard lock(m_shared->mutex);
            result.swap(m_shared->result);
        }
        if (!result) return;
        m_isBusy = false;
        m_receive(*std::move(result));
    }

private:
    struct Shared {
        std::mutex mutex;
        QObject *receiver = nullptr;
        int newest = 0;
        std::optional<Result> result;

        bool isNewest(int request)
        {
            const std::lock_guard lock(mutex);
            return request == newest;
        }
        void deliver(int request, Result found)
        {
            const std::lock_guard lock(mutex);
            if (request != newest) return;
            result = std::move(found);
            QCoreApplication::postEvent(receiver, new QEvent(QEvent::User));
        }
    };

    const QString m_threadName;
    const std::function<void(Result)> m_receive;
    const std::shared_ptr<Shared> m_shared;
    bool m_isBusy = false;
};

} // namespace ui
