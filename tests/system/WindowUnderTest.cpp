// SPDX-License-Identifier: Apache-2.0
// Keys and clicks stay in order on their way through the display, so only windows that come and go are waited for.
#include "tests/system/WindowUnderTest.h"

#include <QThread>

#include <utility>

namespace systemtest
{

WindowUnderTest::~WindowUnderTest()
{
    endProcess(mProgram);
}

QString WindowUnderTest::open(Client client)
{
    if (const QString problem = openUnconnected(std::move(client)); !problem.isNull()) {
        return problem;
    }
    return isConnected() ? QString() : QStringLiteral("The printer is not connected.");
}

bool WindowUnderTest::isConnected() const
{
    // The title says in every language, by its dots, that something is waited for.
    return waitUntil([this] { return !title().isEmpty() && !title().contains("\u2026"); });
}

QString WindowUnderTest::adopt(qint64 process, const QStringList &known)
{
    const QString problem = adoptUnconnected(process, known);
    return problem.isNull() && !isConnected() ? QStringLiteral("The printer is not connected.") : problem;
}

QString WindowUnderTest::adoptUnconnected(qint64 process, const QStringList &known)
{
    mProcess = process;
    mIsAdopted = true;
    mWindow = waitForWindowBeside(known);
    return mWindow.isNull() ? QStringLiteral("There is no window.") : QString();
}

QString WindowUnderTest::openUnconnected(Client client)
{
    client.variables.emplace_back(QStringLiteral("DISPLAY"), mDisplay.name());
    dieWithTest(mProgram);
    mProgram.setProcessEnvironment(clientEnvironment(client.variables));
    mProgram.setWorkingDirectory(client.folder);
    mProgram.start(client.program, client.arguments, QIODevice::ReadOnly);
    mProcess = mProgram.processId();
    mWindow = waitForFurtherWindow();
    if (!mWindow.isNull()) {
        return {};
    }
    const Outcome outcome = mProgram.state() == QProcess::NotRunning ? waitForEnd() : Outcome();
    return QStringLiteral("There is no window. Status %1: %2 %3")
        .arg(QString::number(outcome.status), QString::fromUtf8(outcome.output), QString::fromUtf8(outcome.messages));
}

Outcome WindowUnderTest::waitForEnd()
{
    Outcome outcome;
    const bool ended = mProgram.state() == QProcess::NotRunning || mProgram.waitForFinished(patienceMs);
    if (!ended) {
        endProcess(mProgram);
    }
    outcome.output = mProgram.readAllStandardOutput();
    outcome.messages = mProgram.readAllStandardError();
    if (ended && mProgram.exitStatus() == QProcess::NormalExit) {
        outcome.status = mProgram.exitCode();
    }
    return outcome;
}

QStringList WindowUnderTest::windows() const
{
    const QByteArray found = mDisplay.xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                               QStringLiteral("--pid"), QString::number(mProcess)});
    return QString::fromLatin1(found).split(u'\n', Qt::SkipEmptyParts);
}

QByteArray WindowUnderTest::title() const
{
    return mDisplay.xdotool({QStringLiteral("getwindowname"), mWindow}).trimmed();
}

QRect WindowUnderTest::geometry(const QString &window) const
{
    const QByteArray text = mDisplay.xdotool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), window});
    const auto number = [&text](const QByteArray &name) {
        const qsizetype at = text.indexOf('\n' + name + '=') + name.size() + 2;
        return text.mid(at, text.indexOf('\n', at) - at).toInt();
    };
    return {number("X"), number("Y"), number("WIDTH"), number("HEIGHT")};
}

QRect WindowUnderTest::settledGeometry() const
{
    constexpr unsigned long betweenLooksMs = 200;
    QRect seen = geometry(mWindow);
    waitUntil([&] {
        QThread::msleep(betweenLooksMs);
        const QRect before = std::exchange(seen, geometry(mWindow));
        return seen == before;
    });
    return seen;
}

bool WindowUnderTest::giveKeysTo(const QString &window) const
{
    // No window manager is there to do it.
    return waitUntil([&] {
        mDisplay.xdotool({QStringLiteral("windowfocus"), window});
        return mDisplay.xdotool({QStringLiteral("getwindowfocus"), QStringLiteral("-f")}).trimmed() ==
               window.toLatin1();
    });
}

QString WindowUnderTest::waitForFurtherWindow()
{
    return waitForWindowBeside({mWindow});
}

QString WindowUnderTest::waitForWindowBeside(const QStringList &known)
{
    QString further;
    waitUntil([&] {
        for (const QString &window : windows()) {
            if (!known.contains(window)) {
                further = window;
            }
        }
        const bool isGone = !mIsAdopted && (mProgram.waitForFinished(0) || mProgram.state() == QProcess::NotRunning);
        return !further.isNull() || isGone;
    });
    return !further.isNull() && giveKeysTo(further) ? further : QString();
}

bool WindowUnderTest::waitForGone(const QString &window) const
{
    return waitUntil([&] { return !windows().contains(window); }) && giveKeysTo(mWindow);
}

void WindowUnderTest::press(const QStringList &keys) const
{
    mDisplay.xdotool(QStringList{QStringLiteral("key")} + keys);
}

void WindowUnderTest::type(const QString &text) const
{
    mDisplay.xdotool({QStringLiteral("type"), text});
}

void WindowUnderTest::click(const QString &window, QPoint place) const
{
    mDisplay.xdotool({QStringLiteral("mousemove"), QStringLiteral("--window"), window, QString::number(place.x()),
                      QString::number(place.y()), QStringLiteral("click"), QStringLiteral("1")});
}

void WindowUnderTest::goTo(PanelControl control) const
{
    QStringList keys{QStringLiteral("alt+n")}; // "Settings", "Einstellungen"
    for (int i = 0; i < static_cast<int>(control); ++i) {
        keys.append(QStringLiteral("Tab"));
    }
    press(keys);
}

bool WindowUnderTest::pickFromPopUp(int item, int items)
{
    press({QStringLiteral("space")});
    QString list;
    const bool opened = waitUntil([&] {
        for (const QString &window : windows()) {
            if (window != mWindow) {
                list = window;
            }
        }
        return !list.isNull();
    });
    if (!opened) {
        return false;
    }
    const QSize size = geometry(list).size();
    click(list, QPoint(size.width() / 2, size.height() * (2 * item + 1) / (2 * items)));
    return waitForGone(list);
}

void WindowUnderTest::clickPrint() const
{
    constexpr QPoint insidePrint(35, 24);
    const QRect all = settledGeometry();
    click(mWindow, QPoint(all.width(), all.height()) - insidePrint);
}

} // namespace systemtest
