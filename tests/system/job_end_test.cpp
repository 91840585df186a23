// SPDX-License-Identifier: Apache-2.0
// The last word of a job: printed, failed and why, waiting for somebody to see to the printer.
#include "tests/support/ExitStatuses.h"
#include "tests/system/SystemTest.h"

#include <cups/cups.h>

namespace
{

using systemtest::Outcome;

class JobEnd : public systemtest::SystemTest
{
protected:
    Outcome printAndWait(const QString &queue, const QStringList &options = {}) const
    {
        return tapeprint(QStringList{u"-d"_qs, queue, u"--no-dialog"_qs, u"--wait"_qs} + options +
                         QStringList{document});
    }
    void run(const QString &program, const QStringList &arguments) const
    {
        const Outcome outcome = systemtest::runClient({program, arguments, variables()});
        ASSERT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    }
};

TEST_F(JobEnd, Printed_IsSaidWhenItIs)
{
    const Outcome outcome = printAndWait(u"tape"_qs);
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_EQ(outcome.output, "Job tape-1 is completed.\n");
}

TEST_F(JobEnd, FilterThatFails_IsTheLastWord)
{
    ASSERT_TRUE(cups.addScriptedQueue(u"broken"_qs, u"mm"_qs, "cat >/dev/null; exit 1\n").isNull());
    const Outcome outcome = printAndWait(u"broken"_qs);
    EXPECT_EQ(outcome.status, testsupport::failedJob);
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(outcome.messages.contains("Job broken-1 has failed: Filter failed")) << outcome.messages.toStdString();
}

TEST_F(JobEnd, PrinterThatLacksTape_SaysWhatToLoadAndPrintsWhenThatIsDone)
{
    const QString loaded = folder.path(u"loaded"_qs);
    ASSERT_TRUE(cups.addScriptedQueue(u"empty"_qs, u"mm"_qs,
                                      "cat >/dev/null; echo 'STATE: +media-empty-error' >&2\n"
                                      "echo 'INFO: load 24 mm tape' >&2\n"
                                      "for i in 1 2 3 4 5 6 7 8; do sleep 0.2; done\n"
                                      "echo 'STATE: -media-empty-error' >&2; echo tape\n")
                    .isNull());
    const Outcome outcome = printAndWait(u"empty"_qs);
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.messages.contains("tapeprint: Job empty-1 waits: out of tape (load 24 mm tape).\n"))
        << outcome.messages.toStdString();
    EXPECT_EQ(outcome.output, "Job empty-1 is completed.\n");
}

TEST_F(JobEnd, PrinterThatLacksTape_SaysSoOnceWhateverElseIsNew)
{
    ASSERT_TRUE(cups.addScriptedQueue(u"counting"_qs, u"mm"_qs,
                                      "cat >/dev/null; echo 'STATE: +media-empty-error' >&2\n"
                                      "for i in 1 2 3; do echo \"PAGE: $i 1\" >&2; sleep 0.6; done\n"
                                      "echo 'STATE: -media-empty-error' >&2; echo tape\n")
                    .isNull());
    const Outcome outcome = printAndWait(u"counting"_qs);
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_EQ(outcome.messages.count("waits: out of tape"), 1) << outcome.messages.toStdString();
}

TEST_F(JobEnd, PausedQueue_IsSaidWithItsReason)
{
    run(u"/usr/sbin/cupsdisable"_qs, {u"-r"_qs, u"cleaning the knife"_qs, u"tape"_qs});
    QProcess person;
    person.setProcessEnvironment(systemtest::clientEnvironment(variables()));
    person.start(u"/bin/sh"_qs, {u"-c"_qs, u"sleep 2; exec /usr/sbin/cupsenable tape"_qs});
    const Outcome outcome = printAndWait(u"tape"_qs);
    person.waitForFinished();
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.messages.contains("Job tape-1 waits: paused (cleaning the knife).\n"))
        << outcome.messages.toStdString();
    EXPECT_EQ(outcome.output, "Job tape-1 is completed.\n");
}

TEST_F(JobEnd, JobThatIsCancelledElsewhere_IsNoSuccess)
{
    run(u"/usr/sbin/cupsdisable"_qs, {u"tape"_qs});
    QProcess person;
    person.setProcessEnvironment(systemtest::clientEnvironment(variables()));
    person.start(u"/bin/sh"_qs, {u"-c"_qs, u"sleep 2; exec /usr/bin/cancel tape-1"_qs});
    const Outcome outcome = printAndWait(u"tape"_qs);
    person.waitForFinished();
    EXPECT_EQ(outcome.status, testsupport::failedJob);
    EXPECT_TRUE(outcome.messages.contains("Job tape-1 was cancelled.\n")) << outcome.messages.toStdString();
}

TEST_F(JobEnd, HeldJob_IsNotWaitedFor)
{
    const Outcome outcome = printAndWait(u"tape"_qs, {u"-o"_qs, u"job-hold-until=indefinite"_qs});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_EQ(outcome.output, "Job tape-1 is pending-held.\n");
}

} // namespace
