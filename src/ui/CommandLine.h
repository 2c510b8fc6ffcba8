#pragma once

#include <QCommandLineParser>

namespace ui {

/// What the program's arguments ask for.
class CommandLine {
public:
    /// Before there is an application: it needs no display.
    CommandLine(int argc, char **argv);

    /// Whether its help or its version is asked for, which is printed then, and not its window.
    [[nodiscard]] bool printsText(const char *version) const;
    /// The archives that the window is to offer for restoring, as absolute paths. Empty: none. Asked once
    /// there is an application, which has taken the toolkit's own options.
    [[nodiscard]] QStringList archives();

private:
    QCommandLineParser m_parser;
    QString m_help;
};

} // namespace ui
