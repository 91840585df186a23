// SPDX-License-Identifier: Apache-2.0
// The process that draws pages: what it may see, that it goes, and that neither its death nor what it says can do harm.
// Programs of the tests' own stand for one that a document has taken over.
#include "DocumentPictures.h"

#include "job/PageDrawer.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <csignal>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace
{

using tapeprint::job::PageDrawer;

const std::atomic<bool> goOn = false;

/// A label of 144 by 36 points with a black box over its left half.
const QByteArray onePage = "%PDF-1.4\n"
                           "1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                           "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
                           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 144 36]/TrimBox[10 6 130 30]/Contents 4 0 R>>"
                           "endobj\n"
                           "4 0 obj<</Length 13>>stream\n0 0 72 36 re f\nendstream endobj\n"
                           "trailer<</Root 1 0 R>>\n";

/// A program that speaks as the drawing one does: `document()` answers the first question with two pages, `part()` and
/// `dots()` one about a page.
const QByteArray fakeProgram = R"(#!/usr/bin/python3
import os, signal, socket, struct, sys, time
asker = socket.socket(fileno=0)
def greet(word=0x54504431): asker.sendall(struct.pack('I', word))
def question(): return struct.unpack('IiiiiidII', asker.recv(40, socket.MSG_WAITALL))
def page(width=144, height=36, turn=0, box=0): return struct.pack('11dii', width, height, *[0] * 8, 1, turn, box)
def document(pages=None, state=2, count=2):
    asker.sendall(struct.pack('Iii', state, count, count) + (page() * 2 if pages is None else pages))
def part(x=0, y=0, width=0, height=0, drawn=1): asker.sendall(struct.pack('iiiiI', x, y, width, height, drawn))
def dots(asked): part(0, 0, asked[4], asked[5]); asker.sendall(bytes(asked[4] * asked[5] * 4))
def die(): os.kill(os.getpid(), signal.SIGKILL)
)";
const QByteArray openIt = "greet(); question(); document()\n";

const PageDrawer::Part fewDots{QRect(0, 0, 8, 4), 0.5, true};

class FakeDrawer : public testing::Test
{
protected:
    std::unique_ptr<PageDrawer> open(const QByteArray &script)
    {
        const QString program = folder.write(u"tapeprint-drawer"_qs, fakeProgram + script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return PageDrawer::openWith(folder.path(u"."_qs), folder.write(u"label.pdf"_qs, onePage), &problem);
    }

    jobtest::Folder folder;
    QString problem;
};

/// Processes with a word in a file of theirs below /proc.
QStringList processesWith(const QString &file, const QByteArray &word)
{
    QStringList found;
    for (const QString &process : QDir(u"/proc"_qs).entryList({u"[0-9]*"_qs}, QDir::Dirs)) {
        QFile about(u"/proc/"_qs + process + u'/' + file);
        if (about.open(QIODevice::ReadOnly) && about.readAll().contains(word)) {
            found.append(process);
        }
    }
    return found;
}

TEST(PageDrawer, InAFolderWithoutTheProgram_NamesWhatIsMissing)
{
    const jobtest::Folder folder;
    QString problem;
    EXPECT_EQ(PageDrawer::openWith(folder.path(u"."_qs), folder.write(u"label.pdf"_qs, onePage), &problem), nullptr);
    EXPECT_TRUE(problem.contains(u"tapeprint-drawer"_qs)) << problem.toStdString();
}

TEST(PageDrawer, OfADocument_HasItsPages)
{
    const jobtest::Folder folder;
    QString problem = u"from before"_qs;
    const auto drawer = PageDrawer::open(folder.write(u"label.pdf"_qs, onePage), &problem);
    EXPECT_EQ(problem, QString());
    ASSERT_NE(drawer, nullptr);
    EXPECT_FALSE(drawer->isLocked());
    EXPECT_EQ(drawer->count(), 1);
    EXPECT_EQ(drawer->size(0), QSizeF(144, 36));
    EXPECT_TRUE(drawer->size(1).isEmpty());
    ASSERT_TRUE(drawer->box(0).has_value());
    EXPECT_EQ(drawer->box(0)->seen, QRectF(0, 0, 144, 36));
    EXPECT_EQ(drawer->box(0)->page, QRectF(10, 6, 120, 24));
    EXPECT_FALSE(drawer->box(1).has_value());
}

TEST(PageDrawer, OfADocument_DrawsItsPagesAndTellsWhatIsDrawnOn)
{
    const jobtest::Folder folder;
    QString problem;
    const auto drawer = PageDrawer::open(folder.write(u"label.pdf"_qs, onePage), &problem);
    ASSERT_NE(drawer, nullptr);
    const QImage image = drawer->draw(0, {QRect(70, 10, 4, 2), 1.0, true}, goOn);
    ASSERT_EQ(image.size(), QSize(4, 2));
    EXPECT_EQ(image.pixelColor(1, 0), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(2, 1), QColor(Qt::white));
    EXPECT_EQ(drawer->drawnOn(0, {QRect(60, 10, 20, 5), 1.0, false}, goOn), QRect(60, 10, 12, 5));
    EXPECT_EQ(drawer->drawnOn(0, {QRect(100, 10, 20, 5), 1.0, false}, goOn), QRect());
    EXPECT_FALSE(drawer->drawnOn(1, fewDots, goOn).has_value());
}

TEST(PageDrawer, OfWhatIsNoDocument_IsNoneAndNothingIsMissing)
{
    const jobtest::Folder folder;
    QString problem;
    EXPECT_EQ(PageDrawer::open(folder.write(u"label.pdf"_qs, "no PDF"), &problem), nullptr);
    EXPECT_EQ(problem, QString());
    EXPECT_EQ(PageDrawer::open(folder.write(u"empty.pdf"_qs, ""), &problem), nullptr);
    EXPECT_EQ(problem, QString());
}

TEST(PageDrawer, ThatWasPrepared_MeasuresADocumentAndDrawsItByTheSameProcess)
{
    const jobtest::Folder folder;
    QString problem;
    const QString path = folder.write(u"label.pdf"_qs, onePage);
    PageDrawer::prepare();
    const auto boxes = PageDrawer::measureAhead(path, goOn);
    ASSERT_TRUE(boxes && boxes->size() == 1);
    EXPECT_EQ(boxes->front().sizePt(), QSizeF(120, 24));
    const QStringList holders = processesWith(u"maps"_qs, path.toLocal8Bit());
    EXPECT_EQ(holders.size(), 1);
    const auto drawer = PageDrawer::open(path, &problem);
    ASSERT_NE(drawer, nullptr);
    EXPECT_EQ(drawer->size(0), QSizeF(144, 36));
    EXPECT_FALSE(drawer->draw(0, fewDots, goOn).isNull());
    EXPECT_EQ(processesWith(u"maps"_qs, path.toLocal8Bit()), holders);
    EXPECT_FALSE(PageDrawer::measureAhead(path, goOn)); // it draws now
}

TEST(PageDrawer, ThatHasMeasuredADocument_DoesNotTakeAnotherForIt)
{
    const jobtest::Folder folder;
    QString problem;
    const QString path = folder.write(u"label.pdf"_qs, onePage);
    PageDrawer::prepare();
    EXPECT_TRUE(PageDrawer::measureAhead(path, goOn));
    EXPECT_TRUE(QFile::remove(path));
    QByteArray other = onePage;
    folder.write(u"label.pdf"_qs, other.replace("144 36", "100 50"));
    const auto drawer = PageDrawer::open(path, &problem);
    ASSERT_NE(drawer, nullptr);
    EXPECT_EQ(drawer->size(0), QSizeF(100, 50));
}

TEST(PageDrawer, OfWhatCannotBeMeasured_LeavesThatToOthers)
{
    const jobtest::Folder folder;
    PageDrawer::prepare();
    EXPECT_FALSE(PageDrawer::measureAhead(folder.path(u"none.pdf"_qs), goOn));
    EXPECT_FALSE(PageDrawer::measureAhead(folder.write(u"noise.pdf"_qs, "noise"), goOn));
}

TEST(PageDrawer, HoldsTheDocumentsBytesAndNoHandleOfIt)
{
    // Who holds a handle can open the file anew, for writing.
    const jobtest::Folder folder;
    QString problem;
    const QString path = folder.write(u"label.pdf"_qs, onePage);
    const auto drawer = PageDrawer::open(path, &problem);
    ASSERT_NE(drawer, nullptr);
    const QStringList holders = processesWith(u"maps"_qs, path.toLocal8Bit());
    ASSERT_EQ(holders.size(), 1);
    const QDir handles(u"/proc/"_qs + holders[0] + u"/fd"_qs);
    EXPECT_FALSE(handles.isEmpty(QDir::System | QDir::Files));
    for (const QString &handle : handles.entryList(QDir::System | QDir::Files)) {
        EXPECT_NE(QFile::symLinkTarget(handles.filePath(handle)), path);
    }
}

TEST(PageDrawer, WithoutConfinement_DrawsAllTheSame)
{
    const QByteArray path = qgetenv("PATH");
    const jobtest::Folder folder;
    QString problem;
    qputenv("PATH", folder.path(u"."_qs).toLocal8Bit());
    auto drawer = PageDrawer::open(folder.write(u"label.pdf"_qs, onePage), &problem);
    qputenv("PATH", path);
    ASSERT_NE(drawer, nullptr) << problem.toStdString();
    EXPECT_FALSE(drawer->draw(0, fewDots, goOn).isNull());
    const QByteArray document = folder.path(u"label.pdf"_qs).toLocal8Bit();
    EXPECT_EQ(processesWith(u"maps"_qs, document).size(), 1);
    drawer.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return processesWith(u"maps"_qs, document).isEmpty(); }));
}

TEST(PageDrawer, OfMoreDocumentsThanThereAreProcesses_DrawsThemAll)
{
    const jobtest::Folder folder;
    const QString path = folder.write(u"label.pdf"_qs, onePage);
    std::vector<std::unique_ptr<PageDrawer>> drawers;
    for (int i = 0; i < 10; ++i) {
        QString problem;
        drawers.push_back(PageDrawer::open(path, &problem));
        ASSERT_NE(drawers.back(), nullptr);
        EXPECT_FALSE(drawers.back()->draw(0, fewDots, goOn).isNull());
    }
    EXPECT_EQ(processesWith(u"maps"_qs, path.toLocal8Bit()).size(), 8);
    for (const auto &drawer : drawers) {
        EXPECT_FALSE(drawer->draw(0, fewDots, goOn).isNull());
    }
}

TEST(PageDrawer, OfADocumentThatIsReplaced_ShowsTheOneThatWasOpened)
{
    const jobtest::Folder folder;
    const QString path = folder.write(u"label.pdf"_qs, onePage);
    QString problem;
    const auto drawer = PageDrawer::open(path, &problem);
    ASSERT_NE(drawer, nullptr);
    const QImage before = drawer->draw(0, fewDots, goOn);
    ASSERT_TRUE(QFile::remove(path));
    folder.write(u"label.pdf"_qs, "another");
    // A large picture that nobody wants any more costs the process its life: the next one gets the same document.
    const std::atomic<bool> stopped = true;
    EXPECT_TRUE(drawer->draw(0, {QRect(0, 0, 8000, 8000), 60.0, true}, stopped).isNull());
    EXPECT_EQ(drawer->draw(0, fewDots, goOn), before);
    EXPECT_FALSE(before.isNull());
}

TEST(PageDrawer, OfADocumentThatIsCutOff_HasNoPictureAndDoesNoHarm)
{
    const jobtest::Folder folder;
    const QString path = folder.write(u"label.pdf"_qs, onePage);
    QString problem;
    const auto drawer = PageDrawer::open(path, &problem);
    ASSERT_NE(drawer, nullptr);
    folder.write(u"label.pdf"_qs, "");
    EXPECT_TRUE(drawer->draw(0, fewDots, goOn).isNull());
    EXPECT_EQ(drawer->size(0), QSizeF(144, 36));
}

TEST_F(FakeDrawer, ThatCannotStart_SaysWhy)
{
    EXPECT_EQ(open("sys.exit('libpoppler is missing.')\n"), nullptr);
    EXPECT_EQ(problem, u"libpoppler is missing"_qs);
}

TEST_F(FakeDrawer, ThatDiesOfADocument_LeavesItUnreadAndNothingIsMissing)
{
    EXPECT_EQ(open("greet(); question(); die()\n"), nullptr);
    EXPECT_EQ(problem, QString());
}

TEST_F(FakeDrawer, ThatDiesOfAPage_IsNotAskedForItAgainAndDrawsTheOthers)
{
    // Each start takes a second: a page that is asked for twice would be seen.
    const auto drawer = open("time.sleep(1)\n" + openIt +
                             "while True:\n  q = question()\n"
                             "  if q[1] == 0: die()\n  dots(q)\n");
    ASSERT_NE(drawer, nullptr);
    EXPECT_TRUE(drawer->draw(0, fewDots, goOn).isNull());
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < 100; ++i) {
        EXPECT_TRUE(drawer->draw(0, fewDots, goOn).isNull());
        EXPECT_FALSE(drawer->drawnOn(0, fewDots, goOn).has_value());
    }
    EXPECT_LT(time.elapsed(), 900);
    EXPECT_EQ(drawer->draw(1, fewDots, goOn).size(), QSize(8, 4));
}

TEST_F(FakeDrawer, ThatIsStopped_EndsWithinAMomentAndIsNotBlamed)
{
    const auto drawer = open(openIt + "while True:\n  q = question()\n"
                                      "  if q[2] == 0: time.sleep(3600)\n  dots(q)\n");
    ASSERT_NE(drawer, nullptr);
    std::atomic<bool> stop = false;
    QElapsedTimer time;
    std::thread stopper([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        time.start();
        stop = true;
    });
    EXPECT_TRUE(drawer->draw(0, fewDots, stop).isNull());
    stopper.join();
    EXPECT_LT(time.elapsed(), 500); // a tenth of that, on a machine with nothing else to do
    EXPECT_FALSE(drawer->draw(0, {QRect(1, 0, 8, 4), 0.5, true}, goOn).isNull());
}

TEST_F(FakeDrawer, WhoseAnswersTrickle_IsStoppedAllTheSame)
{
    const auto drawer = open(openIt + "q = question(); part(0, 0, q[4], q[5])\n"
                                      "while True:\n  asker.sendall(b'1'); time.sleep(0.005)\n");
    ASSERT_NE(drawer, nullptr);
    std::atomic<bool> stop = false;
    std::thread stopper([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        stop = true;
    });
    QElapsedTimer time;
    time.start();
    EXPECT_TRUE(drawer->draw(0, {QRect(0, 0, 1000, 1000), 0.5, true}, stop).isNull());
    stopper.join();
    EXPECT_LT(time.elapsed(), 2000);
}

/// Programs that answer the first question wrongly.
class FakeDocument : public FakeDrawer, public testing::WithParamInterface<const char *>
{
};

TEST_P(FakeDocument, IsNone)
{
    EXPECT_EQ(open(QByteArray(GetParam()) + "\ntime.sleep(3600)\n"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Answers, FakeDocument,
                         testing::Values("greet(); question(); document(state=3)",
                                         "greet(); question(); document(count=-1)",
                                         "greet(); question(); document(page() * 200001, count=200001)",
                                         "greet(); question(); document(count=3); sys.exit()",
                                         "greet(7); question(); document()",
                                         "greet(); question(); asker.sendall(b'123'); sys.exit()"));

/// Programs that answer a question about a page wrongly.
class FakePage : public FakeDrawer, public testing::WithParamInterface<const char *>
{
};

TEST_P(FakePage, HasNoPictureAndNothingIsDrawnOnIt)
{
    const auto drawer = open(openIt + "q = question()\n" + GetParam() + "\ntime.sleep(3600)\n");
    ASSERT_NE(drawer, nullptr);
    EXPECT_TRUE(drawer->draw(0, fewDots, goOn).isNull());
    EXPECT_FALSE(drawer->drawnOn(1, fewDots, goOn).has_value());
}

INSTANTIATE_TEST_SUITE_P(Answers, FakePage,
                         testing::Values("part(0, 0, 9, 4)",                   // larger than the part
                                         "part(0, 0, 2147483647, 2147483647)", // larger than all
                                         "part(-1, 0, 2, 2)",                  // beside it
                                         "part(2147483647, 0, 2147483647, 1)", // where numbers end
                                         "part(7, 0, 2, 1)",                   // half beside it
                                         "part(0, 0, 8, 5); asker.sendall(b'1')"));

TEST_F(FakeDrawer, ThatSaysAbsurdSizes_HasPagesThatCannotBeDrawn)
{
    const auto drawer = open("greet(); question()\n"
                             "nan = float('nan'); inf = float('inf')\n"
                             "document(page(nan) + page(144, inf) + page(1e30) + page(turn=91) + page(), count=5)\n"
                             "time.sleep(3600)\n");
    ASSERT_NE(drawer, nullptr);
    ASSERT_EQ(drawer->count(), 5);
    for (int page = 0; page < 4; ++page) {
        EXPECT_TRUE(drawer->size(page).isEmpty()) << page;
    }
    EXPECT_EQ(drawer->size(4), QSizeF(144, 36));
}

TEST_F(FakeDrawer, ReachesNoFileOfThePersonsAndNoNetwork)
{
    const auto quoted = [this](const QString &name) { return QByteArray("'" + folder.path(name).toLocal8Bit() + "'"); };
    folder.write(u"secret"_qs, "mine");
    qputenv("TAPEPRINT_TEST_SECRET", "mine");
    // What it can do is told by the sizes of the pages: a document that has taken it over has no other way out.
    const auto drawer =
        open("def can(what):\n"
             "  try: what(); return 2\n"
             "  except OSError: return 1\n"
             "def connect(): socket.socket().connect(('192.0.2.1', 9))\n"
             "def secret():\n"
             "  if b'TAPEPRINT_TEST_SECRET' not in open('/proc/1/environ', 'rb').read(): raise OSError\n"
             "greet(); question()\n"
             "document(page(can(lambda: open(" +
             quoted(u"secret"_qs) + ")), can(lambda: open(" + quoted(u"label.pdf"_qs) +
             "))) + page(can(connect), can(lambda: open('/etc/passwd')))"
             " + page(can(lambda: open('/etc/fonts/fonts.conf')), can(secret)), count=3)\n"
             "can(lambda: open(" +
             quoted(u"new"_qs) + ", 'w'))\n" + "dots(question())\n");
    qunsetenv("TAPEPRINT_TEST_SECRET");
    ASSERT_NE(drawer, nullptr);
    EXPECT_EQ(drawer->size(0), QSizeF(1, 1));
    EXPECT_EQ(drawer->size(1), QSizeF(1, 1));
    EXPECT_EQ(drawer->size(2), QSizeF(2, 1)); // fonts are seen
    EXPECT_FALSE(drawer->draw(0, fewDots, goOn).isNull());
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"new"_qs))); // what it wrote went with its room
}

TEST_F(FakeDrawer, OfAProgramThatIsKilled_GoesEvenWhenItDoesNotListen)
{
    const pid_t program = fork();
    if (program == 0) {
        const auto drawer = open(openIt + "signal.pause()\n");
        pause();
        _exit(0);
    }
    const QByteArray word = folder.path(u"tapeprint-drawer"_qs).toLocal8Bit();
    EXPECT_TRUE(QTest::qWaitFor([&] { return processesWith(u"cmdline"_qs, word).size() >= 2; }, 20000));
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return processesWith(u"cmdline"_qs, word).isEmpty(); }, 20000));
}

} // namespace
