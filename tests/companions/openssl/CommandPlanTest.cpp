#include "CommandPlan.h"

#include "Secret.h"

#include <gtest/gtest.h>

namespace {

/// A command line in memory that can be written to, as a program gets it. Words are separated by one space.
class ArgumentList {
public:
    explicit ArgumentList(const std::string &line) : m_memory(line + ' ')
    {
        for (std::size_t start = 0; start < m_memory.size(); start = m_memory.find('\0', start) + 1) {
            m_memory[m_memory.find(' ', start)] = '\0';
            m_words.push_back(m_memory.data() + start);
        }
    }
    CommandPlan plan(Secret &password) { return planCommand(m_words, password); }
    bool shows(const std::string &text) const { return m_memory.find(text) != std::string::npos; }

private:
    std::string m_memory;
    std::vector<char *> m_words;
};

/// The planned arguments of the tool, separated by spaces; nothing where the command is passed through.
std::string plannedArguments(const CommandPlan &plan)
{
    std::string all;
    const ToolRun *run = std::get_if<ToolRun>(&plan);
    if (const auto *const decryption = std::get_if<CipherDecryption>(&plan)) run = &decryption->run;
    if (run)
        for (const std::string &argument : run->arguments)
            all += (all.empty() ? "" : " ") + argument;
    return all;
}

TEST(CommandPlan, AddsWhatTheCallerLeftOpen)
{
    const std::string derivation = " -pbkdf2 -iter 600000 -md sha256";
    const std::string legacy = " -provider legacy -provider default";
    const std::string buffer = " -bufsize 262144";
    struct Case {
        std::string line, arguments, password{};
    };
    const std::vector<Case> cases{
        {"aes-256-cbc -a -in F -out G -pass pass:hush", "aes-256-cbc" + derivation + buffer + " -a", "hush"},
        // Which key derivation a file is of shows when it is there.
        {"BF-cbc --pass=pass:hush -d -in F", "BF-cbc" + legacy + buffer + " -d", "hush"},
        {"aes256 -d -a -pass fd:3 -md md5", "aes256" + buffer + " -d -a -md md5"},
        {"aes256 -d -iter 5 -k hush", "aes256" + buffer + " -d -iter 5", "hush"},
        {"aes256 -d -e -k hush", "aes256" + derivation + buffer + " -d -e", "hush"},
        {"aes256 -d -nosalt -k hush", "aes256" + derivation + buffer + " -d -nosalt", "hush"},
        {"aes256 -d -kfile P", "aes256" + derivation + buffer + " -d -kfile P"},
        {"aes256 -d -in F", "aes256" + buffer + " -d"},
        {"aes256 -d -pass hu-sh", "aes256" + derivation + buffer + " -d -pass hu-sh"},
        {"enc -e -rc4-40 -in F", "enc" + derivation + legacy + buffer + " -e -rc4-40 -in F"},
        {"des -in F", "des" + derivation + legacy + buffer + " -in F"},
        // What the caller chose stays his choice.
        {"aes256 -pbkdf2 -in F", "aes256" + buffer + " -pbkdf2 -in F"},
        {"aes256 -iter 5 -bufsize 1k", "aes256 -iter 5 -bufsize 1k"},
        {"cast -md=sha1 -provider p", "cast -pbkdf2 -iter 600000" + buffer + " -md=sha1 -provider p"},
        // A value that looks like an option is a value.
        {"sm4-cbc -in -iter -out -md", "sm4-cbc" + derivation + buffer + " -in -iter"},
        // The password that counts for the tool counts here; none stays in sight.
        {"aes256 -k hush1 -pass file:P", "aes256" + derivation + buffer, "hush1"},
        {"aes256 -pass pass:hush1 -pass pass:hush2", "aes256" + derivation + buffer, "hush2"},
        {"aes256 -pass pass:hush -kfile P", "aes256" + derivation + buffer + " -kfile P"},
        {"aes256 -pass env:P", "aes256" + derivation + buffer + " -pass env:P"},
        {"smime -aes256 -encrypt -in /proc/self/exe -out G C", "smime -stream -aes256 -encrypt C"},
        {"smime -encrypt -indef C", "smime -encrypt -indef C"},
        {"smime -encrypt -noindef C", "smime -stream -encrypt C"},
        // The front decrypts itself, unless the tool knows something that it does not.
        {"smime -aes256 -decrypt -binary -in F -out G -inkey K C", ""},
        {"smime -decrypt -inform der -recip C -passin pass:hush", "", "hush"},
        {"smime -decrypt -text -in F -out G -inkey K C", "smime -decrypt -text -in F -inkey K C"},
        {"smime -decrypt -inform PEM -inkey K", "smime -decrypt -inform PEM -inkey K"},
        {"smime -decrypt -inkey K -passin hu-sh", "smime -decrypt -inkey K -passin hu-sh"},
        {"smime -decrypt -in F -inkey", "smime -decrypt -in F -inkey"},
        {"smime -decrypt -in F", "smime -decrypt -in F"},
        {"enc -base64 -in F", ""},
        {"enc -in -aes256", ""},
        {"dsa -des3", ""},
        {"smime -sign -in F", ""}};
    for (const Case &each : cases) {
        SCOPED_TRACE(each.line);
        ArgumentList list(each.line);
        Secret password;
        const CommandPlan plan = list.plan(password);
        EXPECT_EQ(plannedArguments(plan), each.arguments);
        EXPECT_EQ(password.text(), each.password);
        EXPECT_FALSE(list.shows("hush"));
    }
}

} // namespace
