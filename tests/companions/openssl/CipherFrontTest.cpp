#include "Front.h"
#include "Shim.h"

#include <array>

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

TEST_F(CipherFront, ExchangesFilesOfEverySizeWithTheSystemsToolAndPasswordsByteForByte)
{
    const std::string derivation = " -pbkdf2 -iter 600000 -md sha256";
    struct Case {
        std::string cipher, password;
        std::size_t size;
        std::string ours{}, stocks{};
    };
    for (const auto &[cipher, password, size, ours, stocks] :
         std::vector<Case>{{"aes-256-cbc", "p\xc3\xa4ss w\"or'd", 100'003, "", derivation},
                           {"des-ede3-cbc", "x", 100'003, "", derivation},
                           {"bf-cbc", "x", 100'003, "", derivation + " -provider legacy -provider default"},
                           {"aes256", "", 0, " -pbkdf2 -iter 1"},
                           {"aes256", " two  words ", 1, " -pbkdf2 -iter 1"},
                           {"aes256", "-x", 15, " -pbkdf2 -iter 1"},
                           {"aes256", "fd:0", 16, " -pbkdf2 -iter 1"},
                           {"aes256", "'\"\\$`", 17, " -pbkdf2 -iter 1"},
                           {"aes256", "\xff\xfe\r\t\x01", 262'144, " -pbkdf2 -iter 1"},
                           {"aes256", std::string(1023, 'x'), 1'000'001, " -pbkdf2 -iter 1"}}) {
        SCOPED_TRACE(cipher + " with " + password);
        const std::string plain = binaryData(size);
        writeFile(folder / "F", plain);
        const Arguments pass{"-a", "-salt", "-pass", "pass:" + password};
        const std::map<std::string, std::string> commands{
            {front, cipher + ours}, {stock, "enc -" + cipher + (stocks.empty() ? ours : stocks)}};
        for (const auto &[writer, written] : commands)
            for (const auto &[reader, read] : commands) {
                EXPECT_TRUE(succeeds(writer, written + " -in F -out G", pass));
                EXPECT_TRUE(succeeds(reader, read + " -d -in G -out H", pass));
                EXPECT_TRUE(readFile(folder / "H") == plain);
                fs::remove(folder / "H");
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
    for (const char *const failing :
         {"-d -nosalt -in G -out H -pass pass:wrong", "-d -a -in F -out H -k x", "-in missing -out H -k x",
          "-in folder -out H -k x", "-in F -out missing/H -k x", "-in F -out H -pass file:missing"}) {
        const CommandResult result = runIn(folder, front, std::string("aes256 ") + failing, quick);
        EXPECT_NE(result.status, 0) << failing;
        EXPECT_NE(result.output, "") << failing;
        EXPECT_EQ(entriesIn(folder), 3) << failing;
    }
    // What the tool would cut off without a word.
    const std::string longest(1023, 'x');
    for (const auto &[password, reason] : std::vector<std::pair<std::string, std::string>>{
             {"one\ntwo", "line break"}, {longest + "x", "1023 bytes"}, {longest + "x\n", "line break"}}) {
        const CommandResult result =
            runIn(folder, front, "aes256 -in F -out H", {"-pass", "pass:" + password});
        EXPECT_TRUE(result.status != 0 && result.output.find(reason) != std::string::npos) << result.output;
        EXPECT_EQ(entriesIn(folder), 3);
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
    EXPECT_EQ(entriesIn(folder), 3);
    EXPECT_TRUE(runIn(folder, front, "aes256 -a -in F -out /proc/self/fd/1 -pass pass:x")
                    .output.starts_with("U2FsdGVk"));
}

// In a folder that others may write to, anything can wait under the program's names.
TEST_F(CipherFront, TakesTheProgramsNamesForNamesAlone)
{
    const std::string request =
        "req -x509 -newkey rsa:2048 -nodes -keyout key -out cert -days 2 -subj /CN=test";
    ASSERT_EQ(runIn(folder, stock, request).status, 0);
    writeFile(folder / "F", "text");
    writeFile(folder / "other", "somebody's");
    const Arguments pass{"-pass", "pass:x"};
    ASSERT_TRUE(succeeds(front, "aes-256-cbc -a -salt -in F -out aes", pass));
    ASSERT_TRUE(succeeds(front, "smime -aes256 -encrypt -binary -in F -out smime cert", {}));
    const std::vector<std::array<std::string, 3>> commands{
        {"aes-256-cbc -a -salt", "F", " -pass pass:x"},
        {"aes-256-cbc -d -a -salt", "aes", " -pass pass:x"},
        {"smime -aes256 -encrypt -binary", "F", " cert"},
        {"smime -aes256 -decrypt -binary", "smime", " -inkey key cert"}};
    for (const auto &command : commands) {
        SCOPED_TRACE(command[0]);
        const std::string &input = command[1];
        const auto run = [&](const std::string &from, const std::string &to, auto environment) {
            const std::string line = command[0] + " -in " + from + " -out " + to + command[2];
            CommandResult result = runCommand(Arguments{front} + words(line),
                                              {.folder = folder.path(), .environment = environment});
            result.output += result.errors;
            return result;
        };
        const std::string content = readFile(folder / input);
        for (const auto &environment : {withShim(), withoutNamelessFiles()}) {
            for (const std::string kind : {"link", "dangling", "pipe", "itself"}) {
                fs::remove(folder / "G");
                if (kind == "link") fs::create_symlink("other", folder / "G");
                if (kind == "dangling") fs::create_symlink("new", folder / "G");
                if (kind == "pipe") runIn(folder, "mkfifo", "G");
                if (kind == "itself") writeFile(folder / "G", content);
                EXPECT_TRUE(isSilentSuccess(run(kind == "itself" ? "G" : input, "G", environment))) << kind;
                EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "G"))) << kind;
                EXPECT_NE(readFile(folder / "G"), content);
            }
            const auto entries = entriesIn(folder);
            fs::create_symlink(input, folder / "link");
            runIn(folder, "mkfifo", "pipe");
            fs::create_directory(folder / "folder");
            for (const std::string reason : {"symbolic link", "named pipe", "folder"}) {
                const std::string name = reason.substr(reason.find(' ') + 1);
                EXPECT_EQ(run(name, "H", environment).output,
                          "openssl: cannot read " + name + ": it is a " + reason + "\n");
                fs::remove(folder / name);
            }
            EXPECT_EQ(run(input, "", environment).status, 1);
            EXPECT_EQ(entriesIn(folder), entries);
        }
        EXPECT_EQ(readFile(folder / "other"), "somebody's");
        // On the disk before it has its name, and then the name.
        fs::remove(folder / "log");
        EXPECT_TRUE(isSilentSuccess(run(input, "G", withShim({{"SHIM_LOG", folder / "log"}}))));
        EXPECT_EQ(readFile(folder / "log"), "FLLRD");
    }
}

TEST_F(CipherFront, LeavesAWriteProtectedFileAlone)
{
    writeFile(folder / "F", "text");
    writeFile(folder / "G", "protected");
    fs::permissions(folder / "F", fs::perms::all);
    fs::permissions(folder / "G", fs::perms{0444});
    const Arguments program = asOrdinaryUser(folder.path(), front);
    for (const char *const line : {" -in F -out G -pass pass:x", " -pbkdf2 -in F -out G -pass pass:x"}) {
        const CommandResult result =
            runCommand(program + Arguments{"aes256", "-a"} + words(line), {.folder = folder.path()});
        EXPECT_NE(result.status, 0);
        EXPECT_NE(result.errors.find("Permission denied"), std::string::npos) << result.errors;
        EXPECT_EQ(readFile(folder / "G"), "protected");
    }
}

TEST_F(CipherFront, TellsFirstThatTheDiskIsFull)
{
    writeFile(folder / "F", binaryData(300'000));
    fs::create_directory(folder / "disk");
    const std::string script = "mount -t tmpfs -o size=256k none disk && exec '" + front +
                               "' aes-256-cbc -a -salt -in F -out disk/G -pass pass:x";
    const CommandResult result = runIn(folder, "unshare", "-m sh -c", {script});
    if (result.output.find("mount") != std::string::npos) GTEST_SKIP() << "no disk can be made here";
    EXPECT_TRUE(result.output.starts_with("openssl: there is next to no space left for disk/G\n"))
        << result.output;
    EXPECT_NE(result.status, 0);
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

} // namespace
