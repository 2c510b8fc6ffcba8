#include "Front.h"

#include <array>
#include <csignal>

namespace {

const std::string rar5("Rar!\x1a\x07\x01\x00", 8);
const std::string rar4("Rar!\x1a\x07\x00", 7);

class CipherFront : public testing::Test {
protected:
    testing::AssertionResult succeeds(const std::string &line, const Arguments &more = {})
    {
        return isSilentSuccess(runIn(folder, front, line, more));
    }

    /// Encrypts by the system's tool to G. With a salt of ours, so that what a wrong password makes of the
    /// padding is the same in every run; such a file comes without it.
    void encrypt(const std::string &plain, const std::string &options, const std::string &password = "right")
    {
        writeFile(folder / "F", plain);
        const Arguments pass{"-pass", "pass:" + password};
        ASSERT_EQ(runIn(folder, stock, "enc -in F -out G -S 53616c7453616c74 " + options, pass).status, 0);
        writeFile(folder / "G", "Salted__SaltSalt" + readFile(folder / "G"));
    }
    CommandResult decrypt(const std::string &options)
    {
        fs::remove(folder / "H");
        return runIn(folder, front, options + " -d -in G -out H");
    }
    bool isRefused(const std::string &options, const std::string &reason = "bad decrypt")
    {
        return decrypt(options).output.find(reason) != std::string::npos && !fs::exists(folder / "H");
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
            EXPECT_TRUE(succeeds(cipher + ours + " -a -salt -in F -out G", pass));
            EXPECT_EQ(runIn(folder, stock, "base64 -d -in G -out R").output, "");
            EXPECT_TRUE(readFile(folder / "G") == runIn(folder, stock, "base64 -in R").output);
            // What it decrypts is what it would have made itself.
            EXPECT_TRUE(runIn(folder, stock, "enc -d -in R -" + cipher + stocks, pass).output == plain);
            for (const std::string input : {"-a -salt -in G", "-in R"}) {
                EXPECT_TRUE(succeeds(cipher + ours + " -d -out H " + input, pass));
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
    for (const auto &[line, choice] : linesAndChoices)
        for (const std::string more : {" -nosalt", ""}) { // which only the tool does, and what the front does
            writeFile(folder / "G", runIn(folder, front, line + more + " -in F").output);
            for (const std::string &each : {stock + " " + line + choice, "'" + front + "' " + line})
                EXPECT_EQ(runIn(folder, "sh", "-c", {each + more + " -d -in G"}).output, "text") << each;
        }
}

TEST_F(CipherFront, TellsAFailureAndLeavesNoResult)
{
    writeFile(folder / "F", binaryData(100'000));
    fs::create_directory(folder / "folder");
    // Without salt, so that what a wrong password makes of the padding is the same in every run.
    ASSERT_TRUE(succeeds("aes256 -nosalt -in F -out G -k right", quick));
    const std::string longest(1023, 'x'); // what the tool would cut off without a word
    for (const auto &[line, password, reason] :
         std::vector<std::array<std::string, 3>>{{"-d -nosalt -in G -out H", "pass:wrong", "bad decrypt"},
                                                 {"-d -a -in F -out H", "pass:x", "none of a base64 text"},
                                                 {"-in missing -out H", "pass:x", "No such file"},
                                                 {"-in folder -out H", "pass:x", "directory"},
                                                 {"-in F -out missing/H", "pass:x", "No such file"},
                                                 {"-in F -out H", "file:missing", "No such file"},
                                                 {"-in F -out H", "fd:9", "Bad file descriptor"},
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
    EXPECT_TRUE(succeeds("aes256 -in F -out G -k x", quick));
    EXPECT_TRUE(fs::is_symlink(folder / "G"));
    EXPECT_TRUE(readFile(folder / "old").starts_with("Salted__"));
    EXPECT_EQ(fs::status(folder / "old").permissions(), fs::perms{0600});

    const std::string encryptTo = "aes256 -a -in F -k x -out ";
    for (const char *const name : {"/dev/stdout", "/proc/self/fd/1", "-"})
        EXPECT_TRUE(runIn(folder, front, encryptTo + name, quick).output.starts_with("U2FsdGVk"));
    EXPECT_TRUE(succeeds(encryptTo + "/dev/null", quick));
    EXPECT_EQ(entriesIn(folder.path()), 3);
}

// In a folder that others may write to, anything can wait under the program's names.
TEST_F(CipherFront, TakesTheProgramsNamesForNamesAlone)
{
    makeKey(folder);
    writeFile(folder / "F", "text");
    writeFile(folder / "other", "somebody's");
    const TemporaryFolder logs;
    ASSERT_TRUE(succeeds("aes-256-cbc -a -salt -in F -out aes -pass pass:x"));
    ASSERT_TRUE(succeeds("smime -aes256 -encrypt -binary -in F -out smime cert"));
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
            for (const std::string &kind :
                 Arguments{"ln -s other G", "ln -s new G", "mkfifo G", "cp " + input + " G"}) {
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
    const Arguments line = words("aes256 -a -in F -out G -k x");
    EXPECT_NE(runCommand(user + line, {.folder = folder.path()}).errors.find("denied"), std::string::npos);
    EXPECT_EQ(readFile(folder / "G"), "protected");
    // What can't be looked into belongs to root, whoever runs it.
    const std::string script = "mkfifo -m 666 pipe; \"$@\" & exec 3>pipe; stat -c %u /proc/$!/mem";
    const CommandResult result =
        runCommand(Arguments{"sh", "-c", script, "sh"} + user + words("aes256 -d -in pipe -out H -k x"),
                   {.folder = folder.path()});
    EXPECT_EQ(result.output, "0\n") << result.errors;
}

TEST_F(CipherFront, DoesOtherwiseWhatTheSystemsToolDoes)
{
    writeFile(folder / "F", "text");
    for (const char *const command : {"-h", "x509 -help", "no-such-command -x", "aes-256-cbc -help",
                                      "smime -encrypt -help", "dgst -sha256 F"}) {
        const CommandResult expected = runIn(folder, stock, command), result = runIn(folder, front, command);
        EXPECT_TRUE(result.output == expected.output && result.status == expected.status) << result.output;
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
                for (const char *const word : {"hush", "lives"})
                    EXPECT_EQ(result.output.find(word), std::string::npos);
                const bool isLeft = signal == SIGKILL && environment != fileSystems[0];
                EXPECT_EQ(entriesIn(folder.path()), entries + (isLeft ? 1 : 0));
                EXPECT_TRUE(succeeds("aes256 -in F -out G -k x", quick));
                fs::remove(folder / "G");
                EXPECT_EQ(entriesIn(folder.path()), entries);
            }
}

TEST_F(CipherFront, FindsAnOlderDerivationForAnArchiveAndForNothingElse)
{
    using Row = std::array<std::string, 3>; // the last is asked of the front
    const std::vector<Row> derivations{
        {"-md sha256", rar5}, {"-md md5", rar4}, {"-pbkdf2", rar5}, {"-md sha1", rar4, " -md sha1"}};
    for (const std::string cipher :
         {"aes-256-cbc", "aes-128-ctr", "bf-cbc -provider legacy -provider default"})
        for (const auto &[derivation, signature, asked] : derivations) {
            SCOPED_TRACE(cipher + " " + derivation);
            const std::string options = "-" + cipher + " " + derivation;
            const std::string decryption = words(cipher).front() + " -salt" + asked;
            encrypt(signature + binaryData(5'000), options);
            EXPECT_TRUE(isSilentSuccess(decrypt(decryption + " -k right")));
            EXPECT_TRUE(readFile(folder / "H") == readFile(folder / "F"));
            if (!cipher.starts_with("aes-256")) continue; // which cipher it is makes no difference any more
            EXPECT_TRUE(isRefused(decryption + " -k wrong"));
            encrypt("Rar!" + binaryData(5'000), options);
            EXPECT_TRUE(isRefused(decryption + " -k right"));
        }
    encrypt(rar5, "-aes256 -md md5"); // a file of its first two blocks alone
    EXPECT_TRUE(isSilentSuccess(decrypt("aes256 -k right")));
    // A password that is right must not be called wrong.
    encrypt(rar5 + binaryData(5'000), "-aes256 -md md5");
    const std::string whole = readFile(folder / "G");
    writeFile(folder / "G", whole.substr(0, 4'000));
    EXPECT_TRUE(isRefused("aes256 -k right", "is damaged"));
    writeFile(folder / "G", whole.substr(0, 3'999));
    EXPECT_TRUE(isRefused("aes256 -k right", "ends too early"));
}

TEST_F(CipherFront, TakesInputAndPasswordFromWhereverTheyCome)
{
    const std::string plain = rar5 + binaryData(100'000);
    // A variable can hold what no pipe to the tool can.
    encrypt(rar4 + plain, "-aes256 -md md5", "two\nlines");
    EXPECT_TRUE(isSilentSuccess(
        runIn(folder, "env", "",
              {"P=two\nlines", front, "aes256", "-d", "-in", "G", "-out", "H", "-pass", "env:P"})));
    encrypt(plain, "-aes256 -md md5");
    ASSERT_EQ(runIn(folder, stock, "base64 -in G -out H").status, 0);
    fs::rename(folder / "H", folder / "G");
    writeFile(folder / "P", "right\nrest");
    writeFile(folder / "PG", "right\n" + readFile(folder / "G"));
    for (const std::string line :
         {"-in G -pass file:P", "-in G -pass env:P", "-in G -pass stdin <P", "-in G -pass fd:3 3<P",
          "-in G -pass stdin -pass pass:right </dev/null", "-k right <G", "cat G | -in - -k right",
          "-pass stdin <PG", "cat PG | -pass stdin", "-in /dev/stdin -k right <G", "-pass fd:3 3<P <G"}) {
        const std::size_t start = line.find('|') + 1; // 0: it has none
        const std::string script =
            line.substr(0, start) + " '" + front + "' aes256 -d -a " + line.substr(start);
        const CommandResult result = runIn(folder, "env", "P=right sh -c", {script});
        EXPECT_TRUE(result.status == 0 && result.output == plain) << line << result.output.substr(0, 200);
    }
    // And with one question to a person, on a terminal of its own.
    const std::string command = "'" + front + "' aes256 -d -a -in G -out H";
    const CommandResult result =
        runCommand({"script", "-qec", command, "/dev/null"}, {.folder = folder.path(), .input = "right\n"});
    EXPECT_TRUE(result.status == 0 && readFile(folder / "H") == plain) << result.output;
    const std::size_t question = result.output.find("password:");
    EXPECT_TRUE(question != std::string::npos && question == result.output.rfind("password:"));
}

} // namespace
