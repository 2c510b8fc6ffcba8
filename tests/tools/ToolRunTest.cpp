#include "tools/ToolRun.h"

#include "Stub.h"
#include "TestProgram.h"
#include "tools/Threads.h"

#include <csignal>
#include <gtest/gtest.h>
#include <semaphore>

using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

ToolResult runStub(const Stub &stub, const QStringList &arguments = {})
{
    return runTool(toQString(stub.path()), arguments);
}

} // namespace

TEST(RunTool, PassesArgumentsAsTheyAreAndJudgesByWhatTheToolSays)
{
    const TemporaryFolder folder;
    const QStringList arguments{u""_s,      u"a b"_s, u"$HOME `id` \"'"_s, u"*"_s, u"line\nbreak"_s,
                                u"naïve"_s, u""_s};
    for (const auto &[behaviour, isSilent, output] :
         std::vector<std::tuple<std::string, bool, std::optional<QString>>>{
             {"nothing", true, u""_s},
             {"print hello", false, u"hello"_s},
             {"print \n", false, u"\n"_s},
             {"complain oh", false, u"oh"_s},
             {"print " + std::string(1'000'000, 'x'), false, QString(1'000'000, u'x')},
             {"bad-bytes", false, std::nullopt},
             {"helper", false, u"late"_s},
             {"terminal", false, u"none"_s},
             {"arguments", false, u'[' + arguments.join(u"]["_s) + u']'}, // as they are
         }) {
        const ToolResult result = runStub(Stub(folder.path(), "tool", behaviour), arguments);
        EXPECT_EQ(result.isSilent(), isSilent) << behaviour.substr(0, 20);
        EXPECT_TRUE(result.output == output)
            << behaviour.substr(0, 20) << ": " << qPrintable(result.text().left(200));
    }
}

TEST(RunTool, SaysWhyAToolCanNotStart)
{
    const TemporaryFolder folder;
    writeFile(folder / "text", "no program");
    writeFile(folder / "garbage", "\x7f"
                                  "ELF and nothing more");
    fs::permissions(folder / "garbage", fs::perms::owner_all);
    for (const char *name : {"missing", "text", "garbage", "."}) {
        const QString path = toQString(folder / name);
        const ToolResult result = runTool(path, {});
        EXPECT_FALSE(result.wasStarted) << name;
        EXPECT_FALSE(result.isSilent()) << name;
        EXPECT_TRUE(result.text().contains(path)) << qPrintable(result.text());
    }
    EXPECT_FALSE(runTool({}, {}).isSilent());
    // It would get the half of the second argument.
    const Stub stub(folder.path(), "tool", "arguments");
    const ToolResult cut = runStub(stub, {u"a"_s, u"sesame\0b"_s});
    EXPECT_TRUE(!cut.wasStarted && cut.text().contains(u"zero byte")) << qPrintable(cut.text());
    EXPECT_FALSE(cut.text().contains(u"sesame"));

    // Nor is a crash a success.
    const ToolResult crash = runStub(Stub(folder.path(), "tool", "crash"));
    EXPECT_FALSE(crash.isSilent());
    EXPECT_TRUE(crash.text().contains(u"signal 9"_s)) << qPrintable(crash.text());
}

TEST(EndTools, LeavesNoToolBehind)
{
    const TemporaryFolder folder;
    const Stub one(folder.path(), "one", "hang");
    const Stub two(folder.path(), "two", "hang");
    for (const Stub *stub : {&one, &two})
        detachThread(u"hanging"_s, [stub] { EXPECT_FALSE(runStub(*stub).isSilent()); });
    const int processes[] = {one.processId(), two.processId()};
    endTools();
    EXPECT_TRUE(waitForThreads(30s));
    EXPECT_EQ(toolsRunning(), 0);
    for (const int process : processes)
        EXPECT_NE(kill(process, 0), 0);
}

TEST(DetachThread, IsWaitedForAndSurvivesExceptions)
{
    std::binary_semaphore mayEnd{0};
    detachThread(u"waits"_s, [&] { mayEnd.acquire(); });
    detachThread(u"a name far longer than the system takes"_s, [] { throw std::runtime_error("escaped"); });
    detachThread(u"throws"_s, [] { throw 42; });
    EXPECT_FALSE(waitForThreads(50ms)) << "one of them still waits";
    mayEnd.release();
    EXPECT_TRUE(waitForThreads(30s));
}
