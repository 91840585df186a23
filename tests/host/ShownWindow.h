// SPDX-License-Identifier: Apache-2.0
// A window as a person has it before them.
#pragma once

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace hosttest
{

/// Shows a window and waits until it is seen, with what its first events bring. To be asserted.
inline testing::AssertionResult show(QWidget &window)
{
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return testing::AssertionFailure() << "the window does not come up";
    }
    QApplication::processEvents();
    return testing::AssertionSuccess();
}

} // namespace hosttest
