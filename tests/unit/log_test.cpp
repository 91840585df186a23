// SPDX-License-Identifier: Apache-2.0
// The diagnostic functions, by what they leave in the system log, on standard error and in a descriptor.
#include "pagesettings/Exports.h"

#include "MemoryOption.h"
#include "TextPrinting.h"

#include "plugin/KSHNPageSettingsPlugIn13_v100_.h"
#include "ppd/PDEChoice.h"

#include <QFile>
#include <QLocale>
#include <QLoggingCategory>
#include <QObject>
#include <QStringList>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <limits>

#include <unistd.h>

namespace
{

/// What a function writes to a file descriptor of its own.
QByteArray written(const std::function<void(int)> &write)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    write(file.handle());
    QFile result(file.fileName());
    EXPECT_TRUE(result.open(QIODevice::ReadOnly));
    return result.readAll();
}

/// What a function writes to the standard error stream.
QByteArray onStandardError(const std::function<void()> &write)
{
    return written([&](int fd) {
        std::fflush(stderr);
        const int kept = ::dup(STDERR_FILENO);
        ASSERT_GE(::dup2(fd, STDERR_FILENO), 0);
        write();
        std::fflush(stderr);
        ASSERT_GE(::dup2(kept, STDERR_FILENO), 0);
        ::close(kept);
    });
}

struct SystemLogLines {
    QStringList lines;
    QStringList categories;
};
SystemLogLines *systemLogLines = nullptr;

/// Collects the lines of the system log while it lives.
class SystemLog : public testing::Test
{
protected:
    SystemLog()
    {
        systemLogLines = &mLog;
        mFormer = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context, const QString &line) {
            systemLogLines->lines.append(line);
            systemLogLines->categories.append(QLatin1String(context.category));
        });
    }
    ~SystemLog() override
    {
        qInstallMessageHandler(mFormer);
        systemLogLines = nullptr;
    }
    SystemLog(const SystemLog &) = delete;
    SystemLog &operator=(const SystemLog &) = delete;

    SystemLogLines mLog;
    QtMessageHandler mFormer = nullptr;
};

TEST_F(SystemLog, LogWithoutAnObject_IsTheTagABlankAndTheText)
{
    _PDELog(nullptr, "%d", 5);
    EXPECT_EQ(mLog.lines, QStringList(QStringLiteral("LOG 5")));
    EXPECT_EQ(mLog.categories, QStringList(QStringLiteral("pde")));
}

TEST_F(SystemLog, PrologAndEpilog_CarryTheirTags)
{
    _PDEProlog(nullptr, "save %s", "all");
    _PDEEpilog(nullptr, "save");
    EXPECT_EQ(mLog.lines, QStringList({QStringLiteral("BEGIN save all"), QStringLiteral("END save")}));
}

TEST_F(SystemLog, Object_StandsBeforeTheTextByItsDescription)
{
    const QObject object;
    _PDELog(&object, "%d of %d", 2, 3);
    const QString address = QString::number(reinterpret_cast<quintptr>(&object), 16);
    EXPECT_EQ(mLog.lines, QStringList(QStringLiteral("LOG self(<QObject: 0x%1>) 2 of 3").arg(address)));
}

TEST_F(SystemLog, NullObject_IsNoObject)
{
    _PDELog(static_cast<const QObject *>(nullptr), "x");
    _PDELog(static_cast<const PDEChoice *>(nullptr), "x");
    EXPECT_EQ(mLog.lines, QStringList({QStringLiteral("LOG x"), QStringLiteral("LOG x")}));
}

TEST_F(SystemLog, Choice_StandsBeforeTheTextByItsOwnDescription)
{
    const MemoryOption memory("A", {{"A", "First"}, {"B", "Second"}});
    const PDEChoice choice(&memory.choices[1]);
    _PDEProlog(&choice, "%d", 5);
    const QString address = QString::number(reinterpret_cast<quintptr>(&choice), 16);
    EXPECT_EQ(
        mLog.lines,
        QStringList(
            QStringLiteral("BEGIN self(<PDEChoice 0x%1 userTitle:\"Second\" ppdTitle:\"B\" marked:NO choice:2 of 2>) 5")
                .arg(address)));
}

TEST_F(SystemLog, PercentInADescription_TakesNoArgument)
{
    const MemoryOption memory("A", {{"A", "100%s %n %d"}});
    const PDEChoice choice(&memory.choices[0]);
    _PDELog(&choice, "%d", 5);
    ASSERT_EQ(mLog.lines.size(), 1);
    EXPECT_TRUE(mLog.lines[0].contains(QStringLiteral("userTitle:\"100%s %n %d\" ppdTitle:\"A\"")));
    EXPECT_TRUE(mLog.lines[0].endsWith(QStringLiteral("choice:1 of 1>) 5")));
}

TEST_F(SystemLog, PrincipalObject_StandsBeforeTheTextByItsClassAndAddress)
{
    const KSHNPageSettingsPlugIn13_v100_ plugIn;
    const pdekit::PlugIn *asTheDialogHoldsIt = &plugIn;
    _PDELog(&plugIn, "x");
    _PDEEpilog(asTheDialogHoldsIt, "x");
    const QString self = QStringLiteral("self(<KSHNPageSettingsPlugIn13_v100_: 0x%1>) x")
                             .arg(QString::number(reinterpret_cast<quintptr>(&plugIn), 16));
    EXPECT_EQ(mLog.lines, QStringList({QStringLiteral("LOG ") + self, QStringLiteral("END ") + self}));
}

TEST_F(SystemLog, CategorySwitchedOff_StillGetsTheLine)
{
    QLoggingCategory::setFilterRules(QStringLiteral("pde=false"));
    _PDELog(nullptr, "still here");
    QLoggingCategory::setFilterRules(QString());
    EXPECT_EQ(mLog.lines, QStringList(QStringLiteral("LOG still here")));
}

TEST_F(SystemLog, PercentInAnArgument_IsNotAPlaceholder)
{
    const QString text = QStringLiteral("100% %d");
    _PDELog(nullptr, "%@", &text);
    EXPECT_EQ(mLog.lines, QStringList(QStringLiteral("LOG 100% %d")));
}

TEST_F(SystemLog, OptionDumpWithoutPpdOrKeyword_SaysSo)
{
    ppd_file_t ppd{};
    _PDELog_ppd_option_t(nullptr, nullptr);
    _PDELog_ppd_option_t(nullptr, "KsMargin");
    _PDELog_ppd_option_t(&ppd, nullptr);
    EXPECT_EQ(mLog.lines,
              QStringList({QStringLiteral("PPD file is not loaded!!"), QStringLiteral("PPD file is not loaded!!"),
                           QStringLiteral("ppdOptionName is NULL!!")}));
}

/// A PPD of one option with two choices.
class OptionDump : public SystemLog
{
protected:
    OptionDump()
    {
        EXPECT_TRUE(mFile.open());
        mFile.write("*PPD-Adobe: \"4.3\"\n"
                    "*FormatVersion: \"4.3\"\n"
                    "*FileVersion: \"1.0\"\n"
                    "*LanguageVersion: English\n"
                    "*LanguageEncoding: ISOLatin1\n"
                    "*PCFileName: \"TAPE.PPD\"\n"
                    "*Product: \"(Tape)\"\n"
                    "*Manufacturer: \"Sample\"\n"
                    "*ModelName: \"Tape\"\n"
                    "*NickName: \"Tape\"\n"
                    "*ShortNickName: \"Tape\"\n"
                    "*PSVersion: \"(3010.000) 0\"\n"
                    "*OpenUI *KsPriority/Print quality: PickOne\n"
                    "*OrderDependency: 12.5 AnySetup *KsPriority\n"
                    "*DefaultKsPriority: Speed\n"
                    "*KsPriority Quality/Best: \"\"\n"
                    "*KsPriority Speed/Fast: \"\"\n"
                    "*CloseUI: *KsPriority\n");
        mFile.flush();
        mPpd = ppdOpenFile(mFile.fileName().toLocal8Bit().constData());
    }
    ~OptionDump() override { ppdClose(mPpd); }
    OptionDump(const OptionDump &) = delete;
    OptionDump &operator=(const OptionDump &) = delete;

    QTemporaryFile mFile;
    ppd_file_t *mPpd = nullptr;
};

TEST_F(OptionDump, Option_IsDumpedFieldByFieldWithItsFirstChoice)
{
    ASSERT_NE(mPpd, nullptr);
    ppd_option_t *option = ppdFindOption(mPpd, "KsPriority");
    ASSERT_NE(option, nullptr);
    _PDELog_ppd_option_t(mPpd, "KsPriority");
    // PickOne is 1; the section AnySetup is 0; the order is 12.5.
    const QStringList expected = {QStringLiteral("+-+-+-+-+-+-+-+-+-+- start is KsPriority"),
                                  QStringLiteral("***** conflicted | "),
                                  QStringLiteral("***** keyword | KsPriority"),
                                  QStringLiteral("***** defchoice | Speed"),
                                  QStringLiteral("***** text | Print quality"),
                                  QStringLiteral("***** ui == 1"),
                                  QStringLiteral("***** section == 0"),
                                  QStringLiteral("***** order == 12.500000"),
                                  QStringLiteral("***** num_choices == 2"),
                                  QStringLiteral("***** choices->marked | "),
                                  QStringLiteral("***** choices->choice | Quality"),
                                  QStringLiteral("***** choices->text | Best"),
                                  QStringLiteral("+-+-+-+-+-+-+-+-+-+- end is KsPriority")};
    EXPECT_EQ(mLog.lines, expected);
}

TEST_F(OptionDump, FlagsThatAreSet_ArePrintedAsTheStringsTheyBegin)
{
    ASSERT_NE(mPpd, nullptr);
    ppd_option_t *option = ppdFindOption(mPpd, "KsPriority");
    ASSERT_NE(option, nullptr);
    option->conflicted = 1;
    option->choices[0].marked = 1;
    _PDELog_ppd_option_t(mPpd, "KsPriority");
    ASSERT_EQ(mLog.lines.size(), 13);
    EXPECT_EQ(mLog.lines[1], QStringLiteral("***** conflicted | \u0001KsPriority"));
    EXPECT_EQ(mLog.lines[9], QStringLiteral("***** choices->marked | \u0001Quality"));
}

TEST_F(OptionDump, OptionThatThePpdDoesNotDefine_GivesTheStartLineAlone)
{
    ASSERT_NE(mPpd, nullptr);
    _PDELog_ppd_option_t(mPpd, "KsMargin");
    EXPECT_EQ(mLog.lines, QStringList(QStringLiteral("+-+-+-+-+-+-+-+-+-+- start is KsMargin")));
}

TEST_F(OptionDump, OptionWithoutChoices_IsDumpedWithoutAChoice)
{
    ASSERT_NE(mPpd, nullptr);
    ppd_option_t *option = ppdFindOption(mPpd, "KsPriority");
    ASSERT_NE(option, nullptr);
    const int kept = option->num_choices;
    option->num_choices = 0;
    _PDELog_ppd_option_t(mPpd, "KsPriority");
    option->num_choices = kept;
    ASSERT_EQ(mLog.lines.size(), 13);
    EXPECT_EQ(mLog.lines[8], QStringLiteral("***** num_choices == 0"));
    EXPECT_EQ(mLog.lines[10], QStringLiteral("***** choices->choice | (null)"));
}

TEST(DebugLog, LevelAboveZero_WritesNothing)
{
    EXPECT_EQ(onStandardError([] { debugLog(1, "%d", 5); }), QByteArray());
    EXPECT_EQ(onStandardError([] { debugLog(std::numeric_limits<std::int32_t>::max(), "x"); }), QByteArray());
    EXPECT_EQ(written([](int fd) { debugLogFd(1, fd, "%d", 5); }), QByteArray());
}

TEST(DebugLog, LevelZeroAndBelow_WriteThePrefixAndTheLine)
{
    EXPECT_EQ(onStandardError([] { debugLog(0, "%d", 5); }), QByteArray("DEBUG: 5\n"));
    EXPECT_EQ(onStandardError([] { debugLog(-3, "margin %.1f", 2.5); }), QByteArray("DEBUG: margin 2.5\n"));
    EXPECT_EQ(onStandardError([] { debugLog(0, ""); }), QByteArray("DEBUG: \n"));
}

TEST(DebugLog, Descriptor_GetsTheLineWithoutThePrefix)
{
    EXPECT_EQ(written([](int fd) { debugLogFd(0, fd, "%s=%d", "a", 5); }), QByteArray("a=5\n"));
    EXPECT_EQ(written([](int fd) { debugLogFd(-3, fd, "x"); }), QByteArray("x\n"));
    debugLogFd(0, -1, "nowhere");
}

TEST(DebugLog, CharacterThatUtf8CannotHold_BecomesAQuestionMark)
{
    const QString text = QStringLiteral("é") + QChar(0xD800) + QStringLiteral("x");
    EXPECT_EQ(written([&](int fd) { debugLogFd(0, fd, "%@", &text); }), QByteArray("\xc3\xa9?x\n"));
    EXPECT_EQ(onStandardError([&] { debugLog(0, "%@", &text); }), QByteArray("DEBUG: \xc3\xa9?x\n"));
}

TEST(DebugLog, MissingFormat_WritesNothingButThePrefix)
{
    EXPECT_EQ(onStandardError([] { debugLog(0, nullptr); }), QByteArray("DEBUG: "));
    EXPECT_EQ(written([](int fd) { debugLogFd(0, fd, nullptr); }), QByteArray());
}

/// What a format and its arguments give, as UTF-8.
template <typename... Arguments>
QByteArray bytesOf(const char *format, Arguments... arguments)
{
    const QByteArray bytes = written([&](int fd) { debugLogFd(0, fd, format, arguments...); });
    EXPECT_TRUE(bytes.endsWith('\n'));
    return bytes.chopped(1);
}

template <typename... Arguments>
QString line(const char *format, Arguments... arguments)
{
    return QString::fromUtf8(bytesOf(format, arguments...));
}

TEST(DebugLog, Placeholders_AreFilledInTheirOrderAndWidth)
{
    const QString text = QStringLiteral("日本");
    EXPECT_EQ(line("%@|%4@|%-4@|%.1@", &text, &text, &text, &text), QStringLiteral("日本|  日本|日本  |日"));
    EXPECT_EQ(line("%@|%s", static_cast<const QString *>(nullptr), static_cast<const char *>(nullptr)),
              QStringLiteral("(null)|(null)"));
    EXPECT_EQ(line("%05d|%-5d|%+d|%i", 42, 42, 42, -42), QStringLiteral("00042|42   |+42|-42"));
    EXPECT_EQ(line("%u|%x|%X|%#o", 4294967295U, 255U, 255U, 8U), QStringLiteral("4294967295|ff|FF|010"));
    EXPECT_EQ(line("%hhd|%hd|%ld|%lld|%zu", 257, 65537, -1L, -2LL, sizeof(char)), QStringLiteral("1|1|-1|-2|1"));
    EXPECT_EQ(line("%c%%|%.*f|%*d|%-*d|", 'a', 2, 1.5, 4, 7, 3, 8), QStringLiteral("a%|1.50|   7|8  |"));
    // A negative width fills on the right, a negative precision is none.
    EXPECT_EQ(line("%*d|%*s|%.*f", -4, 7, -3, "a", -1, 1.5), QStringLiteral("7   |a  |1.500000"));
    // NOLINTNEXTLINE(performance-no-int-to-ptr): an address known beforehand is what the test needs
    EXPECT_EQ(line("%p", reinterpret_cast<void *>(quintptr{0x1f})), QStringLiteral("0x1f"));
    EXPECT_EQ(line("%.3s|%e|%g|%Lf", "abcdef", 1500.0, 0.5, 2.5L), QStringLiteral("abc|1.500000e+03|0.5|2.500000"));
    EXPECT_EQ(line("%y %n %d", 1), QStringLiteral("%y %n 1"));
    EXPECT_EQ(line("50%"), QStringLiteral("50%"));
}

TEST(DebugLog, Halves_GoToTheEvenDigit)
{
    EXPECT_EQ(line("%.0f|%.0f|%.0f|%.0f", 0.5, 1.5, 2.5, -2.5), QStringLiteral("0|2|2|-2"));
    EXPECT_EQ(line("%.1f|%.1f|%.2e|%.0e", 0.25, 0.75, 1.125, 2.5), QStringLiteral("0.2|0.8|1.12e+00|2e+00"));
}

TEST(DebugLog, HexadecimalReals_AreWrittenAsCDoes)
{
    // 10 is 1.25 times 8, and 0.25 is the hexadecimal 0.4; 1.5 goes to the even 2.
    EXPECT_EQ(line("%a|%A|%.0a|%10a", 1.0, 10.0, 1.5, 2.5), QStringLiteral("0x1p+0|0X1.4P+3|0x2p+0|  0x1.4p+1"));
}

TEST(DebugLog, AlternativeForm_MarksTheBaseAndKeepsThePoint)
{
    EXPECT_EQ(line("%#X|%#x|%#o", 255U, 0U, 0U), QStringLiteral("0XFF|0|0"));
    EXPECT_EQ(line("%#.0f|%#g|%#06x", 3.0, 0.5, 255U), QStringLiteral("3.|0.500000|0x00ff"));
}

TEST(DebugLog, PrecisionOfAnInteger_IsItsLeastDigits)
{
    EXPECT_EQ(line("%.0d|%.d|%4.0d|%.0x", 0, 0, 0, 0U), QStringLiteral("||    |"));
    EXPECT_EQ(line("%.3d|%.3d|%6.3d|%.2d", 7, -7, 7, 1234), QStringLiteral("007|-007|   007|1234"));
    // A precision switches the zeros of the width off.
    EXPECT_EQ(line("%06.3d", 7), QStringLiteral("   007"));
}

TEST(DebugLog, Flags_ActAloneAndTogether)
{
    EXPECT_EQ(line("% d|% d|%+ d|% +d", 5, -5, 5, 5), QStringLiteral(" 5|-5|+5|+5"));
    EXPECT_EQ(line("%-05d|%-+5d|%+05d|%06.1f", 42, 42, 42, -2.5), QStringLiteral("42   |+42  |+0042|-002.5"));
    EXPECT_EQ(line("%-6.1f|% .1f|%05s", 2.5, 2.5, "ab"), QStringLiteral("2.5   | 2.5|   ab"));
}

TEST(DebugLog, NoNumbers_AreNamedInTheLettersOfThePlaceholder)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(line("%f|%F|%e|%G|%05f", infinity, -infinity, infinity, infinity, infinity),
              QStringLiteral("inf|-INF|inf|INF|  inf"));
    EXPECT_EQ(line("%f|%E", std::fabs(std::numeric_limits<double>::quiet_NaN()),
                   std::fabs(std::numeric_limits<double>::quiet_NaN())),
              QStringLiteral("nan|NAN"));
}

TEST(DebugLog, NullPointer_IsWrittenAsTheCLibraryDoes)
{
    EXPECT_EQ(line("%p|%8p", static_cast<void *>(nullptr), static_cast<void *>(nullptr)),
              QStringLiteral("(nil)|   (nil)"));
}

TEST(DebugLog, LengthModifiers_TakeArgumentsOfTheirOwnSize)
{
    EXPECT_EQ(line("%hhd|%hhu|%hx|%ho", 200, 300, 0x12345, 0x10008), QStringLiteral("-56|44|2345|10"));
    EXPECT_EQ(line("%jd|%td|%zd|%lu", std::intmax_t{-1}, std::ptrdiff_t{-2}, ssize_t{-3},
                   std::numeric_limits<unsigned long>::max()),
              QStringLiteral("-1|-2|-3|18446744073709551615"));
    EXPECT_EQ(line("%llx|%lX|%lld", 0xFEDCBA9876543210ULL, 0xABUL, std::numeric_limits<long long>::min()),
              QStringLiteral("fedcba9876543210|AB|-9223372036854775808"));
    // 2^64 - 1 needs 64 binary digits, more than a double has.
    EXPECT_EQ(line("%.0Lf|%d", 18446744073709551615.0L, 7), QStringLiteral("18446744073709551615|7"));
}

TEST(DebugLog, WidthOfABytesText_CountsBytes)
{
    // Three bytes a character.
    EXPECT_EQ(line("%7s|%-8s|%4s|%6s", "日本", "日本", "日本", "日本"), QStringLiteral(" 日本|日本  |日本|日本"));
    EXPECT_EQ(line("%*s|%*s|", 3, "é", -3, "é"), QStringLiteral(" é|é |"));
}

TEST(DebugLog, PrecisionOfABytesText_CountsBytesAndLeavesNoHalfCharacter)
{
    for (const char *format : {"%.3s", "%.4s", "%.5s"}) {
        EXPECT_EQ(bytesOf(format, "日本"), QByteArray("日")) << format;
    }
    EXPECT_EQ(bytesOf("%.2s|%.6s|%.7s", "日本", "日本", "日本"), QByteArray("|日本|日本"));
    EXPECT_EQ(bytesOf("%.1s|%.2s|%.3s", "é", "é", "éa"), QByteArray("|é|éa"));
    EXPECT_EQ(bytesOf("%.3s|%.4s|%.*s", "😀", "😀", 5, "a😀b"), QByteArray("|😀|a😀"));
    // The width stays what it is: four bytes of which three are written, in five.
    EXPECT_EQ(bytesOf("%5.4s|%-5.4s|", "日本", "日本"), QByteArray("  日|日  |"));
}

TEST(DebugLog, BytesThatAreNoUtf8_AreReplacedNotCutOff)
{
    EXPECT_EQ(line("%s|%.2s|%.3s", "a\xE6", "\x80\x80", "\xFFxyz"), QStringLiteral("a\uFFFD|\uFFFD\uFFFD|\uFFFDxy"));
}

TEST(DebugLog, BytesBeyondThePrecision_AreNotRead)
{
    const char bytes[3] = {'a', 'b', 'c'}; // no terminator: the address sanitizer sees a byte read too many
    const auto *heap = new char[3]{'a', 'b', 'c'};
    EXPECT_EQ(line("%.3s|%.*s", bytes, 3, heap), QStringLiteral("abc|abc"));
    delete[] heap;
}

TEST(DebugLog, WideTexts_AreCountedInBytesToo)
{
    EXPECT_EQ(bytesOf("%ls|%7ls|%.4ls|%5.4ls|%.0ls", L"日本", L"日本", L"日本", L"日本", L"日本"),
              QByteArray("日本| 日本|日|  日|"));
    EXPECT_EQ(bytesOf("%lc|%4lc|%-4lc|", wint_t{0x65E5}, wint_t{0x65E5}, wint_t{0x65E5}), QByteArray("日| 日|日 |"));
    EXPECT_EQ(line("%ls", static_cast<const wchar_t *>(nullptr)), QStringLiteral("(null)"));
}

TEST(DebugLog, NullTexts_AreFilledInTheirWidthAndNeverCut)
{
    EXPECT_EQ(line("%8s|%-8s|%.2s", static_cast<const char *>(nullptr), static_cast<const char *>(nullptr),
                   static_cast<const char *>(nullptr)),
              QStringLiteral("  (null)|(null)  |(null)"));
}

TEST(DebugLog, CharacterBeyondAscii_IsReadAsLatin1)
{
    EXPECT_EQ(bytesOf("%c|%3c|%-3c|", 0xE9, 'a', 'b'), QByteArray("é|  a|b  |"));
}

TEST(DebugLog, WidthsBeyondAllReason_AreHeld)
{
    EXPECT_EQ(bytesOf("%*d", std::numeric_limits<int>::max(), 7).size(), 999'999);
    EXPECT_EQ(bytesOf("%*s|", std::numeric_limits<int>::min(), "a").size(), 1'000'000);
    EXPECT_EQ(bytesOf("%99999999999d|%d", 7, 8).size(), 1'000'001);
    EXPECT_EQ(bytesOf("%.*f", std::numeric_limits<int>::max(), 1.0).size(), 1'000'001); // "1." and the decimals
    EXPECT_EQ(bytesOf("%.*s", std::numeric_limits<int>::max(), "whole"), QByteArray("whole"));
}

TEST(DebugLog, GermanSession_KeepsThePoint)
{
    // The C library's locale counts, too.
    const std::string kept = std::setlocale(LC_ALL, nullptr);
    const QLocale keptLocale;
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    QLocale::setDefault(QLocale(QLocale::German));
    const QByteArray line = written([](int fd) { debugLogFd(0, fd, "%.1f %d %a %Lg", 2.5, 1000000, 2.5, 2.5L); });
    QLocale::setDefault(keptLocale);
    std::setlocale(LC_ALL, kept.c_str());
    EXPECT_EQ(line, QByteArray("2.5 1000000 0x1.4p+1 2.5\n"));
}

const unsigned char kBytes[33] = {0x00, 0xAB, 0x10, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0x09, 0x0A,
                                  0x0B, 0x0C, 0x0D, 0x0E, 0x0F, 0xFF, 0x11, 0x12, 0x13, 0x14, 0x15,
                                  0x16, 0x17, 0x18, 0x19, 0x1A, 0x1B, 0x1C, 0x1D, 0x1E, 0x1F, 0x20};
const QByteArray kFirst16 = "00ab100304050607"
                            "08090a0b0c0d0e0f";
const QByteArray kSecond16 = "ff11121314151617"
                             "18191a1b1c1d1e1f";

QByteArray dumpedToFd(std::int32_t level, const unsigned char *bytes, std::int32_t length)
{
    return written([=](int fd) { memoryCheckFd(level, fd, bytes, length); });
}

QByteArray dumped(std::int32_t level, const unsigned char *bytes, std::int32_t length)
{
    return onStandardError([=] { memoryCheck(level, bytes, length); });
}

TEST(MemoryCheckFd, ThreeBytes_AreOneLine)
{
    EXPECT_EQ(dumpedToFd(0, kBytes, 3), QByteArray("00ab10\n"));
}

TEST(MemoryCheckFd, SixteenBytes_AreExactlyOneLine)
{
    EXPECT_EQ(dumpedToFd(0, kBytes, 16), kFirst16 + "\n");
}

TEST(MemoryCheckFd, SeventeenBytes_AreTwoLinesTheSecondOfTwoDigits)
{
    EXPECT_EQ(dumpedToFd(-1, kBytes, 17), kFirst16 + "\nff\n");
    EXPECT_EQ(dumpedToFd(-1, kBytes, 32), kFirst16 + "\n" + kSecond16 + "\n");
}

TEST(MemoryCheckFd, NothingToDo_WritesNothing)
{
    EXPECT_EQ(dumpedToFd(1, kBytes, 3), QByteArray());
    EXPECT_EQ(dumpedToFd(0, nullptr, 3), QByteArray());
    EXPECT_EQ(dumpedToFd(0, kBytes, 0), QByteArray());
    EXPECT_EQ(dumpedToFd(0, kBytes, -1), QByteArray());
}

TEST(MemoryCheck, SixteenBytes_EndWithALonePrefix)
{
    EXPECT_EQ(dumped(0, kBytes, 16), "DEBUG:" + kFirst16 + "DEBUG:");
}

TEST(MemoryCheck, PartialLines_RunTogetherWithoutNewlines)
{
    EXPECT_EQ(dumped(0, kBytes, 3), QByteArray("DEBUG:00ab10"));
    EXPECT_EQ(dumped(-1, kBytes, 17), "DEBUG:" + kFirst16 + "DEBUG:ff");
    EXPECT_EQ(dumped(-1, kBytes, 33), "DEBUG:" + kFirst16 + "DEBUG:" + kSecond16 + "DEBUG:20");
}

TEST(MemoryCheck, NothingToDo_WritesNothing)
{
    EXPECT_EQ(dumped(1, kBytes, 3), QByteArray());
    EXPECT_EQ(dumped(0, nullptr, 3), QByteArray());
    EXPECT_EQ(dumped(0, kBytes, 0), QByteArray());
    EXPECT_EQ(dumped(0, kBytes, -1), QByteArray());
}

} // namespace
