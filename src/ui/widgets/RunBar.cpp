#include "ui/widgets/RunBar.h"

#include "ui/widgets/Motion.h"

#include <algorithm>
#include <utility>

namespace ui {
namespace {

constexpr int steps = 10'000; // bytes do not fit into the bar's integers

} // namespace

RunBar::RunBar(QWidget *parent) : QProgressBar(parent) { setRange(0, steps); }

void RunBar::setIndeterminate(bool indeterminate)
{
    if (indeterminate == std::exchange(m_isIndeterminate, indeterminate)) return;
    setRange(0, indeterminate && isMotionWanted() ? 0 : steps);
    setTextVisible(!indeterminate);
    setValue(0);
}

void RunBar::reach(double part)
{
    if (!m_isIndeterminate) setValue(std::max(value(), int(std::clamp(part, 0.0, 1.0) * steps)));
}

} // namespace ui
