// SPDX-License-Identifier: Apache-2.0
// The main function of test programs: an application object, and GoogleTest inside it.
#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <optional>
#include <string_view>

#include <gtest/gtest.h>

namespace
{

/// How GoogleTest starts a program in which a test is to end.
bool isForAnEnd(std::string_view argument)
{
    return argument.starts_with("--gtest_internal_run_death_test");
}

/// What a window remembers for the person who runs the tests is neither read nor changed by them.
void keepSettingsIn(const QByteArray &folder)
{
    qputenv("XDG_CONFIG_HOME", folder);
    qputenv("XDG_STATE_HOME", folder);
    // Without a runtime folder the toolkit remarks on it in each program.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        qputenv("XDG_RUNTIME_DIR", folder);
    }
}

} // namespace

int main(int argc, char **argv)
{
    // Also when a program is started by hand, or only asked for its list of tests.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("LOCPATH", TAPEPRINT_TEST_LOCALES);
    // A program that is to end within a test has the test's folder: one of its own would be left.
    std::optional<QTemporaryDir> settings;
    if (std::none_of(argv, argv + argc, isForAnEnd)) {
        settings.emplace();
        keepSettingsIn(settings->path().toLocal8Bit());
    }
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
