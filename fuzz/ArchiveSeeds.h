#pragma once

#include <filesystem>

/// Writes what the fuzzer starts from into `folder`, where nothing is in it yet: inputs of every kind, made
/// by our own writer.
void writeSeeds(const std::filesystem::path &folder);
