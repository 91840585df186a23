// SPDX-License-Identifier: Apache-2.0
// Options that do not go together, on a real queue: the server gets no job of them that nobody has seen.
#include "tests/support/ExitStatuses.h"
#include "tests/system/WindowTest.h"

namespace
{

using systemtest::FilterCall;
using systemtest::Outcome;

class ConflictJob : public systemtest::WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
        ASSERT_TRUE(cups.addRecordedQueue(u"cutting"_qs, u"mm"_qs,
                                          "*UIConstraints: *CutMedia Label *zePrintRate 6\n"
                                          "*UIConstraints: *zePrintRate 6 *CutMedia Label\n")
                        .isNull());
    }
    /// What the filter got of the two options.
    static void expectResolved(const std::vector<FilterCall> &calls)
    {
        ASSERT_EQ(calls.size(), 1U);
        EXPECT_TRUE(calls[0].options().contains("zePrintRate=6")) << calls[0].options().toStdString();
        EXPECT_TRUE(calls[0].options().contains("CutMedia=None")) << calls[0].options().toStdString();
    }

    QStringList fast{u"-d"_qs, u"cutting"_qs, u"-o"_qs, u"zePrintRate=6"_qs}; // labels are cut by default
};

TEST_F(ConflictJob, CommandLine_NamesItAndSendsNothingUnlessItMayResolveIt)
{
    const QStringList silently = fast + QStringList{u"--no-dialog"_qs, document};
    for (const QStringList &more : {QStringList(), QStringList{u"--check"_qs}}) {
        const Outcome refused = tapeprint(silently + more);
        EXPECT_EQ(refused.status, testsupport::conflict) << refused.messages.toStdString();
        EXPECT_TRUE(refused.messages.contains("\"Cut: After Each Label\" does not go with \"Print Speed: 152 mm/s\"."))
            << refused.messages.toStdString();
        EXPECT_TRUE(cups.jobs().empty());
    }
    const Outcome resolved = tapeprint(silently + QStringList{u"--resolve"_qs});
    EXPECT_TRUE(resolved.messages.contains("\"Cut\" changes from \"After Each Label\" to \"Do Not Cut\"."))
        << resolved.messages.toStdString();
    expectResolved(filterCallsOf(resolved));
}

TEST_F(ConflictJob, Window_AsksAndPrintsWithTheChangeThatItSaid)
{
    const QString problem = dialog.open(
        {QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"), fast + QStringList{document}, variables(), workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    dialog.clickPrint();
    const QString question = dialog.waitForFurtherWindow();
    ASSERT_FALSE(question.isNull()) << "nobody asks";
    dialog.press({u"Escape"_qs});
    ASSERT_TRUE(dialog.waitForGone(question));
    EXPECT_TRUE(cups.jobs().empty());
    dialog.clickPrint();
    ASSERT_FALSE(dialog.waitForFurtherWindow().isNull()) << "nobody asks again";
    dialog.press({u"Return"_qs}); // "Change and Print"
    expectResolved(filterCallsOf(dialog.waitForEnd()));
}

} // namespace
