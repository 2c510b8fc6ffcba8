#include "app/tools/Compliance.h"

#include "app/QuillorentAppDelegate.h"
#include "tools/RegisteredTool.h"
#include "tools/Threads.h"
#include "tools/Verification.h"

#include <QCoreApplication>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(tools)
};

/// Held by whoever verifies and shows the result: each looks at the tools as they are by then, and none that
/// began earlier and took longer shows what isn't so any more.
std::recursive_mutex &oneVerification()
{
    static std::recursive_mutex mutex;
    return mutex;
}

QString hintOnOpenSsl()
{
    if (!quillorentLibrary::warnsOfItsKeyDerivation(registeredTool(u"OpenSSL"_s))) return {};
    return Words::tr(
        "This OpenSSL can't be used by itself: it makes something else of a password than archives "
        "of this program need, and complains of it. Choose Quillorent's own \"openssl\", which uses it.");
}

} // namespace

bool quillorentLibrary::compliance()
{
    const std::lock_guard lock(oneVerification());
    QuillorentAppDelegate &delegate = theDelegate();
    ++delegate.verifications;
    delegate.compliant.set(0);
    int tools = 0;
    int passing = 0;
    for (const QString &name : registeredTools()) {
        ++tools;
        if (testAll(name)) ++passing;
    }
    delegate.compliant.set(passing);
    delegate.compliantBase.set(tools);
    --delegate.verifications;

    // Counts are whole: both thresholds just below the maximum make anything less than all of them critical.
    delegate.level01.setState({.value = double(passing),
                               .maximum = double(tools),
                               .warning = tools - 0.95,
                               .critical = tools - 0.96});
    delegate.pathTableView.reloadData();
    delegate.toolsHint01.setText(hintOnOpenSsl());
    delegate.toolsHint01.setHidden(delegate.toolsHint01.text().isEmpty());
    if (tools == passing) delegate.noPathPanel01.orderOut(); // what it says is mended
    return tools == passing;
}

void quillorentLibrary::updateCompliance()
{
    detachThread(u"verify-tools"_s, [] {
        const std::lock_guard lock(oneVerification());
        theDelegate().compliance.set(compliance());
    });
}
