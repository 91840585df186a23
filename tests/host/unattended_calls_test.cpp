// SPDX-License-Identifier: Apache-2.0
// Without a window panels are called in the order that docs/writing-a-panel.md tells their authors.
#include "TestPrinter.h"

#include "tapeprint/CommandLine.h"
#include "tapeprint/UnattendedRun.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;

TEST(UnattendedCalls, ComeInTheOrderThatAuthorsAreTold)
{
    const QTemporaryDir folder;
    // A printer of the test panel alone: the build's own would send it changes.
    const QByteArray text = hosttest::testPpd("*HostTestFamily: \"A\"\n").replace("KsMargin", "Margin");
    const QString ppd = hosttest::writeFile(folder, u"test.ppd"_qs, text);
    job::Problem error;
    const std::optional<CommandLine> line = parseCommandLine({u"--ppd"_qs, ppd, u"--summary"_qs}, &error);
    ASSERT_TRUE(line) << error.sentence.toStdString();
    qputenv("TAPEPRINT_PLUGIN_PATH", hosttest::goodBundles().first().toUtf8());
    hosttest::takeCalls();
    const RunReport report = runUnattended(*line);
    qunsetenv("TAPEPRINT_PLUGIN_PATH");
    EXPECT_EQ(report.status, 0);
    EXPECT_EQ(hosttest::takeCalls(), (QStringList{u"made, margin "_qs, u"panelName"_qs, u"panelKind"_qs,
                                                  u"supportedPPDOptionKeys"_qs, u"panelView"_qs, u"willShow"_qs,
                                                  u"save"_qs, u"shouldPrint"_qs, u"closes"_qs, u"released"_qs}));
}

} // namespace
