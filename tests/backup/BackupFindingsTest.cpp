#include "EngineRun.h"

#include "Credentials.h"
#include "tools/ToolRun.h"

#include <thread>

namespace fs = std::filesystem;

namespace {

class BackupFindings : public EngineTest {
protected:
    /// Looks at a backup of `docs`, after it was changed. What was found, obstacles as "! …", in lines.
    QString look(const std::function<void(BackupOrder &)> &change)
    {
        BackupOrder order = backupOrder({docs});
        change(order);
        FolderLock lock;
        const Findings found = lookAtBackup(order, lock, [] { return true; });
        QStringList lines = found.concerns;
        for (const QString &obstacle : found.obstacles)
            lines.append(u"! "_s + obstacle);
        if (!found.overwrites.isEmpty()) lines.append(u"? "_s + found.overwrites);
        return lines.join(u'\n');
    }

    const fs::path docs = sample("docs");
};

} // namespace

// "!" is an obstacle, "?" asks whether what is there may be replaced, anything else is a concern.
TEST_F(BackupFindings, TellWhatIsWrongAndWhatToDo)
{
    const auto [certificate, key] = makeCredentials(folder, "rsa");
    runOpenSsl(folder, "ecparam -name prime256v1 -genkey -noout -out ec-key.pem");
    runOpenSsl(folder, "req -x509 -new -key ec-key.pem -subj /CN=ec -out ec.pem");
    runOpenSsl(folder, "req -x509 -newkey rsa:1024 -nodes -keyout key -subj /CN=small -out small.pem");
    fs::resize_file(sample("sparse") / "file", std::uintmax_t(1) << 42);
    fs::create_directory_symlink(docs, folder / "link");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const auto by = [this](const std::string &name) {
        return [this, name](BackupOrder &o) { o.byCertificate = true, o.certificate = text(folder / name); };
    };
    const auto password = [](const QString &secret) {
        return [secret](BackupOrder &o) { o.password = Secret::fromText(secret); };
    };
    const auto volumes = [](const QString &size) {
        return [size](BackupOrder &o) { o.split = u"-v"_s + size, o.volumeSize = size; };
    };
    const auto sources = [this](const Paths &paths) {
        return [this, paths](BackupOrder &o) { o = backupOrder(paths); };
    };
    const auto there = [this](const std::string &name) {
        return [this, name](BackupOrder &) { writeFile(archives / name, "x"); };
    };
    using Change = std::function<void(BackupOrder &)>;
    // Expected is "sign|a part|another part", or nothing.
    for (const auto &[change, expected] : std::vector<std::pair<Change, QString>>{
             {[](BackupOrder &) {}, {}},
             {[](BackupOrder &o) { o.destination = u"/no/such"_s; }, u"!|/no/such|does not exist"_s},
             {[](BackupOrder &o) { o.showsOtherDestination = true; }, u"!|not this profile's own"_s},
             {[](BackupOrder &o) { o.items.clear(), o.destination.clear(); },
              u"!|no folders|No destination"_s},
             {[](BackupOrder &o) { o.archiveExtension.clear(); }, u"!|extensions / RAR"_s},
             {[](BackupOrder &o) { o.methodExtension.clear(); }, u"!|OpenSSL-AES"_s},
             {[](BackupOrder &o) { o.cipher.clear(); }, u"!|encparam / "_s},
             {[](BackupOrder &o) { o.archiver.clear(); }, u"!|external / RAR"_s},
             {[](BackupOrder &o) { o.encoder.clear(); }, u"!|external / OpenSSL"_s},
             {password({}), u"!|password"_s},
             {password(QString(1023, u'x')), {}},
             {by("rsa.pem"), {}},
             {by("small.pem"), u"|small.pem|1024"_s},
             {by("gone.pem"), u"!|gone.pem"_s},
             {by("docs/file"), u"!|docs/file|no certificate"_s},
             {by("rsa-key.pem"), u"!|rsa-key.pem"_s},
             {by("ec.pem"), u"!|ec.pem|RSA"_s},
             {volumes(u"many"_s), u"!|\"many\""_s},
             {volumes({}), u"!|olume"_s},
             {volumes(u"0"_s), u"!|\"0\""_s},
             {volumes(u"1"_s), {}},
             {[&](auto &o) { volumes(u"many"_s)(o), password(u"a\nb"_s)(o); }, u"!|many|line break"_s},
             {sources({folder / "a/x", folder / "b/x", folder / "c/x-1"}), u"!|x-1|both need"_s},
             {sources({folder / "x.rar.aes", folder / "x"}), u"!|both need|x.rar.aes"_s},
             {sources({docs, archives / "docs.rar"}), u"!|is on the list|docs.rar"_s},
             {sources({folder / std::string(240, 'x')}), u"!|too long"_s},
             {sources({docs, sample("docs-1"), sample("docs.aes"), sample(std::string(200, 'n'))}), {}},
             {sources({folder / "sparse"}), u"|room"_s},
             {sources({docs, folder / "gone"}), u"|gone\" is not there"_s},
             {sources({folder / "link"}), u"|only the link itself"_s},
             {sources({folder / "link/"}), {}},
             {sources({docs, folder / "pipe"}), u"|pipe\" is a pipe"_s},
             {sources({docs, docs}), u"|more than once"_s},
             {sources({folder}), u"|lies in"_s},
             {there("docs.rar"), u"|docs.rar\"|kept-docs.rar"_s},
             {there("docs.rar.aes/x"), u"|is a folder|Rename it"_s},
             {there("docs.rar.aes.part2.rar"), u"?|docs.rar.aes.part2.rar|replaced"_s},
             {there("holiday.jpg"), u"?|not empty|stay as they are"_s},
         }) {
        fs::remove_all(archives);
        fs::create_directories(archives);
        const QString found = look(change);
        SCOPED_TRACE((expected + u" in: "_s + found).toStdString());
        const QStringList parts = expected.split(u'|');
        EXPECT_EQ(found.isEmpty(), expected.isEmpty());
        EXPECT_TRUE(found.isEmpty() || found.startsWith(parts.first()));
        EXPECT_EQ(found.startsWith(u'!'), parts.first() == u"!");
        for (const QString &part : parts.mid(1))
            EXPECT_TRUE(found.contains(part)) << qPrintable(part);
    }
}

// Of each kind of archive, whole and in volumes; "" where nothing is found but what will be replaced.
TEST_F(BackupFindings, TellAMistypedPassword)
{
    writeFile(docs / "file", randomBytes(5'000));
    const auto lookWith = [&](const QString &cipher, const QString &extension, const QString &password,
                              const std::optional<QString> &repetition) {
        return look([&](BackupOrder &o) {
            o.cipher = cipher;
            o.items = {backupItem(text(docs), o.destination, u"docs"_s, u".rar"_s, extension)};
            o.asksBeforeReplacing = false;
            o.password = Secret::fromText(password);
            if (repetition) o.repetition = Secret::fromText(*repetition);
        });
    };
    const QString right = u"correct horse"_s;
    for (const auto &[cipher, extension, volume] : {std::tuple{u"aes-256-cbc"_s, u".aes"_s, 0},
                                                    {u"bf-cbc"_s, u".bf"_s, 0},
                                                    {u"des-ede3-cbc"_s, u".3d"_s, 2},
                                                    {u"aes-256-cbc"_s, u".aes"_s, 1}}) {
        SCOPED_TRACE(cipher.toStdString() + " " + std::to_string(volume));
        fs::remove_all(archives);
        fs::create_directories(archives);
        EXPECT_EQ(lookWith(cipher, extension, right, {}), QString());
        EXPECT_EQ(lookWith(cipher, extension, right, right), QString());
        EXPECT_TRUE(lookWith(cipher, extension, right, u""_s).contains(u"only once"));
        EXPECT_TRUE(lookWith(cipher, extension, right, u"correct house"_s).contains(u"differ"));

        BackupOrder order = backupOrder({docs}, volume);
        order.cipher = cipher;
        order.items = {backupItem(text(docs), order.destination, u"docs"_s, u".rar"_s, extension)};
        run(std::move(order));
        expectSuccess();
        EXPECT_EQ(lookWith(cipher, extension, right, u""_s), QString());
        for (const auto &repetition : {std::optional<QString>(), std::optional(u"correct house"_s)}) {
            const QString found = lookWith(cipher, extension, u"correct house"_s, repetition);
            EXPECT_TRUE(found.startsWith(u"\"docs.rar"_s + extension) &&
                        found.contains(u"does not open with this"))
                << qPrintable(found);
            EXPECT_FALSE(found.contains(u'\n')) << "one thing is wrong";
        }
    }
    // Where none can be tried, nothing is claimed of it.
    const QString first = text(archives / "docs.rar.aes.part1.rar");
    ASSERT_TRUE(QFile::exists(first)) << namesIn(archives);
    QFile::remove(first);
    EXPECT_EQ(lookWith(u"aes-256-cbc"_s, u".aes"_s, u"correct house"_s, {}), QString());
    EXPECT_TRUE(lookWith(u"aes-256-cbc"_s, u".aes"_s, right, u""_s).contains(u"only once"));
}

TEST_F(BackupFindings, KeepRunsApart)
{
    // A tool that is left running holds the folder, though its program does not any more.
    const std::string here = folder / "here";
    const std::string go = folder / "go";
    const QString tool =
        writeScript(folder / "tool", ": > " + here + "; until [ -e " + go + " ]; do sleep 0.01; done");
    std::optional held = FolderLock::take(text(archives));
    std::thread runner(
        [&tool, inherited = held->descriptor()] { static_cast<void>(runTool(tool, {}, inherited)); });
    while (!fs::exists(here))
        std::this_thread::yield();
    held.reset();
    EXPECT_TRUE(look([](BackupOrder &) {}).startsWith(u"! Another run"_s));
    writeFile(go, "");
    runner.join();
    EXPECT_EQ(look([](BackupOrder &) {}), QString());
    fs::remove_all(folder / "state");
    writeFile(folder / "state", "no folder");
    EXPECT_TRUE(look([](BackupOrder &) {}).contains(u"It can't be written down what this run does"));
}
