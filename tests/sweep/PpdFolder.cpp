// SPDX-License-Identifier: Apache-2.0
// One look at each PPD, and for each class of findings the example that is read soonest.
#include "tests/sweep/PpdFolder.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <csignal>
#include <iostream>
#include <map>
#include <string_view>

#include <unistd.h>

namespace sweeptest
{

namespace
{

constexpr unsigned longestCheckSeconds = 60;

/// What a signal's handler may read: the PPD that is looked at.
std::array<char, 1024> lookedAt{};

void sayWhereItEnded(int signal)
{
    constexpr std::string_view said = "\nended at ";
    // Nothing can be done about what cannot be written.
    (void)!write(STDERR_FILENO, said.data(), said.size());
    (void)!write(STDERR_FILENO, lookedAt.data(), qstrlen(lookedAt.data()));
    (void)!write(STDERR_FILENO, "\n", 1);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

/// libcups asks for the language of messages, once: when the first PPD is opened.
bool prepare()
{
    if (std::setlocale(LC_MESSAGES, "de_DE.UTF-8") == nullptr) {
        return false;
    }
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGABRT, SIGALRM}) {
        std::signal(signal, sayWhereItEnded);
    }
    return true;
}

void lookAt(const QString &path)
{
    const QByteArray name = QFile::encodeName(path).left(static_cast<qsizetype>(lookedAt.size()) - 1);
    std::fill(std::copy(name.begin(), name.end(), lookedAt.begin()), lookedAt.end(), '\0');
    alarm(longestCheckSeconds);
}

/// The findings of a class.
struct Findings {
    int count = 0;
    QString smallest; ///< the PPD
    QString finding;
};

class Report
{
public:
    void add(const QString &path, const QString &finding)
    {
        Findings &same = mClasses[finding.section(u':', 0, 0)];
        if (++same.count == 1 || QFileInfo(path).size() < QFileInfo(same.smallest).size()) {
            same.smallest = path;
            same.finding = finding;
        }
    }
    void say() const
    {
        for (const auto &[name, same] : mClasses) {
            ADD_FAILURE() << same.count << " times " << name.toStdString() << ", the smallest "
                          << same.smallest.toStdString() << ": " << same.finding.toStdString();
        }
    }

private:
    std::map<QString, Findings> mClasses;
};

bool canBeOpened(const QString &path)
{
    return tapeprint::job::PpdFile(ppdOpenFile(QFile::encodeName(path).constData())) != nullptr;
}

/// \return the paths of one part of those that sweep at once.
QStringList partOf(const QStringList &files)
{
    const QStringList part = qEnvironmentVariable("TAPEPRINT_SWEEP_PART", QStringLiteral("1/1")).split(u'/');
    const int step = std::max(part.value(1).toInt(), 1);
    QStringList chosen;
    for (qsizetype i = part.value(0).toInt() - 1; i >= 0 && i < files.size(); i += step) {
        chosen.append(files[i]);
    }
    return chosen;
}

int leastChecked(int every)
{
    bool isSet = false;
    const int least = qEnvironmentVariableIntValue("TAPEPRINT_SWEEP_LEAST", &isSet);
    return isSet ? least : TAPEPRINT_SWEEP_LEAST / every;
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
    return partOf(files);
}

void forEveryPpd(const std::function<QString(const QString &path)> &check, int every)
{
    static const bool isReady = prepare();
    ASSERT_TRUE(isReady);
    QElapsedTimer timer;
    timer.start();
    int checked = 0;
    int unreadable = 0;
    Report report;
    const QStringList files = ppdFiles();
    for (qsizetype i = 0; i < files.size(); i += every) {
        const QString &path = files[i];
        lookAt(path);
        if (!canBeOpened(path)) {
            ++unreadable;
            continue;
        }
        ++checked;
        if (const QString finding = check(path); !finding.isNull()) {
            report.add(path, finding);
        }
    }
    alarm(0);
    report.say();
    EXPECT_GE(checked, leastChecked(every));
    std::cout << checked << " PPDs checked, " << unreadable << " that libcups does not open, "
              << static_cast<double>(timer.elapsed()) / 1000.0 << " s\n";
}

tapeprint::job::PpdFile libcupsView(const QString &path)
{
    tapeprint::job::PpdFile ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    ppdMarkDefaults(ppd.get());
    return ppd;
}

tapeprint::job::Destination destinationOf(const QString &path)
{
    tapeprint::job::Destination destination;
    tapeprint::job::Problem error;
    destination.ppdPath = path;
    destination.ppd = tapeprint::job::openPpdFile(path, &error);
    return destination;
}

} // namespace sweeptest
