#include "tools/ToolRun.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cerrno>
#include <condition_variable>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <mutex>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(tools)
};

/// Says whether it wants more.
using TakeBytes = std::function<bool(QByteArrayView)>;

/// One pipe for both of the child's output streams; the ends are closed when they are given up.
class OutputPipe {
public:
    OutputPipe() { m_error = pipe2(m_ends.data(), O_CLOEXEC) == 0 ? 0 : errno; }
    ~OutputPipe()
    {
        closeEnd(0);
        closeEnd(1);
    }
    OutputPipe(const OutputPipe &) = delete;
    OutputPipe &operator=(const OutputPipe &) = delete;

    [[nodiscard]] int error() const { return m_error; }
    [[nodiscard]] int writeEnd() const { return m_ends[1]; }
    void closeWriteEnd() { closeEnd(1); }

    /// Gives what comes to `take`, until that wants no more. Whether it came to the end.
    [[nodiscard]] bool readTo(const TakeBytes &take) const
    {
        std::array<char, 16384> buffer;
        for (;;) {
            const ssize_t count = read(m_ends[0], buffer.data(), buffer.size());
            if (count > 0) {
                if (!take(QByteArrayView(buffer.data(), count))) return false;
            } else if (count == 0 || errno != EINTR) {
                return true;
            }
        }
    }

private:
    void closeEnd(std::size_t end)
    {
        if (m_ends[end] >= 0) close(m_ends[end]);
        m_ends[end] = -1;
    }

    std::array<int, 2> m_ends{-1, -1};
    int m_error = 0;
};

/// Arguments as the kernel takes them. A password may be among them: they are wiped when they are not needed
/// any more.
class ArgumentVector {
public:
    ArgumentVector(const QString &tool, const QStringList &arguments)
    {
        m_bytes.reserve(static_cast<std::size_t>(arguments.size()) + 1);
        m_bytes.push_back(tool.toUtf8());
        for (const QString &argument : arguments)
            m_bytes.push_back(argument.toUtf8());
        for (QByteArray &bytes : m_bytes)
            m_pointers.push_back(bytes.data());
        m_pointers.push_back(nullptr);
    }
    ~ArgumentVector()
    {
        for (QByteArray &bytes : m_bytes)
            explicit_bzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
    }
    ArgumentVector(const ArgumentVector &) = delete;
    ArgumentVector &operator=(const ArgumentVector &) = delete;

    [[nodiscard]] char *const *data() const { return m_pointers.data(); }

private:
    std::vector<QByteArray> m_bytes;
    std::vector<char *> m_pointers;
};

/// 0, or the error that kept the tool from starting.
int spawn(pid_t &child, const ArgumentVector &arguments, int output, int inherited)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output, STDERR_FILENO);
    // Onto itself: that takes the mark from it which would close it.
    if (inherited >= 0) posix_spawn_file_actions_adddup2(&actions, inherited, inherited);

    // What this program blocks or ignores is no business of the tool.
    sigset_t none;
    sigemptyset(&none);
    sigset_t reset;
    sigemptyset(&reset);
    for (const int signal : {SIGPIPE, SIGINT, SIGTERM, SIGHUP, SIGQUIT})
        sigaddset(&reset, signal);

    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &reset);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSID);

    const int error =
        posix_spawn(&child, arguments.data()[0], &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

/// The tools that run, by process id. Each leads a session of its own, so its id also names the group of all
/// that it started.
class RunningTools {
public:
    /// 0, or the error that kept the tool from starting. Starting and noting are one step: a tool that
    /// endTools() did not know of would stay.
    int start(pid_t &child, const ArgumentVector &arguments, int output, int inherited)
    {
        const std::lock_guard lock(m_mutex);
        const int error = spawn(child, arguments, output, inherited);
        if (!error) m_tools.push_back(child);
        return error;
    }

    /// Waits for the tool and gives its status. Its id is free for another process once its end is taken note
    /// of, so both happen in one step.
    int waitFor(pid_t child)
    {
        siginfo_t info{};
        while (waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT) < 0 && errno == EINTR) {
        }

        const std::lock_guard lock(m_mutex);
        int status = 0;
        while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        std::erase(m_tools, child);
        m_ended.notify_all();
        return status;
    }

    /// Kills the tool with all that it started; it is still to be waited for.
    void kill(pid_t child)
    {
        const std::lock_guard lock(m_mutex);
        ::kill(-child, SIGKILL);
    }

    void signalAll(int signal)
    {
        const std::lock_guard lock(m_mutex);
        for (const pid_t tool : m_tools)
            ::kill(-tool, signal);
    }

    void waitForNone(std::chrono::milliseconds atMost)
    {
        std::unique_lock lock(m_mutex);
        m_ended.wait_for(lock, atMost, [this] { return m_tools.empty(); });
    }

    std::vector<pid_t> ids()
    {
        const std::lock_guard lock(m_mutex);
        return m_tools;
    }

    int count()
    {
        const std::lock_guard lock(m_mutex);
        return static_cast<int>(m_tools.size());
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_ended;
    std::vector<pid_t> m_tools;
};

// Never destroyed: a worker may outlive the end of main() by a moment.
RunningTools &runningTools()
{
    static auto *tools = new RunningTools;
    return *tools;
}

QString cannotStart()
{
    return Words::tr("Can't start \"%1\": %2. Choose the tool's path on the Tools tab.");
}

QString whyNotStarted(const QString &tool, int error)
{
    const QString reason = QString::fromLocal8Bit(std::strerror(error));
    return cannotStart().arg(tool, reason) + u'\n';
}

/// An argument ends at a zero byte, so a tool would get less than it is to have: part of a password, or of
/// the name of a file. Empty where there is none. Arguments are in no message, for they may be secret.
QString whyNoArguments(const QString &tool, const QStringList &arguments)
{
    const auto isCut = [](const QString &text) { return text.contains(QChar::Null); };
    if (!isCut(tool) && std::none_of(arguments.begin(), arguments.end(), isCut)) return {};
    return Words::tr("Can't start \"%1\": a name or a password for it holds a zero byte.\n")
        .arg(QString(tool).remove(QChar::Null));
}

/// How a tool ended.
struct RawResult {
    QString problem{}; ///< why it was not started; empty where it was
    int waitStatus = 0;
};

/// The tool is killed where nobody wants more of what it says.
RawResult runRaw(
    const QString &tool, const QStringList &arguments, int inherited, const TakeBytes &take,
    const std::function<void(int)> &started = [](int) {})
{
    if (const QString problem = whyNoArguments(tool, arguments); !problem.isEmpty())
        return {.problem = problem};
    OutputPipe pipe;
    if (pipe.error()) return {.problem = whyNotStarted(tool, pipe.error())};

    pid_t child = 0;
    const int error =
        runningTools().start(child, ArgumentVector(tool, arguments), pipe.writeEnd(), inherited);
    if (error) return {.problem = whyNotStarted(tool, error)};

    pipe.closeWriteEnd();
    started(child);
    if (!pipe.readTo(take)) runningTools().kill(child);
    return {.waitStatus = runningTools().waitFor(child)};
}

/// Silence is how a tool reports success, and one that crashed or was killed is silent too: its end is put
/// into words.
QString describeEnd(const QString &tool, int status)
{
    if (!WIFSIGNALED(status)) return {};
    const int signal = WTERMSIG(status);
    return Words::tr("\"%1\" was ended by signal %2 (%3).\n")
        .arg(tool, QString::number(signal), QString::fromLocal8Bit(strsignal(signal)));
}

} // namespace

QString ToolResult::firstLine() const
{
    if (!output) return Words::tr("the tool's message is not readable text");
    return text().trimmed().section(u'\n', 0, 0);
}

bool tellsThatNotStarted(const QString &text)
{
    // In the user's language, where the path may come first or last.
    const QString anything = u".+"_s;
    const QString pattern = QRegularExpression::escape(cannotStart()).replace(u"%1"_s, anything);
    return text.contains(QRegularExpression(QString(pattern).replace(u"%2"_s, anything)));
}

ToolResult runTool(const QString &tool, const QStringList &arguments, int inherited,
                   const std::function<void(int)> &started)
{
    QByteArray bytes;
    const auto take = [&](QByteArrayView piece) {
        bytes.append(piece);
        return true;
    };
    const RawResult raw = runRaw(tool, arguments, inherited, take, started);
    if (!raw.problem.isEmpty()) return {raw.problem, false};
    const int status = raw.waitStatus;
    bytes.append(describeEnd(tool, status).toUtf8());
    const int exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : 0;
    return {bytes.isValidUtf8() ? std::optional(QString::fromUtf8(bytes)) : std::nullopt, true, exitStatus,
            bool(WIFSIGNALED(status))};
}

std::optional<QByteArray> firstBytesOf(const QString &tool, const QStringList &arguments, qsizetype most)
{
    QByteArray bytes;
    const RawResult raw = runRaw(tool, arguments, -1, [&](QByteArrayView piece) {
        bytes.append(piece);
        return bytes.size() < most;
    });
    const bool isCut = bytes.size() >= most;
    const bool isWell = WIFEXITED(raw.waitStatus) && WEXITSTATUS(raw.waitStatus) == 0;
    if (!raw.problem.isEmpty() || !(isCut || isWell)) return std::nullopt;
    return bytes.first(std::min(most, bytes.size()));
}

void forEachLineOf(const QString &tool, const QStringList &arguments, int inherited,
                   const std::function<void(const QString &)> &take)
{
    constexpr qsizetype longest = 1 << 20;
    QByteArray line;
    const auto end = [&] {
        if (!line.isEmpty() && line.size() <= longest && line.isValidUtf8()) take(QString::fromUtf8(line));
        line.clear();
    };
    static_cast<void>(runRaw(tool, arguments, inherited, [&](QByteArrayView piece) {
        for (qsizetype newline = piece.indexOf('\n'); newline >= 0; newline = piece.indexOf('\n')) {
            line.append(piece.first(newline));
            end();
            piece = piece.sliced(newline + 1);
        }
        if (line.size() <= longest) line.append(piece);
        return true;
    }));
    end();
}

void endTools(std::chrono::milliseconds grace)
{
    runningTools().signalAll(SIGTERM);
    runningTools().waitForNone(grace);
    runningTools().signalAll(SIGKILL);
}

quint64 bytesReadByTools()
{
    quint64 bytes = 0;
    for (const pid_t tool : runningTools().ids())
        bytes += bytesReadBy(tool).value_or(0);
    return bytes;
}

// "rchar" in proc_pid_io(5).
std::optional<quint64> bytesReadBy(int processId)
{
    std::ifstream figures("/proc/" + std::to_string(processId) + "/io");
    std::string name;
    quint64 bytes = 0;
    if (!(figures >> name >> bytes) || name != "rchar:") return std::nullopt;
    return bytes;
}

int toolsRunning() { return runningTools().count(); }
