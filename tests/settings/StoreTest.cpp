#include "settings/Store.h"
#include "plist/File.h"
#include "plist/Value.h"

#include "TemporaryFolder.h"

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
    ~OrdinaryUser() { EXPECT_EQ(setresuid(m_before, m_before, m_before), 0); }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    static constexpr uid_t nobody = 65534;
    const uid_t m_before = getuid();
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

TEST_F(Store, StartsFromTheTemplatesForTheUserAlone)
{
    fs::permissions(templates / "config.plist", fs::perms{0444});
    EXPECT_EQ(readSettings().keys(), (QStringList{u"version"_s, u"new"_s}));
    EXPECT_EQ(readProfiles().keys(), (QStringList{u"Default profile"_s}));
    EXPECT_EQ(readFile(settings), readFile(templates / "config.plist"));
    EXPECT_EQ(fs::status(settings).permissions(), fs::perms{0600});
    EXPECT_EQ(fs::status(config).permissions(), fs::perms{0700});
    EXPECT_EQ(fs::status(config.parent_path()).permissions(), fs::perms{0700});
}

TEST_F(Store, LiesInTheFolderThatTheEnvironmentNames)
{
    for (const char *configured : {"/some/where/", "relative", ""}) {
        qputenv("XDG_CONFIG_HOME", configured);
        const std::string expected =
            *configured == '/' ? configured : qgetenv("HOME").toStdString() + "/.config/";
        EXPECT_EQ(settingsPath().toStdString(), expected + settingsName);
        EXPECT_EQ(profilesPath().toStdString(), expected + profilesName);
    }
}

TEST_F(Store, IsBroughtUpToDateWhereTheVersionDiffers)
{
    for (const auto &[version, isMerged] :
         {std::pair{"1", true}, {"3", true}, {"2", false}, {"", true}}) { // older, newer, the same, none
        SCOPED_TRACE(version);
        writeFile(settings, document(*version ? versionElement(version) : ""));
        writeFile(profiles, document("<key>Mine</key><dict/>"));
        const Dictionary read = readSettings();
        EXPECT_EQ(read.contains(u"new"_s), isMerged);
        EXPECT_EQ(read.string(u"version"_s).value_or(QString()), *version ? u"2"_s : QString());
        EXPECT_EQ(readProfiles().dictionary(u"Mine"_s).contains(u"new"_s), isMerged);
        EXPECT_EQ(readProfiles().keys(), (QStringList{u"Mine"_s}));
    }
}

TEST_F(Store, KeepsWhatCannotBeReadWhenItIsSavedOver)
{
    const std::string other(halfWritten.size(), 'x');
    for (const std::string &content : {halfWritten, other, halfWritten, std::string()}) {
        writeFile(settings, content);
        EXPECT_FALSE(readSettings());
        EXPECT_FALSE(areSettingsSaved(someSettings()));
        EXPECT_EQ(readFile(settings), content);
        EXPECT_EQ(saveSettings(someSettings()), QString());
        EXPECT_TRUE(areSettingsSaved(someSettings()));
        EXPECT_EQ(readSettings(), someSettings());
    }
    // The second "halfWritten" is kept already, and nothing is not worth keeping.
    EXPECT_EQ(readFile(damaged), halfWritten);
    EXPECT_EQ(readFile(damaged.string() + ".1"), other);
    EXPECT_FALSE(fs::exists(damaged.string() + ".2"));
    EXPECT_EQ(fs::status(damaged).permissions(), fs::perms{0600});

    saveSettings(Dictionary{});
    EXPECT_EQ(readSettings(), someSettings());
}

TEST_F(Store, ReplacesAFileThatMayNotBeWrittenAndKeepsIt)
{
    const std::string old = document(versionElement("old"));
    for (const std::string &content : {old, std::string()}) { // nothing is not worth keeping
        writeFile(settings, content);
        fs::permissions(settings, fs::perms{0400});
        const OrdinaryUser user(folder.path());
        EXPECT_EQ(readSettings().string(u"version"_s), u"2");
    }
    EXPECT_EQ(readFile(damaged), old);
    EXPECT_FALSE(fs::exists(damaged.string() + ".1"));
    EXPECT_EQ(fs::status(settings).permissions(), fs::perms{0600});
}

TEST_F(Store, LeavesAFileThatMayNotBeWrittenWhereNothingCanReplaceIt)
{
    // A folder that may not be written, then a template that is gone.
    for (const bool hasTemplate : {true, false}) {
        writeFile(settings, document(versionElement("old")));
        writeFile(profiles, document(""));
        fs::permissions(settings, fs::perms{0400});
        if (hasTemplate) fs::permissions(config, fs::perms{0500});
        if (!hasTemplate) fs::remove(templates / "config.plist");
        const OrdinaryUser user(folder.path());
        EXPECT_EQ(readSettings().string(u"version"_s), u"old");
        EXPECT_NE(saveSettings(someSettings()), QString());
        EXPECT_EQ(readFile(settings), document(versionElement("old")));
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
    EXPECT_TRUE(fs::is_symlink(settings) && fs::is_symlink(profiles));

    // The link is what is kept, though its content was kept before.
    writeFile(kept, document(versionElement("old")));
    fs::copy_file(kept, damaged);
    fs::permissions(kept, fs::perms{0400});
    const OrdinaryUser user(folder.path());
    EXPECT_TRUE(readSettings().contains(u"new"_s));
    EXPECT_EQ(fs::read_symlink(damaged.string() + ".1"), "../../kept.plist");
    EXPECT_EQ(readFile(kept), document(versionElement("old")));
}

TEST_F(Store, NeedsItsTemplates)
{
    fs::remove_all(templates);
    EXPECT_FALSE(readSettings());
    EXPECT_FALSE(fs::exists(settings));

    writeFile(templates / "config.plist", document(newKey)); // gives no version
    writeFile(settings, document(versionElement("1")));
    EXPECT_EQ(readSettings().keys(), (QStringList{u"version"_s}));
    EXPECT_EQ(readFile(settings), document(versionElement("1")));
}

TEST_F(Store, MayBeSavedByManyThreads)
{
    const Dictionary shared = someSettings();
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 3; ++thread)
            threads.emplace_back([=] {
                for (int round = 0; round < 20; ++round) {
                    shared.setValue(u"key"_s + QString::number(thread), round);
                    saveSettings(shared);
                    EXPECT_TRUE(readSettings().contains(u"version"_s));
                }
            });
    }
    // The last save wrote the state of its turn, to which all threads had come.
    EXPECT_EQ(readSettings(), shared);
}
