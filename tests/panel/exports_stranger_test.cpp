// SPDX-License-Identifier: Apache-2.0
// An author of another plug-in or dialog: knows the installed headers and the built module, and no source of the
// project. This file is compiled with the folders of those headers alone.
#include "pagesettings/Exports.h"

#include <QFile>
#include <QLibrary>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

/// The built module. A name that it does not export fails the test and gives null.
class Exported : public testing::Test
{
protected:
    Exported() : mModule(QStringLiteral(TAPEPRINT_BUNDLE_DIR "/PageSettings.bundle/PageSettings.so"))
    {
        EXPECT_TRUE(mModule.load()) << mModule.errorString().toStdString();
    }

    template <typename Type>
    Type *take(const char *name)
    {
        return reinterpret_cast<Type *>(mModule.resolve(name));
    }

private:
    QLibrary mModule;
};

// The function or table of the module, with the type that the header declares.
#define TAKE(name) take<std::remove_reference_t<decltype(name)>>(#name)

/// The line that a message handler saw last.
QString *lastLine = nullptr;

/// What a call logs.
template <typename Call>
QString logged(const Call &call)
{
    QString line;
    lastLine = &line;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) { *lastLine = text; });
    call();
    qInstallMessageHandler(before);
    lastLine = nullptr;
    return line;
}

TEST_F(Exported, GetTapeInfo_FillsARecordOfTheStrangers)
{
    auto *getTapeInfo = TAKE(GetTapeInfo);
    ASSERT_NE(getTapeInfo, nullptr);
    TapeInfo tape;
    {
        pdekit::PageFormat format;
        format.paper = pdekit::Paper{QStringLiteral("24mm"), 68.0, 144.0};
        ASSERT_EQ(getTapeInfo(nullptr, nullptr, &format, nullptr, &tape), pdekit::kPMNoError);
    }
    // 144 points are two inches. The name outlives the paper.
    EXPECT_DOUBLE_EQ(tape.paperLength, 2.0 / 0.0393701);
    EXPECT_EQ(tape.paperName, QStringLiteral("24mm"));
    EXPECT_EQ(tape.fixedLength, 0U);
    EXPECT_EQ(getTapeInfo(nullptr, nullptr, nullptr, nullptr, &tape), pdekit::kPMInvalidParameter);
    EXPECT_TRUE(tape.paperName.isNull());
}

TEST_F(Exported, GetTapeInfo2_ReadsATicketUnderTheStatedKey)
{
    auto *getTapeInfo2 = TAKE(GetTapeInfo2);
    ASSERT_NE(getTapeInfo2, nullptr);
    pdekit::PrintSettings settings;
    // 0x23 is 35.
    settings.values.insert(kTicketKey, QByteArray("<plist version=\"1.0\"><dict><key>LxHNLabelType</key>"
                                                  "<integer>35</integer></dict></plist>"));
    TapeInfo tape;
    EXPECT_EQ(getTapeInfo2(nullptr, &settings, &tape), pdekit::kPMNoError);
    EXPECT_EQ(tape.labelMaterial, 2U);
    EXPECT_EQ(tape.labelColor, 3U);
}

TEST_F(Exported, GetTicketFromSessionAndGetTapeInfo3_AnswerNumbersAndPages)
{
    auto *getTicket = TAKE(GetTicketFromSession);
    auto *getPages = TAKE(GetTapeInfo3);
    ASSERT_NE(getTicket, nullptr);
    ASSERT_NE(getPages, nullptr);
    pdekit::PrintSession session;
    session.data.insert(QStringLiteral("number"), 7);
    std::int32_t value = 0;
    EXPECT_EQ(getTicket(&session, QStringLiteral("number"), &value), pdekit::kPMNoError);
    EXPECT_EQ(value, 7);
    EXPECT_EQ(getTicket(&session, QStringLiteral("absent"), &value), pdekit::kPMNoSessionData);
    pdekit::PrintSettings settings;
    ASSERT_EQ(pdekit::PMSetFirstPage(&settings, 2, false), pdekit::kPMNoError);
    ASSERT_EQ(pdekit::PMSetLastPage(&settings, 5, false), pdekit::kPMNoError);
    PageRange range;
    EXPECT_EQ(getPages(&settings, &range), pdekit::kPMNoError);
    EXPECT_EQ(range.firstPage, 2U);
    EXPECT_EQ(range.lastPage, 5U);
}

TEST_F(Exported, MenuTables_AreReadRowByRow)
{
    const auto *menu = take<const MenuRow>("QUAL_MENU");
    auto *count = TAKE(Get_MenuCount);
    auto *key = TAKE(Get_MenuKeyStr);
    ASSERT_NE(menu, nullptr);
    ASSERT_NE(count, nullptr);
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(count(menu, sizeof(QUAL_MENU)), 3U);
    EXPECT_EQ(menu[2].identifier, 103);
    EXPECT_STREQ(menu[2].key, "QUAL3_KEY");
    EXPECT_STREQ(key(102, menu, sizeof(QUAL_MENU)), "QUAL2_KEY");
    const auto *options = take<const MenuRow>("OP_MENU");
    ASSERT_NE(options, nullptr);
    EXPECT_STREQ(key(1, options, sizeof(OP_MENU)), "OPT1_KEY");
}

TEST_F(Exported, Lengths_AreConvertedByTheStatedFactor)
{
    auto *round = TAKE(RoundDouble);
    auto *toInch = TAKE(MiriToInch);
    auto *toMillimetres = TAKE(InchToMiri);
    ASSERT_NE(round, nullptr);
    ASSERT_NE(toInch, nullptr);
    ASSERT_NE(toMillimetres, nullptr);
    EXPECT_EQ(round(-2.5), -3);
    EXPECT_DOUBLE_EQ(toInch(100.0), 3.93701);
    EXPECT_DOUBLE_EQ(toMillimetres(3.93701), 100.0);
}

/// A class of the stranger's own, which is no object of Qt.
struct Label {
    QString description() const { return QStringLiteral("<Label \"100%d\">"); }
};

TEST_F(Exported, TraceFunctions_TakeNoObjectAnObjectOfQtAndAStrangersOwn)
{
    auto *log = TAKE(_PDELog);
    auto *prolog = TAKE(_PDEProlog);
    auto *epilog = TAKE(_PDEEpilog);
    ASSERT_NE(log, nullptr);
    ASSERT_NE(prolog, nullptr);
    ASSERT_NE(epilog, nullptr);
    const QObject object;
    const Label label;
    const QString address = QString::number(reinterpret_cast<quintptr>(&object), 16);
    EXPECT_EQ(logged([log] { log(nullptr, "%d", 5); }), QStringLiteral("LOG 5"));
    EXPECT_EQ(logged([&] { prolog(&object, "%d", 5); }), QStringLiteral("BEGIN self(<QObject: 0x%1>) 5").arg(address));
    EXPECT_EQ(logged([&] { epilog(&label, "%d", 5); }), QStringLiteral("END self(<Label \"100%d\">) 5"));
}

TEST_F(Exported, Dumps_SayWhatIsMissing)
{
    auto *dumpOption = TAKE(_PDELog_ppd_option_t);
    auto *dumpSettings = TAKE(_PDELog_PMPrintSettings_WriteToFile);
    ASSERT_NE(dumpOption, nullptr);
    ASSERT_NE(dumpSettings, nullptr);
    EXPECT_EQ(logged([dumpOption] { dumpOption(nullptr, "KsMargin"); }), QStringLiteral("PPD file is not loaded!!"));
    EXPECT_TRUE(logged([dumpSettings] { dumpSettings(nullptr, "stranger"); }).isNull());
    EXPECT_FALSE(QFile::exists(QStringLiteral("/KsPDE_stranger.plist")));
}

TEST_F(Exported, DescriptorFunctions_WriteTheirLines)
{
    auto *write = TAKE(debugLogFd);
    auto *dump = TAKE(memoryCheckFd);
    ASSERT_NE(write, nullptr);
    ASSERT_NE(dump, nullptr);
    ASSERT_NE(TAKE(debugLog), nullptr);
    ASSERT_NE(TAKE(memoryCheck), nullptr);
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const QString text = QStringLiteral("24mm");
    const unsigned char bytes[] = {0x00, 0xAB, 0x10};
    write(0, file.handle(), "%@ %.0f", &text, 2.5);
    dump(0, file.handle(), bytes, 3);
    QFile written(file.fileName());
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), QByteArray("24mm 2\n00ab10\n"));
}

} // namespace
