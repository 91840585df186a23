// SPDX-License-Identifier: Apache-2.0
// The module that draws pages: found beside the program, named when it is not there, and silent about bad documents.
#include "DocumentPictures.h"

#include "job/PageDrawer.h"
#include "tests/support/TextPrinting.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::openDrawer;
using tapeprint::job::openDrawerOf;

const QByteArray onePage = "%PDF-1.4\n"
                           "1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                           "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
                           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 144 36]>>endobj\n"
                           "trailer<</Root 1 0 R>>\n";

TEST(PageDrawer, InAFolderWithoutTheModule_NamesWhatIsMissing)
{
    const jobtest::Folder folder;
    QString problem;
    EXPECT_EQ(openDrawerOf(folder.path(u"."_qs), folder.write(u"label.pdf"_qs, onePage), &problem), nullptr);
    EXPECT_TRUE(problem.contains(u"tapeprint_drawing.so"_qs)) << problem.toStdString();
}

TEST(PageDrawer, OfADocument_HasItsPages)
{
    const jobtest::Folder folder;
    QString problem = u"from before"_qs;
    const auto drawer = openDrawer(folder.write(u"label.pdf"_qs, onePage), &problem);
    EXPECT_EQ(problem, QString());
    ASSERT_NE(drawer, nullptr);
    EXPECT_FALSE(drawer->isLocked());
    EXPECT_EQ(drawer->count(), 1);
    EXPECT_EQ(drawer->size(0), QSizeF(144, 36));
    EXPECT_TRUE(drawer->size(1).isEmpty());
}

TEST(PageDrawer, OfWhatIsNoDocument_IsNoneAndNothingIsMissing)
{
    const jobtest::Folder folder;
    QString problem;
    EXPECT_EQ(openDrawer(folder.write(u"label.pdf"_qs, "no PDF"), &problem), nullptr);
    EXPECT_EQ(problem, QString());
}

} // namespace
