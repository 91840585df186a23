// SPDX-License-Identifier: Apache-2.0
// Whatever descriptor a program hands over: it is read to its end into a file of the person's alone, or refused in
// words.
#include "portal/ReceivedDocument.h"
#include "tests/support/TextPrinting.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QTest>

#include <gtest/gtest.h>

#include <array>
#include <thread>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{

using tapeprint::portal::ReceivedDocument;
using tapeprint::portal::receiveDocument;
using tapeprint::portal::ReceiveLimits;

/// A descriptor that is closed with it.
class Descriptor
{
public:
    explicit Descriptor(int number) : mNumber(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    void close()
    {
        if (mNumber >= 0) {
            ::close(mNumber);
        }
        mNumber = -1;
    }
    int number() const { return mNumber; }
    void write(const QByteArray &bytes) const
    {
        EXPECT_EQ(::write(mNumber, bytes.constData(), static_cast<std::size_t>(bytes.size())), bytes.size());
    }

private:
    int mNumber;
};

class ProgramsDescriptor : public testing::Test
{
protected:
    QByteArray received(int number)
    {
        problem = {};
        file = receiveDocument(number, limits, stop, &problem);
        if (!file) {
            return {};
        }
        QFile read(file->path());
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    }
    void refuses(int number)
    {
        EXPECT_EQ(received(number), QByteArray());
        EXPECT_EQ(file, nullptr);
        EXPECT_EQ(problem.kind, tapeprint::job::Problem::BadDocument);
        EXPECT_TRUE(problem.sentence.endsWith(u'.')) << problem.sentence.toStdString();
    }

    static std::array<int, 2> newPipe()
    {
        std::array<int, 2> ends{-1, -1};
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        return ends;
    }

    std::array<int, 2> ends = newPipe();
    Descriptor out{ends[0]};
    Descriptor in{ends[1]};
    ReceiveLimits limits;
    std::atomic<bool> stop = false;
    tapeprint::job::Problem problem;
    std::shared_ptr<tapeprint::job::PrivateFile> file;
};

TEST_F(ProgramsDescriptor, Pipe_IsReadToItsEndIntoAFileOfThePersonsAlone)
{
    const QByteArray text(200000, 'x'); // more than a pipe holds
    std::thread writer([&] {
        in.write(text);
        in.close();
    });
    EXPECT_TRUE(received(out.number()) == text); // too much to be shown
    writer.join();
    EXPECT_TRUE(problem.isNull());
    const QString path = file->path();
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
              QFile::Permissions());
    file.reset();
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(ProgramsDescriptor, FileAndSocket_AreRead)
{
    QTemporaryFile plain;
    ASSERT_TRUE(plain.open());
    plain.write("%PDF of a file");
    plain.flush();
    plain.seek(0);
    EXPECT_EQ(received(plain.handle()), "%PDF of a file");
    std::array<int, 2> pair{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, pair.data()), 0);
    const Descriptor near(pair[0]);
    Descriptor far(pair[1]);
    far.write("%PDF of a socket");
    far.close();
    EXPECT_EQ(received(near.number()), "%PDF of a socket");
}

TEST_F(ProgramsDescriptor, FileThatStandsAtItsEnd_IsReadFromItsBeginning)
{
    QTemporaryFile written;
    ASSERT_TRUE(written.open());
    written.write("%PDF just written");
    written.flush();
    EXPECT_EQ(received(written.handle()), "%PDF just written");
    // One that stands elsewhere was put there.
    ASSERT_EQ(lseek(written.handle(), 5, SEEK_SET), 5);
    EXPECT_EQ(received(written.handle()), "just written");
}

TEST_F(ProgramsDescriptor, ClosedOne_IsRefusedInWords)
{
    const int number = out.number();
    out.close();
    refuses(number);
    refuses(-1);
}

TEST_F(ProgramsDescriptor, OneForWritingAlone_IsRefusedInWords)
{
    QTemporaryFile plain;
    ASSERT_TRUE(plain.open());
    const Descriptor writing(open(plain.fileName().toLocal8Bit().constData(), O_WRONLY | O_CLOEXEC));
    refuses(writing.number());
}

TEST_F(ProgramsDescriptor, FolderAndDevice_AreRefusedInWords)
{
    const Descriptor folder(open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    refuses(folder.number());
    const Descriptor device(open("/dev/zero", O_RDONLY | O_CLOEXEC));
    refuses(device.number());
}

TEST_F(ProgramsDescriptor, NothingInIt_IsRefusedInWords)
{
    in.close();
    refuses(out.number());
}

TEST_F(ProgramsDescriptor, PipeThatNeverEnds_IsLeftSoonAfterTheCallHasEnded)
{
    std::thread caller([this] {
        QTest::qSleep(150);
        stop = true;
    });
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(received(out.number()), QByteArray());
    caller.join();
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_TRUE(problem.isNull()) << problem.sentence.toStdString(); // the caller wanted it so
}

TEST_F(ProgramsDescriptor, MoreThanIsTaken_IsRefusedInWords)
{
    limits.most = 100000;
    std::thread writer([this] {
        QByteArray piece(65536, 'x');
        in.write(piece);
        in.write(piece);
    });
    refuses(out.number());
    writer.join();
}

TEST_F(ProgramsDescriptor, NoRoomForTemporaryFiles_IsSaid)
{
    limits.keptFree = qint64{1} << 60;
    in.write("%PDF");
    EXPECT_EQ(received(out.number()), QByteArray());
    EXPECT_FALSE(problem.isNull());
}

TEST_F(ProgramsDescriptor, Gigabyte_IsReadInPieces)
{
    // A file with a hole: what is read is a gigabyte, what is written one as well.
    QTemporaryFile large;
    ASSERT_TRUE(large.open());
    constexpr qint64 gigabyte = qint64{1} << 30;
    ASSERT_TRUE(large.resize(gigabyte));
    file = receiveDocument(large.handle(), limits, stop, &problem);
    ASSERT_NE(file, nullptr) << problem.sentence.toStdString();
    EXPECT_EQ(QFileInfo(file->path()).size(), gigabyte);
}

TEST_F(ProgramsDescriptor, AwayFromTheWindowsThread_ItArrivesOrFails)
{
    ReceivedDocument document;
    bool hasArrived = false;
    QString sentence;
    QObject::connect(&document, &ReceivedDocument::arrived, &document, [&] { hasArrived = true; });
    QObject::connect(&document, &ReceivedDocument::failed, &document,
                     [&](const tapeprint::job::Problem &found) { sentence = found.sentence; });
    document.receive(QDBusUnixFileDescriptor(out.number()));
    in.write("%PDF");
    QTest::qWait(50);
    EXPECT_FALSE(hasArrived); // not before its end
    in.close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return hasArrived; }));
    ASSERT_NE(document.file(), nullptr);

    ReceivedDocument broken;
    QObject::connect(&broken, &ReceivedDocument::failed, &broken,
                     [&](const tapeprint::job::Problem &found) { sentence = found.sentence; });
    broken.receive(QDBusUnixFileDescriptor());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !sentence.isNull(); }));
}

} // namespace
