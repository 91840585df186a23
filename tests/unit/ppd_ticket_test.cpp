// SPDX-License-Identifier: Apache-2.0
// The vendor ticket in the print settings, and numbers in the session's data.
#include "TextPrinting.h"

#include "pagesettings/Exports.h"
#include "pdekit/PropertyList.h"

#include <gtest/gtest.h>

#include <limits>

using namespace pdekit;

namespace
{

class TicketTest : public testing::Test
{
protected:
    void useTicket(const QVariant &root) { settings.values.insert(kTicketKey, propertyListToXml(root)); }
    void useTicket(const QByteArray &data) { settings.values.insert(kTicketKey, data); }
    void read() { EXPECT_EQ(GetTapeInfo2(nullptr, &settings, &info), kPMNoError); }
    void expectNothingGiven() const
    {
        EXPECT_TRUE(info.paperName.isNull());
        EXPECT_EQ(info.labelMaterial, 0U);
        EXPECT_EQ(info.labelColor, 0U);
        EXPECT_EQ(info.inkColor, 0U);
    }

    PrintSettings settings;
    TapeInfo info = {7.5, 1, u"before"_qs, 7, 7, 7};
};

TEST_F(TicketTest, Key_IsTheVendorsWithTheTicketsTail)
{
    EXPECT_EQ(kTicketKey, u"org.tapeprint.print.PrintSettingsTicket.LxE5");
}

TEST_F(TicketTest, LabelType_0x23_IsMaterial2AndColour3)
{
    useTicket(QVariantMap{{u"LxHNLabelType"_qs, 0x23}});
    read();
    EXPECT_EQ(info.labelMaterial, 2U);
    EXPECT_EQ(info.labelColor, 3U);
    EXPECT_EQ(info.inkColor, 0U);
    EXPECT_TRUE(info.paperName.isNull());
}

TEST_F(TicketTest, LabelType_0x1F3_IsMaterial15AndColour3)
{
    useTicket(QVariantMap{{u"LxHNLabelType"_qs, 0x1F3}});
    read();
    EXPECT_EQ(info.labelMaterial, 15U);
    EXPECT_EQ(info.labelColor, 3U);
}

TEST_F(TicketTest, InkType_IsItsLowestFourBits)
{
    useTicket(QVariantMap{{u"LxHNInkType"_qs, 0x127}});
    read();
    EXPECT_EQ(info.inkColor, 7U);
    EXPECT_EQ(info.labelMaterial, 0U);
    EXPECT_EQ(info.labelColor, 0U);
}

TEST_F(TicketTest, PaperName_IsCopied)
{
    useTicket(QVariantMap{{u"LxPaperName2"_qs, u"B\u00E4nd 24"_qs}});
    read();
    EXPECT_EQ(info.paperName, u"B\u00E4nd 24");
}

TEST_F(TicketTest, LengthAndFixedLength_AreLeftAlone)
{
    useTicket(QVariantMap{{u"LxHNLabelType"_qs, 0x23}});
    read();
    EXPECT_EQ(info.paperLength, 7.5);
    EXPECT_EQ(info.fixedLength, 1U);
}

TEST_F(TicketTest, NumbersOfAnySize_GiveFourBitsEach)
{
    useTicket(QVariantMap{{u"LxHNLabelType"_qs, -1}, {u"LxHNInkType"_qs, std::numeric_limits<qlonglong>::min() + 9}});
    read();
    EXPECT_EQ(info.labelMaterial, 15U);
    EXPECT_EQ(info.labelColor, 15U);
    EXPECT_EQ(info.inkColor, 9U);
    // 0x100000023 in 32 bits is 0x23; 18.9 is read as 18, 0x12.
    useTicket(QVariantMap{{u"LxHNLabelType"_qs, qlonglong{0x100000023}}, {u"LxHNInkType"_qs, 18.9}});
    read();
    EXPECT_EQ(info.labelMaterial, 2U);
    EXPECT_EQ(info.labelColor, 3U);
    EXPECT_EQ(info.inkColor, 2U);
}

TEST_F(TicketTest, NumberThatBeginsWithZero_IsDecimal)
{
    // 35 is 0x23; an octal 035 would be 29, which is 0x1D.
    useTicket(QByteArray("<plist version=\"1.0\"><dict><key>LxHNLabelType</key><integer>035</integer></dict></plist>"));
    read();
    EXPECT_EQ(info.labelMaterial, 2U);
    EXPECT_EQ(info.labelColor, 3U);
}

TEST_F(TicketTest, TicketInAnotherEncoding_IsReadByItsDeclaration)
{
    useTicket(QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist version=\"1.0\"><dict>"
                         "<key>LxPaperName2</key><string>B\xE4nd</string></dict></plist>"));
    read();
    EXPECT_EQ(info.paperName, u"B\u00E4nd");
}

TEST_F(TicketTest, NoSettings_ClearsAndAnswersNoError)
{
    EXPECT_EQ(GetTapeInfo2(nullptr, nullptr, &info), kPMNoError);
    expectNothingGiven();
    EXPECT_EQ(info.paperLength, 7.5);
}

TEST_F(TicketTest, NoTicket_ClearsAndAnswersNoError)
{
    read();
    expectNothingGiven();
}

TEST_F(TicketTest, EmptyDictionary_GivesNothing)
{
    useTicket(QVariantMap{});
    read();
    expectNothingGiven();
}

TEST_F(TicketTest, ValuesOfOtherTypes_GiveNothing)
{
    useTicket(QVariantMap{
        {u"LxPaperName2"_qs, 24}, {u"LxHNLabelType"_qs, u"35"_qs}, {u"LxHNInkType"_qs, QVariantList{1, 2}}});
    read();
    expectNothingGiven();
}

TEST_F(TicketTest, OneValueOfAnotherType_LeavesTheOthersReadable)
{
    useTicket(
        QVariantMap{{u"LxPaperName2"_qs, u"24mm"_qs}, {u"LxHNLabelType"_qs, QByteArray("#")}, {u"LxHNInkType"_qs, 2}});
    read();
    EXPECT_EQ(info.paperName, u"24mm");
    EXPECT_EQ(info.labelMaterial, 0U);
    EXPECT_EQ(info.inkColor, 2U);
}

TEST_F(TicketTest, RootThatIsNoDictionary_GivesNothing)
{
    useTicket(QVariant(QVariantList{QVariantMap{{u"LxHNLabelType"_qs, 0x23}}}));
    read();
    expectNothingGiven();
    useTicket(QVariant(u"LxHNLabelType"_qs));
    read();
    expectNothingGiven();
}

class NoPropertyList : public TicketTest, public testing::WithParamInterface<const char *>
{
};

TEST_P(NoPropertyList, GivesNothingAndNoError)
{
    useTicket(QByteArray(GetParam()));
    read();
    expectNothingGiven();
}

INSTANTIATE_TEST_SUITE_P(Data, NoPropertyList,
                         testing::Values("", "no property list",
                                         "<plist version=\"1.0\"><dict><key>LxHNLabelType</key><integer>35",
                                         "<other><dict><key>LxHNLabelType</key><integer>35</integer></dict></other>",
                                         "bplist00\xFF\xFF"));

TEST_F(TicketTest, TicketThatIsNoData_GivesNothing)
{
    const QByteArray xml = propertyListToXml(QVariantMap{{u"LxHNLabelType"_qs, 0x23}});
    settings.values.insert(kTicketKey, QString::fromUtf8(xml));
    read();
    expectNothingGiven();
}

TEST_F(TicketTest, NoRecord_IsNoError)
{
    useTicket(QVariantMap{{u"LxHNLabelType"_qs, 0x23}});
    EXPECT_EQ(GetTapeInfo2(nullptr, &settings, nullptr), kPMNoError);
}

class SessionTicketTest : public testing::Test
{
protected:
    OSStatus get(const char *key) { return GetTicketFromSession(&session, QString::fromLatin1(key), &value); }

    PrintSession session;
    std::int32_t value = -5;
};

TEST_F(SessionTicketTest, Number_IsReadAsSigned32Bits)
{
    session.data = {{u"small"_qs, -7}, {u"wide"_qs, 70000}, {u"large"_qs, qlonglong{0x1FFFFFFFE}}};
    EXPECT_EQ(get("small"), kPMNoError);
    EXPECT_EQ(value, -7);
    EXPECT_EQ(get("wide"), kPMNoError);
    EXPECT_EQ(value, 70000);
    EXPECT_EQ(get("large"), kPMNoError);
    EXPECT_EQ(value, -2);
}

TEST_F(SessionTicketTest, NoData_IsItsOwnError)
{
    EXPECT_EQ(get("absent"), -30891);
    session.data.insert(u"invalid"_qs, QVariant());
    EXPECT_EQ(get("invalid"), -30891);
    EXPECT_EQ(GetTicketFromSession(nullptr, u"absent"_qs, &value), -30891);
    EXPECT_EQ(value, -5);
}

TEST_F(SessionTicketTest, DataThatIsNoNumber_LeavesTheValueAlone)
{
    session.data.insert(u"text"_qs, u"12"_qs);
    EXPECT_EQ(get("text"), kPMNoError);
    EXPECT_EQ(value, -5);
}

TEST_F(SessionTicketTest, NoPlaceForTheValue_IsNoError)
{
    session.data.insert(u"number"_qs, 3);
    EXPECT_EQ(GetTicketFromSession(&session, u"number"_qs, nullptr), kPMNoError);
}

} // namespace
