#pragma once

/// Says on the sheet that rsync is at work, and ends it once the user cancels, until the run is over; the
/// body of a thread of its own, as the run's waits for rsync.
void watchSync();
