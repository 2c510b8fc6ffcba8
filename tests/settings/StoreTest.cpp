#include "settings/Store.h"
#include "plist/File.h"
#include "plist/Value.h"

#include "TemporaryFolder.h"

#include <QDir>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
namespace fs = std::filesystem;
using namespace quillorentLibrary;
using plist::Dictionary;

namespace {

const std::string settingsName = "com.brolvanek.Quillorent.config.plist";
const std::string profilesName = "com.brolvanek.Quillorent.profiles.plist";

std::string document(const std::string &elements)
{
    return "<plist version=\"1.0\"><dict>" + elements + "</dict></plist>";
}

std::string versionElement(const std::string &version)
{
    return "<key>version</key><string>" + version + "</string>";
}

const std::string newKey = "<key>new</key><string>x</string>";
const std::string halfWritten = "<plist version=\"1.0\"><dict><key>version</key><str";

/// While it lives, the process has no more rights than any user: root may write what nobody may.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const fs::path &folder)
    {
        if (getuid() != 0) return;
        EXPECT_EQ(lchown(folder.c_str(), nobody, nobody), 0);
        for (const auto &entry : fs::recursive_directory_iterator(folder))
            EXPECT_EQ(lchown(entry.path().c_str(), nobody, nobody), 0);
        EXPECT_EQ(setresuid(nobody, nobody, 0), 0);
    }
    ~OrdinaryUser() { EXPECT_EQ(setresuid(m_user, m_user, m_user), 0); }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    static constexpr uid_t nobody = 65534;
    const uid_t m_user = getuid();
};

class Store : public testing::Test {
protected:
    Store()
    {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(config.string()));
        setResourceFolder(QString::fromStdString(templates.string()));
        writeFile(templates / "config.plist", document(versionElement("2") + newKey));
        writeFile(templates / "profiles.plist",
                  document("<key>Default profile</key><dict>" + newKey + "</dict>"));
    }
    ~Store() override
    {
        setResourceFolder({});
        qunsetenv("XDG_CONFIG_HOME");
        fs::permissions(folder.path(), fs::perms::owner_all);
        if (fs::exists(config)) fs::permissions(config, fs::perms::owner_all);
    }

    TemporaryFolder folder;
    fs::path config = folder / "new" / "config";
    fs::path templates = folder / "templates";
    fs::path settings = config / settingsName;
    fs::path profiles = config / profilesName;
    fs::path damaged = config / (settingsName + ".damaged");
};

Dictionary someSettings()
{
    const Dictionary settings = Dictionary::make();
    settings.setValue(u"version"_s, u"2");
    return settings;
}

} // namespace

TEST_F(Store, StartsFromTheTemplates)
{
    fs::permissions(templates / "config.plist", fs::perms{0444});
    EXPECT_EQ(readSettings().keys(), (QStringList{u"version"_s, u"new"_s}));
    EXPECT_EQ(readProfiles().keys(), (QStringList{u"Default profile"_s}));
    EXPECT_EQ(readFile(settings), readFile(templates / "config.plist"));
    EXPECT_EQ(fs::status(settings).permissions(), fs::perms{0600});
    for (const fs::path &made : {config, config.parent_path()})
        EXPECT_EQ(fs::status(made).permissions(), fs::perms{0700});
}

TEST_F(Store, LiesInTheFolderThatTheEnvironmentNames)
{
    const QString home = QDir::homePath();
    for (const auto &[configured, expected] :
         {std::pair{"/some/where/", u"/some/where"_s}, std::pair{"relative", home + u"/.config"_s},
          std::pair{"", home + u"/.config"_s}}) {
        qputenv("XDG_CONFIG_HOME", configured);
        EXPECT_EQ(settingsPath(), expected + u'/' + QString::fromStdString(settingsName));
        EXPECT_EQ(profilesPath(), expected + u'/' + QString::fromStdString(profilesName));
    }
}

TEST_F(Store, IsBroughtUpToDateWhereTheVersionDiffers)
{
    for (const char *const version : {"1", "2", "3", ""}) {
        SCOPED_TRACE(version);
        const bool isMerged = *version != '2';
        const bool hasVersion = *version != '\0';
        writeFile(settings, document(hasVersion ? versionElement(version) : ""));
        writeFile(profiles, document("<key>Mine</key><dict/>"));
        EXPECT_EQ(readSettings().contains(u"new"_s), isMerged);
        EXPECT_EQ(readSettings().string(u"version"_s).value_or(u"none"_s), hasVersion ? u"2"_s : u"none"_s);
        EXPECT_EQ(readProfiles().dictionary(u"Mine"_s).contains(u"new"_s), isMerged);
        EXPECT_EQ(readProfiles().keys(), (QStringList{u"Mine"_s}));
    }
}

TEST_F(Store, KeepsWhatCannotBeReadWhenItIsSavedOver)
{
    for (const std::string &content : {halfWritten, std::string("other"), halfWritten, std::string()}) {
        writeFile(settings, content);
        EXPECT_FALSE(readSettings());
        EXPECT_EQ(readFile(settings), content);
        saveSettings(someSettings());
        EXPECT_EQ(readSettings(), someSettings());
    }
    // The second "halfWritten" is kept already, and nothing is not worth keeping.
    EXPECT_EQ(readFile(damaged), halfWritten);
    EXPECT_EQ(readFile(damaged.string() + ".1"), "other");
    EXPECT_FALSE(fs::exists(damaged.string() + ".2"));
    EXPECT_EQ(fs::status(damaged).permissions(), fs::perms{0600});

    saveSettings(Dictionary{});
    EXPECT_EQ(readSettings(), someSettings());

    fs::remove(settings);
    writeFile(settings / "precious", "x");
    EXPECT_FALSE(readSettings());
    saveSettings(someSettings());
    EXPECT_EQ(readFile(settings / "precious"), "x");
}

TEST_F(Store, ReplacesAFileThatMayNotBeWrittenAndKeepsIt)
{
    for (const char *const version : {"old", "older", "old"}) {
        writeFile(settings, document(versionElement(version)));
        fs::permissions(settings, fs::perms{0400});
        const OrdinaryUser user(folder.path());
        EXPECT_EQ(readSettings().string(u"version"_s), u"2");
    }
    EXPECT_EQ(readFile(damaged), document(versionElement("old")));
    EXPECT_EQ(readFile(damaged.string() + ".1"), document(versionElement("older")));
    EXPECT_FALSE(fs::exists(damaged.string() + ".2"));
}

TEST_F(Store, LeavesAFileThatMayNotBeWrittenWhereNothingCanReplaceIt)
{
    const std::string old = document(versionElement("old"));
    for (const bool hasTemplate : {true, false}) {
        SCOPED_TRACE(hasTemplate);
        writeFile(settings, old);
        fs::permissions(settings, fs::perms{0400});
        fs::permissions(config, fs::perms{hasTemplate ? 0500U : 0700U});
        if (!hasTemplate) fs::remove(templates / "config.plist");
        const OrdinaryUser user(folder.path());
        EXPECT_EQ(readSettings().string(u"version"_s), u"old");
        saveSettings(someSettings());
        EXPECT_EQ(readFile(settings), old);
        EXPECT_FALSE(fs::exists(damaged));
        fs::permissions(config, fs::perms{0700});
        fs::permissions(settings, fs::perms{0600});
    }
}

TEST_F(Store, FollowsLinks)
{
    const fs::path kept = folder / "kept.plist";
    fs::create_directories(config);
    fs::create_symlink("../../kept.plist", settings);
    fs::create_symlink("/nonexistent/folder/file", profiles);
    EXPECT_TRUE(readSettings()); // the template, through a link to what was not there
    EXPECT_FALSE(readProfiles());
    saveSettings(someSettings());
    EXPECT_TRUE(fs::is_symlink(settings) && fs::is_symlink(profiles));
    EXPECT_EQ(plist::readFile(QString::fromStdString(kept.string())).dictionary, someSettings());

    fs::permissions(kept, fs::perms{0400});
    const OrdinaryUser user(folder.path());
    EXPECT_TRUE(readSettings().contains(u"new"_s));
    EXPECT_EQ(fs::read_symlink(damaged), "../../kept.plist");
}

TEST_F(Store, NeedsItsTemplates)
{
    fs::remove_all(templates);
    EXPECT_FALSE(readSettings() || fs::exists(settings));
    writeFile(templates / "config.plist", document(newKey)); // gives no version
    writeFile(settings, document(versionElement("1")));
    EXPECT_EQ(readSettings().keys(), (QStringList{u"version"_s}));
    EXPECT_EQ(readFile(settings), document(versionElement("1")));
}

TEST_F(Store, MayBeSavedByManyThreads)
{
    const Dictionary shared = someSettings();
    const auto work = [=](const QString &key) {
        for (int round = 0; round < 20; ++round) {
            shared.setValue(key, round);
            saveSettings(shared);
            EXPECT_TRUE(readSettings().contains(u"version"_s));
        }
    };
    {
        std::vector<std::jthread> threads;
        for (const QString &key : {u"a"_s, u"b"_s, u"c"_s})
            threads.emplace_back(work, key);
    }
    // The last save wrote the state of its turn, to which all threads had come.
    EXPECT_EQ(readSettings(), shared);
}

TEST(Templates, FitTogether)
{
    setResourceFolder(QStringLiteral(QUILLORENT_TEMPLATES));
    const plist::FileContent settings = plist::readFile(settingsTemplatePath());
    const plist::FileContent profiles = plist::readFile(profilesTemplatePath());
    setResourceFolder({});
    ASSERT_EQ(settings.reason + profiles.reason, QString());

    const Dictionary paths = settings.dictionary.dictionary(u"external"_s);
    for (const QString &table : {u"executables"_s, u"verifiers"_s})
        EXPECT_EQ(settings.dictionary.dictionary(table).keys(), paths.keys());
    for (const QString &tool : paths.keys())
        EXPECT_TRUE(paths.string(tool)->startsWith(u'/')) << tool.toStdString();

    const QStringList methods = settings.dictionary.dictionary(u"encparam"_s).keys();
    EXPECT_EQ(QStringList{u"RAR"_s} + methods, settings.dictionary.dictionary(u"extensions"_s).keys());
    const Dictionary record = profiles.dictionary.dictionary(u"Default profile"_s);
    for (const QString &choice : {u"symencryption"_s, u"asymencryption"_s})
        EXPECT_TRUE(methods.contains(record.string(choice).value_or(QString())));
}
