// SPDX-License-Identifier: Apache-2.0
// The process that measures documents and lays them out: neither its death nor what it says can do harm, and no half
// file is left. Programs of the tests' own stand for one that a document has taken over.
#include "DocumentPictures.h"
#include "PdfText.h"

#include "job/LaidOutDocument.h"
#include "job/PdfWorker.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace
{

using jobtest::pdfOf;
using tapeprint::job::ChosenPage;
using tapeprint::job::LabelPlan;
using tapeprint::job::PageSizes;
using tapeprint::job::PdfWorker;
using tapeprint::job::Problem;

const std::atomic<bool> goOn = false;

/// A program that speaks as the real one does: `question()` takes a question, the rest says parts of answers.
const QByteArray fakeProgram = R"(#!/usr/bin/python3
import os, signal, socket, struct, sys, time
asker = socket.socket(fileno=0)
handles = []
def greet(word=0x54505031): asker.sendall(struct.pack('I', word))
def take(count):
    while count > 0: count -= len(asker.recv(count) or sys.exit())
def question():
    asked = struct.unpack('IIIIddd', asker.recv(40, socket.MSG_WAITALL) or sys.exit())
    for i in range(asked[1]): handles.extend(socket.recv_fds(asker, 4, 1)[1])
    take(4 * asked[2] + 88 * asked[3])
    return asked
def answer(kind, length=0, fault=2, document=0): asker.sendall(struct.pack('IIII', kind, fault, document, length))
def page(width=144, height=36, unit=1, turn=0):
    return struct.pack('11dii', 0, 0, 0, 0, width, height, 0, 0, 0, 0, unit, turn, 1)
def measured(*pages): answer(0, len(pages)); asker.sendall(b''.join(pages))
def piece(words): answer(2, len(words)); asker.sendall(words)
def failed(text, fault=2, document=0): answer(4, len(text), fault, document); asker.sendall(text)
def die(): os.kill(os.getpid(), signal.SIGKILL)
)";

jobtest::PdfPage pageOf(double width, double height)
{
    return {"/MediaBox [0 0 " + QByteArray::number(width) + ' ' + QByteArray::number(height) + "]", "0 0 9 9 re f\n"};
}

/// A plan of one page on one label.
LabelPlan onePlan()
{
    LabelPlan plan;
    plan.page.sizePt = {68, 100};
    plan.labels = {{{0, 0, {}, QRectF(0, 0, 68, 100)}}};
    return plan;
}

/// The processes that were started with a word.
QStringList processesOf(const QString &word)
{
    QStringList found;
    for (const QString &process : QDir(u"/proc"_qs).entryList({u"[0-9]*"_qs}, QDir::Dirs)) {
        QFile about(u"/proc/"_qs + process + u"/cmdline"_qs);
        if (about.open(QIODevice::ReadOnly) && about.readAll().contains(word.toLocal8Bit())) {
            found.append(process);
        }
    }
    return found;
}

class FakeWorker : public testing::Test
{
protected:
    FakeWorker()
    {
        limits.longest = std::chrono::seconds(20);
        time.start();
    }
    /// Nothing was waited for that does not come.
    void TearDown() override { EXPECT_LT(time.elapsed(), 10000); }

    void write(const QByteArray &script) const
    {
        const QString program = folder.write(u"tapeprint-pages"_qs, fakeProgram + script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    std::optional<PageSizes> measure(const QByteArray &script, const std::atomic<bool> &stop = goOn)
    {
        write(script);
        return PdfWorker(folder.path(u"."_qs), limits).measure(document, u"label.pdf"_qs, stop, &error);
    }

    bool layOut(const QByteArray &script, const std::atomic<bool> &stop = goOn)
    {
        write(script);
        return PdfWorker(folder.path(u"."_qs), limits).layOut(onePlan(), {document}, {}, made, stop, &error);
    }

    /// Whether nothing is left of what was begun.
    bool isNothingLeft() const { return QFileInfo(made).size() == 0; }

    jobtest::Folder folder;
    QString document = folder.write(u"label.pdf"_qs, pdfOf({pageOf(144, 36)}));
    QString made = folder.path(u"made.pdf"_qs);
    PdfWorker::Limits limits;
    Problem error;
    QElapsedTimer time;
};

/// Sets a flag after a while.
class Stopper
{
public:
    explicit Stopper(std::atomic<bool> &stop)
        : mThread([this, &stop] {
              std::this_thread::sleep_for(std::chrono::milliseconds(300));
              mSince.start();
              stop = true;
          })
    {
    }
    qint64 waited()
    {
        mThread.join();
        return mSince.elapsed();
    }

private:
    QElapsedTimer mSince;
    std::thread mThread;
};

TEST_F(FakeWorker, ThatDiesWhileItMeasures_LeavesASentenceAboutTheDocument)
{
    EXPECT_FALSE(measure("greet(); question(); die()\n"));
    EXPECT_EQ(error.sentence, u"label.pdf is broken: no page of it can be read."_qs);
    EXPECT_EQ(error.kind, Problem::BadDocument);
}

TEST_F(FakeWorker, ThatDiesWhileItLaysOut_LeavesASentenceAndNoHalfFile)
{
    EXPECT_FALSE(layOut("greet(); question(); answer(1); piece(b'%PDF-1.4')\ntime.sleep(0.2); die()\n"));
    EXPECT_TRUE(error.sentence.startsWith(u"The labels cannot be laid out ("_qs)) << error.sentence.toStdString();
    EXPECT_EQ(error.kind, Problem::BadDocument);
    EXPECT_TRUE(isNothingLeft());
}

TEST_F(FakeWorker, ThatGoesOnAfterTheFileCannotTakeMore_LeavesNoHalfFile)
{
    limits.mostBytes = 3'000'000;
    EXPECT_FALSE(layOut("greet(); question()\nwhile True: piece(bytes(1 << 20))\n"));
    EXPECT_EQ(error.sentence.left(51), u"A temporary file cannot be written (File too large)"_qs);
    EXPECT_TRUE(isNothingLeft());
}

TEST_F(FakeWorker, WhoseReasonIsHostile_IsQuotedInOneHarmlessLine)
{
    EXPECT_FALSE(measure("greet(); question(); failed('a\\u202eb\\n\\x1b[2Jc.'.encode(), 1)\n"));
    EXPECT_TRUE(error.sentence.startsWith(u"The document label.pdf is damaged (a"_qs)) << error.sentence.toStdString();
    for (const QChar letter : {QChar(0x202e), QChar(0x1b), QChar(u'\n')}) {
        EXPECT_FALSE(error.sentence.contains(letter)) << int(letter.unicode());
    }
}

TEST_F(FakeWorker, ThatSaysAbsurdSizes_HasPagesWithoutASize)
{
    const std::optional<PageSizes> sizes =
        measure("greet(); question(); nan = float('nan'); inf = float('inf')\n"
                "measured(page(nan), page(1, inf), page(1e300, 1, 1e300), page(-5), page())\nquestion()\n");
    ASSERT_TRUE(sizes) << error.sentence.toStdString();
    ASSERT_EQ(sizes->size(), 5U);
    for (std::size_t page = 0; page < 4; ++page) {
        EXPECT_TRUE(sizes->at(page).isEmpty()) << page;
    }
    EXPECT_EQ(sizes->at(4), QSizeF(144, 36));
}

TEST_F(FakeWorker, ThatIsStoppedWhileItMeasures_EndsWithinAMomentWithoutASentence)
{
    std::atomic<bool> stop = false;
    Stopper stopper(stop);
    EXPECT_FALSE(measure("greet(); question(); time.sleep(3600)\n", stop));
    EXPECT_LT(stopper.waited(), 500);
    EXPECT_TRUE(error.isNull()) << error.sentence.toStdString();
}

TEST_F(FakeWorker, ThatIsStoppedWhileItLaysOut_LeavesNeitherASentenceNorAFile)
{
    std::atomic<bool> stop = false;
    Stopper stopper(stop);
    EXPECT_FALSE(layOut("greet(); question()\nwhile True: piece(b'1'); time.sleep(0.005)\n", stop));
    EXPECT_LT(stopper.waited(), 500);
    EXPECT_TRUE(error.isNull()) << error.sentence.toStdString();
    EXPECT_TRUE(isNothingLeft());
}

TEST_F(FakeWorker, ThatNeverAnswers_IsGivenUp)
{
    limits.longest = std::chrono::milliseconds(500);
    EXPECT_FALSE(measure("greet(); question(); time.sleep(3600)\n"));
    EXPECT_EQ(error.sentence, u"label.pdf is broken: no page of it can be read."_qs);
}

TEST_F(FakeWorker, ThatCannotStart_SaysWhy)
{
    EXPECT_FALSE(measure("sys.exit('libqpdf is missing.')\n"));
    EXPECT_TRUE(error.sentence.contains(u"(libqpdf is missing): install it again"_qs)) << error.sentence.toStdString();
    EXPECT_EQ(error.kind, Problem::General);
}

TEST_F(FakeWorker, ThatHasReadADocument_HoldsNoHandleByWhichTheNextCouldBeWritten)
{
    write("greet()\n"
          "while True:\n"
          "  question()\n"
          "  for handle in handles[1:]:\n"
          "    try: open('/proc/self/fd/%d' % handle, 'r+b').write(b'mine')\n"
          "    except OSError: pass\n"
          "  measured(page())\n");
    const QByteArray before = jobtest::contentsOf(document);
    PdfWorker worker(folder.path(u"."_qs), limits);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(worker.measure(document, {}, goOn, &error)) << error.sentence.toStdString();
    }
    EXPECT_EQ(jobtest::contentsOf(document), before);
}

TEST_F(FakeWorker, OfOneThread_IsOneProcessForAllThatIsAsked)
{
    write("greet()\n"
          "while True:\n"
          "  if question()[0] == 0: measured(page())\n"
          "  else: piece(b'made'); answer(3)\n");
    const QString place = folder.path(u"."_qs);
    ASSERT_TRUE(PdfWorker(place, limits).measure(document, {}, goOn, &error)) << error.sentence.toStdString();
    const QStringList processes = processesOf(folder.path(u"tapeprint-pages"_qs));
    EXPECT_FALSE(processes.isEmpty());
    ASSERT_TRUE(PdfWorker(place, limits).layOut(onePlan(), {document}, {}, made, goOn, &error));
    EXPECT_EQ(jobtest::contentsOf(made), "made");
    ASSERT_TRUE(PdfWorker(place, limits).measure(document, {}, goOn, &error));
    EXPECT_EQ(processesOf(folder.path(u"tapeprint-pages"_qs)), processes);
}

TEST_F(FakeWorker, ThatDiedWhileItWaited_IsReplacedAndNoDocumentIsBlamed)
{
    write("greet()\nquestion(); measured(page()); die()\n");
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(PdfWorker(folder.path(u"."_qs), limits).measure(document, {}, goOn, &error))
            << i << error.sentence.toStdString();
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
}

/// Programs that answer the question for a document's pages wrongly.
class FakeMeasure : public FakeWorker, public testing::WithParamInterface<const char *>
{
};

TEST_P(FakeMeasure, MeasuresNothingAndASentenceSaysSo)
{
    EXPECT_FALSE(measure(QByteArray(GetParam()) + "\ntime.sleep(3600)\n"));
    EXPECT_FALSE(error.sentence.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Answers, FakeMeasure,
                         testing::Values("greet(); question(); answer(0, 200001); asker.sendall(page() * 200001)",
                                         "greet(); question(); answer(0, 0xffffffff)",
                                         "greet(); question(); answer(0, 3); asker.sendall(page() * 2); sys.exit()",
                                         "greet(); question(); measured()", //
                                         "greet(); question(); piece(b'1')", "greet(); question(); answer(3)",
                                         "greet(); question(); answer(77)",
                                         "greet(); question(); answer(4, 4097); asker.sendall(bytes(4097))",
                                         "greet(); question(); asker.sendall(b'123'); sys.exit()", "greet(7)"));

/// Programs that answer the question for labels wrongly.
class FakeLabels : public FakeWorker, public testing::WithParamInterface<const char *>
{
};

TEST_P(FakeLabels, AreNoneAndNoHalfFile)
{
    EXPECT_FALSE(layOut(QByteArray("greet(); question(); piece(b'%PDF')\n") + GetParam() + "\ntime.sleep(3600)\n"));
    EXPECT_TRUE(error.sentence.startsWith(u"The labels cannot be laid out ("_qs)) << error.sentence.toStdString();
    EXPECT_TRUE(isNothingLeft());
}

INSTANTIATE_TEST_SUITE_P(Answers, FakeLabels,
                         testing::Values("measured(page())", "answer(77)", "answer(2, 0)",
                                         "answer(2, (1 << 20) + 1); asker.sendall(bytes((1 << 20) + 1))",
                                         "for i in range(99): answer(1)", // of two steps at the most
                                         "answer(2, 9); asker.sendall(b'1'); sys.exit()", "failed(b'worn out')",
                                         "failed(b'locked', 0, 1)", "failed(b'odd', 99)"));

TEST(PdfWorker, InAFolderWithoutTheProgram_NamesWhatIsMissing)
{
    const jobtest::Folder folder;
    Problem error;
    EXPECT_FALSE(PdfWorker(folder.path(u"."_qs), {})
                     .measure(folder.write(u"label.pdf"_qs, pdfOf({pageOf(9, 9)})), {}, goOn, &error));
    EXPECT_TRUE(error.sentence.contains(u"tapeprint-pages"_qs)) << error.sentence.toStdString();
}

TEST(PdfWorker, OfAHundredDocuments_HasAPageOfEach)
{
    const jobtest::Folder folder;
    QStringList pdfs;
    std::vector<ChosenPage> pages;
    LabelPlan plan = onePlan();
    plan.labels.clear();
    for (int i = 0; i < 100; ++i) {
        pdfs.append(folder.write(u"%1.pdf"_qs.arg(i), pdfOf({pageOf(10 + i, 50)})));
        pages.insert(pages.begin(), ChosenPage{static_cast<std::size_t>(i), 0});
        plan.labels.push_back({{static_cast<std::size_t>(i), 0, {}, QRectF(0, 0, 68, 100)}});
    }
    Problem error;
    PdfWorker worker;
    const QString made = folder.path(u"made.pdf"_qs);
    ASSERT_TRUE(worker.choose(pages, pdfs, made, goOn, &error)) << error.sentence.toStdString();
    const std::optional<PageSizes> sizes = worker.measure(made, {}, goOn, &error);
    ASSERT_TRUE(sizes && sizes->size() == 100);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(sizes->at(static_cast<std::size_t>(i)), QSizeF(109 - i, 50));
    }
    ASSERT_TRUE(worker.layOut(plan, pdfs, {}, made, goOn, &error)) << error.sentence.toStdString();
    EXPECT_EQ(tapeprint::job::pageSizesOf(made, &error), PageSizes(100, QSizeF(68, 100)));
}

TEST(PdfWorker, OfADocumentThatIsNotThere_SaysSo)
{
    const jobtest::Folder folder;
    Problem error;
    EXPECT_FALSE(
        PdfWorker().layOut(onePlan(), {folder.path(u"none.pdf"_qs)}, {}, folder.path(u"made.pdf"_qs), goOn, &error));
    EXPECT_TRUE(error.sentence.contains(u"none.pdf: No such file or directory): make it anew"_qs))
        << error.sentence.toStdString();
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"made.pdf"_qs)));
}

TEST(PdfWorker, WithoutConfinement_MeasuresAndLaysOutAllTheSame)
{
    const jobtest::Folder folder;
    const QString document = folder.write(u"label.pdf"_qs, pdfOf({pageOf(144, 36)}));
    Problem error;
    bool isMade = false;
    // In a thread of its own: those before have a process that waits, and is confined.
    std::thread([&] {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", folder.path(u"."_qs).toLocal8Bit());
        PdfWorker worker;
        EXPECT_EQ(worker.measure(document, {}, goOn, &error), PageSizes({{144, 36}}));
        isMade = worker.layOut(onePlan(), {document}, {}, folder.path(u"made.pdf"_qs), goOn, &error);
        qputenv("PATH", path);
    }).join();
    EXPECT_TRUE(isMade) << error.sentence.toStdString();
    EXPECT_FALSE(jobtest::inkOf(folder.path(u"made.pdf"_qs)).isEmpty());
}

} // namespace
