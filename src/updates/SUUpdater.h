#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <functional>

class QNetworkReply;
struct Release;

/// What the updater needs of the program.
struct UpdateClient {
    std::function<QString()> feed;                    ///< address to ask; empty: nobody is asked
    std::function<void(const Release &)> showRelease; ///< one that is newer than this program
};

/// Looks whether there is a newer version, and has a note shown where there is. What goes wrong is logged and
/// nothing more: a check is never in anybody's way. Main thread only; nothing blocks.
class SUUpdater : public QObject {
    Q_OBJECT

public:
    /// The one, from its first use to the end of the application object.
    [[nodiscard]] static SUUpdater &sharedUpdater();

    void setClient(UpdateClient client) { m_client = std::move(client); }

    /// On: once a day for as long as the program runs.
    void setAutomaticallyChecksForUpdates(bool automatically);
    [[nodiscard]] bool automaticallyChecksForUpdates() const { return m_daily.isActive(); }

    /// Asks the client's feed, which must be an address with https, once.
    void checkForUpdatesInBackground();

private:
    explicit SUUpdater(QObject *parent);
    void readFeed(QNetworkReply &reply);
    void judge(const QByteArray &feed) const;

    UpdateClient m_client{[] { return QString(); }, [](const Release &) {}};
    QTimer m_daily;
};
