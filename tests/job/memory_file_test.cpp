// SPDX-License-Identifier: Apache-2.0
// Files in memory: what was written is read, from the beginning, and nothing beyond the limit is taken.
#include "job/MemoryFile.h"
#include "tests/support/TextPrinting.h"

#include <QFile>

#include <gtest/gtest.h>

#include <unistd.h>

namespace
{

using tapeprint::job::MemoryFile;

TEST(MemoryFile, Contents_AreWhatWasWrittenAndNoMore)
{
    const MemoryFile file(100);
    ASSERT_TRUE(file.append("one "));
    ASSERT_TRUE(file.append("two"));
    EXPECT_EQ(file.contents(), QByteArray("one two"));
}

TEST(MemoryFile, BeyondItsLimit_TakesNothing)
{
    const MemoryFile file(4);
    ASSERT_TRUE(file.append("four"));
    EXPECT_FALSE(file.append("five"));
    EXPECT_EQ(file.contents(), QByteArray("four"));
    // Likewise what a library writes by itself.
    EXPECT_EQ(write(file.handle(), "six", 3), -1);
}

TEST(MemoryFile, ReadingHandles_BeginAtTheBeginningEach)
{
    const MemoryFile file(100);
    ASSERT_TRUE(file.append("text"));
    for (int time = 0; time < 2; ++time) {
        QFile reading;
        ASSERT_TRUE(reading.open(file.readingHandle(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
        EXPECT_EQ(reading.readAll(), "text");
    }
    EXPECT_EQ(file.contents(), QByteArray("text"));
}

} // namespace
