// SPDX-License-Identifier: Apache-2.0
// One look at each PPD, with as many findings as a person reads.
#include "tests/sweep/PpdFolder.h"

#include "job/PpdFile.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <iostream>

namespace sweeptest
{

namespace
{

constexpr int mostFindingsSaid = 20;
constexpr int leastChecked = TAPEPRINT_SWEEP_LEAST;

bool canBeOpened(const QString &path)
{
    const tapeprint::job::PpdFile ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    return ppd != nullptr;
}

} // namespace

QStringList ppdFiles()
{
    QStringList files;
    QDirIterator entries(qEnvironmentVariable("TAPEPRINT_SWEEP_PPDS", QStringLiteral(TAPEPRINT_SWEEP_SPREAD)),
                         {QStringLiteral("*.ppd"), QStringLiteral("*.PPD")}, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        files.append(entries.next());
    }
    files.sort();
    return files;
}

void forEveryPpd(const std::function<QString(const QString &path)> &check)
{
    QElapsedTimer timer;
    timer.start();
    int checked = 0;
    int unreadable = 0;
    int findings = 0;
    for (const QString &path : ppdFiles()) {
        if (!canBeOpened(path)) {
            ++unreadable;
            continue;
        }
        ++checked;
        const QString finding = check(path);
        if (!finding.isNull() && ++findings <= mostFindingsSaid) {
            ADD_FAILURE() << path.toStdString() << ": " << finding.toStdString();
        }
    }
    EXPECT_EQ(findings, 0);
    EXPECT_GE(checked, leastChecked);
    std::cout << checked << " PPDs checked, " << unreadable << " that libcups does not open, " << findings
              << " findings, " << static_cast<double>(timer.elapsed()) / 1000.0 << " s\n";
}

} // namespace sweeptest
