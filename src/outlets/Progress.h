#pragma once

#include "outlets/Outlet.h"

namespace outlets {

/// A bar that shows how far something is, or only that it goes on.
class ProgressBar : public Outlet {
public:
    using Outlet::Outlet;

    struct State {
        double value = 0;
        double maximum = 0;
        bool indeterminate = false;
        bool animating = false;
        friend bool operator==(const State &, const State &) = default;
    };

    [[nodiscard]] State state() const { return read(m_state); }
    void setValue(double value) { write(m_state.value, value); }
    void setMaximum(double maximum) { write(m_state.maximum, maximum); }
    void setIndeterminate(bool indeterminate) { write(m_state.indeterminate, indeterminate); }
    void startAnimation() { write(m_state.animating, true); }
    void stopAnimation() { write(m_state.animating, false); }

private:
    State m_state;
};

/// A small turning sign. Two that started it must both stop it.
class ProgressIndicator : public Outlet {
public:
    using Outlet::Outlet;

    [[nodiscard]] bool isAnimating() const { return read(m_users) > 0; }
    void startAnimation()
    {
        update([this] { return ++m_users == 1; });
    }
    void stopAnimation()
    {
        update([this] { return --m_users == 0; });
    }

private:
    int m_users = 0;
};

/// A level with a good, a warning and a critical range; values at or below a threshold fall into its range.
class LevelIndicator : public Outlet {
public:
    using Outlet::Outlet;

    struct State {
        double value = 0;
        double maximum = 0;
        double warning = 0;
        double critical = 0;
        friend bool operator==(const State &, const State &) = default;
    };

    [[nodiscard]] State state() const { return read(m_state); }
    void setState(const State &state) { write(m_state, state); }

private:
    State m_state;
};

} // namespace outlets
