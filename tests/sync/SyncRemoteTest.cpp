#include "Sshd.h"
#include "Stub.h"
#include "SyncSample.h"

#include "app/Process.h"

namespace {

/// An order whose destination is the folder "there", which exists, on the test's own server.
struct RemoteSync : SyncSample {
    RemoteSync() : server(folder / "ssh"), window(folder / "tools", "askpass", "tell")
    {
        // A desktop on which ssh could ask in a window.
        prepareProcess();
        qputenv("DISPLAY", ":0");
        qputenv("SSH_ASKPASS", window.path().c_str());
        fs::create_directories(folder / "there");
        writeFile(folder / "src/d/x", "x");
        list({"d"});
        order.destination = path("there");
        order.isRemote = true;
        order.user = u"somebody"_s; // any name: it only keeps an empty one from being sent
        order.server = u"server"_s;
        connectAs(Sshd::Client::Welcome);
    }
    ~RemoteSync() override
    {
        EXPECT_FALSE(fs::exists(window.path().string() + ".record")) << "ssh asked somebody";
        for (const char *name : {"RSYNC_RSH", "DISPLAY", "SSH_ASKPASS"})
            qunsetenv(name);
    }
    void connectAs(Sshd::Client client) const { qputenv("RSYNC_RSH", server.client(client).c_str()); }

    Sshd server;
    Stub window;
};

} // namespace

TEST(SyncRemote, CopiesAndDeletesWithAKey)
{
    RemoteSync sync;
    makeSampleTree(sync.folder / "src/d/tree");
    std::vector<std::string> names{"with space", "*", "#comment", ";", "-dash", "[a]", "caf\u00e9", "\\"};
    for (const std::string &name : names)
        writeFile(sync.folder / "src" / name, name);
    names.emplace_back("d");
    sync.list(names);
    EXPECT_EQ(sync.run(), "");
    EXPECT_TRUE(sync.summary.startsWith(u"Synchronised 9 entries"));
    EXPECT_EQ(treeDifference(sync.folder / "src", sync.folder / "there", sameSecond), "");

    sync.order.deletesExtra = true;
    writeFile(sync.folder / "there/d/extra", "x");
    EXPECT_EQ(sync.preview(), "");
    EXPECT_EQ(sync.previewed(PreviewRow::Change::Delete), QStringList{u"d/extra"_s});
    EXPECT_EQ(sync.run(), "");
    EXPECT_FALSE(fs::exists(sync.folder / "there/d/extra"));
}

// With a sentence of ours, before what ssh or rsync says.
TEST(SyncRemote, EndsWithASentenceAndWithoutAPrompt)
{
    using Spoil = std::function<void(RemoteSync &)>;
    for (const auto &[spoil, sentence, said] : std::vector<std::tuple<Spoil, QString, QString>>{
             {[](auto &s) { s.connectAs(Sshd::Client::WithoutKey); },
              u"The server \"server\" did not let you in. Nobody can type"_s, u"Permission denied ("_s},
             {[](auto &s) { s.connectAs(Sshd::Client::NewToTheServer); },
              u"ssh does not know the server \"server\" yet"_s, u"Host key verification failed"_s},
             {[](auto &s) { s.connectAs(Sshd::Client::AtAClosedPort); },
              u"The server \"server\" refuses the connection"_s, u"Connection refused"_s},
             {[](auto &s) { s.order.user.clear(); }, u"since it was sent an empty user name"_s,
              u"Permission denied ("_s},
             {[](auto &s) { s.order.destination = s.path("no/such"); }, u"does not exist"_s,
              u"No such file or directory"_s},
             {[](auto &s) { s.order.port = u"22"_s; }, u"took the port"_s, u"22:"_s},
         }) {
        SCOPED_TRACE(sentence.toStdString());
        RemoteSync sync;
        spoil(sync);
        QString console = QString::fromStdString(sync.run());
        // Now and then rsync ends before the words from the other side have arrived.
        for (int again = 0; console.isEmpty() && again < 5; ++again)
            console = QString::fromStdString(sync.run());
        EXPECT_TRUE(console.section(u'\n', 0, 0).contains(sentence)) << qPrintable(console);
        EXPECT_TRUE(console.contains(u"\nRSync ERROR : \n"_s) && console.contains(said))
            << qPrintable(console);
        EXPECT_TRUE(fs::is_empty(sync.folder / "there"));
    }
}
