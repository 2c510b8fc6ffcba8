#pragma once

#include "files/Printable.h"

#include <QString>
#include <cstdio>

/// A line on standard output, which is for programs, too, and has all as it is.
inline void print(const QString &line) { std::fprintf(stdout, "%s\n", qUtf8Printable(line)); }
/// A line on standard error, which is for people: no name in it governs their terminal.
inline void printError(const QString &line) { std::fprintf(stderr, "%s\n", qUtf8Printable(printable(line))); }
