#pragma once

#include "app/SheetMonitor.h"
#include "extract/ExtractOrder.h"

#include <memory>

/// Where an extraction shows how it goes.
[[nodiscard]] RunSheet extractSheet(QuillorentAppDelegate &delegate);

/// The extraction of the archives that are chosen, into a profile's folder, as it is asked for at this
/// moment. Main thread.
[[nodiscard]] std::shared_ptr<ExtractOrder> readExtractOrder(const QString &profile);

/// The same of these archives, whatever is on the list.
[[nodiscard]] std::shared_ptr<ExtractOrder> readExtractOrderOf(const QString &profile,
                                                               const QStringList &archives);

/// Shows which archive is damaged, and waits until the person has seen it.
void showDamage(QuillorentAppDelegate &delegate, const QString &archive, const QString &reason);

namespace quillorentLibrary {

/// What one worker is given.
struct ExtractJob {
    QString archive; ///< in one piece, or the first volume of a set
    QString folder;  ///< where its contents go
};

/// The extraction of every archive that is chosen into the profile's folder, as it is asked for at this
/// moment, from its sheet to its end. Blocks.
void launchExtract(const QString &profile);

/// The extraction of one archive, with what the settings and the controls say at this moment. Blocks.
void runProcess2(const ExtractJob &job);

/// Does nothing: a run is ended by its cancel flag alone. Kept as the place where another way to end it would
/// go.
void stopProcess02();

} // namespace quillorentLibrary
