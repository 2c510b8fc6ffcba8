#pragma once

#include <QAccessible>
#include <memory>

namespace ui {

/// What assistive technology may be told of an event: the toolkit sends along what is typed into a masked
/// field, for every program on that bus to read. None where the event is good as it is.
[[nodiscard]] std::unique_ptr<QAccessibleEvent> withoutSecret(const QAccessibleEvent &event);

/// From now on nothing else is told, in the whole program.
void keepSecretsUnspoken();

} // namespace ui
