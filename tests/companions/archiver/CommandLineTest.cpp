#include "Rar.h"

using CommandLine = ArchiverTest;

TEST_F(CommandLine, refusesWhatItDoesNotKnow)
{
    EXPECT_TRUE(rar({"-h"}).errors.starts_with("\nERROR: Unknown option: h\n"));
    for (const std::string line :
         {"-h", "", "a", "a x.rar", "b x.rar y", "t", "t x.rar y", "lb x.rar y", "x x.rar y z",
          "a -v x.rar y", "a -v0 x.rar y", "a -v1k x.rar y", "a -v-1 x.rar y", "a -m6 x.rar y"}) {
        const CommandResult result = rar(words(line), {.folder = temporary.path()});
        EXPECT_TRUE(failure(result).starts_with("\nERROR: ")) << line << result.errors;
        EXPECT_EQ(entriesIn(temporary.path()), 0u);
    }
}

TEST_F(CommandLine, namesInTheArchive)
{
    writeFile(temporary / "a/b/file", "1");
    writeFile(temporary / "a/*", "not a wildcard");
    const std::string absolute = temporary / "a/b/file";
    const std::vector<std::pair<Arguments, std::string>> cases = {
        {{absolute}, absolute.substr(1) + "\n"},
        {{"./b//file"}, "b/file\n"},
        {{"../a/b/file"}, "a/b/file\n"},
        {{"b/"}, "b/file\nb\n"},
        {{"*"}, "*\n"},
        {{"-ep", "b/file"}, "file\n"},
        {{"-ep", absolute}, "file\n"},
        {{"b/file", "", "b/file"}, "b/file\nb/file\n"}};
    for (const auto &[arguments, names] : cases) {
        const Arguments all = Arguments{"", "a", "-m0", "-idq", "../a.rar"} + arguments;
        ASSERT_EQ(rar(all, {.folder = temporary / "a"}).errors, "");
        EXPECT_EQ(runCommand({"bsdtar", "-tf", archive}).output, names);
    }
}

TEST_F(CommandLine, listsTheNameOfEachEntryOnce)
{
    writeFile(source / "a", base64Text(3000));
    writeFile(source / "caf\xE9\t*", base64Text(3000));
    fs::create_symlink("nowhere", source / "link");
    ASSERT_EQ(rar({"a", "-ol", "-m0", "-v1", "../a.rar", "../source"}, {.folder = source}).errors, "");
    const std::vector<fs::path> volumes = volumesOf(archive);
    ASSERT_GT(volumes.size(), 5u);
    const std::string names = "source/a\nsource/caf\xE9\t*\nsource/link\nsource\n";
    EXPECT_EQ(rar({"lb", "-idq", volumes.front()}).output, names);
    EXPECT_EQ(runCommand({"sh", "-c", "exec \"$@\" >/dev/full", "sh", QUILLORENT_RAR, "lb", volumes.front()})
                  .errors,
              "\nCannot write the list: No space left on device\n");
    fs::remove(volumes[2]);
    const CommandResult broken = rar({"lb", volumes.front()});
    EXPECT_EQ(broken.errors, "\nCannot find volume " + volumes[2].string() + "\n");
    EXPECT_EQ(broken.output, "source/a\n");
}

TEST_F(CommandLine, timeOfTheNewestEntry)
{
    for (const std::int64_t seconds : {1'000'000'000, 1'200'000'000, 1'100'000'000})
        writeDated(source / std::to_string(seconds), seconds, 7);
    ASSERT_EQ(rar({"a", "-tl", "-t", archive, source}).errors, "");
    ASSERT_EQ(rar({"a", "-tl", "-m0", temporary / "set.rar", QUILLORENT_RAR, "-v500"}).errors, "");
    EXPECT_EQ(snapshotTree(temporary.path()).at("a.rar").seconds, 1'200'000'000);
    EXPECT_EQ(snapshotTree(temporary.path()).at("a.rar").nanoseconds, 7);
    for (const fs::path &volume : volumesOf(temporary / "set.rar"))
        EXPECT_EQ(fs::last_write_time(volume), fs::last_write_time(QUILLORENT_RAR));
}

TEST_F(CommandLine, sourcesThatCannotBeArchivedLeaveTheOldArchiveInPlace)
{
    writeFile(archive, "the old one");
    writeFile(temporary / "there", "1");
    ASSERT_EQ(mkfifo((temporary / "pipe").c_str(), 0600), 0);
    fs::create_symlink("pipe", temporary / "link");
    writeFile(temporary / "huge", "");
    fs::resize_file(temporary / "huge", 1ull << 42);
    const std::size_t entries = entriesIn(temporary.path());
    const std::string noFile = ", and archives hold files, folders and links only";
    const std::vector<std::pair<std::string, std::string>> sourcesAndReasons = {
        {"missing", "Cannot open missing: No such file or directory"},
        {"pipe", "Cannot add pipe: it is a named pipe" + noFile},
        {"link", "Cannot add link: it is a named pipe" + noFile},
        {"/dev/null", "Cannot add /dev/null: it is a device" + noFile},
        {"huge", "Cannot add huge: it has 4 TiB or more, and archives hold smaller files only"}};
    for (const auto &[name, reason] : sourcesAndReasons) {
        EXPECT_EQ(failure(rar({"a", "-r", "-o+", "-m0", "-t", archive, name, "there", name},
                              {.folder = temporary.path()})),
                  "\n" + reason + "\n\n" + reason + "\n");
        EXPECT_EQ(readFile(archive), "the old one");
        EXPECT_EQ(entriesIn(temporary.path()), entries);
    }
}

TEST_F(CommandLine, whatPermissionsForbidIsNamed)
{
    for (const char *name : {"letter", "secret", "hidden/deeper"})
        writeFile(source / name, name);
    fs::create_directory(out);
    for (const fs::path &closed : {source / "secret", source / "hidden"})
        fs::permissions(closed, fs::perms::none);
    fs::permissions(out, fs::perms{0555});
    const Arguments user = asOrdinaryUser(temporary.path(), QUILLORENT_RAR);
    const auto run = [&](const fs::path &made, const fs::path &of) {
        return failure(runCommand(user + Arguments{"a", made, of}));
    };
    const auto denied = [](const std::string &what) { return "\nCannot " + what + ": Permission denied\n"; };
    EXPECT_EQ(run(archive, source), denied("open " + (source / "hidden").string()) +
                                        denied("open " + (source / "secret").string()));
    EXPECT_FALSE(fs::exists(archive)) << "an archive without them looks like a whole one";
    EXPECT_EQ(run(out / "a.rar", source / "letter"), denied("create " + (out / "a.rar").string()));
    fs::permissions(source / "hidden", fs::perms::all);
}
