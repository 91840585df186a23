// SPDX-License-Identifier: Apache-2.0
// Documents that are no PDF: what they are taken for, and the pages that they become.
#include "job/Conversion.h"

#include "job/LaidOutDocument.h"
#include "tests/job/DocumentPictures.h"
#include "tests/job/PdfText.h"
#include "tests/support/TextPrinting.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QImage>

#include <sys/resource.h>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job; // NOLINT(google-build-using-namespace): the test is about all of it
using jobtest::contentsOf;
using jobtest::Folder;
using jobtest::inkOf;

const std::atomic<bool> goOn = false;
const QSizeF textPage(200, 68);

class DocumentConversion : public testing::Test
{
protected:
    DocumentKind kindOf(const QByteArray &bytes) const { return documentKindOf(folder.write(u"kind.bin"_qs, bytes)); }

    /// Converts a document. \return the PDF, null after a failure that is not expected.
    QString converted(const QString &document, const QSizeF &page = textPage) const
    {
        const QByteArray before = contentsOf(document);
        const QString pdf = folder.path(u"converted.pdf"_qs);
        Problem error;
        const bool done = convertToPdf(document, page, pdf, goOn, &error);
        EXPECT_TRUE(done) << error.sentence.toStdString();
        EXPECT_EQ(contentsOf(document), before);
        return done ? pdf : QString();
    }

    /// The sentence of a document that cannot be converted.
    QString refusal(const QString &document) const
    {
        Problem error;
        EXPECT_FALSE(convertToPdf(document, textPage, folder.path(u"refused.pdf"_qs), goOn, &error));
        return error.sentence;
    }

    static PageSizes sizesOf(const QString &pdf)
    {
        Problem error;
        const std::optional<PageSizes> sizes = pageSizesOf(pdf, &error);
        EXPECT_TRUE(sizes) << error.sentence.toStdString();
        return sizes.value_or(PageSizes());
    }

    Folder folder;
};

void expectSize(const QSizeF &size, double width, double height, double slack)
{
    EXPECT_NEAR(size.width(), width, slack);
    EXPECT_NEAR(size.height(), height, slack);
}

TEST_F(DocumentConversion, Kinds_AreToldByTheFirstBytes)
{
    EXPECT_EQ(kindOf("%PDF-1.4\n"), DocumentKind::Pdf);
    EXPECT_EQ(kindOf("some junk before\n%PDF-1.4\n"), DocumentKind::Pdf);
    EXPECT_EQ(kindOf("%!PS-Adobe-3.0\n"), DocumentKind::PostScript);
    EXPECT_EQ(kindOf("\x04%!PS-Adobe-3.0\n"), DocumentKind::PostScript);
    EXPECT_EQ(kindOf("\x1b%-12345X@PJL\n%!PS\n"), DocumentKind::PostScript);
    EXPECT_EQ(kindOf("Plain text\n\twith a tab\r\n"), DocumentKind::Text);
    EXPECT_EQ(kindOf("Gr\xc3\xbc\xc3\x9f"
                     "e\n"),
              DocumentKind::Text);
    EXPECT_EQ(kindOf("Gr\xfc\xdf"
                     "e in Latin-1\n"),
              DocumentKind::Text);
    EXPECT_EQ(kindOf(QByteArray("\x7f"
                                "ELF\x02\x01\x01\0\0",
                                9)),
              DocumentKind::Unknown);
    EXPECT_EQ(kindOf(QByteArray("text\0more", 9)), DocumentKind::Unknown);
    EXPECT_EQ(kindOf(""), DocumentKind::Unknown);
    EXPECT_EQ(documentKindOf(folder.path(u"none"_qs)), DocumentKind::Unknown);
}

TEST_F(DocumentConversion, SourceOfADrawing_IsRefusedWithWhatToDo)
{
    Problem error;
    const QString drawing = folder.write(u"logo.svg"_qs, "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
    EXPECT_FALSE(convertToPdf(drawing, {200, 300}, folder.path(u"out.pdf"_qs), goOn, &error));
    EXPECT_EQ(error.kind, Problem::BadDocument);
    EXPECT_TRUE(error.sentence.contains(u"save it from there as a PDF or PNG"_qs)) << error.sentence.toStdString();
}

TEST_F(DocumentConversion, Kinds_SourcesOfDrawingsAndPagesAreNoPlainText)
{
    for (const char *source : {"<svg xmlns=\"http://www.w3.org/2000/svg\"/>", "<!DOCTYPE html>\n<html/>",
                               "\xef\xbb\xbf<?xml version=\"1.0\"?>\n<!-- drawn\n by hand -->\n<svg width=\"9\"/>",
                               "  <HTML><body/></HTML>"}) {
        EXPECT_EQ(kindOf(source), DocumentKind::Unknown) << source;
    }
    for (const char *text : {"<svgs> are fine\n", "How to write <html>\n", "<shelf 3>\n<html>\n", "<\n"}) {
        EXPECT_EQ(kindOf(text), DocumentKind::Text) << text;
    }
}

TEST_F(DocumentConversion, Kinds_OfPicturesNeedNoName)
{
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(Qt::black);
    for (const char *format : {"PNG", "JPG", "BMP", "TIFF"}) {
        const QString path = folder.path(u"picture"_qs);
        ASSERT_TRUE(picture.save(path, format)) << format;
        EXPECT_EQ(documentKindOf(path), DocumentKind::Picture) << format;
    }
}

TEST_F(DocumentConversion, Pdf_IsCopied)
{
    const QByteArray pdf = jobtest::pdfOf({jobtest::blockPage(30, 30, {})});
    EXPECT_EQ(contentsOf(converted(folder.write(u"a.pdf"_qs, pdf))), pdf);
}

TEST_F(DocumentConversion, Picture_BecomesAPageOfItsOwnSizeToTheDot)
{
    // 283 x 101 dots at 300 dots an inch are 67.92 x 24.24 points; a block of 50 x 20 dots 30 from the left, 40 from
    // the top is 12 x 4.8 points at 7.2, 9.6.
    QImage picture(283, 101, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (int y = 40; y < 60; ++y) {
        for (int x = 30; x < 80; ++x) {
            picture.setPixel(x, y, qRgb(0, 0, 0));
        }
    }
    picture.setDotsPerMeterX(11811);
    picture.setDotsPerMeterY(11811);
    const QString path = folder.path(u"picture.png"_qs);
    ASSERT_TRUE(picture.save(path));
    const QString pdf = converted(path);
    const PageSizes sizes = sizesOf(pdf);
    ASSERT_EQ(sizes.size(), 1U);
    expectSize(sizes[0], 67.92, 24.24, 0.01);
    const QRectF ink = inkOf(pdf);
    EXPECT_NEAR(ink.left(), 7.2, 0.15);
    EXPECT_NEAR(ink.top(), 9.6, 0.15);
    EXPECT_NEAR(ink.width(), 12, 0.2);
    EXPECT_NEAR(ink.height(), 4.8, 0.2);
}

TEST_F(DocumentConversion, PictureOfAFewDots_IsAsSmallAsItSays)
{
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.fill(Qt::black);
    picture.setDotsPerMeterX(11811);
    picture.setDotsPerMeterY(11811);
    const QString path = folder.path(u"small.png"_qs);
    ASSERT_TRUE(picture.save(path));
    expectSize(sizesOf(converted(path)).at(0), 0.48, 0.24, 0.001);
}

TEST_F(DocumentConversion, PictureWithoutAResolution_HasThatOfAScreen)
{
    QImage picture(96, 48, QImage::Format_RGB32);
    picture.fill(Qt::black);
    picture.setDotsPerMeterX(0);
    picture.setDotsPerMeterY(0);
    const QString path = folder.path(u"plain.ppm"_qs);
    ASSERT_TRUE(picture.save(path, "PPM"));
    expectSize(sizesOf(converted(path)).at(0), 72, 36, 0.01);
}

TEST_F(DocumentConversion, TransparentDots_LeaveTheTapeBlank)
{
    QImage picture(96, 96, QImage::Format_ARGB32);
    picture.fill(qRgba(0, 0, 0, 0));
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 48; ++x) {
            picture.setPixel(x, y, qRgba(0, 0, 0, 255));
        }
    }
    picture.setDotsPerMeterX(3780);
    picture.setDotsPerMeterY(3780);
    const QString path = folder.path(u"clear.png"_qs);
    ASSERT_TRUE(picture.save(path));
    const QRectF ink = inkOf(converted(path));
    EXPECT_NEAR(ink.right(), 36, 0.2);
    EXPECT_NEAR(ink.bottom(), 36, 0.2);
}

TEST_F(DocumentConversion, BrokenPicture_IsRefusedInWords)
{
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::black);
    const QString path = folder.path(u"whole.png"_qs);
    ASSERT_TRUE(picture.save(path));
    const QString broken = folder.write(u"broken.png"_qs, contentsOf(path).left(60));
    const QString sentence = refusal(broken);
    EXPECT_TRUE(sentence.contains(broken)) << sentence.toStdString();
}

TEST_F(DocumentConversion, PictureOf200Megapixels_IsRefusedInWordsWithoutUnpackingIt)
{
    rusage before{};
    getrusage(RUSAGE_SELF, &before);
    // One bit a dot: the file is small, and memory would hold it; its pages would not.
    const QString path = folder.path(u"huge.png"_qs);
    {
        QImage picture(20000, 10000, QImage::Format_Mono);
        picture.fill(1);
        ASSERT_TRUE(picture.save(path));
    }
    QElapsedTimer timer;
    timer.start();
    const QString sentence = refusal(path);
    EXPECT_LT(timer.elapsed(), 3000);
    EXPECT_TRUE(sentence.contains(u"huge.png (20000 x 10000 dots) cannot be unpacked")) << sentence.toStdString();
    rusage after{};
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 300 * 1024); // KiB
}

TEST_F(DocumentConversion, Unknown_IsRefusedInWords)
{
    const QString path = folder.write(u"program.bin"_qs, QByteArray("\x7f"
                                                                    "ELF\0\0",
                                                                    6));
    EXPECT_TRUE(
        refusal(path).startsWith(QStringLiteral("The document %1 is of a kind that cannot be laid out").arg(path)))
        << refusal(path).toStdString();
}

TEST_F(DocumentConversion, Text_IsSetOnTheGivenPage)
{
    const QString pdf = converted(folder.write(u"a.txt"_qs, "Hello\nTape\n"));
    const PageSizes sizes = sizesOf(pdf);
    ASSERT_EQ(sizes.size(), 1U);
    expectSize(sizes[0], 200, 68, 0.01);
    const QRectF ink = inkOf(pdf);
    EXPECT_LT(ink.left(), 6);
    EXPECT_LT(ink.top(), 10);
    // Ten characters an inch and six lines an inch, as CUPS sets text: five characters are 36 points, two lines 24.
    EXPECT_NEAR(ink.right(), 36, 8);
    EXPECT_NEAR(ink.bottom(), 24, 6);
}

TEST_F(DocumentConversion, LongText_GoesOnOnMorePages)
{
    const QByteArray text = QByteArray("line\n").repeated(12);
    // 68 points hold five lines of 12 points.
    EXPECT_EQ(sizesOf(converted(folder.write(u"a.txt"_qs, text))).size(), 3U);
}

TEST_F(DocumentConversion, TextWithUmlauts_IsDrawnInUtf8AndLatin1Alike)
{
    const QRectF utf8 = inkOf(converted(folder.write(u"a.txt"_qs, "\xc3\x9c\xc3\x9c\xc3\x9c\xc3\x9c\n")));
    const QRectF latin1 = inkOf(converted(folder.write(u"b.txt"_qs, "\xdc\xdc\xdc\xdc\n")));
    // Four letters of 7.2 points; as eight bytes of another encoding it would be twice that.
    EXPECT_NEAR(utf8.width(), 28.8, 3.0);
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"converted.pdf.txt"_qs)));
    EXPECT_EQ(utf8, latin1);
}

TEST_F(DocumentConversion, TextOfWindows_IsDrawnAsTheSameTextInUtf8)
{
    // A price and a word in quotes; the filter sets a mark of byte order as a blank.
    const QByteArray text = "5 \xe2\x82\xac \xe2\x80\x9egut\xe2\x80\x9c\n";
    const QRectF plain = inkOf(converted(folder.write(u"a.txt"_qs, text)));
    EXPECT_EQ(inkOf(converted(folder.write(u"b.txt"_qs, "\xef\xbb\xbf" + text))), plain);
    EXPECT_EQ(inkOf(converted(folder.write(u"c.txt"_qs, "5 \x80 \x84gut\x93\n"))), plain);
    QByteArray wide = "\xff\xfe";
    for (const QChar character : QString::fromUtf8(text)) {
        wide += static_cast<char>(character.unicode() & 0xff);
        wide += static_cast<char>(character.unicode() >> 8);
    }
    EXPECT_EQ(inkOf(converted(folder.write(u"d.txt"_qs, wide))), plain);
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"converted.pdf.txt"_qs)));
}

TEST_F(DocumentConversion, TextInScriptsThatTheFilterHasNoFontsFor_IsDrawnAndNotBoxes)
{
    // Characters of one low stroke: Japanese, Korean and Arabic ones. A box is about nine points high.
    for (const QString &strokes : {u"一一"_qs, u"\u3161\u3161"_qs, u"\u0640\u0640\u0640"_qs}) {
        const QRectF ink = inkOf(converted(folder.write(u"a.txt"_qs, strokes.toUtf8())));
        EXPECT_GT(ink.width(), 5) << strokes.toStdString();
        EXPECT_GT(ink.height(), 0.1) << strokes.toStdString();
        EXPECT_LT(ink.height(), 4) << strokes.toStdString();
    }
    // Lines are where the filter has them: 68 points hold five of 12 points, and a form feed ends a page.
    const QByteArray line = u"日本語\n"_qs.toUtf8();
    const QString pdf = converted(folder.write(u"b.txt"_qs, line.repeated(12)));
    ASSERT_EQ(sizesOf(pdf).size(), 3U);
    expectSize(sizesOf(pdf)[0], 200, 68, 0.01);
    EXPECT_EQ(sizesOf(converted(folder.write(u"c.txt"_qs, line + '\f' + line + "\f\n"))).size(), 2U);
    const QRectF ink = inkOf(converted(folder.write(u"d.txt"_qs, u"一\r\n一\r\n"_qs.toUtf8())));
    EXPECT_NEAR(ink.height(), 12, 2); // from one line to the next
    // A long line goes on on the next.
    EXPECT_GT(inkOf(converted(folder.write(u"e.txt"_qs, u"日"_qs.repeated(20).toUtf8()))).bottom(), 18);
}

TEST_F(DocumentConversion, PostScript_KeepsItsOwnPageSize)
{
    const QByteArray text = "%!PS-Adobe-3.0\n<< /PageSize [150 60] >> setpagedevice\n"
                            "10 5 40 20 rectfill showpage\n10 5 20 20 rectfill showpage\n";
    const QString pdf = converted(folder.write(u"a.ps"_qs, text));
    const PageSizes sizes = sizesOf(pdf);
    ASSERT_EQ(sizes.size(), 2U);
    expectSize(sizes[0], 150, 60, 0.01);
    const QRectF ink = inkOf(pdf);
    EXPECT_NEAR(ink.left(), 10, 0.2);
    EXPECT_NEAR(ink.top(), 35, 0.2);
    EXPECT_NEAR(ink.width(), 40, 0.3);
    EXPECT_NEAR(ink.height(), 20, 0.3);
}

TEST_F(DocumentConversion, EncapsulatedPostScript_IsThePageOfItsBox)
{
    // With a page of its own and without, as both are about.
    for (const char *end : {"showpage\n", ""}) {
        const QByteArray text = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 100 200 180 240\n%%EndComments\n"
                                "100 200 20 10 rectfill\n" +
                                QByteArray(end);
        const QString pdf = converted(folder.write(u"a.eps"_qs, text));
        const PageSizes sizes = sizesOf(pdf);
        ASSERT_EQ(sizes.size(), 1U);
        expectSize(sizes[0], 80, 40, 0.01);
        const QRectF ink = inkOf(pdf);
        EXPECT_NEAR(ink.left(), 0, 0.2);
        EXPECT_NEAR(ink.bottom(), 40, 0.2);
        EXPECT_NEAR(ink.width(), 20, 0.3);
        EXPECT_NEAR(ink.height(), 10, 0.3);
    }
}

TEST_F(DocumentConversion, BrokenPostScript_IsRefusedInWords)
{
    const QString path = folder.write(u"a.ps"_qs, "%!PS-Adobe-3.0\nnonsense here\nshowpage\n");
    const QString sentence = refusal(path);
    EXPECT_TRUE(sentence.startsWith(QStringLiteral("The filters could not make pages of the document %1: ").arg(path)))
        << sentence.toStdString();
}

TEST_F(DocumentConversion, Stopped_EndsWithoutASentence)
{
    const std::atomic<bool> stop = true;
    Problem error;
    EXPECT_FALSE(
        convertToPdf(folder.write(u"a.txt"_qs, "Hello\n"), textPage, folder.path(u"out.pdf"_qs), stop, &error));
    EXPECT_TRUE(error.isNull()) << error.sentence.toStdString();
}

} // namespace
