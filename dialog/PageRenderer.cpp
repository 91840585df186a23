// SPDX-License-Identifier: Apache-2.0
// The picture comes through the program's standard output, so nothing is left behind in any folder.
#include "dialog/PageRenderer.h"

#include <QFileInfo>

#include <chrono>

namespace tapeprint::dialog
{

namespace
{

// The picture is bounded by its longer side and not by a resolution: a poster costs no more than a label.
constexpr int longerSidePixels = 2000;
constexpr std::chrono::seconds timeLimit(30);

} // namespace

PageRenderer::PageRenderer(QObject *parent) : QObject(parent)
{
    mProgram.setProgram(QStringLiteral("pdftoppm"));
    mProgram.setStandardInputFile(QProcess::nullDevice());
    // What it says of a document that it cannot read is of no use here: the filters say it again when it is printed.
    mProgram.setStandardErrorFile(QProcess::nullDevice());
    mTimeLimit.setSingleShot(true);
    mTimeLimit.setInterval(timeLimit);
    connect(&mTimeLimit, &QTimer::timeout, &mProgram, &QProcess::kill);
    connect(&mProgram, &QProcess::finished, this,
            [this](int code, QProcess::ExitStatus status) { finish(status == QProcess::NormalExit && code == 0); });
    connect(&mProgram, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            finish(false); // every other error is followed by "finished"
        }
    });
}

PageRenderer::~PageRenderer()
{
    stop();
}

void PageRenderer::start(const QString &document)
{
    stop();
    // A pipe would be emptied by reading it, and then there would be nothing to print.
    const QFileInfo file(document);
    if (!file.isFile()) {
        finish(false);
        return;
    }
    const QString page = QStringLiteral("1");
    mProgram.setArguments({QStringLiteral("-png"), QStringLiteral("-f"), page, QStringLiteral("-l"), page,
                           QStringLiteral("-scale-to"), QString::number(longerSidePixels), file.absoluteFilePath()});
    mTimeLimit.start();
    mProgram.start(QIODevice::ReadOnly);
}

void PageRenderer::stop()
{
    mTimeLimit.stop();
    if (isRunning()) {
        const QSignalBlocker blocker(mProgram);
        mProgram.kill();
        mProgram.waitForFinished();
        mProgram.readAllStandardOutput();
    }
}

void PageRenderer::finish(bool isWhole)
{
    mTimeLimit.stop();
    const QByteArray bytes = mProgram.isOpen() ? mProgram.readAllStandardOutput() : QByteArray();
    Q_EMIT rendered(isWhole ? QImage::fromData(bytes, "PNG") : QImage());
}

} // namespace tapeprint::dialog
