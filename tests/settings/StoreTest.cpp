#include "settings/Store.h"
#include "plist/File.h"
#include "plist/Value.h"
#include "settings/UserFile.h"

#include "Command.h"
#include "TemporaryFolder.h"

#include <future>
#include <gtest/gtest.h>
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
        EXPECT_EQ(runCommand({"chown", "-hR", std::to_string(nobody), folder}).status, 0);
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
        static_cast<void>(takeNotices()); // of other tests
    }

    TemporaryFolder folder;
    fs::path config = folder / "new" / "config";
    fs::path templates = folder / "share/quillorent";
    fs::path settings = config / settingsName;
    fs::path profiles = config / profilesName;
    fs::path damaged = config / (settingsName + ".damaged");
    fs::path kept = config / (settingsName + ".kept");
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
        EXPECT_EQ(saveSettings(someSettings()).reason, QString());
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
        const QString said = takeNotices().join(u' ');
        EXPECT_EQ(said.contains(QString::fromStdString(kept.string())), !content.empty())
            << said.toStdString();
    }
    EXPECT_EQ(readFile(kept), old);
    EXPECT_FALSE(fs::exists(kept.string() + ".1"));
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
        EXPECT_EQ(takeNotices().isEmpty(), !hasTemplate) << "that nothing can be saved is not said";
        EXPECT_FALSE(saveSettings(someSettings()).isDone());
        EXPECT_EQ(readFile(settings), document(versionElement("old")));
        EXPECT_FALSE(fs::exists(kept));
        fs::permissions(config, fs::perms{0700});
        fs::permissions(settings, fs::perms{0600});
    }
}

TEST_F(Store, FollowsLinks)
{
    const fs::path linked = folder / "kept.plist";
    fs::create_directories(config);
    fs::create_symlink("../../second.plist", settings);
    fs::create_symlink("kept.plist", folder / "second.plist");
    fs::create_symlink("/nonexistent/folder/file", profiles);
    EXPECT_TRUE(readSettings()); // the template, through a link to what was not there
    EXPECT_FALSE(readProfiles());
    EXPECT_TRUE(fs::is_symlink(settings) && fs::is_symlink(profiles));

    // The link is what is kept, though its content was kept before.
    writeFile(linked, document(versionElement("old")));
    fs::copy_file(linked, kept);
    fs::permissions(linked, fs::perms{0400});
    const OrdinaryUser user(folder.path());
    EXPECT_TRUE(readSettings().contains(u"new"_s));
    EXPECT_EQ(fs::read_symlink(kept.string() + ".1"), "../../second.plist");
    EXPECT_EQ(readFile(linked), document(versionElement("old")));
}

TEST_F(Store, FinishesAMergeThatOneFileRefused)
{
    // The profiles may not be replaced, then they can't be read.
    const fs::path linked = folder / "locked/profiles";
    for (const std::string &content : {document("<key>Mine</key><dict/>"), halfWritten}) {
        writeFile(settings, document(versionElement("1")));
        writeFile(linked, content);
        fs::remove(profiles);
        fs::create_symlink(linked, profiles);
        fs::permissions(linked.parent_path(), fs::perms{0500});
        {
            const OrdinaryUser user(folder.path());
            EXPECT_EQ(readSettings().string(u"version"_s), u"1");
            EXPECT_EQ(readFile(settings), document(versionElement("1")));
        }
        fs::permissions(linked.parent_path(), fs::perms{0700});
        writeFile(linked, document("<key>Mine</key><dict/>"));
        EXPECT_EQ(readSettings().string(u"version"_s), u"2");
        EXPECT_TRUE(readProfiles().dictionary(u"Mine"_s).contains(u"new"_s));
    }
}

TEST_F(Store, FindsItsCompanionsAgain)
{
    const std::string companion = folder / "libexec/quillorent/rar";
    const std::string former = folder / "old/quillorent/rar"; // it is still there
    for (const std::string &path : {companion, former}) {
        writeFile(path, "");
        fs::permissions(path, fs::perms{0700});
    }
    std::string tools = "<key>table</key><dict/>";
    const std::string gone = "/gone/libexec/quillorent/rar";
    for (const std::string &path :
         {gone, former, std::string("/gone/bin/rar"), std::string("/quillorent/openssl")})
        tools += "<key>" + path + "</key><string>" + path + "</string>";
    writeFile(settings, document(versionElement("2") + "<key>external</key><dict>" + tools + "</dict>"));
    for (const bool isFirst : {true, false}) {
        const Dictionary read = readSettings().dictionary(u"external"_s);
        for (const QString &key : read.keys().mid(1))
            EXPECT_EQ(read.string(key)->toStdString(),
                      key.toStdString() == gone ? companion : key.toStdString());
        EXPECT_EQ(takeNotices().size(), isFirst) << "it is not saved";
    }
}

TEST_F(Store, TellsWhatIsSavedWhileADiskIsSlow)
{
    static_cast<void>(readSettings());
    std::future<bool> look;
    settingsFile().change([&](const Dictionary &) {
        look = std::async(std::launch::async, [] { return areSettingsSaved(someSettings()); });
        EXPECT_EQ(look.wait_for(std::chrono::seconds(20)), std::future_status::ready)
            << "it waits for the disk";
    });
}
