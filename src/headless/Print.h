#pragma once

#include <QString>
#include <cstdio>

/// A line on standard output, or on standard error.
inline void print(const QString &line) { std::fprintf(stdout, "%s\n", qUtf8Printable(line)); }
inline void printError(const QString &line) { std::fprintf(stderr, "%s\n", qUtf8Printable(line)); }
