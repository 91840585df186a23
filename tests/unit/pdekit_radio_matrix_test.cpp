// SPDX-License-Identifier: Apache-2.0
// The radio matrix: rows, selections by code and by people, titles.
#include "TextPrinting.h"
#include "pdekit/RadioMatrix.h"

#include <QLayout>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

class RadioMatrixTest : public testing::Test
{
protected:
    void SetUp() override
    {
        matrix.setTitles({u"Fast"_qs, u"Normal"_qs, u"Fine"_qs});
        matrix.resize(200, 120);
        matrix.show();
        matrix.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&matrix));
    }

    void clickRow(int row)
    {
        const QAbstractButton *button = matrix.cellAtRow(row, 0);
        ASSERT_NE(button, nullptr);
        QTest::mouseClick(matrix.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          button->geometry().topLeft() + QPoint(8, button->height() / 2));
    }

    RadioMatrix matrix;
    QSignalSpy actions{&matrix, &RadioMatrix::action};
};

TEST(RadioMatrix, WithoutRows_HasNoSelection)
{
    RadioMatrix matrix;
    EXPECT_EQ(matrix.numberOfRows(), 0);
    EXPECT_EQ(matrix.selectedRow(), -1);
    matrix.selectCellAtRow(0, 0);
    matrix.setTitleOfCell(u"x"_qs, 0, 0);
    EXPECT_EQ(matrix.selectedRow(), -1);
    EXPECT_EQ(matrix.cellAtRow(0, 0), nullptr);
}

TEST_F(RadioMatrixTest, Titles_MakeRowsWithTheFirstSelected)
{
    EXPECT_EQ(matrix.numberOfRows(), 3);
    EXPECT_EQ(matrix.selectedRow(), 0);
    EXPECT_EQ(matrix.titles(), (QStringList{u"Fast"_qs, u"Normal"_qs, u"Fine"_qs}));
    EXPECT_EQ(matrix.cellAtRow(1, 0)->text(), u"Normal");
    EXPECT_EQ(matrix.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    EXPECT_LT(matrix.cellAtRow(0, 0)->y(), matrix.cellAtRow(1, 0)->y());
}

TEST_F(RadioMatrixTest, SelectionByCode_SendsNoAction)
{
    matrix.selectCellAtRow(2, 0);
    EXPECT_EQ(matrix.selectedRow(), 2);
    EXPECT_FALSE(matrix.cellAtRow(0, 0)->isChecked());
    EXPECT_EQ(actions.count(), 0);
}

TEST_F(RadioMatrixTest, CellThatDoesNotExist_LeavesTheSelection)
{
    matrix.selectCellAtRow(1, 0);
    matrix.selectCellAtRow(3, 0);
    matrix.selectCellAtRow(-1, 0);
    matrix.selectCellAtRow(0, 1);
    matrix.setTitleOfCell(u"x"_qs, 3, 0);
    matrix.setTitleOfCell(u"x"_qs, 0, 1);
    EXPECT_EQ(matrix.selectedRow(), 1);
    EXPECT_EQ(matrix.titles(), (QStringList{u"Fast"_qs, u"Normal"_qs, u"Fine"_qs}));
    EXPECT_EQ(matrix.cellAtRow(0, -1), nullptr);
}

TEST_F(RadioMatrixTest, Click_SelectsAndSendsOneAction)
{
    int rowAtAction = -1;
    QObject::connect(&matrix, &RadioMatrix::action, [&] { rowAtAction = matrix.selectedRow(); });
    clickRow(2);
    EXPECT_EQ(matrix.selectedRow(), 2);
    EXPECT_EQ(rowAtAction, 2);
    EXPECT_EQ(actions.count(), 1);
}

TEST_F(RadioMatrixTest, ArrowKeys_MoveTheSelection)
{
    matrix.cellAtRow(0, 0)->setFocus();
    QTest::keyClick(matrix.windowHandle(), Qt::Key_Down);
    EXPECT_EQ(matrix.selectedRow(), 1);
    EXPECT_EQ(actions.count(), 1);
    QTest::keyClick(matrix.windowHandle(), Qt::Key_Up);
    EXPECT_EQ(matrix.selectedRow(), 0);
    EXPECT_EQ(actions.count(), 2);
}

TEST_F(RadioMatrixTest, TabKey_ComesToTheSelectedRow)
{
    matrix.selectCellAtRow(1, 0);
    matrix.cellAtRow(0, 0)->clearFocus();
    QTest::keyClick(matrix.windowHandle(), Qt::Key_Tab);
    EXPECT_TRUE(matrix.cellAtRow(1, 0)->hasFocus());
    QTest::keyClick(matrix.windowHandle(), Qt::Key_Space);
    EXPECT_EQ(matrix.selectedRow(), 1);
}

TEST_F(RadioMatrixTest, TitleOfACell_ShowsItsAmpersandsAndIsItsAccessibleName)
{
    matrix.setTitleOfCell(u"Black & White"_qs, 1, 0);
    EXPECT_EQ(matrix.titles()[1], u"Black & White");
    EXPECT_EQ(matrix.cellAtRow(1, 0)->text(), u"Black && White");
    EXPECT_EQ(matrix.cellAtRow(1, 0)->accessibleName(), u"Black & White");
    EXPECT_EQ(matrix.cellAtRow(2, 0)->accessibleName(), u"Fine");
}

TEST_F(RadioMatrixTest, FewerTitlesFromItsOwnAction_AreSafe)
{
    matrix.selectCellAtRow(0, 0);
    QObject::connect(&matrix, &RadioMatrix::action, [&] { matrix.setTitles({u"Only"_qs}); });
    clickRow(2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(matrix.numberOfRows(), 1);
    EXPECT_EQ(matrix.selectedRow(), 0);
    EXPECT_EQ(matrix.findChildren<QRadioButton *>().size(), 1);
    matrix.setTitles({});
    EXPECT_EQ(matrix.selectedRow(), -1);
}

} // namespace
