#pragma once

#include "ui/Opening.h"

#include <QCommandLineParser>
#include <optional>

namespace ui {

/// What the program's arguments ask for.
class CommandLine {
public:
    /// Before there is an application: it needs no display.
    CommandLine(int argc, char **argv);

    /// Whether its help or its version is asked for, which is printed then, and not its window.
    [[nodiscard]] bool printsText(const char *version) const;
    /// What the window is asked for; none where that can't be understood, which is said. Asked once there is
    /// an application, which has taken the toolkit's own options.
    [[nodiscard]] std::optional<Opening> opening();

private:
    [[nodiscard]] std::nullopt_t refuse(const QString &reason) const;

    QCommandLineParser m_parser;
    QString m_help;
};

} // namespace ui
