// SPDX-License-Identifier: Apache-2.0
// Temporary files: those without a name stand in no folder, and are written and read by their path all the same.
#include "job/PrivateFile.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::PrivateFile;

class UnnamedFile : public testing::Test
{
protected:
    void SetUp() override { qputenv("TMPDIR", QFile::encodeName(folder.path())); }
    void TearDown() override { qputenv("TMPDIR", before); }

    const QByteArray before = qgetenv("TMPDIR");
    QTemporaryDir folder;
    QString error;
};

TEST_F(UnnamedFile, IsReadAndWrittenByItsPathButStandsInNoFolder)
{
    const auto file = PrivateFile::createUnnamed(QStringLiteral("labels.pdf"), &error);
    ASSERT_NE(file, nullptr) << error.toStdString();
    QFile writer(file->path());
    ASSERT_TRUE(writer.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    ASSERT_EQ(writer.write("label"), 5);
    QFile reader(file->path());
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    EXPECT_EQ(reader.readAll(), "label");
    EXPECT_EQ(reader.permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther), 0);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
              QStringList());
}

TEST_F(UnnamedFile, IsGoneWithItsObject)
{
    auto file = PrivateFile::createUnnamed(QStringLiteral("labels.pdf"), &error);
    ASSERT_NE(file, nullptr) << error.toStdString();
    const QString path = file->path();
    ASSERT_TRUE(QFile::exists(path));
    file.reset();
    EXPECT_FALSE(QFile::exists(path));
}

} // namespace
