// SPDX-License-Identifier: Apache-2.0
// Opening PPD files, and the sentences about those that cannot be opened.
#include "TestPrinter.h"

#include "job/PpdMarks.h"
#include "tests/support/TextPrinting.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::job;

TEST(PpdFile_Broken, IsNamedWithTheLineThatIsAtFault)
{
    const QTemporaryDir folder;
    // The third line lacks its asterisk.
    const QString path = hosttest::writeFile(folder, u"broken.ppd"_qs,
                                             "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\nFileVersion: \"1.0\"\n");
    Problem error;
    EXPECT_EQ(openPpdFile(path, &error), nullptr);
    EXPECT_TRUE(error.sentence.contains(path)) << error.sentence.toStdString();
    EXPECT_TRUE(error.sentence.contains(u"line 3:"_qs)) << error.sentence.toStdString();
}

TEST(PpdFile_Broken, GoesByTheNameThatThePersonKnows)
{
    const QTemporaryDir folder;
    const QString path = hosttest::writeFile(folder, u"broken.ppd"_qs, "no PPD\n");
    Problem error;
    EXPECT_EQ(openPpdFile(path, &error, u"of queue tape"_qs), nullptr);
    EXPECT_TRUE(error.sentence.startsWith(u"The PPD file of queue tape is not valid, line 1:"_qs))
        << error.sentence.toStdString();
}

TEST(PpdFile_Missing, IsNamed)
{
    Problem error;
    EXPECT_EQ(openPpdFile(u"/nowhere/at.ppd"_qs, &error), nullptr);
    EXPECT_TRUE(error.sentence.contains(u"/nowhere/at.ppd cannot be read"_qs)) << error.sentence.toStdString();
}

TEST(PpdFile_Folder, IsNoPpd)
{
    const QTemporaryDir folder;
    Problem error;
    EXPECT_EQ(openPpdFile(folder.path(), &error), nullptr);
    EXPECT_TRUE(error.sentence.contains(u"folder"_qs)) << error.sentence.toStdString();
}

TEST(PpdMarks, OfAnUnlistedChoice_StayAsTheyWere)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    EXPECT_TRUE(markChoice(printer.ppd.get(), u"KsMargin"_qs, u"5.0"_qs));
    EXPECT_FALSE(markChoice(printer.ppd.get(), u"KsMargin"_qs, u"3.3"_qs));
    EXPECT_EQ(markedChoice(printer.ppd.get(), u"KsMargin"_qs), u"5.0"_qs);
    EXPECT_FALSE(markChoice(printer.ppd.get(), u"NoSuchOption"_qs, u"5.0"_qs));
    EXPECT_FALSE(markChoice(nullptr, u"KsMargin"_qs, u"5.0"_qs));
}

TEST(PpdMarks, ArePutBackAsTheyWereTaken)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    const PpdMarks before = takeMarks(printer.ppd.get());
    markChoice(printer.ppd.get(), u"KsMargin"_qs, u"5.0"_qs);
    markChoice(printer.ppd.get(), u"PageSize"_qs, u"W24"_qs);
    EXPECT_NE(takeMarks(printer.ppd.get()), before);
    putMarks(printer.ppd.get(), before);
    EXPECT_EQ(takeMarks(printer.ppd.get()), before);
    EXPECT_EQ(markedChoice(printer.ppd.get(), u"PageSize"_qs), u"W12"_qs);
}

TEST(PpdDefault, OfForty_BytesFitsAndOfFortyOneDoesNot)
{
    const QTemporaryDir folder;
    const Destination printer = hosttest::testDestination(folder);
    const ppd_option_t *option = findOption(printer.ppd.get(), u"KsMargin"_qs);
    EXPECT_TRUE(setDefaultChoice(printer.ppd.get(), u"KsMargin"_qs, QString(40, u'x')));
    EXPECT_EQ(QByteArray(option->defchoice), QByteArray(40, 'x'));
    EXPECT_FALSE(setDefaultChoice(printer.ppd.get(), u"KsMargin"_qs, QString(41, u'y')));
    EXPECT_EQ(QByteArray(option->defchoice), QByteArray(40, 'x'));
    EXPECT_TRUE(setDefaultChoice(printer.ppd.get(), u"KsMargin"_qs, u"3"_qs));
    EXPECT_EQ(QByteArray(option->defchoice), QByteArray("3"));
}

TEST(PpdFile_Compressed, ThatIsCutOff_IsNamed)
{
    const QTemporaryDir folder;
    const QString path = hosttest::writeFile(folder, u"test.ppd"_qs, hosttest::testPpd());
    ASSERT_EQ(QProcess::execute(u"gzip"_qs, {u"-n"_qs, path}), 0);
    QFile whole(path + u".gz"_qs);
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    Problem error;
    EXPECT_NE(openPpdFile(whole.fileName(), &error), nullptr) << error.sentence.toStdString();
    for (const qsizetype left : {bytes.size() - 1, bytes.size() - 8, bytes.size() / 2, qsizetype{30}}) {
        const QString cut = hosttest::writeFile(folder, u"cut.ppd.gz"_qs, bytes.left(left));
        EXPECT_EQ(openPpdFile(cut, &error), nullptr) << left;
        EXPECT_TRUE(error.sentence.contains(u"cut off"_qs)) << error.sentence.toStdString();
    }
}

} // namespace
