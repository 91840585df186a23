// SPDX-License-Identifier: Apache-2.0
// A disk that takes the beginning of what is written and no more is said to be full.
#include "job/WriteFailure.h"
#include "tests/job/DocumentPictures.h"
#include "tests/support/TextPrinting.h"

#include <QFile>

#include <csignal>

#include <sys/resource.h>

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::whyNotWritten;

TEST(WriteFailure, BeginningThatStillFitted_IsNoRoomForTheRest)
{
    const jobtest::Folder folder;
    QFile file(folder.path(u"piece"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit small{10, limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const qint64 written = file.write(QByteArray(20, 'x'));
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    ASSERT_EQ(written, 10);
    EXPECT_EQ(whyNotWritten(file), u"No space left on device"_qs);
}

TEST(WriteFailure, ErrorThatIsKnown_IsTheSystemsOwn)
{
    QFile file(u"/nowhere/file"_qs);
    ASSERT_FALSE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(whyNotWritten(file), u"No such file or directory"_qs);
}

} // namespace
