#include "updates/SUUpdater.h"

#include "TestProgram.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

namespace {

/// Answers every request with the same bytes, and counts them.
class FeedServer : public QTcpServer {
public:
    explicit FeedServer(QByteArray body) : m_body(std::move(body))
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                if (!socket->readAll().contains("\r\n\r\n")) return;
                ++requests;
                socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " +
                              QByteArray::number(m_body.size()) + "\r\n\r\n" + m_body);
                socket->disconnectFromHost();
            });
        });
    }
    [[nodiscard]] QString address() const { return u"http://127.0.0.1:%1/feed.xml"_qs.arg(serverPort()); }

    int requests = 0;

private:
    const QByteArray m_body;
};

QByteArray feedOf(const QByteArray &version)
{
    return "<rss version=\"2.0\"><channel><item><title>Version " + version +
           "</title><link>https://localhost/download</link><description>Better</description></item></"
           "channel></rss>";
}

class Updater : public testing::Test {
protected:
    Updater()
    {
        m_program.start();
        delegate.showsUpdates = true;
    }
    ~Updater() override { SUUpdater::sharedUpdater().setAutomaticallyChecksForUpdates(false); }

    void useFeed(const QString &address) const
    {
        delegate.configPlist().dictionary(u"updates"_qs).setValue(u"feed"_qs, address);
    }
    /// Checks, and lets the answer come in.
    bool showsNoteAfterCheck(const FeedServer &server)
    {
        const int before = server.requests;
        SUUpdater::sharedUpdater().checkForUpdatesInBackground();
        EXPECT_TRUE(TestProgram::waitUntil(
            [&] { return server.requests > before && SUUpdater::sharedUpdater().children().isEmpty(); }));
        return delegate.updatePanel01.place() != outlets::Panel::Place::Hidden;
    }

    TestProgram m_program;
    QuillorentAppDelegate &delegate = m_program.delegate();
};

} // namespace

TEST_F(Updater, ShowsANoteOfANewerVersionOnly)
{
    for (const QByteArray &feed : {feedOf("0.0.1"), QByteArray("no feed"), QByteArray(2'000'000, 'x')}) {
        const FeedServer server(feed);
        useFeed(server.address());
        EXPECT_FALSE(showsNoteAfterCheck(server)) << feed.left(100).constData();
    }
    const FeedServer server(feedOf("999.1"));
    useFeed(server.address());
    EXPECT_TRUE(showsNoteAfterCheck(server));
    EXPECT_TRUE(delegate.updateText01.text().contains(u"999.1"));
    EXPECT_EQ(delegate.updateNotes01.text(), u"Better"_qs);
    QString opened;
    delegate.openAddress = [&](const QString &address) { opened = address; };
    delegate.openBrowserAt(delegate.downloadButton01);
    EXPECT_EQ(opened, u"https://localhost/download"_qs);
}

TEST_F(Updater, AsksOnlyWhereItMayAndShould)
{
    FeedServer server(feedOf("999.1"));
    useFeed(server.address());
    delegate.checkForUpdatesAtStart(); // off in the settings
    useFeed(u"http://192.0.2.1/feed.xml"_qs);
    SUUpdater::sharedUpdater().checkForUpdatesInBackground();
    useFeed({});
    SUUpdater::sharedUpdater().checkForUpdatesInBackground();
    EXPECT_TRUE(SUUpdater::sharedUpdater().children().isEmpty()) << "nothing is under way";

    useFeed(server.address());
    delegate.updatesCheck01.setOn(true);
    delegate.updatesCheck01Action();
    EXPECT_EQ(delegate.setting(u"updates"_qs, u"automatic"_qs), u"1"_qs);
    EXPECT_TRUE(SUUpdater::sharedUpdater().automaticallyChecksForUpdates());
    delegate.checkForUpdatesAtStart();
    EXPECT_TRUE(TestProgram::waitUntil([&] { return server.requests == 1; }));

    server.close();
    SUUpdater::sharedUpdater().checkForUpdatesInBackground();
    EXPECT_TRUE(TestProgram::waitUntil([&] { return SUUpdater::sharedUpdater().children().isEmpty(); }));

    delegate.updatesCheck01.setOn(false);
    delegate.updatesCheck01Action();
    EXPECT_FALSE(SUUpdater::sharedUpdater().automaticallyChecksForUpdates());
}
