// SPDX-License-Identifier: Apache-2.0
// What the tests of the main job through the real window share: a display of the test's own and hands for the window.
#pragma once

#include "tests/system/PrivateDisplay.h"
#include "tests/system/SystemTest.h"
#include "tests/system/WindowUnderTest.h"

#include <gtest/gtest.h>

namespace systemtest
{

class WindowTest : public SystemTest
{
protected:
    /// Starts the display beside the server, or skips the test where there can be none.
    void SetUp() override
    {
        if (const QString reason = PrivateDisplay::reasonToSkip(); !reason.isNull()) {
            GTEST_SKIP() << reason.toStdString();
        }
        SystemTest::SetUp();
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
        const QString problem = display.start();
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    }

    PrivateDisplay display;
    WindowUnderTest dialog{display};
};

} // namespace systemtest
