// SPDX-License-Identifier: Apache-2.0
// The main function of test programs: an application object, and GoogleTest inside it.
#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    // Also when a program is started by hand, or only asked for its list of tests.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("LOCPATH", TAPEPRINT_TEST_LOCALES);
    // What a window remembers for the person who runs the tests is neither read nor changed by them.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("XDG_STATE_HOME", settings.path().toLocal8Bit());
    // Without a runtime folder the toolkit remarks on it in each program.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        qputenv("XDG_RUNTIME_DIR", settings.path().toLocal8Bit());
    }
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
