#include "EngineRun.h"

#include "extract/ArchiveListing.h"

namespace fs = std::filesystem;

namespace {

/// An archive of a folder "docs", and an extraction folder in which some of it may be already.
class Part : public EngineTest {
protected:
    Part()
    {
        const fs::path deep = docs / "sub/a b";
        writeFile(docs / "letter", "dear");
        writeFile(docs / "sub/note", "new");
        writeFile(deep / "caf\351", "not UTF-8");
        fs::create_symlink("/etc", docs / "link");
        for (const fs::path &path : {deep, docs / "sub", docs}) {
            fs::permissions(path, fs::perms(path == docs ? 0711 : 0500));
            fs::last_write_time(path, fs::last_write_time(path) - std::chrono::hours(1000));
        }
        backUp({docs});
        expectSuccess();
    }

    [[nodiscard]] std::string pathOf(const std::string &name) const
    {
        return (docs / name).relative_path().string();
    }
    void bring(const std::vector<std::string> &chosen)
    {
        ExtractOrder order = extractOrder({archive});
        order.chosen = chosen;
        run(std::move(order));
    }
    /// Names below what "docs" comes back to, links marked, sorted.
    [[nodiscard]] std::string broughtBack() const
    {
        std::string names;
        if (!fs::exists(place)) return names;
        for (const auto &[path, entry] : snapshotTree(place))
            if (path != ".") names += path + (entry.type == 'l' ? "@ " : " ");
        return names;
    }

    const fs::path docs = folder / "docs";
    const fs::path archive = archives / "docs.rar.aes.rar";
    const fs::path place = extracted(docs);
};

} // namespace

TEST_F(Part, ComesBackAloneAndReplacesNothing)
{
    const std::string all = "letter link@ sub sub/a b sub/a b/caf\351 sub/note ";
    struct Case {
        std::vector<std::string> chosen;
        std::function<void()> before;
        std::string names; ///< afterwards
        std::string says;  ///< of it
    };
    const auto nothing = [] {};
    const auto mine = [&](const std::string &name, const std::string &text = "mine") {
        return [this, name, text] { writeFile(place / name, text); };
    };
    for (const auto &[chosen, before, names, says] : std::vector<Case>{
             {{pathOf("letter")}, nothing, "letter ", "Brought back"},
             {{'/' + pathOf("") + "./sub/a b/caf\351"}, nothing, "sub sub/a b sub/a b/caf\351 ", ""},
             {{pathOf("link")}, nothing, "link@ ", ""},
             {{pathOf("sub"), pathOf("letter"), pathOf("sub/note")},
              nothing,
              "letter sub sub/a b sub/a b/caf\351 sub/note ",
              "2 file"},
             {{pathOf("")}, nothing, all, ""},
             {{pathOf("")}, mine("letter", "dear"), all, ""}, // the same is no other
             {{pathOf("")}, mine("letter"), "kept-letter " + all, "kept-letter"},
             {{pathOf("letter")}, mine("letter/mine"), "kept-letter kept-letter/mine letter ", "kept-letter"},
             {{pathOf("sub/note")},
              [&] { mine("sub/note")(), mine("sub/kept-note", "older")(); },
              "sub sub/kept-b-note sub/kept-note sub/note ",
              "kept-b-note"},
             {{pathOf("link")}, mine("link"), "kept-link link@ ", "kept-link"},
             {{pathOf("sub")}, mine("sub/own"), "sub sub/a b sub/a b/caf\351 sub/note sub/own ", ""},
             {{pathOf("sub/note")},
              [&] { mine("elsewhere/x")(), fs::create_symlink(place / "elsewhere", place / "sub"); },
              "elsewhere elsewhere/x sub@ ",
              "a folder is needed"},
             {{pathOf("letter"), pathOf("nosuch")}, nothing, "", "no \"" + pathOf("nosuch")},
             {{pathOf("link/passwd")}, nothing, "", "There is no"},
             {{"../" + pathOf("letter")}, nothing, "", "can't be the path"},
             {{"/"}, nothing, "", "can't be the path"},
         }) {
        SCOPED_TRACE(chosen.front() + " -> " + names);
        fs::remove_all(out);
        fs::create_directories(out);
        before();
        bring(chosen);
        const bool isDone = monitor->record.outcome == Outcome::Succeeded;
        EXPECT_EQ(broughtBack(), names);
        EXPECT_NE((summary() + findings.obstacles.join(u' ').toStdString()).find(says), std::string::npos)
            << summary();
        EXPECT_EQ(findings.overwrites + findings.concerns.join(u' '), QString());
        EXPECT_EQ(namesIn(out).find(".quillorent"), std::string::npos) << "left in clear";
        for (const char *kept : {"kept-letter", "kept-link", "sub/kept-b-note"})
            EXPECT_TRUE(!fs::is_regular_file(place / kept) || readFile(place / kept) == "mine") << kept;
        EXPECT_TRUE(!fs::is_regular_file(place / "letter") || readFile(place / "letter") == "dear");
        EXPECT_TRUE(!isDone || monitor->record.items[0].left.isEmpty());
    }
    // What was made on the way is like what it comes from.
    fs::remove_all(place);
    bring({pathOf("sub/a b/caf\351")});
    fs::remove(docs / "sub/note");
    EXPECT_EQ(treeDifference(docs / "sub", place / "sub", {.root = false}), "");
    EXPECT_EQ(fs::status(place).permissions(), fs::perms(0711));
    EXPECT_EQ(text(place / "sub/a b"), monitor->record.items[0].contents);
}

TEST_F(Part, IsListedAndLeavesNothing)
{
    for (const QString &password : {u"correct horse"_s, u"wrong"_s}) {
        const auto listing = std::make_shared<ArchiveListing>();
        ExtractOrder order = extractOrder({archive});
        order.listing = listing;
        order.password = Secret::fromText(password);
        run(std::move(order));
        EXPECT_EQ(namesIn(out), "");
        std::map<std::string, qint64> held;
        for (int index = 0; index < int(listing->entries.size()); ++index)
            held[listing->pathOf(index)] = listing->entries[std::size_t(index)].bytes;
        EXPECT_EQ(monitor->record.outcome == Outcome::Succeeded, !held.empty()) << summary();
        if (held.empty()) continue;
        EXPECT_EQ(held.at(pathOf("sub/a b/caf\351")), 9);
        EXPECT_EQ(held.at(pathOf("sub")), 12);
        EXPECT_EQ(listing->entries.front().files, 4);
        EXPECT_EQ(listing->files, identitiesOf(text(archive)));
    }
}
