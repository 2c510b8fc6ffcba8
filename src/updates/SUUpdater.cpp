#include "updates/SUUpdater.h"

#include "updates/Appcast.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(logUpdates, "quillorent.updates")

constexpr qint64 maximumFeedSize = 1 << 20;
constexpr std::chrono::milliseconds patience = 30s;

const QString ownVersion = QStringLiteral(QUILLORENT_VERSION);

/// Goes where the feed was moved to only if it could have been asked there at once; from https never back to
/// http.
void followRedirects(QNetworkReply &reply)
{
    QObject::connect(&reply, &QNetworkReply::redirected, &reply, [&reply](const QUrl &target) {
        const bool isLessSafe = reply.url().scheme() == u"https" && target.scheme() != u"https";
        if (isTrustworthy(target) && !isLessSafe) {
            Q_EMIT reply.redirectAllowed();
            return;
        }
        qCWarning(logUpdates).noquote()
            << "The feed of updates is not followed to" << target.toDisplayString()
            << ": its address must begin with https://";
        reply.abort();
    });
}

} // namespace

SUUpdater::SUUpdater(QObject *parent) : QObject(parent)
{
    m_daily.setInterval(24h);
    connect(&m_daily, &QTimer::timeout, this, &SUUpdater::checkForUpdatesInBackground);
}

SUUpdater &SUUpdater::sharedUpdater()
{
    static QPointer<SUUpdater> shared;
    if (!shared) shared = new SUUpdater(QCoreApplication::instance());
    return *shared;
}

void SUUpdater::setAutomaticallyChecksForUpdates(bool automatically)
{
    if (automatically)
        m_daily.start();
    else
        m_daily.stop();
}

void SUUpdater::checkForUpdatesInBackground()
{
    const QString address = m_client.feed();
    if (address.isEmpty()) return;
    const QUrl feed(address, QUrl::StrictMode);
    if (!isTrustworthy(feed)) {
        qCWarning(logUpdates).noquote()
            << address << "is not asked for updates: its address must begin with https://";
        return;
    }
    auto *manager = new QNetworkAccessManager(this);
    QNetworkRequest request(feed);
    request.setTransferTimeout(int(patience.count()));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    QNetworkReply *reply = manager->get(request);
    followRedirects(*reply);
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received > maximumFeedSize) reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, manager, reply] {
        readFeed(*reply);
        manager->deleteLater(); // with the reply, its child
    });
}

void SUUpdater::readFeed(QNetworkReply &reply)
{
    if (reply.error() != QNetworkReply::NoError) {
        qCInfo(logUpdates).noquote() << "No answer to the question for updates:" << reply.errorString();
        return;
    }
    judge(reply.readAll());
}

void SUUpdater::judge(const QByteArray &feed) const
{
    const AppcastContent content = readAppcast(feed);
    if (!content.reason.isEmpty())
        qCInfo(logUpdates).noquote() << "The feed of updates can't be read:" << content.reason;
    if (content.newest && std::is_gt(compareVersions(content.newest->version, ownVersion)))
        m_client.showRelease(*content.newest);
}
