// SPDX-License-Identifier: Apache-2.0
// The document of labels: its pages' boxes to the last decimal, each source page as it is read, and the sources as they
// were.
#include "job/LaidOutDocument.h"
#include "tests/job/DocumentPictures.h"
#include "tests/job/PdfText.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::block;
using jobtest::blockPage;
using jobtest::contentsOf;
using jobtest::Folder;
using jobtest::inkOf;
using jobtest::pdfOf;

const std::atomic<bool> goOn = false;

TapePage tapeOf(const QSizeF &sizePt)
{
    TapePage page;
    page.sizePt = sizePt;
    page.isTape = true;
    return page;
}

/// A rendered dot is a tenth of a point.
void expectInk(const QRectF &ink, const QRectF &expected)
{
    EXPECT_NEAR(ink.left(), expected.left(), 0.15);
    EXPECT_NEAR(ink.top(), expected.top(), 0.15);
    EXPECT_NEAR(ink.right(), expected.right(), 0.15);
    EXPECT_NEAR(ink.bottom(), expected.bottom(), 0.15);
}

class LaidOutDocument : public testing::Test
{
protected:
    /// Lays a document out as the options say. \return the path of the labels.
    QString laidOut(const QByteArray &pdf, const TapePage &page, const JobOptions &options = {},
                    RasterShift shift = {}) const
    {
        const QString source = folder.write(u"source.pdf"_qs, pdf);
        Problem error;
        const std::optional<PageSizes> sizes = pageSizesOf(source, &error);
        const QString labels = folder.path(u"labels.pdf"_qs);
        const bool done =
            sizes && writeLaidOut(planLabels({*sizes}, page, options), {source}, shift, labels, goOn, &error);
        EXPECT_TRUE(done) << error.sentence.toStdString();
        return done ? labels : QString();
    }

    Folder folder;
};

TEST_F(LaidOutDocument, PageBoxes_AreTheTapesToTheHundredThousandthOfAPoint)
{
    // 24 x 77.7 mm.
    const QString labels = laidOut(pdfOf({blockPage(30, 30, block(5, 5, 10, 10))}), tapeOf({68.031496, 220.251969}));
    QPDF pdf;
    pdf.processFile(labels.toUtf8().constData());
    QPDFObjectHandle page = QPDFPageDocumentHelper(pdf).getAllPages().at(0).getObjectHandle();
    EXPECT_EQ(page.getKey("/MediaBox").unparse(), "[ 0 0 68.0315 220.25197 ]");
    for (const char *key : {"/CropBox", "/TrimBox", "/Rotate", "/UserUnit", "/Annots"}) {
        EXPECT_FALSE(page.hasKey(key)) << key;
    }
}

// A page of 200 x 100 with a block 10 from its left and lower edge, 30 wide and 20 high.
struct Turned {
    int rotate;
    QSizeF size;
    QRectF ink; ///< of the page as it is shown, from its top left
};

void PrintTo(const Turned &turned, std::ostream *stream)
{
    *stream << turned.rotate;
}

class TurnedPage : public LaidOutDocument, public testing::WithParamInterface<Turned>
{
};

TEST_P(TurnedPage, IsLaidOutAsItIsRead)
{
    const auto &[rotate, size, ink] = GetParam();
    const QByteArray pdf = pdfOf({blockPage(200, 100, block(10, 10, 30, 20), "/Rotate " + QByteArray::number(rotate))});
    const QString labels = laidOut(pdf, tapeOf(size), jobtest::options({{u"orientation-requested"_qs, u"3"_qs}}));
    expectInk(inkOf(labels), ink);
}

INSTANTIATE_TEST_SUITE_P(Rotate, TurnedPage,
                         testing::Values(Turned{0, {200, 100}, {10, 70, 30, 20}},
                                         // Clockwise: what was at the left is at the top, what was below at the left.
                                         Turned{90, {100, 200}, {10, 10, 20, 30}},
                                         Turned{180, {200, 100}, {160, 10, 30, 20}},
                                         Turned{270, {100, 200}, {70, 160, 20, 30}},
                                         Turned{-90, {100, 200}, {70, 160, 20, 30}},
                                         Turned{450, {100, 200}, {10, 10, 20, 30}}));

TEST_F(LaidOutDocument, LyingPage_IsTurnedAndReadAlongTheTape)
{
    // 200 x 100 on 100 x 200, turned against the clock: 10 from the left is 10 from the end of the standing page.
    expectInk(inkOf(laidOut(pdfOf({blockPage(200, 100, block(10, 10, 30, 20))}), tapeOf({100, 200}))),
              {70, 160, 20, 30});
}

TEST_F(LaidOutDocument, CropBox_IsThePageAndNothingBeyondIsDrawn)
{
    const QByteArray pdf =
        pdfOf({blockPage(200, 200, block(0, 0, 200, 60) + block(70, 80, 30, 20), "/CropBox [50 70 150 170]")});
    // 100 x 100 in the middle of 120 x 120; the block is 20 from the left and 100 - 30 from the top.
    expectInk(inkOf(laidOut(pdf, tapeOf({120, 120}))), {30, 80, 30, 20});
    const QByteArray filled = pdfOf({blockPage(200, 200, block(0, 0, 200, 200), "/CropBox [50 70 150 170]")});
    expectInk(inkOf(laidOut(filled, tapeOf({120, 120}))), {10, 10, 100, 100});
}

TEST_F(LaidOutDocument, TrimBox_ComesBeforeTheCropBox)
{
    const QByteArray pdf =
        pdfOf({blockPage(200, 200, block(0, 0, 200, 200), "/CropBox [0 0 150 150] /TrimBox [10 20 60 50]")});
    expectInk(inkOf(laidOut(pdf, tapeOf({70, 60}), jobtest::options({{u"orientation-requested"_qs, u"3"_qs}}))),
              {10, 15, 50, 30});
}

TEST_F(LaidOutDocument, UserUnit_CountsForPageAndContent)
{
    const QByteArray pdf = pdfOf({blockPage(50, 60, block(10, 10, 20, 5), "/UserUnit 2")});
    expectInk(inkOf(laidOut(pdf, tapeOf({100, 120}))), {20, 90, 40, 10});
}

TEST_F(LaidOutDocument, InheritedBoxesAndResources_Count)
{
    // The page itself says neither its box nor the form that it draws.
    QByteArray pdf =
        pdfOf({{"", "/F Do\n"}},
              {jobtest::streamObject("/Type /XObject /Subtype /Form /BBox [0 0 100 100]", block(10, 10, 30, 20))});
    QByteArray inherited = pdf;
    // The table of places does not hold any more; readers rebuild it.
    inherited.replace("/Count 1", "/Count 1 /MediaBox [0 0 100 100] /Resources << /XObject << /F 3 0 R >> >>");
    expectInk(inkOf(laidOut(inherited, tapeOf({100, 100}))), {10, 70, 30, 20});
}

TEST_F(LaidOutDocument, RasterShift_MovesTheContentUpByWhatTheRasteriserLowersIt)
{
    const QByteArray pdf = pdfOf({blockPage(100, 100, block(10, 10, 30, 20))});
    expectInk(inkOf(laidOut(pdf, tapeOf({100, 100}), {}, {0.5})), {10, 69.5, 30, 20});
    expectInk(inkOf(laidOut(pdf, tapeOf({100, 100}), {}, {-0.5})), {10, 70.5, 30, 20});
}

TEST_F(LaidOutDocument, MarginsAndStrips_StayBlank)
{
    TapePage page = tapeOf({100, 200});
    page.unprintablePt = {3, 0, 5, 0};
    page.freeEndsPt = 20;
    const QByteArray pdf = pdfOf({blockPage(100, 200, block(0, 0, 100, 200))});
    expectInk(inkOf(laidOut(pdf, page, jobtest::options({{u"print-scaling"_qs, u"none"_qs}}))), {3, 20, 92, 160});
    // Made smaller, 100 x 200 becomes 80 x 160: the length decides.
    expectInk(inkOf(laidOut(pdf, page)), {9, 20, 80, 160});
}

TEST_F(LaidOutDocument, PageOfTenMetres_IsPlacedToTheDot)
{
    // 28346.46 x 28346.46 points at 100 / 28346.46: its right lower quarter.
    const double side = 28346.46;
    const QByteArray pdf = pdfOf({blockPage(side, side, block(side / 2, 0, side / 2, side / 2))});
    expectInk(inkOf(laidOut(pdf, tapeOf({100, 100}))), {50, 50, 50, 50});
}

TEST_F(LaidOutDocument, NotesAndFormFields_AppearOnce)
{
    // A field of a form and a note, each 40 x 40 with a block of its own in it; a hidden one; and half-seen content:
    // grey drawn twice would be darker.
    const QByteArray look = jobtest::streamObject("/Type /XObject /Subtype /Form /BBox [0 0 40 40] "
                                                  "/Resources << /ExtGState << /H << /ca 0.6 >> >> >>",
                                                  "/H gs 0 g 10 10 20 20 re f\n");
    const QByteArray black =
        jobtest::streamObject("/Type /XObject /Subtype /Form /BBox [0 0 100 100]", block(0, 0, 100, 100));
    const auto note = [](const char *rect, const char *more) {
        return QByteArray("<< /Type /Annot /Rect [") + rect + "] " + more + " >>";
    };
    const QByteArrayList objects{look, black, // 3, 4
                                 note("0 100 40 140", "/Subtype /Stamp /F 4 /AP << /N 3 0 R >>"),
                                 note("100 0 140 40", "/Subtype /Widget /FT /Tx /T (a) /F 4 /AP << /N 3 0 R >>"),
                                 note("0 0 90 90", "/Subtype /Stamp /F 6 /AP << /N 4 0 R >>")};
    const QByteArray pdf =
        pdfOf({blockPage(200, 200, {}, "/Annots [5 0 R 6 0 R 7 0 R]")}, objects, "/AcroForm << /Fields [6 0 R] >>");
    const QString labels = laidOut(pdf, tapeOf({200, 200}));
    expectInk(inkOf(labels, 0, {0, 0, 100, 200}), {10, 70, 20, 20});
    expectInk(inkOf(labels, 0, {100, 100, 100, 100}), {110, 170, 20, 20});
    EXPECT_EQ(inkOf(labels), inkOf(folder.path(u"source.pdf"_qs)));
}

TEST_F(LaidOutDocument, SeveralDocumentsOnOneLabel_AreEachItsOwn)
{
    const QString first = folder.write(u"1.pdf"_qs, pdfOf({blockPage(40, 40, block(0, 0, 10, 10))}));
    const QString second = folder.write(u"2.pdf"_qs, pdfOf({blockPage(40, 40, block(30, 30, 10, 10))}));
    Problem error;
    const LabelPlan plan =
        planLabels({{{40, 40}}, {{40, 40}}}, tapeOf({40, 83}), jobtest::options({{u"number-up"_qs, u"2"_qs}}));
    const QString labels = folder.path(u"labels.pdf"_qs);
    ASSERT_TRUE(writeLaidOut(plan, {first, second}, {}, labels, goOn, &error)) << error.sentence.toStdString();
    EXPECT_EQ(pageSizesOf(labels, &error)->size(), 1U);
    expectInk(inkOf(labels, 0, {0, 0, 40, 40}), {0, 30, 10, 10});
    expectInk(inkOf(labels, 0, {0, 43, 40, 40}), {30, 43, 10, 10});
}

TEST_F(LaidOutDocument, TwoThousandPagesOfOnePicture_KeepThePictureOnce)
{
    QByteArray noise(120000, '\0');
    quint32 state = 1;
    for (char &byte : noise) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(state >> 24);
    }
    const QByteArray picture = jobtest::streamObject(
        "/Type /XObject /Subtype /Image /Width 200 /Height 200 /BitsPerComponent 8 /ColorSpace /DeviceRGB", noise);
    const std::vector<jobtest::PdfPage> pages(
        2000, {"/MediaBox [0 0 200 200] /Resources << /XObject << /I 3 0 R >> >>", "200 0 0 200 0 0 cm /I Do\n"});
    QElapsedTimer timer;
    timer.start();
    const QString labels = laidOut(pdfOf(pages, {picture}), tapeOf({68, 200}));
    EXPECT_LT(timer.elapsed(), 20000); // a second of an idle machine
    // 2,000 pages of a kilobyte or so, and one picture.
    EXPECT_LT(QFileInfo(labels).size(), 120000 + 2000 * 1500);
    Problem error;
    EXPECT_EQ(pageSizesOf(labels, &error)->size(), 2000U);
}

TEST_F(LaidOutDocument, Source_StaysAsItWas)
{
    const QByteArray pdf = pdfOf({blockPage(200, 100, block(10, 10, 30, 20), "/Rotate 90")});
    laidOut(pdf, tapeOf({100, 200}));
    EXPECT_EQ(contentsOf(folder.path(u"source.pdf"_qs)), pdf);
}

TEST_F(LaidOutDocument, SameJob_IsTheSameDocument)
{
    const QByteArray pdf = pdfOf({blockPage(200, 100, block(10, 10, 30, 20))});
    const QByteArray first = contentsOf(laidOut(pdf, tapeOf({100, 200})));
    EXPECT_EQ(contentsOf(laidOut(pdf, tapeOf({100, 200}))), first);
}

TEST_F(LaidOutDocument, PageOfNothing_LeavesALabelThatCanBeRead)
{
    const QString labels =
        laidOut(pdfOf({{"/MediaBox [0 0 0 0]", block(0, 0, 10, 10)}, blockPage(100, 100, block(10, 10, 30, 20))}),
                tapeOf({100, 100}));
    EXPECT_EQ(inkOf(labels, 0), QRectF());
    expectInk(inkOf(labels, 1), {10, 70, 30, 20});
}

class LockedDocument : public LaidOutDocument
{
protected:
    QString encrypted(const char *userPassword) const
    {
        const QByteArray pdf = pdfOf({blockPage(100, 100, block(10, 10, 30, 20))});
        const QString path = folder.path(u"locked.pdf"_qs);
        QPDF document;
        document.processMemoryFile("plain", pdf.constData(), static_cast<std::size_t>(pdf.size()));
        const QByteArray name = path.toUtf8(); // the writer keeps no copy of it
        QPDFWriter writer(document, name.constData());
        writer.setR6EncryptionParameters(userPassword, "owner", true, true, true, true, true, true, qpdf_r3p_full,
                                         true);
        writer.write();
        return path;
    }
};

TEST_F(LockedDocument, WithAPasswordToOpenIt_IsRefusedInWords)
{
    Problem error;
    EXPECT_FALSE(pageSizesOf(encrypted("user"), &error, u"shown.pdf"_qs));
    EXPECT_TRUE(error.sentence.contains(u"shown.pdf is locked with a password")) << error.sentence.toStdString();
    const LabelPlan plan = planLabels({{{100, 100}}}, tapeOf({100, 100}), {});
    error = {};
    EXPECT_FALSE(writeLaidOut(plan, {folder.path(u"locked.pdf"_qs)}, {}, folder.path(u"labels.pdf"_qs), goOn, &error));
    EXPECT_TRUE(error.sentence.contains(u"locked with a password")) << error.sentence.toStdString();
}

TEST_F(LockedDocument, WithAPasswordOfTheOwnerAlone_IsLaidOut)
{
    Problem error;
    const QString locked = encrypted("");
    const LabelPlan plan = planLabels({{{100, 100}}}, tapeOf({100, 100}), {});
    ASSERT_TRUE(writeLaidOut(plan, {locked}, {}, folder.path(u"labels.pdf"_qs), goOn, &error))
        << error.sentence.toStdString();
    expectInk(inkOf(folder.path(u"labels.pdf"_qs)), {10, 70, 30, 20});
}

TEST_F(LaidOutDocument, BrokenDocument_IsRefusedInWords)
{
    for (const QByteArray &bytes : {QByteArray("%PDF-1.4\nand no more\n"), QByteArray("noise")}) {
        Problem error;
        EXPECT_FALSE(pageSizesOf(folder.write(u"bad.pdf"_qs, bytes), &error, u"bad.pdf"_qs));
        EXPECT_TRUE(error.sentence.startsWith(u"The document bad.pdf is damaged (")) << error.sentence.toStdString();
    }
}

TEST_F(LaidOutDocument, DocumentWithoutAPage_IsRefusedInWords)
{
    Problem error;
    EXPECT_FALSE(pageSizesOf(folder.write(u"empty.pdf"_qs, pdfOf({})), &error, u"empty.pdf"_qs));
    EXPECT_TRUE(error.sentence.contains(u"empty.pdf has no page")) << error.sentence.toStdString();
}

TEST_F(LaidOutDocument, PathThatCannotBeWritten_IsNoFaultOfTheDocument)
{
    const QString source = folder.write(u"1.pdf"_qs, pdfOf({blockPage(40, 40, block(0, 0, 10, 10))}));
    const LabelPlan plan = planLabels({{{40, 40}}}, tapeOf({40, 40}), {});
    for (const auto &[path, reason] :
         {std::pair{folder.path(u"none/labels.pdf"_qs), u"No such file"_qs}, {u"/dev/full"_qs, u"No space left"_qs}}) {
        Problem error;
        EXPECT_FALSE(writeLaidOut(plan, {source}, {}, path, goOn, &error));
        EXPECT_TRUE(error.sentence.startsWith(u"A temporary file cannot be written ("_qs + reason))
            << error.sentence.toStdString();
        EXPECT_EQ(error.kind, Problem::General);
    }
}

TEST_F(LaidOutDocument, Stopped_EndsWithoutASentence)
{
    const QString source = folder.write(u"1.pdf"_qs, pdfOf({blockPage(40, 40, block(0, 0, 10, 10))}));
    const std::atomic<bool> stop = true;
    Problem error;
    EXPECT_FALSE(writeLaidOut(planLabels({{{40, 40}}}, tapeOf({40, 40}), {}), {source}, {},
                              folder.path(u"labels.pdf"_qs), stop, &error));
    EXPECT_TRUE(error.isNull()) << error.sentence.toStdString();
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"labels.pdf"_qs)));
}

TEST(RasterShift_Of, RasterPrinter_IsTheWholePointsLessThePoints)
{
    const PpdFile ppd = jobtest::ppdOf(jobtest::tapePpdText());
    EXPECT_NEAR(rasterShiftOf(ppd.get(), tapeOf({68, 59.5276})).downPt, 0.4724, 1e-9);
    EXPECT_NEAR(rasterShiftOf(ppd.get(), tapeOf({68, 283.4646})).downPt, -0.4646, 1e-9);
    EXPECT_EQ(rasterShiftOf(ppd.get(), tapeOf({68, 144})).downPt, 0.0);
}

TEST(RasterShift_Of, OtherPrinters_HaveNone)
{
    QByteArray text = jobtest::tapePpdText();
    text.replace("application/vnd.cups-raster", "application/vnd.cups-pdf");
    const PpdFile ppd = jobtest::ppdOf(text);
    EXPECT_EQ(rasterShiftOf(ppd.get(), tapeOf({68, 59.5276})).downPt, 0.0);
    EXPECT_EQ(rasterShiftOf(nullptr, tapeOf({68, 59.5276})).downPt, 0.0);
}

} // namespace
