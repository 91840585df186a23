// SPDX-License-Identifier: Apache-2.0
// The printing core's operations: their statuses, what they hand out, and what they leave alone.
#include "TextPrinting.h"
#include "pdekit/PrintingCore.h"
#include "pdekit/PropertyList.h"

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

TEST(PMPrinterCopyDeviceURI, KeepsTheLettersOfTheScheme)
{
    Printer printer;
    printer.deviceUri = u"KSLXUSB://Vendor/Tape?serial=1"_qs;
    QString uri;
    EXPECT_EQ(PMPrinterCopyDeviceURI(&printer, &uri), kPMNoError);
    EXPECT_EQ(uri, u"KSLXUSB://Vendor/Tape?serial=1");
}

TEST(PMPrinterCopyDeviceURI, PrinterWithoutOne_IsNoSuchEntry)
{
    const Printer printer;
    QString uri = u"before"_qs;
    EXPECT_EQ(PMPrinterCopyDeviceURI(&printer, &uri), kPMNoSuchEntry);
    EXPECT_TRUE(uri.isNull());
    EXPECT_EQ(PMPrinterCopyDeviceURI(nullptr, &uri), kPMInvalidParameter);
    EXPECT_EQ(PMPrinterCopyDeviceURI(&printer, nullptr), kPMInvalidParameter);
}

TEST(PageFormat, WithoutAPaper_IsNoError)
{
    const PageFormat format;
    const Paper other;
    PMPaper paper = &other;
    EXPECT_EQ(PMGetPageFormatPaper(&format, &paper), kPMNoError);
    EXPECT_EQ(paper, nullptr);
    paper = &other;
    EXPECT_EQ(PMGetPageFormatPaper(nullptr, &paper), kPMInvalidParameter);
    EXPECT_EQ(paper, &other);
}

TEST(PageFormat, Paper_TellsItsNameAndSize)
{
    PageFormat format;
    format.paper = Paper{u"DC12mm"_qs, 34.0, 283.5};
    PMPaper paper = nullptr;
    ASSERT_EQ(PMGetPageFormatPaper(&format, &paper), kPMNoError);
    ASSERT_EQ(paper, &*format.paper);
    QString name;
    double width = 0.0;
    double height = 0.0;
    EXPECT_EQ(PMPaperGetPPDPaperName(paper, &name), kPMNoError);
    EXPECT_EQ(PMPaperGetWidth(paper, &width), kPMNoError);
    EXPECT_EQ(PMPaperGetHeight(paper, &height), kPMNoError);
    EXPECT_EQ(name, u"DC12mm");
    EXPECT_EQ(width, 34.0);
    EXPECT_EQ(height, 283.5);
}

TEST(Paper, NullArguments_AreInvalidAndWriteNothing)
{
    const Paper nameless{QString(), 1.0, 2.0};
    QString name = u"before"_qs;
    double size = 7.0;
    EXPECT_EQ(PMPaperGetPPDPaperName(nullptr, &name), kPMInvalidParameter);
    EXPECT_EQ(PMPaperGetHeight(nullptr, &size), kPMInvalidParameter);
    EXPECT_EQ(PMPaperGetWidth(nullptr, &size), kPMInvalidParameter);
    EXPECT_EQ(name, u"before");
    EXPECT_EQ(size, 7.0);
    EXPECT_EQ(PMPaperGetHeight(&nameless, nullptr), kPMInvalidParameter);
    EXPECT_EQ(PMPaperGetPPDPaperName(&nameless, &name), kPMNoSuchEntry);
}

TEST(PrintSettings, LockedKey_KeepsItsValue)
{
    PrintSettings settings;
    EXPECT_EQ(PMPrintSettingsSetValue(&settings, u"key"_qs, 1, true), kPMNoError);
    EXPECT_EQ(PMPrintSettingsSetValue(&settings, u"key"_qs, 2, false), kPMLocked);
    EXPECT_EQ(PMPrintSettingsSetValue(&settings, u"key"_qs, QVariant(), false), kPMLocked);
    QVariant value;
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, u"key"_qs, &value), kPMNoError);
    EXPECT_EQ(value, QVariant(1));
    settings.lockedKeys.erase(u"key"_qs);
    EXPECT_EQ(PMPrintSettingsSetValue(&settings, u"key"_qs, 2, false), kPMNoError);
    EXPECT_EQ(settings.values.value(u"key"_qs), QVariant(2));
}

TEST(PrintSettings, InvalidValue_RemovesTheKey)
{
    PrintSettings settings;
    settings.values.insert(u"key"_qs, 1);
    EXPECT_EQ(PMPrintSettingsSetValue(&settings, u"key"_qs, QVariant(), false), kPMNoError);
    QVariant value(5);
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, u"key"_qs, &value), kPMKeyNotFound);
    EXPECT_EQ(value, QVariant(5));
}

TEST(PrintSettings, NullObjects_AreInvalid)
{
    PrintSettings settings;
    QVariant value;
    std::uint32_t page = 0;
    EXPECT_EQ(PMPrintSettingsGetValue(nullptr, u"key"_qs, &value), kPMInvalidParameter);
    EXPECT_EQ(PMPrintSettingsGetValue(&settings, u"key"_qs, nullptr), kPMInvalidParameter);
    EXPECT_EQ(PMPrintSettingsSetValue(nullptr, u"key"_qs, 1, false), kPMInvalidParameter);
    EXPECT_EQ(PMGetFirstPage(nullptr, &page), kPMInvalidParameter);
    EXPECT_EQ(PMGetLastPage(&settings, nullptr), kPMInvalidParameter);
    EXPECT_EQ(PMSetFirstPage(nullptr, 1, false), kPMInvalidParameter);
    EXPECT_EQ(PMPrintSettingsCreateDataRepresentation(&settings, nullptr), kPMInvalidParameter);
}

TEST(PrintSession, Data_IsSharedUnderItsKey)
{
    PrintSession session;
    QVariant value;
    EXPECT_EQ(PMSessionGetDataFromSession(&session, u"key"_qs, &value), kPMKeyNotFound);
    EXPECT_EQ(PMSessionSetDataInSession(&session, u"key"_qs, u"text"_qs), kPMNoError);
    EXPECT_EQ(PMSessionGetDataFromSession(&session, u"key"_qs, &value), kPMNoError);
    EXPECT_EQ(value, QVariant(u"text"_qs));
    EXPECT_EQ(PMSessionSetDataInSession(&session, u"key"_qs, QVariant()), kPMNoError);
    EXPECT_EQ(PMSessionGetDataFromSession(&session, u"key"_qs, &value), kPMKeyNotFound);
    EXPECT_EQ(PMSessionGetDataFromSession(nullptr, u"key"_qs, &value), kPMInvalidParameter);
}

TEST(PageRange, ComesBackAsItWasSet)
{
    PrintSettings settings;
    std::uint32_t first = 99;
    std::uint32_t last = 99;
    EXPECT_EQ(PMGetFirstPage(&settings, &first), kPMKeyNotFound);
    EXPECT_EQ(first, 99U);
    EXPECT_EQ(PMSetFirstPage(&settings, 2, true), kPMNoError);
    EXPECT_EQ(PMSetLastPage(&settings, 4294967295U, false), kPMNoError);
    EXPECT_EQ(PMSetFirstPage(&settings, 3, false), kPMLocked);
    EXPECT_EQ(PMGetFirstPage(&settings, &first), kPMNoError);
    EXPECT_EQ(PMGetLastPage(&settings, &last), kPMNoError);
    EXPECT_EQ(first, 2U);
    EXPECT_EQ(last, 4294967295U);
}

TEST(PageRange, ValueThatIsNoNumber_IsNotFound)
{
    PrintSettings settings;
    settings.values.insert(PrintSettingsKey::lastPage, u"last"_qs);
    std::uint32_t last = 99;
    EXPECT_EQ(PMGetLastPage(&settings, &last), kPMKeyNotFound);
    EXPECT_EQ(last, 99U);
}

TEST(PrintSettings, DataRepresentation_IsAPropertyListOfTheValues)
{
    PrintSettings settings;
    settings.values.insert(u"name"_qs, u"a<b&c"_qs);
    settings.values.insert(u"count"_qs, 3);
    QByteArray data;
    ASSERT_EQ(PMPrintSettingsCreateDataRepresentation(&settings, &data), kPMNoError);
    EXPECT_TRUE(data.startsWith("<?xml"));
    EXPECT_TRUE(data.contains("<string>a&lt;b&amp;c</string>"));
    const auto read = propertyListFromXml(data);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(*read, QVariant(QVariantMap{{u"name"_qs, u"a<b&c"_qs}, {u"count"_qs, qlonglong{3}}}));
}

} // namespace
