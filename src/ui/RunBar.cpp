#include "ui/RunBar.h"

#include <algorithm>

namespace ui {
namespace {

constexpr int steps = 10'000; // bytes do not fit into the bar's integers

} // namespace

RunBar::RunBar(QWidget *parent) : QProgressBar(parent) { setRange(0, steps); }

void RunBar::setIndeterminate(bool indeterminate)
{
    if (indeterminate == (maximum() == 0)) return;
    setRange(0, indeterminate ? 0 : steps);
    if (!indeterminate) setValue(0);
}

void RunBar::reach(double part)
{
    if (maximum() > 0) setValue(std::max(value(), int(std::clamp(part, 0.0, 1.0) * steps)));
}

} // namespace ui
