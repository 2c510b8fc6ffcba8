#pragma once

#include "Command.h"
#include "Companion.h"

#include <gtest/gtest.h>

inline const std::string front = OPENSSL_FRONT;
inline const fs::path inner =
    fs::path(OPENSSL_FRONT).replace_filename("openssl-inner"); ///< as which it goes on
inline const std::string stock = "openssl";                    ///< the system's own tool

/// Runs a program in `folder`; what it writes to both streams is in `output`.
inline CommandResult runIn(const TemporaryFolder &folder, const std::string &program, const std::string &line,
                           const Arguments &more = {})
{
    CommandResult result = runCommand(Arguments{program} + words(line) + more, {.folder = folder.path()});
    result.output += result.errors;
    return result;
}

/// Success in the sense of the front's callers: not a word.
inline testing::AssertionResult isSilentSuccess(const CommandResult &result)
{
    if (result.status == 0 && result.output.empty()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "exit status " << result.status << ": " << result.output;
}

/// Bytes that hold every value.
inline std::string binaryData(std::size_t size)
{
    std::string data(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        data[i] = static_cast<char>(i * i / 7 + i);
    return data;
}

/// Makes key and cert there.
inline void makeKey(const TemporaryFolder &folder, const std::string &suffix = "")
{
    const std::string files = " -subj /CN=test" + suffix + " -keyout key" + suffix + " -out cert" + suffix;
    ASSERT_EQ(runIn(folder, stock, "req -x509 -newkey rsa:1024 -nodes -days 2" + files).status, 0);
}
