#pragma once

#include "outlets/Outlet.h"

#include <condition_variable>
#include <vector>

class QEventLoop;

namespace outlets {

/// A panel: hidden, a sheet over the main window that blocks the rest of it, or a window beside it.
class Panel : public Outlet {
public:
    using Outlet::Outlet;

    enum class Place { Hidden, Sheet, Window };
    [[nodiscard]] Place place() const { return read(m_place); }

    /// Shows it as a sheet and returns at once.
    void beginSheet() { write(m_place, Place::Sheet); }

    /// Shows it as a sheet and waits until stopModal(): in a nested event loop on the main thread, blocked on
    /// any other. Returns at once when the program is quitting.
    void runModal();
    void stopModal();

    /// Ends the sheet, lets runModal() return, hides the panel.
    void close();

    /// Shows it beside the main window, in front. A panel that is there already is raised again.
    void orderFront();
    void orderOut() { write(m_place, Place::Hidden); }

    /// How often it was brought to the front: tells a second time from the first.
    [[nodiscard]] int timesOrderedFront() const { return read(m_timesOrderedFront); }

    /// For quitting: whoever waits for the panel goes on, now and from now on.
    void endWaiting();

private:
    void waitInEventLoop(int stopsBefore);
    void wake(); ///< called with the lock held

    Place m_place = Place::Hidden;
    int m_timesOrderedFront = 0;
    int m_stops = 0;
    bool m_quitting = false;
    std::condition_variable m_stopped;
    std::vector<QEventLoop *> m_loops;
};

} // namespace outlets
