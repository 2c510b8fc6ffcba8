#pragma once

#include "TestProgram.h"

#include <gtest/gtest.h>

/// A test of the program, which is started up.
class ProgramTest : public testing::Test {
protected:
    ProgramTest() { program.start(); }

    /// What the current profile keeps under the key; a null string where it keeps none.
    [[nodiscard]] QString kept(const QString &key) const
    {
        return delegate.currentRecord().string(key).value_or(QString());
    }

    TestProgram program;
    QuillorentAppDelegate &delegate = program.delegate();
};
