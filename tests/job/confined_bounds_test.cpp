// SPDX-License-Identifier: Apache-2.0
// The programs that read documents are bounded while they do, in a room and where there is none.
#include "DocumentPictures.h"
#include "PdfText.h"

#include "job/PageDrawer.h"
#include "job/PdfWorker.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <thread>

#include <gtest/gtest.h>

#include <unistd.h>

namespace
{

using jobtest::pdfOf;
using tapeprint::job::PageDrawer;
using tapeprint::job::PdfWorker;
using tapeprint::job::Problem;

const std::atomic<bool> goOn = false;

/// What the system tells of a process in one line: its name, and after it its state and its parent.
struct About {
    explicit About(const QString &process)
    {
        QFile file(u"/proc/"_qs + process + u"/stat"_qs);
        const QByteArray line = file.open(QIODevice::ReadOnly) ? file.readLine() : QByteArray();
        const qsizetype opening = line.indexOf('(');
        const qsizetype closing = line.lastIndexOf(')');
        name = QString::fromLocal8Bit(line.mid(opening + 1, closing - opening - 1));
        parent = QString::fromLocal8Bit(line.mid(closing + 1).simplified().split(' ').value(1));
    }
    QString name;
    QString parent;
};

bool isBelowThisProgram(const QString &process)
{
    const QString own = QString::number(getpid());
    QString above = process;
    while (above.toInt() > 1 && above != own) {
        above = About(above).parent;
    }
    return above == own;
}

/// The processes of a program that this one has started, itself or through others.
QStringList startedProcesses(const QString &name)
{
    QStringList found = QDir(u"/proc"_qs).entryList({u"[0-9]*"_qs}, QDir::Dirs);
    found.removeIf(
        [&name](const QString &process) { return About(process).name != name || !isBelowThisProgram(process); });
    return found;
}

/// The soft and the hard bound, as the system tells them.
QStringList boundOf(const QString &process, const QString &what)
{
    QFile limits(u"/proc/"_qs + process + u"/limits"_qs);
    if (!limits.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QRegularExpression line(u"^Max %1 +(\\S+) +(\\S+)"_qs.arg(what), QRegularExpression::MultilineOption);
    return line.match(QString::fromLocal8Bit(limits.readAll())).capturedTexts().mid(1);
}

void expectBounds(const QString &program)
{
    // The system keeps fifteen letters of a name.
    const QStringList processes = startedProcesses(program.left(15));
    ASSERT_FALSE(processes.isEmpty()) << program.toStdString();
    for (const QString &process : processes) {
#ifndef __SANITIZE_ADDRESS__
        EXPECT_EQ(boundOf(process, u"address space"_qs), QStringList({u"4294967296"_qs, u"4294967296"_qs}));
#endif
        EXPECT_EQ(boundOf(process, u"cpu time"_qs), QStringList({u"1800"_qs, u"1800"_qs}));
        EXPECT_EQ(boundOf(process, u"core file size"_qs), QStringList({u"0"_qs, u"0"_qs}));
    }
}

class ConfinedBounds : public testing::Test
{
protected:
    ConfinedBounds() : document(folder.write(u"label.pdf"_qs, pdfOf({{"/MediaBox [0 0 144 36]", "0 0 9 9 re f\n"}}))) {}

    void expectBoundsOfBoth()
    {
        QString missing;
        const auto drawer = PageDrawer::open(document, &missing);
        ASSERT_NE(drawer, nullptr) << missing.toStdString();
        expectBounds(u"tapeprint-drawer"_qs);
        Problem error;
        ASSERT_TRUE(PdfWorker().measure(document, {}, goOn, &error)) << error.sentence.toStdString();
        expectBounds(u"tapeprint-pages"_qs);
    }

    jobtest::Folder folder;
    QString document;
};

TEST_F(ConfinedBounds, HoldInARoom)
{
    expectBoundsOfBoth();
}

TEST_F(ConfinedBounds, HoldWhereThereIsNoRoom)
{
    // In a thread of its own: what waits in this one may be in a room.
    std::thread([this] {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", folder.path(u"."_qs).toLocal8Bit());
        expectBoundsOfBoth();
        qputenv("PATH", path);
    }).join();
}

} // namespace
