#include "ProgramTest.h"
#include "updates/Appcast.h"
#include "updates/SUUpdater.h"

#include <QTcpServer>
#include <QTcpSocket>

namespace {

/// Answers every request with the same bytes, or sends it to another address, and counts them.
class FeedServer : public QTcpServer {
public:
    explicit FeedServer(QByteArray body, const QString &location = {}) : m_body(std::move(body))
    {
        listen(QHostAddress::LocalHost);
        const QByteArray status =
            location.isEmpty() ? "200 OK" : "302 Found\r\nLocation: " + location.toUtf8();
        connect(this, &QTcpServer::newConnection, this, [this, status] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket, status] {
                if (!socket->readAll().contains("\r\n\r\n")) return;
                ++requests;
                socket->write("HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " +
                              QByteArray::number(m_body.size()) + "\r\n\r\n" + m_body);
                socket->disconnectFromHost();
            });
        });
    }
    [[nodiscard]] QString address() const { return u"http://127.0.0.1:%1/feed.xml"_s.arg(serverPort()); }

    int requests = 0;

private:
    const QByteArray m_body;
};

QByteArray feed(const QByteArray &items)
{
    return "<?xml version=\"1.0\"?><rss version=\"2.0\" xmlns:x=\"urn:x\"><channel><title>Releases</title>" +
           items + "</channel></rss>";
}

QByteArray feedOf(const QByteArray &version)
{
    return feed("<item><title>Version " + version +
                "</title><link>https://localhost/download</link><description>Better</description></item>");
}

class Updater : public ProgramTest {
protected:
    Updater() { delegate.showsUpdates = true; }
    ~Updater() override { SUUpdater::sharedUpdater().setAutomaticallyChecksForUpdates(false); }

    void useFeed(const QString &address) const
    {
        delegate.configPlist().dictionary(u"updates"_s).setValue(u"feed"_s, address);
    }
    /// Checks this feed, and lets the answer come in.
    bool showsNoteAfterCheck(const FeedServer &server)
    {
        useFeed(server.address());
        const int before = server.requests;
        SUUpdater::sharedUpdater().checkForUpdatesInBackground();
        EXPECT_TRUE(TestProgram::waitUntil(
            [&] { return server.requests > before && SUUpdater::sharedUpdater().children().isEmpty(); }));
        return delegate.updatePanel01.place() != outlets::Panel::Place::Hidden;
    }
};

} // namespace

TEST_F(Updater, ShowsANoteOfANewerVersionOnly)
{
    for (const QByteArray &feed : {feedOf("0.0.1"), QByteArray("no feed"), QByteArray(2'000'000, 'x')}) {
        const FeedServer server(feed);
        EXPECT_FALSE(showsNoteAfterCheck(server)) << feed.left(100).constData();
    }
    const FeedServer server(feedOf("999.1"));
    EXPECT_TRUE(showsNoteAfterCheck(server));
    EXPECT_TRUE(delegate.updateText01.text().contains(u"999.1"));
    EXPECT_EQ(delegate.updateNotes01.text(), u"Better"_s);
    QString opened;
    delegate.openAddress = [&](const QString &address) { opened = address; };
    delegate.openBrowserAt(delegate.downloadButton01);
    EXPECT_EQ(opened, u"https://localhost/download"_s);
}

TEST_F(Updater, GoesWhereTheFeedWasMovedOnlyIfItMayAskThere)
{
    const FeedServer server(feedOf("999.1"));
    for (const bool mayAsk : {false, true}) { // a name could be anybody's
        const QString target =
            mayAsk ? server.address() : server.address().replace(u"127.0.0.1"_s, u"localhost"_s);
        const FeedServer moved({}, target);
        EXPECT_EQ(showsNoteAfterCheck(moved), mayAsk);
        EXPECT_EQ(server.requests, mayAsk ? 1 : 0);
    }
}

TEST_F(Updater, AsksOnlyWhereItMayAndShould)
{
    FeedServer server(feedOf("999.1"));
    useFeed(server.address());
    delegate.checkForUpdatesAtStart(); // off in the settings
    useFeed(u"http://192.0.2.1/feed.xml"_s);
    SUUpdater::sharedUpdater().checkForUpdatesInBackground();
    useFeed({});
    SUUpdater::sharedUpdater().checkForUpdatesInBackground();
    EXPECT_TRUE(SUUpdater::sharedUpdater().children().isEmpty()) << "nothing is under way";

    useFeed(server.address());
    delegate.updatesCheck01.setOn(true);
    delegate.updatesCheck01Action();
    EXPECT_TRUE(SUUpdater::sharedUpdater().automaticallyChecksForUpdates());
    delegate.checkForUpdatesAtStart();
    EXPECT_TRUE(TestProgram::waitUntil([&] { return server.requests == 1; }));

    server.close();
    SUUpdater::sharedUpdater().checkForUpdatesInBackground();
    EXPECT_TRUE(TestProgram::waitUntil([&] { return SUUpdater::sharedUpdater().children().isEmpty(); }));
}

TEST(Appcast, VersionsAreComparedNumberByNumber)
{
    const QStringList ascending{u"0.9.9"_s, u"1"_s,       u"1.0.1"_s,   u"1.9"_s,
                                u"1.10"_s,  u"2.0-rc1"_s, u"2.0-rc2"_s, u"2.0"_s};
    for (int next = 1; next < ascending.size(); ++next) {
        EXPECT_TRUE(compareVersions(ascending[next - 1], ascending[next]) < 0) << next;
        EXPECT_TRUE(compareVersions(ascending[next], ascending[next - 1]) > 0) << next;
    }
    EXPECT_TRUE(compareVersions(u"1.0"_s, u"1"_s) == 0);
}

TEST(Appcast, TheNewestOfItsItemsCounts)
{
    const AppcastContent content = readAppcast(
        feed("<item><title>Version 1.9</title><link>https://localhost/19</link></item>"
             "<item><title>News</title><x:shortVersionString>1.10</x:shortVersionString>"
             "<x:version>4711</x:version><link>https://localhost/110</link><description>"
             "<![CDATA[<ul><li>Faster &amp; safer</li><li>New</li></ul>]]></description></item>"
             "<item><title>No page 9.0</title></item>"
             "<item><title>A file 9.1</title><link>file:///etc/passwd</link></item>"
             "<item><title>Anybody's 9.2</title><link>http://example.com/9.2</link></item>"
             "<item><enclosure url=\"https://localhost/1.2.tgz\" x:version=\"1.2\" length=\"1\"/></item>"));
    ASSERT_TRUE(content.newest) << qPrintable(content.reason);
    EXPECT_EQ(content.newest->version, u"1.10"_s);
    EXPECT_EQ(content.newest->page, QUrl(u"https://localhost/110"_s));
    EXPECT_EQ(content.newest->notes, u"Faster & safer\nNew"_s);
}

// A feed of a megabyte is read; what of it is shown must not keep the window busy.
TEST(Appcast, GivesOfEachTextWhatAPersonWouldRead)
{
    for (const QByteArray piece : {"&lt;", " ", "&lt;br", "1", "\n&#x1f600;"}) {
        const QByteArray text = "1" + piece.repeated(900'000 / int(piece.size())) + "1";
        const AppcastContent content =
            readAppcast(feed("<item><title>9.9</title><link>https://localhost/</link><version>9" + text +
                             "</version><description>" + text + "</description></item><item><title>" + text +
                             "</title></item>"));
        ASSERT_TRUE(content.newest) << qPrintable(content.reason);
        EXPECT_LE(content.newest->version.size(), 1100);
        EXPECT_LE(content.newest->notes.size(), 5000);
        EXPECT_TRUE(content.newest->notes.isValidUtf16());
    }
}

TEST(Appcast, WhatIsNoFeedSaysWhy)
{
    for (const QByteArray &bad :
         {QByteArray(), QByteArray("<html><body>Not found</body></html>"), QByteArray("\0\1", 2),
          feed("<item><title>9.9</title>").left(120), QByteArray("<rss><channel><item>&x;")})
        EXPECT_FALSE(readAppcast(bad).reason.isEmpty()) << bad.constData();
    EXPECT_FALSE(readAppcast(feed({})).newest);
}
