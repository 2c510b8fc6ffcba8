// What is looked at before a run touches anything. An obstacle can't be overruled; a concern can, by --yes.
// Both are told with the paths that they are about, and until then every byte is as it was.
// What is found in which situation is tested with the engines; here is what takes the whole program.

#include "Parallel.h"
#include "ProgramHome.h"
#include "Tree.h"

#include <functional>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

constexpr int obstacle = 2;

/// A situation, and how a run with --yes ends in it.
struct Case {
    std::string name;
    std::string kind; ///< "backup", "sync", or the archive to extract
    std::function<void(ProgramHome &)> prepare;
    Words told;     ///< "@" stands for the home's path
    int status = 0; ///< with --yes
    Files after{};  ///< with --yes, by their content; "gone" where there is none
};

CommandResult launch(const ProgramHome &home, const std::string &kind, const Words &more)
{
    if (kind == "backup") return home.backUp(more);
    if (kind != "sync") return home.extract({home.text(kind)}, more);
    return more.empty() ? home.run({"sync", "Mine"}) : home.run({"sync", "Mine", more.front()});
}

/// All but what belongs to the program itself.
TreeSnapshot everything(const ProgramHome &home)
{
    TreeSnapshot tree = snapshotTree(home.path());
    std::erase_if(tree, [](const auto &entry) {
        return entry.first == "." || entry.first.starts_with("state") || entry.first.starts_with("config") ||
               entry.first.starts_with("tmp");
    });
    return tree;
}

} // namespace

TEST(Check, EndsBeforeAnythingIsTouched)
{
    const std::string extracted = "früher hier/@/docs/file"; // "@": the home's path
    const std::vector<Case> cases{
        {"what only others may read and write",
         "backup",
         [](auto &home) {
             home.encryptForCertificate();
             fs::permissions(home / "archives", fs::perms(0500));
             fs::permissions(home / "keys/anna.pem", fs::perms(0));
             home.becomeOrdinaryUser();
         },
         {"@/archives", "@/keys/anna.pem"},
         obstacle},
        {"an archive under the name of what comes out of it",
         "out/docs.rar",
         [](auto &home) {
             EXPECT_EQ(home.backUp().status, 0);
             fs::rename(home / "archives/docs.rar.aes.rar", home / "out/docs.rar");
         },
         {"@/out/docs.rar"},
         obstacle},
        {"a file of the user's under a name in between",
         "backup",
         [](auto &home) { writeFile(home / "archives/docs.rar", "photos"); },
         {"@/archives/docs.rar"},
         0,
         {{"archives/kept-docs.rar", "photos"}, {"archives/docs.rar", "gone"}}},
        {"a file that was edited",
         "archives",
         [&](auto &home) {
             EXPECT_EQ(home.backUp().status, 0);
             home.record["extractpath"] = home.text("früher hier");
             writeFile(home / "früher hier" / home.path().relative_path() / "docs/file", "edited");
         },
         {"@/früher hier"},
         0,
         {{extracted, "content"}}},
        {"deletions there",
         "sync",
         [](auto &home) {
             writeFile(home / "copy/docs/extra", "there alone");
             home.record["rsyncdelete1"] = "1";
         },
         {"--yes"},
         0,
         {{"copy/docs/extra", "gone"}, {"copy/docs/file", "content"}}},
    };
    forEachInParallel(cases, [&](const Case &c) {
        SCOPED_TRACE(c.name);
        ProgramHome home(QUILLORENT_RUN);
        c.prepare(home);
        const auto inHome = [&](std::string text, const std::string &path) {
            const std::size_t at = text.find('@');
            return at == std::string::npos ? text : text.replace(at, 1, path);
        };
        const TreeSnapshot before = everything(home);
        CommandResult result;
        for (const Words &more : {Words(), Words{"--yes"}}) {
            result = launch(home, c.kind, more);
            if (!more.empty() && c.status != obstacle) break;
            EXPECT_EQ(result.status, 2) << result.errors;
            for (const std::string &word : c.told)
                EXPECT_TRUE(contains(result.errors, inHome(word, home.path()))) << word << result.errors;
            EXPECT_EQ(treeDifference(before, everything(home)), "");
        }
        EXPECT_EQ(result.status, c.status) << result.errors;
        for (const auto &[name, content] : c.after) {
            const fs::path path = home / inHome(name, home.path().relative_path());
            EXPECT_EQ(fs::exists(path) ? readFile(path) : "gone", content) << path;
        }
    });
}
