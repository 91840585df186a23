// SPDX-License-Identifier: Apache-2.0
// The tape in use, as the page format and the PPD give it, and the page range.
#include "MemoryOption.h"
#include "PpdText.h"
#include "TextPrinting.h"

#include "pagesettings/Exports.h"
#include "pdekit/PropertyList.h"

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

/// A dialog's objects, with a ticket in the settings that is seen in the record as soon as it is read.
class TapeInfoTest : public testing::Test
{
protected:
    TapeInfoTest()
    {
        const QVariantMap ticket = {
            {u"LxPaperName2"_qs, u"DC24x80"_qs}, {u"LxHNLabelType"_qs, 0x23}, {u"LxHNInkType"_qs, 4}};
        settings.values.insert(kTicketKey, propertyListToXml(ticket));
    }

    void usePaper(const QString &name, double heightPt) { format.paper = Paper{name, 68.0, heightPt}; }
    OSStatus get() { return GetTapeInfo(nullptr, &settings, &format, ppd.get(), &info); }

    OpenPpd ppd = PpdText()
                      .pageSizes({{"24mm", "24 mm", 68.0, 283.0},
                                  {"DC24x80", "Label", 68.0, 226.0},
                                  {"dc24x80", "Small letters", 68.0, 226.0},
                                  {"AV10", "AV", 68.0, 226.0},
                                  {"FL1", "FL", 68.0, 226.0},
                                  {"XDC1", "No prefix", 68.0, 226.0},
                                  {"D", "One letter", 68.0, 226.0},
                                  {"DC", "Prefix alone", 68.0, 226.0},
                                  {"Fl2", "Mixed letters", 68.0, 226.0}},
                                 "24mm")
                      .open();
    PrintSettings settings;
    PageFormat format;
    // What stands in the record before the call must not be seen after it.
    TapeInfo info = {7.0, 7, u"before"_qs, 7, 7, 7};
};

TEST_F(TapeInfoTest, PaperOf72Points_IsOneInchByTheFactorOfLengths)
{
    usePaper(u"24mm"_qs, 72.0);
    EXPECT_EQ(get(), kPMNoError);
    EXPECT_EQ(info.paperLength, 1.0 / 0.0393701);
    EXPECT_NE(info.paperLength, 25.4);
    // 25.4 divided by 1.00000054, which is 25.4 times the factor.
    EXPECT_NEAR(info.paperLength, 25.3999863, 0.00000005);
}

TEST_F(TapeInfoTest, PaperWithAName_GivesItAndLeavesTheTicketUnread)
{
    usePaper(u"24mm"_qs, 144.0);
    EXPECT_EQ(get(), kPMNoError);
    EXPECT_EQ(info.paperName, u"24mm");
    EXPECT_EQ(info.paperLength, 2.0 / 0.0393701);
    EXPECT_EQ(info.fixedLength, 0U);
    EXPECT_EQ(info.labelMaterial, 0U);
    EXPECT_EQ(info.labelColor, 0U);
    EXPECT_EQ(info.inkColor, 0U);
}

TEST_F(TapeInfoTest, PaperWithoutAName_ReadsTheTicket)
{
    usePaper(QString(), 72.0);
    EXPECT_EQ(get(), kPMNoError);
    EXPECT_EQ(info.paperName, u"DC24x80");
    EXPECT_EQ(info.labelMaterial, 2U);
    EXPECT_EQ(info.labelColor, 3U);
    EXPECT_EQ(info.inkColor, 4U);
    EXPECT_EQ(info.paperLength, 1.0 / 0.0393701);
}

TEST_F(TapeInfoTest, NameOfTheTicket_IsNeverOfFixedLength)
{
    // The same name from the page format is: see below.
    usePaper(QString(), 72.0);
    EXPECT_EQ(get(), kPMNoError);
    ASSERT_EQ(info.paperName, u"DC24x80");
    EXPECT_EQ(info.fixedLength, 0U);
}

TEST_F(TapeInfoTest, PaperWithAnEmptyName_LeavesTheTicketUnread)
{
    usePaper(u""_qs, 72.0);
    EXPECT_EQ(get(), kPMNoError);
    EXPECT_FALSE(info.paperName.isNull());
    EXPECT_TRUE(info.paperName.isEmpty());
    EXPECT_EQ(info.labelMaterial, 0U);
    EXPECT_EQ(info.fixedLength, 0U);
}

struct PaperNameCase {
    const char *name;
    std::uint32_t fixedLength;
};

class FixedLength : public TapeInfoTest, public testing::WithParamInterface<PaperNameCase>
{
};

TEST_P(FixedLength, FollowsFromTheNameAndThePpd)
{
    usePaper(QString::fromLatin1(GetParam().name), 72.0);
    EXPECT_EQ(get(), kPMNoError);
    EXPECT_EQ(info.paperName, QString::fromLatin1(GetParam().name));
    EXPECT_EQ(info.fixedLength, GetParam().fixedLength);
}

// The last four are no page sizes of the PPD.
INSTANTIATE_TEST_SUITE_P(Names, FixedLength,
                         testing::Values(PaperNameCase{"DC24x80", 1}, PaperNameCase{"AV10", 1}, PaperNameCase{"FL1", 1},
                                         PaperNameCase{"DC", 1}, PaperNameCase{"24mm", 0}, PaperNameCase{"dc24x80", 0},
                                         PaperNameCase{"XDC1", 0}, PaperNameCase{"D", 0}, PaperNameCase{"Fl2", 0},
                                         PaperNameCase{"DC24X80", 0}, PaperNameCase{"DC24x8", 0},
                                         PaperNameCase{"DC24x800", 0}, PaperNameCase{"AV99", 0}));

TEST_F(TapeInfoTest, WithoutAPpd_NoPaperIsOfFixedLength)
{
    usePaper(u"DC24x80"_qs, 72.0);
    EXPECT_EQ(GetTapeInfo(nullptr, &settings, &format, nullptr, &info), kPMNoError);
    EXPECT_EQ(info.paperName, u"DC24x80");
    EXPECT_EQ(info.fixedLength, 0U);
}

TEST_F(TapeInfoTest, HeightOfZero_KeepsTheDefaultLengthAndEndsThere)
{
    usePaper(u"DC24x80"_qs, 0.0);
    EXPECT_EQ(get(), kPMNoError);
    EXPECT_EQ(info.paperLength, 100.0);
    EXPECT_EQ(info.paperName, u"DC24x80");
    // The page sizes are not looked at any more.
    EXPECT_EQ(info.fixedLength, 0U);
}

/// Names as long as a PPD can hold them (40 bytes) and in other letters than ASCII.
class UnusualPaperName : public TapeInfoTest
{
protected:
    UnusualPaperName()
    {
        ppd = PpdText()
                  .pageSizes({{"24mm", "24 mm", 68.0, 283.0},
                              {kLong, "31 letters", 68.0, 226.0},
                              {kLongest, "40 letters", 68.0, 226.0},
                              {"AV1", "Renamed below", 68.0, 226.0}},
                             "24mm")
                  .open();
    }
    std::uint32_t fixedLengthOf(const QString &name)
    {
        usePaper(name, 72.0);
        EXPECT_EQ(get(), kPMNoError);
        EXPECT_EQ(info.paperName, name);
        return info.fixedLength;
    }

    const QByteArray kLong = "DC" + QByteArray(28, 'x') + "1";
    const QByteArray kLongest = "FL" + QByteArray(37, 'x') + "1";
};

TEST_F(UnusualPaperName, Beyond30Characters_IsComparedToItsEnd)
{
    EXPECT_EQ(fixedLengthOf(u"DC"_qs + QString(28, u'x') + u'1'), 1U);
    EXPECT_EQ(fixedLengthOf(u"DC"_qs + QString(28, u'x') + u'2'), 0U);
    EXPECT_EQ(fixedLengthOf(u"DC"_qs + QString(28, u'x')), 0U);
    EXPECT_EQ(fixedLengthOf(u"FL"_qs + QString(37, u'x') + u'1'), 1U);
    EXPECT_EQ(fixedLengthOf(u"FL"_qs + QString(37, u'x') + u'2'), 0U);
    EXPECT_EQ(fixedLengthOf(u"FL"_qs + QString(37, u'x') + u"1x"_qs), 0U);
}

TEST_F(UnusualPaperName, OutsideAscii_IsComparedByItsUtf8)
{
    // libcups reads no such keyword from a file; a dialog may make up the records itself.
    ppd_size_t *size = ppdPageSize(ppd.get(), "AV1");
    ASSERT_NE(size, nullptr);
    putText(size->name, "AV\u65E5\u672C");
    EXPECT_EQ(fixedLengthOf(u"AV\u65E5\u672C"_qs), 1U);
    EXPECT_EQ(fixedLengthOf(u"AV\u65E5\u6728"_qs), 0U);
    EXPECT_EQ(fixedLengthOf(u"AV\u65E5"_qs), 0U);
    EXPECT_EQ(fixedLengthOf(u"AV??"_qs), 0U);
}

class LongPaperName : public TapeInfoTest, public testing::WithParamInterface<int>
{
};

TEST_P(LongPaperName, IsKeptWholeAndIsNoPageSize)
{
    // 255 bytes still fit the buffer in which names are looked up, 256 do not. No page size is that long.
    const QString name = u"DC"_qs + QString(GetParam() - 2, QLatin1Char('x'));
    usePaper(name, 72.0);
    EXPECT_EQ(get(), kPMNoError);
    EXPECT_EQ(info.paperName, name);
    EXPECT_EQ(info.fixedLength, 0U);
    EXPECT_EQ(info.paperLength, 1.0 / 0.0393701);
    EXPECT_EQ(info.labelMaterial, 0U);
}

INSTANTIATE_TEST_SUITE_P(Bytes, LongPaperName, testing::Values(254, 255, 256, 257));

TEST_F(TapeInfoTest, FormatWithoutAPaper_GivesTheDefaultsAndNoError)
{
    EXPECT_EQ(get(), kPMNoError);
    EXPECT_EQ(info.paperLength, 100.0);
    EXPECT_EQ(info.fixedLength, 0U);
    EXPECT_TRUE(info.paperName.isNull());
    EXPECT_EQ(info.labelMaterial, 0U);
    EXPECT_EQ(info.labelColor, 0U);
    EXPECT_EQ(info.inkColor, 0U);
}

TEST_F(TapeInfoTest, NoFormat_GivesTheDefaultsAndTheErrorOfThePrintingCore)
{
    EXPECT_EQ(GetTapeInfo(nullptr, &settings, nullptr, ppd.get(), &info), kPMInvalidParameter);
    EXPECT_EQ(info.paperLength, 100.0);
    EXPECT_TRUE(info.paperName.isNull());
    EXPECT_EQ(info.labelMaterial, 0U);
}

TEST_F(TapeInfoTest, PaperWithoutANameAndNoSettings_GivesTheLengthAlone)
{
    usePaper(QString(), 72.0);
    EXPECT_EQ(GetTapeInfo(nullptr, nullptr, &format, ppd.get(), &info), kPMNoError);
    EXPECT_TRUE(info.paperName.isNull());
    EXPECT_EQ(info.inkColor, 0U);
    EXPECT_EQ(info.paperLength, 1.0 / 0.0393701);
}

TEST_F(TapeInfoTest, NoRecord_IsAnError)
{
    usePaper(u"24mm"_qs, 72.0);
    EXPECT_EQ(GetTapeInfo(nullptr, &settings, &format, ppd.get(), nullptr), kPMInvalidParameter);
}

/// A page range in the settings as reals, so that writing it back is seen: it is written as integers.
class PageRangeTest : public testing::Test
{
protected:
    PageRangeTest() { settings.values = {{PrintSettingsKey::firstPage, 2.0}, {PrintSettingsKey::lastPage, 5.0}}; }
    bool wasWritten(const QString &key) const { return settings.values.value(key).typeId() == QMetaType::LongLong; }

    PrintSettings settings;
    PageRange range = {9, 9};
};

TEST_F(PageRangeTest, BothPages_AreReadAndWrittenBackUnlocked)
{
    EXPECT_EQ(GetTapeInfo3(&settings, &range), kPMNoError);
    EXPECT_EQ(range.firstPage, 2U);
    EXPECT_EQ(range.lastPage, 5U);
    EXPECT_TRUE(wasWritten(PrintSettingsKey::firstPage));
    EXPECT_TRUE(wasWritten(PrintSettingsKey::lastPage));
    EXPECT_EQ(settings.values.value(PrintSettingsKey::firstPage), QVariant(2));
    EXPECT_EQ(settings.values.value(PrintSettingsKey::lastPage), QVariant(5));
    EXPECT_TRUE(settings.lockedKeys.empty());
}

TEST_F(PageRangeTest, NoFirstPage_IsZeroAndTheLastIsStillRead)
{
    settings.values.remove(PrintSettingsKey::firstPage);
    EXPECT_EQ(GetTapeInfo3(&settings, &range), kPMNoError);
    EXPECT_EQ(range.firstPage, 0U);
    EXPECT_EQ(range.lastPage, 5U);
    EXPECT_FALSE(settings.values.contains(PrintSettingsKey::firstPage));
}

TEST_F(PageRangeTest, NoLastPage_IsTheErrorOfReadingIt)
{
    settings.values.remove(PrintSettingsKey::lastPage);
    EXPECT_EQ(GetTapeInfo3(&settings, &range), kPMKeyNotFound);
    EXPECT_EQ(range.firstPage, 2U);
    EXPECT_EQ(range.lastPage, 0U);
    EXPECT_FALSE(settings.values.contains(PrintSettingsKey::lastPage));
}

TEST_F(PageRangeTest, LockedFirstPage_IsReadAllTheSameWithoutAnError)
{
    settings.lockedKeys.insert(PrintSettingsKey::firstPage);
    EXPECT_EQ(GetTapeInfo3(&settings, &range), kPMNoError);
    EXPECT_EQ(range.firstPage, 2U);
    EXPECT_EQ(range.lastPage, 5U);
    EXPECT_FALSE(wasWritten(PrintSettingsKey::firstPage));
}

TEST_F(PageRangeTest, LockedLastPage_IsReadAndTheErrorOfWritingIsAnswered)
{
    settings.lockedKeys.insert(PrintSettingsKey::lastPage);
    EXPECT_EQ(GetTapeInfo3(&settings, &range), kPMLocked);
    EXPECT_EQ(range.lastPage, 5U);
    EXPECT_FALSE(wasWritten(PrintSettingsKey::lastPage));
}

TEST_F(PageRangeTest, NoSettings_IsAnErrorAndNoPages)
{
    EXPECT_EQ(GetTapeInfo3(nullptr, &range), kPMInvalidParameter);
    EXPECT_EQ(range.firstPage, 0U);
    EXPECT_EQ(range.lastPage, 0U);
    EXPECT_EQ(GetTapeInfo3(&settings, nullptr), kPMInvalidParameter);
}

} // namespace
