#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <chrono>
#include <functional>
#include <optional>

/// What a tool said: standard output and standard error together, as they came. A tool that could not be
/// started, or that a signal ended, has that reason at the end.
struct ToolResult {
    std::optional<QString> output; ///< none where it was not UTF-8
    bool wasStarted = true;
    int exitStatus = 0;     ///< 0 also where a signal ended it
    bool wasKilled = false; ///< by a signal

    /// A tool succeeded when it said nothing, whatever its exit status.
    [[nodiscard]] bool isSilent() const { return output && output->isEmpty(); }

    /// What it said, "" where that was not UTF-8.
    [[nodiscard]] QString text() const { return output.value_or(QString()); }

    /// The first line of it, for people.
    [[nodiscard]] QString firstLine() const;
};

/// Runs `tool` (an absolute path) to its end and blocks the calling thread. No shell takes part: each
/// argument arrives as it is, empty ones too. The child has no controlling terminal, so that it can't stop
/// for a prompt. It inherits the descriptor `inherited` as it is, unless that is -1. An argument with a zero
/// byte, of which the tool would get a part, keeps it from being started. Once it runs, `started` is given
/// its process id.
[[nodiscard]] ToolResult runTool(
    const QString &tool, const QStringList &arguments, int inherited = -1,
    const std::function<void(int)> &started = [](int) {});

/// Whether a text is what a result says of a tool that could not be started.
[[nodiscard]] bool tellsThatNotStarted(const QString &text);

/// The same for a tool that prints bytes: at most the first `most` of them, and then the tool is killed. None
/// where it could not be started, or ended by itself otherwise than well.
[[nodiscard]] std::optional<QByteArray> firstBytesOf(const QString &tool, const QStringList &arguments,
                                                     qsizetype most);

/// The same for a tool that prints a line for each of what may be very many things: `take` is given one after
/// the other, without their ends. Left out is what is not UTF-8, or longer than any name. Nothing is said of
/// how the tool ended.
void forEachLineOf(const QString &tool, const QStringList &arguments, int inherited,
                   const std::function<void(const QString &)> &take);

/// Ends every tool that runs, with all that it started: asks first, and kills what is still there after
/// `grace`. Blocks until then at the longest. Any thread may call.
void endTools(std::chrono::milliseconds grace = std::chrono::seconds(2));

/// How many bytes the tools that run have read by now, from files and connections; 0 where the system does
/// not tell. What they have started is not counted.
[[nodiscard]] quint64 bytesReadByTools();

/// The same of the tool of that process id; none where the system does not tell, as of a program that keeps
/// others out of its memory.
[[nodiscard]] std::optional<quint64> bytesReadBy(int processId);

/// How many tools run at this moment.
[[nodiscard]] int toolsRunning();
