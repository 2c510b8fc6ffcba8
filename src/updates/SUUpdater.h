#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <QUrl>

class QNetworkReply;

/// Looks whether there is a newer version, and shows a note where there is. What goes wrong is logged and
/// nothing more: a check is never in anybody's way. Main thread only; nothing blocks.
class SUUpdater : public QObject {
    Q_OBJECT

public:
    /// The one, from its first use to the end of the application object.
    [[nodiscard]] static SUUpdater &sharedUpdater();

    /// On: once a day for as long as the program runs.
    void setAutomaticallyChecksForUpdates(bool automatically);
    [[nodiscard]] bool automaticallyChecksForUpdates() const { return m_daily.isActive(); }

    /// Asks the feed that the settings name (`updates`/`feed`, an address with https) once. Without an
    /// address, nobody is asked.
    void checkForUpdatesInBackground();

private:
    explicit SUUpdater(QObject *parent);
    void readFeed(QNetworkReply &reply);
    static void judge(const QByteArray &feed);

    QTimer m_daily;
};
