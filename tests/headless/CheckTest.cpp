// What is looked at before a run touches anything. An obstacle can't be overruled; a concern can, by --yes.
// Both are told with the paths that they are about, and until then every byte is as it was.

#include "Credentials.h"
#include "Parallel.h"
#include "ProgramHome.h"
#include "Tree.h"

#include <functional>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using Home = ProgramHome;
using Words = std::vector<std::string>;
using Prepare = std::function<void(Home &)>;

constexpr int obstacle = 2;

/// A situation, and how a run with --yes ends in it.
struct Case {
    std::string name;
    Prepare prepare;
    Words told;     ///< "@" stands for the home's path; nothing: it runs without --yes
    int status = 0; ///< with --yes
    std::function<void(const Home &, const CommandResult &)> check = {};
};

using Launch = std::function<CommandResult(const Home &, const Words &)>;

/// All but what belongs to the program itself.
TreeSnapshot everything(const Home &home)
{
    TreeSnapshot tree = snapshotTree(home.path());
    std::erase_if(tree, [](const auto &entry) {
        return entry.first == "." || entry.first.starts_with("state") || entry.first.starts_with("config") ||
               entry.first.starts_with("tmp");
    });
    return tree;
}

void expectTold(const Home &home, const Case &c, const CommandResult &result)
{
    EXPECT_EQ(result.status, 2) << result.errors;
    for (std::string word : c.told) {
        if (word.starts_with('@')) word.replace(0, 1, home.path().string());
        EXPECT_TRUE(contains(result.errors, word)) << word << " is not in: " << result.errors;
    }
}

void expectAll(const std::vector<Case> &cases, const Launch &launch)
{
    forEachInParallel(cases, [&](const Case &c) {
        SCOPED_TRACE(c.name);
        Home home(QUILLORENT_RUN);
        c.prepare(home);
        const TreeSnapshot before = everything(home);
        if (!c.told.empty()) {
            expectTold(home, c, launch(home, {}));
            EXPECT_EQ(treeDifference(before, everything(home)), "");
        }
        const CommandResult insisted = launch(home, c.told.empty() ? Words() : Words{"--yes"});
        EXPECT_EQ(insisted.status, c.status) << insisted.errors;
        if (c.status == obstacle) {
            expectTold(home, c, insisted);
            EXPECT_EQ(treeDifference(before, everything(home)), "");
        }
        if (c.check) c.check(home, insisted);
        umount2(home.text("archives").c_str(), MNT_DETACH);
    });
}

CommandResult backUp(const Home &home, const Words &more) { return home.backUp(more); }

CommandResult synchronise(const Home &home, Words more)
{
    more.insert(more.begin(), {"sync", "Mine"});
    return home.run(more);
}

// Situations.

Prepare all(const std::vector<Prepare> &steps)
{
    return [steps](Home &home) {
        for (const Prepare &step : steps)
            step(home);
    };
}

Prepare file(const std::string &name, const std::string &content)
{
    return [=](Home &home) { writeFile(home / name, content); };
}

Prepare link(const std::string &name)
{
    return [name](Home &home) { fs::create_directory_symlink("docs", home / name); };
}

Prepare secret(const std::string &text) { return file("password", text); }

Prepare settings(const std::string &from, const std::string &to)
{
    return [=](Home &home) {
        home.changeSettings("<string>" + from + "</string>", "<string>" + to + "</string>");
    };
}

Prepare certificate(const std::string &kind)
{
    return [kind](Home &home) {
        home.encryptForCertificate();
        const std::string file = home.record["lastcertfile"];
        if (kind == "key") home.record["lastcertfile"] = home.record["lastpkfile"];
        if (kind == "missing") fs::remove(file);
        if (kind == "rubbish") writeFile(file, "no certificate");
        if (contains(kind, "-algorithm"))
            runOpenSsl(home / "keys", "genpkey " + kind + " -out other.pem"),
                runOpenSsl(home / "keys", "req -x509 -new -key other.pem -subj /CN=anna -out anna.pem");
        if (kind == "small")
            runOpenSsl(home / "keys",
                       "req -x509 -newkey rsa:1024 -nodes -keyout small.pem -subj /CN=anna -out anna.pem");
    };
}

Prepare volumes(const std::string &size)
{
    return [size](Home &home) { home.record["split"] = "1", home.record["part"] = size; };
}

/// Folders to back up, each with a file in it.
Prepare folders(const Words &names)
{
    return [names](Home &home) {
        home.folders.clear();
        for (const std::string &name : names) {
            if (!fs::exists(home / name)) writeFile(home / name / "file", "of " + name);
            home.folders.push_back(home.text(name));
        }
    };
}

void backUpFirst(Home &home)
{
    const CommandResult result = home.backUp({"--yes"});
    EXPECT_EQ(result.status, 0) << result.errors;
}

/// The files called "file" below a folder, by their content, sorted.
Words filesBelow(const fs::path &folder)
{
    Words found;
    for (const auto &entry : fs::recursive_directory_iterator(folder))
        if (entry.path().filename() == "file") found.push_back(readFile(entry.path()));
    std::sort(found.begin(), found.end());
    return found;
}

/// Brings an archive to where it will be extracted.
Prepare move(const std::string &from, const std::string &to)
{
    return [=](Home &home) { fs::rename(home / "archives" / from, home / "out" / to); };
}

} // namespace

TEST(Backup, HasObstacles)
{
    const std::string libexec = QUILLORENT_LIBEXEC;
    const std::string settingsFile = "config/com.brolvanek.Quillorent.config.plist";
    std::vector<Case> cases{
        {"settings that can't be read", file(settingsFile, "damaged"), {"settings"}},
        {"no archive extension",
         all({settings(".rar", ""), file("archives/letter.odt", "x"), folders({"archives/letter.odt"})}),
         {"xtension"}},
        {"no extension of the method", settings(".aes", ""), {"OpenSSL-AES"}},
        {"no cipher", settings("aes-256-cbc", ""), {"OpenSSL-AES"}},
        {"no archiver", settings(libexec + "/rar", ""), {"RAR"}},
        {"no encoder", settings(libexec + "/openssl", ""), {"OpenSSL"}},
        {"a secret in UTF-16", secret(std::string("p\0a\0s\0s\0", 8)), {"password"}},
        {"a secret with a line break", secret("one\rtwo"), {"line"}},
        {"a secret that is too long", secret(std::string(1024, 'x')), {"bytes"}},
        {"a key for a certificate", certificate("key"), {"@/keys/anna-key.pem"}},
        {"a certificate that is gone", certificate("missing"), {"@/keys/anna.pem"}},
        {"rubbish for a certificate", certificate("rubbish"), {"@/keys/anna.pem"}},
        {"an elliptic curve",
         certificate("-algorithm EC -pkeyopt ec_paramgen_curve:P-256"),
         {"@/keys/anna.pem"}},
        {"Ed25519", certificate("-algorithm ED25519"), {"@/keys/anna.pem"}},
        {"volumes of no size", volumes("many"), {"many"}},
        {"volumes of an empty size", volumes(""), {"olume"}},
        {"volumes too small to hold anything", volumes("0"), {"olume"}},
        {"names that meet", folders({"a/docs", "b/docs", "c/docs-1"}), {"@/b/docs", "@/c/docs-1"}},
        {"names that meet in between", folders({"docs", "docs.rar.aes"}), {"@/docs.rar.aes"}},
        {"an entry under a derived name",
         all({file("archives/docs.rar", "the user's own"), folders({"docs", "archives/docs.rar"})}),
         {"@/archives/docs.rar"}},
        {"a name that is too long", folders({std::string(246, 'n')}), {"@/nnn", "long"}},
        {"all at once",
         all({volumes("many"), secret(std::string(1024, 'x')), folders({"a/docs", "b/docs", "c/docs-1"})}),
         {"many", "bytes", "@/c/docs-1"}},
        {"a destination that can't be written",
         [](Home &home) {
             fs::permissions(home / "archives", fs::perms(0500));
             home.becomeOrdinaryUser();
         },
         {"@/archives"}},
        {"a certificate that can't be read",
         [](Home &home) {
             home.encryptForCertificate();
             fs::permissions(home / "keys/anna.pem", fs::perms(0));
             home.becomeOrdinaryUser();
         },
         {"@/keys/anna.pem"}},
    };
    for (Case &c : cases)
        c.status = obstacle;
    expectAll(cases, backUp);
}

TEST(Backup, HasConcerns)
{
    const auto kept = [](const std::string &name, const std::string &content) {
        return [=](const Home &home, const CommandResult &) {
            EXPECT_EQ(readFile(home / "archives" / name), content);
            EXPECT_TRUE(fs::exists(home / "archives/docs.rar.aes.rar"));
        };
    };
    std::vector<Case> cases{
        {"archives there", backUpFirst, {"@/archives"}},
        {"the destination inside a source", [](Home &home) { home.folders = {home.path()}; }, {"@/archives"}},
        {"the destination is the source",
         all({file("archives/file", "x"), folders({"archives"})}),
         {"@/archives"}},
        {"a symbolic link", all({link("link"), folders({"link"})}), {"@/link"}},
        {"a FIFO",
         all({[](Home &home) { mkfifo((home / "fifo").c_str(), 0600); }, folders({"docs", "fifo"})}),
         {"@/fifo"},
         1,
         [](const Home &home, const CommandResult &) {
             EXPECT_TRUE(fs::exists(home / "archives/docs.rar.aes.rar"));
             EXPECT_FALSE(fs::exists(home / "archives/fifo.rar.aes.rar"));
         }},
        {"an entry that is gone",
         [](Home &home) { home.folders.push_back(home.text("gone")); },
         {"@/gone"},
         1,
         [](const Home &home, const CommandResult &result) {
             EXPECT_TRUE(fs::exists(home / "archives/docs.rar.aes.rar"));
             EXPECT_TRUE(contains(result.errors, home.text("gone")));
         }},
        {"a file of the user's under a name in between",
         file("archives/docs.rar", "photos"),
         {"@/archives/docs.rar"},
         0,
         kept("kept-docs.rar", "photos")},
        {"a second one",
         all({file("archives/docs.rar.aes", "mine"), file("archives/kept-docs.rar.aes", "before")}),
         {"@/archives/docs.rar.aes"},
         0,
         kept("kept-b-docs.rar.aes", "mine")},
        {"an RSA key that is too small", certificate("small"), {"1024"}},
    };
    if (geteuid() == 0)
        cases.push_back({"too little room",
                         [](Home &home) {
                             writeFile(home / "docs/photo", randomBytes(400'000));
                             if (mount("none", home.text("archives").c_str(), "tmpfs", 0, "size=700k") != 0)
                                 home.record["path"] = home.text("nowhere"); // fails in words that say why
                         },
                         {"room", "@/archives"},
                         1});
    expectAll(cases, backUp);
}

TEST(Backup, TakesWhatNeedsNoQuestion)
{
    const auto makes = [](const std::string &name, std::uintmax_t bytes = 1) {
        return [=](const Home &home, const CommandResult &) {
            EXPECT_GE(fs::file_size(home / "archives" / name), bytes);
        };
    };
    expectAll({{"a link with a slash behind it",
                all({link("link"), file("docs/photo", randomBytes(20'000)), folders({"link/"})}),
                {},
                0,
                makes("link.rar.aes.rar", 20'000)},
               {"a secret of 1,023 bytes", secret(std::string(1023, 'x')), {}, 0, makes("docs.rar.aes.rar")},
               {"names that nearly meet",
                folders({"docs", "docs-1", "docs.aes"}),
                {},
                0,
                makes("docs-1.rar.aes.rar")},
               {"a long name",
                folders({std::string(200, 'n')}),
                {},
                0,
                makes(std::string(200, 'n') + ".rar.aes.rar")}},
              backUp);
}

TEST(Backup, RunsAFolderThatIsListedTwiceOneAfterTheOther)
{
    Home home(QUILLORENT_RUN);
    home.folders.push_back(home.text("docs"));
    const CommandResult result = home.backUp({"--yes"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(contains(result.errors, "Backed up 2 of 2")) << result.errors;
    EXPECT_TRUE(contains(result.errors, home.text("docs"))) << result.errors;
}

TEST(Extraction, HasObstaclesAndConcerns)
{
    const auto allBack = [](const Words &contents) {
        return [=](const Home &home, const CommandResult &result) {
            EXPECT_EQ(filesBelow(home / "out"), contents) << result.errors;
        };
    };
    const auto foreign = [](const std::string &name) {
        return Case{"a file of the user's under " + name,
                    all({backUpFirst, file("out/" + name, "mine")}),
                    {"@/out/" + name},
                    0,
                    [=](const Home &home, const CommandResult &) {
                        EXPECT_EQ(readFile(home / "out" / ("kept-" + name)), "mine");
                        EXPECT_EQ(filesBelow(home / "out"), Words{"content"});
                    }};
    };
    const auto filledFolder = [](const std::string &name) {
        return Case{"a file that was edited in \"" + name + "\"",
                    [=](Home &home) {
                        backUpFirst(home);
                        home.record["extractpath"] = home.text(name);
                        writeFile(home / name / home.path().relative_path() / "docs/file", "edited");
                    },
                    {"@/" + name}};
    };
    expectAll(
        {foreign("docs.rar"),
         foreign("docs.rar.aes"),
         filledFolder("out"),
         filledFolder("the out"),
         filledFolder("früher"),
         {"an archive under the name of what comes out of another",
          all({backUpFirst, move("docs.rar.aes.rar", "docs.rar.aes.rar"),
               [](Home &home) { fs::copy_file(home / "out/docs.rar.aes.rar", home / "out/docs.rar"); }}),
          {"@/out/docs.rar"},
          obstacle},
         {"an archive under the name of what comes out of it",
          all({backUpFirst, move("docs.rar.aes.rar", "docs.rar")}),
          {"@/out/docs.rar"},
          obstacle},
         {"archives of the same name from two folders",
          [](Home &home) {
              for (const std::string folder : {"one", "two"}) {
                  folders({folder + "/docs"})(home);
                  backUpFirst(home);
                  fs::create_directory(home / "archives" / folder);
                  fs::rename(home / "archives/docs.rar.aes.rar",
                             home / "archives" / folder / "docs.rar.aes.rar");
              }
          },
          {"docs.rar.aes"},
          0,
          allBack({"of one/docs", "of two/docs"})}},
        [](const Home &home, const Words &more) {
            Words list;
            for (const char *folder : {"archives", "out"})
                for (const auto &entry : fs::recursive_directory_iterator(home / folder))
                    if (entry.path().extension() == ".rar" && fs::file_size(entry) > 10)
                        list.push_back(entry.path());
            Words words = more;
            words.insert(words.end(), {"--method", "aes"});
            return home.extract(list, words);
        });
}

TEST(Extraction, PutsDatedCopiesIntoFoldersOfTheirOwn)
{
    Home home(QUILLORENT_RUN);
    for (const std::string date : {"2024-01", "2024-02"}) {
        writeFile(home / "docs/file", date);
        backUpFirst(home);
        fs::rename(home / "archives/docs.rar.aes.rar", home / ("docs " + date + ".rar.aes.rar"));
    }
    const CommandResult result = home.extract(
        {home.text("docs 2024-01.rar.aes.rar"), home.text("docs 2024-02.rar.aes.rar")}, {"--yes"});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(filesBelow(home / "out"), (Words{"2024-01", "2024-02"})) << result.errors;
    EXPECT_TRUE(fs::exists(home / "out/docs 2024-01") || fs::exists(home / "out/docs 2024-02"));
    EXPECT_TRUE(contains(result.errors, home.text("out/docs 2024-0"))) << result.errors;
}

TEST(Extraction, NamesTheArchivesThatItLeavesOut)
{
    Home home(QUILLORENT_RUN);
    writeFile(home / "docs/photo", randomBytes(60'000));
    volumes("20")(home);
    backUpFirst(home);
    EXPECT_EQ(home.extract({home.text("archives")}).status, 0)
        << "later volumes of a set are no more than that";

    // A digit behind "part" is taken for the number of a later volume, wherever it stands.
    home.record["split"] = "0";
    backUpFirst(home);
    const std::string hidden = home.text("Departments/report2.rar.aes.rar");
    fs::create_directory(home / "Departments");
    fs::copy_file(home / "archives/docs.rar.aes.rar", hidden);
    const CommandResult result = home.extract({home.text("archives/docs.rar.aes.rar"), hidden}, {"--yes"});
    EXPECT_EQ(result.status, 1) << result.errors;
    EXPECT_TRUE(contains(result.errors, hidden)) << result.errors;
}

TEST(Extraction, RefusesNoSecretThatABackupOnceTook)
{
    Home home(QUILLORENT_RUN);
    writeFile(home / "password", "p");
    backUpFirst(home);
    writeFile(home / "password", std::string("p\0a\0s\0s\0", 8)); // the first letter was all that a tool saw
    const CommandResult result = home.extract({home.text("archives")});
    EXPECT_EQ(result.status, 0) << result.errors;
    writeFile(home / "password", std::string(1100, 'x'));
    EXPECT_EQ(home.extract({home.text("archives")}, {"--yes"}).status, 1) << "it is wrong, not refused";
}

TEST(Sync, HasConcerns)
{
    const auto deletes = [](const std::string &key) {
        return [=](Home &home) {
            writeFile(home / "copy/docs/extra", "there alone");
            home.record[key] = "1";
        };
    };
    expectAll({{"deletions there",
                deletes("rsyncdelete1"),
                {"--yes"},
                0,
                [](const Home &home, const CommandResult &) {
                    EXPECT_FALSE(fs::exists(home / "copy/docs/extra"));
                    EXPECT_TRUE(fs::exists(home / "copy/docs/file"));
                }},
               {"removals here",
                deletes("rsyncdelete2"),
                {"--yes"},
                0,
                [](const Home &home, const CommandResult &) {
                    EXPECT_FALSE(fs::exists(home / "docs/file"));
                    EXPECT_TRUE(fs::exists(home / "copy/docs/file"));
                }},
               {"a disk that is not mounted",
                [&](Home &home) {
                    deletes("rsyncdelete1")(home);
                    fs::remove(home / "docs/file");
                },
                {"@/docs", "empty"}},
               {"the destination inside an entry",
                [](Home &home) { home.record["rsyncdst"] = home.text("docs/copy"); },
                {"@/docs"}},
               {"an entry that does not lie under the source folder",
                [](Home &home) {
                    // The source folder's path occurs in the middle of this one, too.
                    const std::string odd = home.path().string() + home.path().string() + "/more";
                    writeFile(fs::path(odd) / "file", "x");
                    home.entries = {home.text("docs"), odd};
                },
                {"/more"},
                1}},
              synchronise);
}
