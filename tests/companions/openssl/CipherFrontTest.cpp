#include "Front.h"

#include <array>
#include <csignal>
#include <iomanip>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class CipherFront : public testing::Test {
protected:
    testing::AssertionResult succeeds(const std::string &program, const std::string &line,
                                      const Arguments &more)
    {
        return isSilentSuccess(runIn(folder, program, line, more));
    }

    TemporaryFolder folder;
    // What a test that is not about the key derivation asks for, so as not to wait for it.
    const Arguments quick = words("-pbkdf2 -iter 1");
};

TEST_F(CipherFront, WritesAndReadsWhatTheSystemsToolDoesByteForByte)
{
    const std::string today = " -pbkdf2 -iter 600000 -md sha256";
    const std::string legacy = " -provider legacy -provider default";
    const std::string fast = " -pbkdf2 -iter 1";
    // Around the ends of blocks and lines, of what fits into a buffer, and all of this with the salt before
    // it.
    const std::vector<std::size_t> sizes{0,       1,       15,      16,      31,      32,       47,
                                         48,      49,      65'535,  65'536,  196'592, 196'593,  196'608,
                                         262'127, 262'128, 262'129, 262'144, 262'145, 1'000'001};
    using Case = std::tuple<std::string, std::string, std::vector<std::size_t>, std::string, std::string>;
    for (const auto &[cipher, password, ownSizes, ours, stocks] :
         std::vector<Case>{{"aes-256-cbc", "p\xc3\xa4ss w\"or'd", {100'003}, "", today},
                           {"des-ede3-cbc", "x", {100'003}, "", today},
                           {"bf-cbc", "x", {100'003}, "", today + legacy},
                           {"aes256", "x", sizes, fast, fast},
                           {"aes-128-ctr", "x", sizes, fast, fast},
                           {"aes-192-cfb1", "", {17}, fast, fast},
                           {"RC4", " two  words ", {17}, fast, fast + legacy},
                           {"camellia-128-ofb", "-x", {16, 17}, fast, fast},
                           {"chacha20", "fd:0", {100}, fast, fast},
                           {"des-ecb", "'\"\\$`", {8}, fast + " -md md5", fast + " -md md5" + legacy},
                           {"aes256", "\xff\xfe\r\t\x01", {17}, fast, fast},
                           {"aes256", std::string(1023, 'x'), {17}, fast, fast}})
        for (const std::size_t size : ownSizes) {
            SCOPED_TRACE(cipher + " with " + password + ", " + std::to_string(size) + " bytes");
            const std::string plain = binaryData(size);
            writeFile(folder / "F", plain);
            const Arguments pass{"-pass", "pass:" + password};
            const std::string oracle = "enc -" + cipher + stocks;
            EXPECT_TRUE(succeeds(front, cipher + ours + " -a -salt -in F -out G", pass));
            // With a salt that is told the tool leaves out what it would write before.
            const std::string raw = runIn(folder, stock, "base64 -d -in G").output.substr(0, 16);
            std::ostringstream salt;
            for (const char each : raw.substr(8))
                salt << std::hex << std::setw(2) << std::setfill('0') << (each & 0xff);
            writeFile(folder / "R",
                      raw + runIn(folder, stock, oracle + " -in F -S " + salt.str(), pass).output);
            EXPECT_TRUE(readFile(folder / "G") == runIn(folder, stock, "base64 -in R").output);
            for (const std::string input : {"-a -salt -in G", "-in R"}) {
                EXPECT_TRUE(succeeds(front, cipher + ours + " -d -out H " + input, pass));
                EXPECT_TRUE(readFile(folder / "H") == plain);
            }
        }
}

TEST_F(CipherFront, MeansByEveryOptionWhatTheToolMeansAndChoosesWhatIsLeftOpen)
{
    writeFile(folder / "F", "text");
    writeFile(folder / "P", "phrase\nrest");
    const std::string today = " -pbkdf2 -iter 600000";
    const std::string legacy = today + " -md sha256 -provider legacy -provider default";
    const std::vector<std::pair<std::string, std::string>> linesAndChoices{
        {"aes256 -iter 5 -k one -pass file:P", ""},
        {"aes256 -iter 5 -pass pass:one -pass pass:two", ""},
        {"aes256 -iter 5 -pass pass:one -kfile P", ""},
        {"aes256 -iter 5 -pass env:HOME -d -e", ""},
        {"enc -e -aes256 --iter=5 -k x -bufsize 1k", ""},
        {"aes256 -in -iter -pbkdf2 -k x", ""},
        {"aes256 -md=sha1 -k x", today},
        {"aes256 -kfile P", today + " -md sha256"},
        {"enc -e -rc4-40 -k x", legacy},
        {"des -k x", legacy},
        {"enc -base64", ""}};
    for (const auto &[line, choice] : linesAndChoices) {
        const std::string expected = runIn(folder, stock, line + choice + " -nosalt -in F").output;
        EXPECT_NE(expected, "");
        EXPECT_TRUE(runIn(folder, front, line + " -nosalt -in F").output == expected) << line;
        if (line.find("aes256") == std::string::npos) continue;
        writeFile(folder / "G", expected);
        EXPECT_EQ(runIn(folder, front, line + " -d -nosalt -in G").output, "text") << line;
    }
}

TEST_F(CipherFront, TellsAFailureAndLeavesNoResult)
{
    writeFile(folder / "F", binaryData(100'000));
    fs::create_directory(folder / "folder");
    // Without salt, so that what a wrong password makes of the padding is the same in every run.
    ASSERT_TRUE(succeeds(front, "aes256 -nosalt -in F -out G -k right", quick));
    const std::string longest(1023, 'x'); // what the tool would cut off without a word
    for (const auto &[line, password, reason] :
         std::vector<std::array<std::string, 3>>{{"-d -nosalt -in G -out H", "pass:wrong", "bad decrypt"},
                                                 {"-d -a -in F -out H", "pass:x", "none of a base64 text"},
                                                 {"-in missing -out H", "pass:x", "No such file"},
                                                 {"-in folder -out H", "pass:x", "directory"},
                                                 {"-in F -out missing/H", "pass:x", "No such file"},
                                                 {"-in F -out H", "file:missing", "No such file"},
                                                 {"-in F -out H", "pass:one\ntwo", "line break"},
                                                 {"-in F -out H", "pass:" + longest + "x", "1023 bytes"},
                                                 {"-in F -out H", "pass:" + longest + "x\n", "line break"}}) {
        const CommandResult result =
            runIn(folder, front, "aes256 " + line, quick + Arguments{"-pass", password});
        EXPECT_TRUE(result.status != 0 && result.output.find(reason) != std::string::npos) << result.output;
        EXPECT_EQ(entriesIn(folder.path()), 3) << line;
    }
}

// Command lines that are not the program's mean by a name whatever it leads to, as the tool does.
TEST_F(CipherFront, FollowsNamesThatAPersonGives)
{
    writeFile(folder / "F", "text");
    writeFile(folder / "old", "older");
    fs::create_symlink("old", folder / "G");
    EXPECT_TRUE(succeeds(front, "aes256 -in F -out G -k x", quick));
    EXPECT_TRUE(fs::is_symlink(folder / "G"));
    EXPECT_TRUE(readFile(folder / "old").starts_with("Salted__"));
    EXPECT_EQ(fs::status(folder / "old").permissions(), fs::perms{0600});

    const std::string encrypt = "aes256 -in F -nosalt -k x";
    const std::string output = runIn(folder, front, encrypt, quick).output;
    EXPECT_EQ(output.size(), 16U);
    EXPECT_EQ(runIn(folder, front, encrypt + " -out /dev/stdout", quick).output, output);
    EXPECT_TRUE(succeeds(front, encrypt + " -out /dev/null", quick));
    EXPECT_EQ(entriesIn(folder.path()), 3);
    EXPECT_TRUE(runIn(folder, front, "aes256 -a -in F -out /proc/self/fd/1 -pass pass:x")
                    .output.starts_with("U2FsdGVk"));
}

// In a folder that others may write to, anything can wait under the program's names.
TEST_F(CipherFront, TakesTheProgramsNamesForNamesAlone)
{
    makeKey(folder);
    writeFile(folder / "F", "text");
    writeFile(folder / "other", "somebody's");
    const TemporaryFolder logs;
    const Arguments pass{"-pass", "pass:x"};
    ASSERT_TRUE(succeeds(front, "aes-256-cbc -a -salt -in F -out aes", pass));
    ASSERT_TRUE(succeeds(front, "smime -aes256 -encrypt -binary -in F -out smime cert", {}));
    const std::vector<std::array<std::string, 3>> commands{
        {"aes-256-cbc -a -salt", "F", " -pass pass:x"},
        {"aes-256-cbc -d -a -salt", "aes", " -pass pass:x"},
        {"smime -aes256 -encrypt -binary", "F", " cert"},
        {"smime -aes256 -decrypt -binary", "smime", " -inkey key cert"}};
    for (const auto &[command, input, rest] : commands)
        for (const Environment &environment : fileSystems) {
            SCOPED_TRACE(command);
            const auto run = [&, &command = command, &rest = rest](const std::string &from,
                                                                   const std::string &to) {
                fs::remove(logs / "log");
                Environment logged = environment;
                logged["QUILLORENT_TRIPWIRE_LOG"] = logs / "log";
                return runCommand(Arguments{front} + words(command + " -in " + from + " -out " + to + rest),
                                  {.folder = folder.path(), .environment = logged});
            };
            const std::string content = readFile(folder / input);
            const std::string copy = "cp " + input + " G";
            for (const std::string kind : {"ln -s other G", "ln -s new G", "mkfifo G", copy.c_str()}) {
                fs::remove(folder / "G");
                runIn(folder, "env", kind);
                EXPECT_TRUE(isSilentSuccess(run(kind.starts_with("cp") ? "G" : input, "G"))) << kind;
                EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "G"))) << kind;
                EXPECT_NE(readFile(folder / "G"), content);
            }
            // On the disk before it has its name, and then the name.
            EXPECT_EQ(stepsOf(logs / "log", folder.path()), environment == fileSystems[0] ? "snnnD" : "snD");
            const auto entries = entriesIn(folder.path());
            for (const auto &[making, reason] : std::vector<std::pair<std::string, std::string>>{
                     {"ln -s F I", "symbolic link"}, {"mkfifo I", "named pipe"}, {"mkdir I", "folder"}}) {
                runIn(folder, "env", making);
                EXPECT_EQ(run("I", "H").errors, "openssl: cannot read I: it is a " + reason + "\n");
                fs::remove(folder / "I");
            }
            EXPECT_EQ(run(input, "").status, 1);
            EXPECT_EQ(entriesIn(folder.path()), entries);
        }
    EXPECT_EQ(readFile(folder / "other"), "somebody's");
}

TEST_F(CipherFront, LeavesAWriteProtectedFileAlone)
{
    writeFile(folder / "F", "text");
    writeFile(folder / "G", "protected");
    fs::permissions(folder / "F", fs::perms::all);
    fs::permissions(folder / "G", fs::perms{0444});
    fs::copy_file(inner, folder / inner.filename());
    const Arguments user = asOrdinaryUser(folder.path(), front);
    const Arguments program = user + words("aes256 -a -in F -out G -k x");
    for (const Arguments &derivation : {Arguments(), quick}) {
        const CommandResult result = runCommand(program + derivation, {.folder = folder.path()});
        EXPECT_NE(result.status, 0);
        EXPECT_NE(result.errors.find("Permission denied"), std::string::npos) << result.errors;
        EXPECT_EQ(readFile(folder / "G"), "protected");
    }
    // What can't be looked into belongs to root, whoever runs it.
    const std::string script = "mkfifo -m 666 pipe; \"$@\" & exec 3>pipe; stat -c %u /proc/$!/mem";
    const Arguments line = words("aes256 -d -in pipe -out H -k x");
    const CommandResult result =
        runCommand(Arguments{"sh", "-c", script, "sh"} + user + line, {.folder = folder.path()});
    EXPECT_EQ(result.output, "0\n") << result.errors;
}

TEST_F(CipherFront, DoesOtherwiseWhatTheSystemsToolDoes)
{
    writeFile(folder / "F", "text");
    for (const char *const command : {"-h", "x509 -help", "no-such-command -x", "aes-256-cbc -help",
                                      "smime -encrypt -help", "dgst -sha256 F"}) {
        const CommandResult expected = runIn(folder, stock, command);
        const CommandResult result = runIn(folder, front, command);
        EXPECT_EQ(result.output, expected.output);
        EXPECT_EQ(result.status, expected.status);
    }
}

// Everybody can read the list from the moment a program begins, and loading it takes milliseconds.
TEST_F(CipherFront, ShowsNoPasswordBeforeItsLibrariesAreLoaded)
{
    const std::string script = "\"$@\" & until grep -q State:.S /proc/$!/status && [ /proc/$!/exe -ef '" +
                               inner.string() + "' ]; do sleep .01; done; cat /proc/$!/cmdline; kill -9 $!";
    const Environment stopped =
        withTripwire({{"QUILLORENT_TRIPWIRE", inner.string() + "\naes256\nstart\nhang\n0"}});
    for (const std::string line : {"-k hush -in F", "--k hush", "-k=hush --k=hush", "-pass pass:hush",
                                   "-a -pass=pass:hush --pass=pass:hush", "-in pass:hush"})
        for (const std::string &more : {std::string("-salt"), std::string(70'000, 'x')}) {
            const CommandResult result =
                runCommand(Arguments{"timeout", "20", "sh", "-c", script, "sh", front, "aes256"} +
                               words(line) + Arguments{more},
                           {.folder = folder.path(), .environment = stopped});
            EXPECT_EQ(result.output.find("hush"), std::string::npos) << line;
            EXPECT_NE(result.output.find("aes256"), std::string::npos) << result.errors;
            EXPECT_NE(result.output.find(more), std::string::npos);
        }
}

// A signal comes when more is written than a pipe holds, so that the front is at work on it.
TEST_F(CipherFront, TakesTheToolAndItsTracesAlongWhenItIsStoppedAndShowsNoPassword)
{
    makeKey(folder);
    writeFile(folder / "F", binaryData(400'000));
    ASSERT_EQ(runIn(folder, stock, "smime -encrypt -binary -in F -out message cert").status, 0);
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const auto entries = entriesIn(folder.path());
    // The tool begins as a copy of its parent, which can decrypt messages without one.
    const std::string script =
        "env --default-signal \"$@\" & p=$!; t=$p; exec 3>pipe; head -c 300000 message >&3; "
        "[ \"${*#*-nosalt}\" = \"$*\" ] || for i in $(seq 999); do read t < /proc/$p/task/$p/children; "
        "grep -q fd: /proc/$t/cmdline && break; sleep .01; done; "
        "cat /proc/$p/cmdline /proc/$t/cmdline; kill -$0 $p; wait $p; status=$?; "
        "timeout 10 tail -s .02 --pid=$t -f /dev/null || echo the tool lives; exit $status";
    for (const std::string line :
         {"aes-256-cbc -pbkdf2 -nosalt -in pipe -out G --pass=pass:hush-1 -k hush-2 -pass pass:hush-3",
          "aes-256-cbc -pbkdf2 -in pipe -out G --pass=pass:hush-1 -k hush-2 -pass pass:hush-3",
          "smime -decrypt -inform SMIME -in pipe -out G -inkey key"})
        for (const Environment &environment : fileSystems)
            for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGKILL}) {
                SCOPED_TRACE(line + ", signal " + std::to_string(signal));
                const CommandResult result =
                    runCommand(Arguments{"sh", "-c", script, std::to_string(signal), front} + words(line),
                               {.folder = folder.path(), .environment = environment});
                EXPECT_EQ(result.status, 128 + signal) << result.errors;
                EXPECT_EQ(result.output.find("hush"), std::string::npos);
                EXPECT_EQ(result.output.find("lives"), std::string::npos);
                const bool isLeft = signal == SIGKILL && environment != fileSystems[0];
                EXPECT_EQ(entriesIn(folder.path()), entries + (isLeft ? 1 : 0));
                EXPECT_TRUE(succeeds(front, "aes256 -in F -out G -k x", quick));
                fs::remove(folder / "G");
                EXPECT_EQ(entriesIn(folder.path()), entries);
            }
}

} // namespace
