// SPDX-License-Identifier: Apache-2.0
// A printer description's texts are shown as they stand, by the built panel: no markup, and an ampersand is a
// character.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QImage>
#include <QKeySequence>
#include <QPainter>
#include <QTest>

using namespace gestures;

namespace
{

/// As a PPD writes it (a pair of angle brackets holds bytes in hexadecimal), and as it reads.
const QByteArray kOdd = "<3C>b<3E>Cut<3C>/b<3E>&Print &amp;";
const QString kOddText = QStringLiteral("<b>Cut</b>&Print &amp;");

struct Named {
    const char *keyword;
    const char *label;
    const char *control;
};

void PrintTo(const Named &named, std::ostream *stream)
{
    *stream << named.keyword;
}

class EachOddOption : public testing::TestWithParam<Named>
{
protected:
    /// Every text of the option is odd.
    static PpdText ppd()
    {
        PpdText text = PpdText::withEveryOption();
        text.option(GetParam().keyword, kOdd, {{"2.0", kOdd + "1"}, {"3.0", kOdd + "2"}}, "2.0");
        return text;
    }
};

INSTANTIATE_TEST_SUITE_P(PlainText, EachOddOption,
                         testing::Values(Named{"KsTapeLength", "mLengthStr", "mLengthTxFld"},
                                         Named{"KsMargin", "mMarginStr", "mMarginTxFld"},
                                         Named{"KsPrintTapeLength", "mTapeLengthStr", "mTapeLengthTxFld"},
                                         Named{"KsPriority", "mPrintQualityStr", "mPrintQualityRdBtn"},
                                         Named{"Resolution", "mPrintResolutionStr", "mResolutionRdBtn"},
                                         Named{"KsCompress", "mPrintCompressStr", "mCompressRdBtn"},
                                         Named{"KsResolution", "mPrintKsResolutionStr", "mKsResolutionPUBtn"},
                                         Named{"KsTapeMaterial", "mTapeTypeStr", "mTapeTypePopBtn"},
                                         Named{"KsTapeColor", "mTapeColorStr", "mTapeColorPopBtn"},
                                         Named{"KsInkColor", "mInkColorStr", "mInkColorPopBtn"}),
                         [](const auto &test) { return std::string(test.param.keyword); });

/// What a text looks like when each of its characters is drawn, in a widget's font and size.
QImage drawn(const QWidget &like, const QString &text, Qt::Alignment alignment)
{
    QImage image(like.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(like.font());
    painter.setPen(Qt::black);
    painter.drawText(image.rect(), static_cast<int>(alignment) | Qt::TextForceLeftToRight, text);
    return image;
}

QImage drawn(QLabel &label)
{
    QImage image(label.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPalette black = label.palette();
    black.setColor(QPalette::WindowText, Qt::black);
    label.setPalette(black);
    label.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

} // namespace

TEST_P(EachOddOption, Label_IsDrawnCharacterByCharacter)
{
    PanelUnderTest panel(ppd());
    panel.show();
    QLabel *label = panel.label(GetParam().label);
    EXPECT_EQ(label->text(), kOddText + u" : "_qs);
    const QImage seen = drawn(*label);
    EXPECT_EQ(seen, drawn(*label, kOddText + u" : "_qs, label->alignment()));
    EXPECT_NE(seen, drawn(*label, u"<b>Cut</b>Print &amp; : "_qs, label->alignment())); // fonts can tell them apart
}

TEST_P(EachOddOption, Ampersand_MarksNoKey_AndTheControlKeepsItsName)
{
    PanelUnderTest panel(ppd());
    panel.show();
    auto *control = panel.outlet<QWidget>(GetParam().control);
    panel.popUp("mInkColorPopBtn")->setFocus();
    QTest::keyClick(panel.window.windowHandle(), Qt::Key_P, Qt::AltModifier);
    EXPECT_FALSE(panel.field("mLengthTxFld")->hasFocus() || panel.field("mMarginTxFld")->hasFocus() ||
                 panel.field("mTapeLengthTxFld")->hasFocus());
    EXPECT_EQ(control->accessibleName(), kOddText + u" : "_qs);
}

TEST(PlainText, LabelsOfTheView_AreAllPlain)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    const QList<QLabel *> labels = panel->panelView()->findChildren<QLabel *>();
    EXPECT_GE(labels.size(), 20);
    for (const QLabel *label : labels) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
}

TEST(PlainText, Controls_AreHeardUnderTheirLabels)
{
    PanelUnderTest panel(PpdText::withEveryOption());
    panel.show();
    EXPECT_EQ(panel.field("mWidthTxFld")->accessibleName(), panel.label("mWidthStr")->text());
    EXPECT_EQ(panel.field("mLengthTxFld")->accessibleName(), panel.label("mLengthStr")->text());
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->accessibleName(), panel.label("mPrintResolutionStr")->text());
    EXPECT_EQ(panel.popUp("mInkColorPopBtn")->accessibleName(), panel.label("mInkColorStr")->text());
    // A pop-up says its item; what it is comes from the label that is tied to it.
    const auto relations = QAccessible::queryAccessibleInterface(panel.popUp("mInkColorPopBtn"))->relations();
    ASSERT_EQ(relations.size(), 1);
    EXPECT_EQ(relations.front().first->object(), panel.label("mInkColorStr"));
    // An option that the PPD lacks keeps the title of the interface file.
    PanelUnderTest bare{PpdText()};
    bare.show();
    EXPECT_EQ(bare.popUp("mInkColorPopBtn")->accessibleName(), bare.label("mInkColorStr")->text());
    EXPECT_FALSE(bare.label("mInkColorStr")->text().isEmpty());
}

TEST(PlainText, RadioCells_AreDrawnCharacterByCharacter)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("Resolution", "Resolution", {{"300x300dpi", kOdd}, {"300x600dpi", "Other"}}, "300x300dpi");
    PanelUnderTest panel(ppd);
    panel.show();
    const QAbstractButton *cell = panel.matrix("mResolutionRdBtn")->cellAtRow(0, 0);
    // The one escape of the toolkit's buttons, which never read markup.
    EXPECT_EQ(cell->text(), QString(kOddText).replace(u"&"_qs, u"&&"_qs));
    EXPECT_TRUE(QKeySequence::mnemonic(cell->text()).isEmpty());
    EXPECT_TRUE(cell->toolTip().isEmpty());
}

TEST(PlainText, PopUpItems_AreDrawnCharacterByCharacter)
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("KsTapeMaterial", "Material", {{"KsTapeMaterialOPP", "A&B"}, {"KsTapeMaterialPET", "AB"}},
               "KsTapeMaterialOPP");
    PanelUnderTest panel(ppd);
    panel.show();
    QComboBox *popUp = panel.popUp("mTapeTypePopBtn");
    EXPECT_EQ(popUp->itemText(0), u"A&B");
    const QImage closed = popUp->grab().toImage();
    popUp->setItemText(0, u"AB"_qs);
    EXPECT_NE(popUp->grab().toImage(), closed); // an eaten ampersand would be this very picture
    popUp->setItemText(0, u"A&B"_qs);
    EXPECT_EQ(popUp->grab().toImage(), closed);

    popUp->showPopup();
    const QAbstractItemView *list = popUp->view();
    const QRect first = list->visualRect(popUp->model()->index(0, 0));
    const QRect second = list->visualRect(popUp->model()->index(1, 0));
    popUp->setCurrentIndex(-1); // neither is marked
    QTest::mouseMove(list->viewport(), QPoint(-50, -50));
    QImage withSign = list->viewport()->grab(first).toImage();
    QImage without = list->viewport()->grab(second).toImage();
    withSign.setDevicePixelRatio(1.0);
    const auto inked = [](const QImage &image) {
        int columns = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 2; y < image.height() - 2; ++y) {
                columns += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
            }
        }
        return columns;
    };
    popUp->hidePopup();
    EXPECT_GT(inked(withSign), inked(without));
}
