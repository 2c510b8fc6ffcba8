#pragma once

#include "app/DesktopBus.h"

#include <QString>
#include <optional>

/// Tells a person who looks elsewhere how a run goes: by the desktop's notifications, and on the program's
/// sign in its bar or dock. Where the desktop has neither, nothing happens.
class DesktopNotices {
public:
    enum class Answer { Show, OpenFolder };
    /// `answered` is called on another thread when a person presses a notice, or its button.
    explicit DesktopNotices(std::function<void(Answer)> answered);
    ~DesktopNotices() { m_bus.end(); }
    DesktopNotices(const DesktopNotices &) = delete;
    DesktopNotices &operator=(const DesktopNotices &) = delete;

    struct Notice {
        QString title;
        QString text;
        bool isFailure = false;   ///< stays until it was seen
        bool opensFolder = false; ///< it has a button for that
    };
    void show(const Notice &notice); ///< in the place of the one before

    /// 0 to 1; none where nothing runs.
    void showProgress(std::optional<double> part);

private:
    void listen(GDBusConnection *connection);
    void send(const Notice &notice, bool takesMarkup);

    // All of this is the bus's thread's.
    const std::function<void(Answer)> m_answered;
    bool m_listens = false;
    unsigned m_shown = 0; ///< number of the last notice; 0 where none was shown
    DesktopBus m_bus{DesktopBus::Kind::Session};
};
