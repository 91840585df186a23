// SPDX-License-Identifier: Apache-2.0
// One showing in each of several processes.
#include "ColdStart.h"

#include "Stopwatch.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>

namespace
{

const QString kPanelArgument = QStringLiteral("--cold-panel");
const QString kFloorArgument = QStringLiteral("--cold-floor");

constexpr PpdSize kColdSize = {100, 10};
constexpr int kTurns = 15;

double millisecondsOfRun(const QString &argument, const QString &ppdPath)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {argument, ppdPath});
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0);
    bool isNumber = false;
    const double milliseconds = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    EXPECT_TRUE(isNumber);
    return milliseconds;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

bool isColdRun(const QStringList &arguments)
{
    return arguments.size() == 3 && (arguments[1] == kPanelArgument || arguments[1] == kFloorArgument);
}

void runCold(const QStringList &arguments)
{
    const LoadedBundle loaded;
    const QByteArray path = arguments[2].toUtf8();
    Seconds time(0);
    if (arguments[1] == kPanelArgument) {
        BenchedPanel panel(loaded, openPpd(path));
        time = timeOf([&] {
            panel.construct();
            panel.show();
        });
    } else {
        BareInterface bare(loaded);
        OpenPpd ppd;
        time = timeOf([&] {
            ppd.reset(ppdOpenFile(path.constData()));
            bare.load();
            bare.show();
        });
    }
    std::printf("%.6f\n", time.count() * 1e3);
}

ColdTimes measureCold()
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open() && file.write(ppdOfSize(kColdSize)) > 0 && file.flush());
    std::vector<double> panel;
    std::vector<double> floor;
    for (int turn = 0; turn < kTurns; ++turn) {
        floor.push_back(millisecondsOfRun(kFloorArgument, file.fileName()));
        panel.push_back(millisecondsOfRun(kPanelArgument, file.fileName()));
    }
    return {median(panel), median(floor)};
}
