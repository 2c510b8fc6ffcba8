#pragma once

#include "sync/SyncOrder.h"

/// What a synchronisation will do, in words for the person who is about to start it: one paragraph for what
/// is copied, what is deleted, and each trap in the settings. Looks at no file.
[[nodiscard]] QString describeSync(const SyncOrder &order);
