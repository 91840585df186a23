// SPDX-License-Identifier: Apache-2.0
// Where the printer's bytes go when nobody names a file, and the folder one works in takes none.
#include "tapeprint/OutputPath.h"

#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

/// Works in a folder that is gone, which nobody can write to, not even root.
class FolderThatIsGone : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString gone = folder.filePath(u"gone"_qs);
        ASSERT_TRUE(QDir().mkdir(gone));
        ASSERT_TRUE(QDir::setCurrent(gone));
        ASSERT_TRUE(QDir().rmdir(gone));
    }
    void TearDown() override
    {
        QDir::setCurrent(before);
        given.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", given);
    }

    const QByteArray given = qgetenv("TMPDIR");
    const QString before = QDir::currentPath();
    QTemporaryDir folder;
};

TEST_F(FolderThatIsGone, BytesGoToTheFolderForTemporaryFiles)
{
    qputenv("TMPDIR", folder.path().toLocal8Bit());
    EXPECT_EQ(tapeprint::freeOutputPath(u"label.pdf"_qs), folder.filePath(u"label.prn"_qs));
}

// Not to "/", where root could write.
TEST_F(FolderThatIsGone, TemporaryFolderThatIsNotThere_IsNamedAllTheSame)
{
    const QString none = folder.filePath(u"none"_qs);
    qputenv("TMPDIR", none.toLocal8Bit());
    EXPECT_EQ(tapeprint::freeOutputPath(u"label.pdf"_qs), none + u"/label.prn"_qs);
}

} // namespace
