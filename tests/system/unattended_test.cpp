// SPDX-License-Identifier: Apache-2.0
// The main job without a window: what the program lays down and what the panel sends reaches the filter's options
// argument, and the printer gets labels.
#include "tests/system/SystemTest.h"

#include <QDir>

#include <cmath>

#include <cups/cups.h>

namespace
{

using systemtest::FilterCall;
using systemtest::Label;
using systemtest::labelsIn;
using systemtest::Outcome;
using systemtest::panelOptionsMm;
using systemtest::SystemTest;
using systemtest::tapeOptions;
using systemtest::Words;

/// The dots of a length; the raster may be a dot longer or shorter, by rounding at either end.
void expectDots(int dots, double lengthMm, double dotsPerInch)
{
    EXPECT_LE(std::abs(dots - lengthMm / 25.4 * dotsPerInch), 1.0) << lengthMm << " mm";
}

class UnattendedJob : public SystemTest
{
};

TEST_F(UnattendedJob, UntouchedPanel_EveryKeywordReachesTheFilterAndALabelThePrinter)
{
    const std::vector<FilterCall> calls = printed({document});
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm());
    EXPECT_EQ(calls[0].title(), "address-label.pdf");
    EXPECT_EQ(calls[0].copies(), "1");

    const QByteArray bytes = cups.printedBy(u"tape"_qs);
    EXPECT_TRUE(bytes.startsWith("~SD24\n~DGR:")) << bytes.left(40).toStdString(); // quality's darkness, an image
    const std::vector<Label> labels = labelsIn(bytes);
    ASSERT_EQ(labels.size(), 1U);
    // 24 mm of tape with a blank half millimetre at each edge are 271.7 dots, in 34 bytes; 100 mm are 1181.1 rows.
    EXPECT_EQ(labels[0].bytesPerRow, 34);
    expectDots(labels[0].rows, 100.0, 300.0);
    EXPECT_EQ(labels[0].copies, 1);
}

TEST_F(UnattendedJob, OutputOfAQueue_IsThePrintersBytesByTheQueuesPpdAndNoJob)
{
    ASSERT_TRUE(cups.addPlainQueue(u"shipped"_qs, u"mm"_qs).isNull());
    const Outcome outcome = tapeprint({u"-d"_qs, u"shipped"_qs, u"--no-dialog"_qs, u"-o"_qs, u"KsTapeLength=50.0"_qs,
                                       u"--output"_qs, u"out.prn"_qs, document});
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    const std::vector<Label> labels = labelsIn(systemtest::contentsOf(workFolder + u"/out.prn"_qs));
    ASSERT_EQ(labels.size(), 1U);
    expectDots(labels[0].rows, 50.0, 300.0);
    EXPECT_TRUE(cups.jobs().empty());
}

TEST_F(UnattendedJob, OwnValueOfSeveralParameters_ArrivesAsItWasGiven)
{
    ASSERT_TRUE(cups.addRecordedQueue(u"stamping"_qs, u"mm"_qs,
                                      "*OpenUI *Stamp/Stamp: PickOne\n*OrderDependency: 20 AnySetup *Stamp\n"
                                      "*DefaultStamp: None\n*Stamp None/None: \"\"\n*CloseUI: *Stamp\n"
                                      "*CustomStamp True: \"\"\n*ParamCustomStamp Words/Words: 1 string 0 40\n"
                                      "*ParamCustomStamp Gray/Gray: 2 real 0 1\n")
                    .isNull());
    const std::vector<FilterCall> calls = filterCallsOf(tapeprint(
        {u"-d"_qs, u"stamping"_qs, u"-o"_qs, u"Stamp={Words=\"it's, it\" Gray=0.5}"_qs, u"--no-dialog"_qs, document}));
    ASSERT_EQ(calls.size(), 1U);
    // Read as filters read it: the words of the line, and then those in the braces.
    cups_option_t *options = nullptr;
    int count = cupsParseOptions(calls[0].options().constData(), 0, &options);
    const QByteArray value(cupsGetOption("Stamp", count, options));
    cupsFreeOptions(count, options);
    options = nullptr;
    count = cupsParseOptions(value.constData(), 0, &options);
    EXPECT_STREQ(cupsGetOption("Words", count, options), "it's, it") << value.toStdString();
    EXPECT_STREQ(cupsGetOption("Gray", count, options), "0.5");
    cupsFreeOptions(count, options);
}

TEST_F(UnattendedJob, ShippedDescription_TheServersLogShowsTheSameOptions)
{
    ASSERT_TRUE(cups.addPlainQueue(u"shipped"_qs, u"mm"_qs).isNull());
    filterCallsOf(tapeprint({u"-d"_qs, u"shipped"_qs, u"--no-dialog"_qs, document}));
    const QByteArray log = cups.errorLog();
    const qsizetype start = log.indexOf(" argv[5]=\"");
    ASSERT_GE(start, 0);
    const qsizetype first = start + 10;
    const FilterCall logged{{"1", "root", "", "1", log.mid(first, log.indexOf("\"\n", first) - first)}};
    EXPECT_EQ(tapeOptions(logged), panelOptionsMm());
    EXPECT_EQ(labelsIn(cups.printedBy(u"shipped"_qs)).size(), 1U);
}

TEST_F(UnattendedJob, MvPrinter_SendsWholeMillimetresAndTheVendorResolution)
{
    ASSERT_TRUE(cups.addRecordedQueue(u"mv"_qs, u"mv"_qs).isNull());
    const std::vector<FilterCall> calls = filterCallsOf(tapeprint({u"-d"_qs, u"mv"_qs, u"--no-dialog"_qs, document}));
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(
        tapeOptions(calls[0]),
        Words({"KsCompress=KsCompressOFF", "KsInkColor=KsInkColorBlack", "KsMargin=2", "KsPrintTapeLength=2",
               "KsPriority=KsPriorityQuality", "KsResolution=KsResolS300300", "KsTapeColor=KsTapeColorWhite",
               "KsTapeLength=100", "KsTapeMaterial=KsTapeMaterialOPP", "PageSize=24mm", "Resolution=300x300dpi"}));
    EXPECT_EQ(labelsIn(cups.printedBy(u"mv"_qs)).size(), 1U);
}

TEST_F(UnattendedJob, InchPrinter_SendsTheMillimetresOfWhatItShows)
{
    ASSERT_TRUE(cups.addRecordedQueue(u"inch"_qs, u"inch"_qs).isNull());
    const std::vector<FilterCall> calls = filterCallsOf(
        tapeprint({u"-d"_qs, u"inch"_qs, u"--no-dialog"_qs, u"-o"_qs, u"KsTapeLength=50.8"_qs, document}));
    ASSERT_EQ(calls.size(), 1U);
    const Words options = tapeOptions(calls[0]);
    // 50.8 mm show as 2.00 in, and these are 2 / 0.0393701 = 50.79997 mm, sent as 50.8. The margin of 2.5 mm shows as
    // 0.10 in, 2.53999 mm, and is rounded up.
    EXPECT_NE(std::find(options.begin(), options.end(), "KsTapeLength=50.8"), options.end());
    EXPECT_NE(std::find(options.begin(), options.end(), "KsMargin=2.6"), options.end());
    EXPECT_NE(std::find(options.begin(), options.end(), "Resolution=180x360dpi"), options.end());
}

TEST_F(UnattendedJob, OptionsLaidDown_ArriveAndShapeTheJob)
{
    const std::vector<FilterCall> calls =
        printed({u"-o"_qs, u"KsTapeColor=KsTapeColorRed"_qs, u"-o"_qs, u"KsTapeLength=60"_qs, u"-o"_qs,
                 u"Resolution=300x600dpi KsInkColor=KsInkColorWhite"_qs, document});
    ASSERT_EQ(calls.size(), 1U);
    // The second resolution prints with the first quality alone.
    EXPECT_EQ(tapeOptions(calls[0]),
              panelOptionsMm({"KsTapeColor=KsTapeColorRed", "KsTapeLength=60.0", "Resolution=300x600dpi",
                              "KsInkColor=KsInkColorWhite", "KsPriority=KsPrioritySpeed", "PageSize=Custom.24x60mm"}));
    const std::vector<Label> labels = labelsIn(cups.printedBy(u"tape"_qs));
    ASSERT_EQ(labels.size(), 1U);
    EXPECT_EQ(labels[0].bytesPerRow, 34);
    expectDots(labels[0].rows, 60.0, 600.0);
}

// Whoever asks for 50 mm of tape gets 50 mm, by whatever name.
TEST_F(UnattendedJob, LengthOfASizeOfOnesOwn_ArrivesAsItWasAskedFor)
{
    const Words expected = panelOptionsMm({"KsTapeLength=50.0", "PageSize=Custom.24x50mm"});
    for (const QString &size :
         {u"media=custom_24x50mm_24x50mm"_qs, u"media=Custom.24x50mm"_qs, u"PageSize=Custom.24x50mm"_qs}) {
        const std::vector<FilterCall> calls = printed({u"-o"_qs, size, document});
        ASSERT_EQ(calls.size(), 1U) << size.toStdString();
        EXPECT_EQ(tapeOptions(calls[0]), expected) << size.toStdString();
        const std::vector<Label> labels = labelsIn(cups.printedBy(u"tape"_qs));
        ASSERT_EQ(labels.size(), 1U) << size.toStdString();
        expectDots(labels[0].rows, 50.0, 300.0);
    }
}

TEST_F(UnattendedJob, ValueThatThePpdDoesNotList_ArrivesAsItIs)
{
    const std::vector<FilterCall> calls = printed({u"-o"_qs, u"KsMargin=3.3"_qs, u"-o"_qs, u"KsOwn=x"_qs, document});
    ASSERT_EQ(calls.size(), 1U);
    Words expected = panelOptionsMm({"KsMargin=3.3"});
    expected.insert(std::find(expected.begin(), expected.end(), "KsPrintTapeLength=2.0"), "KsOwn=x");
    EXPECT_EQ(tapeOptions(calls[0]), expected);
}

TEST_F(UnattendedJob, ValuesOutOfRange_AreHeldWithinTheLimitsWhenThatIsAskedFor)
{
    const std::vector<FilterCall> calls =
        printed({u"--adjust"_qs, u"-o"_qs, u"KsTapeLength=5000"_qs, u"-o"_qs, u"KsPrintTapeLength=9"_qs, document});
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]),
              panelOptionsMm({"KsTapeLength=1000.0", "KsPrintTapeLength=8.0", "PageSize=Custom.24x1000mm"}));
}

TEST_F(UnattendedJob, FixedLengthTape_IsSentWithItsOwnLength)
{
    const std::vector<FilterCall> calls = printed({u"-o"_qs, u"PageSize=DC24x80"_qs, document});
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"PageSize=DC24x80", "KsTapeLength=80.0"}));
    const std::vector<Label> labels = labelsIn(cups.printedBy(u"tape"_qs));
    ASSERT_EQ(labels.size(), 1U);
    expectDots(labels[0].rows, 80.0, 300.0);
}

TEST_F(UnattendedJob, GermanSession_SendsPoints)
{
    // The toolkit follows these names whether or not the machine has the locale.
    moreVariables = {{u"LC_ALL"_qs, u"de_DE.UTF-8"_qs}, {u"LANG"_qs, u"de_DE.UTF-8"_qs}, {u"LANGUAGE"_qs, u"de"_qs}};
    const Outcome summary = tapeprint({u"-d"_qs, u"tape"_qs, u"--summary"_qs});
    ASSERT_TRUE(summary.output.contains("Bandfarbe") || summary.output.contains("Auflösung"))
        << "the session is not German: " << summary.output.toStdString();
    const std::vector<FilterCall> calls =
        printed({u"-o"_qs, u"KsTapeLength=60.5"_qs, u"-o"_qs, u"KsMargin=3.3"_qs, document});
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]),
              panelOptionsMm({"KsTapeLength=60.5", "KsMargin=3.3", "PageSize=Custom.24x60.5mm"}));
}

TEST_F(UnattendedJob, PrinterWithNoneOfThePanelsKeywords_GetsItsPaperAndWhatWasAskedFor)
{
    ASSERT_TRUE(cups.addRecordedQueue(u"plain"_qs, u"plain"_qs).isNull());
    const std::vector<FilterCall> calls = filterCallsOf(
        tapeprint({u"-d"_qs, u"plain"_qs, u"--no-dialog"_qs, u"-o"_qs, u"Resolution=180x180dpi"_qs, document}));
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), Words({"PageSize=24mm", "Resolution=180x180dpi"}));
}

TEST_F(UnattendedJob, BrokenBundleThatThePpdNames_IsNamedAndTheJobPrinted)
{
    const QString bundle = folder.makeFolder(u"bundles/Broken.bundle"_qs);
    systemtest::writeFile(bundle + u"/Broken.so"_qs, "This is no code.\n");
    moreVariables = {{u"TAPEPRINT_PLUGIN_PATH"_qs, folder.path(u"bundles"_qs)}};
    const QString ppd = ppdThatNames(u"/opt/maker/Broken.bundle"_qs);
    const Outcome outcome = tapeprint({u"-d"_qs, u"tape"_qs, u"--ppd"_qs, ppd, u"--no-dialog"_qs, document});
    EXPECT_TRUE(outcome.messages.contains("Broken.bundle")) << outcome.messages.toStdString();
    EXPECT_EQ(outcome.messages.count('\n'), 1) << outcome.messages.toStdString();
    const std::vector<FilterCall> calls = filterCallsOf(outcome);
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm());
}

TEST_F(UnattendedJob, WithoutAServer_TheFiltersBytesAreWhereTheProgramSays)
{
    moreVariables = {{u"CUPS_SERVER"_qs, folder.path(u"nobody.sock"_qs)}};
    const QString ppd = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd");
    const Outcome named = tapeprint({u"--ppd"_qs, ppd, u"--no-dialog"_qs, u"--output"_qs, u"out.prn"_qs, document});
    EXPECT_EQ(named.status, 0) << named.messages.toStdString();
    const QByteArray bytes = systemtest::contentsOf(workFolder + u"/out.prn"_qs);
    EXPECT_EQ(labelsIn(bytes).size(), 1U);
    EXPECT_EQ(named.output, "The printer's bytes are in out.prn (" + QByteArray::number(bytes.size()) + " bytes).\n");

    const Outcome unnamed = tapeprint({u"--ppd"_qs, ppd, u"--no-dialog"_qs, document});
    const QByteArray place = (workFolder + u"/address-label.prn"_qs).toUtf8();
    EXPECT_TRUE(unnamed.output.contains(place)) << unnamed.output.toStdString();
    EXPECT_EQ(systemtest::contentsOf(QString::fromUtf8(place)), bytes);
}

} // namespace
