// SPDX-License-Identifier: Apache-2.0
// dialog_bench [--strict] [--runs N] [--queues N,N…]: our dialog beside those of the desktop toolkits, from the start
// of the program to its window at rest, on a print server and a display of its own; and printing without a window
// beside lp.
#include "Goals.h"
#include "dialogs/Run.h"
#include "dialogs/ScreenWatch.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateCups.h"
#include "tests/system/PrivateDisplay.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace
{

using bench::Program;
using bench::Variables;

const QString document = QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/sample/address-label.pdf");

/// What one showing, or one printing, cost.
struct Figures {
    double first = 0.0; ///< seconds to the first paint; of a program without a window: to its end
    double last = 0.0;
    double cpu = 0.0;       ///< with that of the processes it started
    double memoryMb = 0.0;  ///< of its own process
    double startedMb = 0.0; ///< of the largest process that it started
};

/// The goals for ours, as ratios to the toolkit's dialog.
struct Goals {
    double first = 0.0;
    double last = 0.0;
    double cpu = 0.0;
    double memory = 0.0;
};
const std::map<int, Goals> goalsByQueues{{1, {1.0, 1.2, 1.2, 1.2}}, {500, {0.4, 0.5, 0.5, 1.2}}};
constexpr double unattendedGoal = 2.5;

[[noreturn]] void give(const QString &what)
{
    std::fprintf(stderr, "dialog_bench: %s\n", qPrintable(what));
    std::exit(2);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

Figures medians(const std::vector<Figures> &runs)
{
    const auto of = [&runs](double Figures::*figure) {
        std::vector<double> values;
        std::transform(runs.begin(), runs.end(), std::back_inserter(values),
                       [figure](const Figures &run) { return run.*figure; });
        return median(values);
    };
    return {of(&Figures::first), of(&Figures::last), of(&Figures::cpu), of(&Figures::memoryMb),
            of(&Figures::startedMb)};
}

/// Shows a program's window until it rests, then ends the program.
Figures show(const Program &program, const Variables &variables, bench::ScreenWatch &screen)
{
    constexpr double restSeconds = 2.0;
    constexpr double patienceSeconds = 60.0;
    screen.clear();
    const double began = bench::now();
    const pid_t process = bench::startProgram(program, variables);
    const std::optional<bench::Paints> paints = screen.watch(restSeconds, patienceSeconds);
    const bench::Cost started = bench::costOfStarted(process);
    kill(process, SIGKILL);
    const bench::Cost cost = bench::waitForProgram(process);
    if (!paints || !WIFSIGNALED(cost.status)) {
        give(QStringLiteral("%1 showed no window, or it never came to rest").arg(QString::fromStdString(program.name)));
    }
    return {paints->first - began, paints->last - began, cost.cpuSeconds + started.cpuSeconds, cost.memoryMb,
            started.memoryMb};
}

/// Runs a program to its end.
Figures run(const Program &program, const Variables &variables)
{
    const double began = bench::now();
    const bench::Cost cost = bench::waitForProgram(bench::startProgram(program, variables));
    if (cost.status != 0) {
        give(QStringLiteral("%1 failed").arg(QString::fromStdString(program.name)));
    }
    const double took = bench::now() - began;
    return {took, took, cost.cpuSeconds, cost.memoryMb, 0.0};
}

/// Each program in turn, so that what the machine does besides falls on all alike; the first turn is not counted.
template <typename Once>
std::vector<Figures> measure(const std::vector<Program> &programs, int runs, const Once &once)
{
    std::vector<std::vector<Figures>> figures(programs.size());
    for (int turn = -1; turn < runs; ++turn) {
        for (std::size_t i = 0; i < programs.size(); ++i) {
            const Figures one = once(programs[i]);
            if (turn >= 0) {
                figures[i].push_back(one);
            }
        }
    }
    std::vector<Figures> results;
    std::transform(figures.begin(), figures.end(), std::back_inserter(results), medians);
    return results;
}

void printFigures(const std::vector<Program> &programs, const std::vector<Figures> &figures)
{
    for (std::size_t i = 0; i < programs.size(); ++i) {
        std::printf(
            "  %-24s first %7.0f ms  last %7.0f ms  CPU %6.0f ms  memory %6.1f MB, of what it started %5.1f MB\n",
            programs[i].name.c_str(), figures[i].first * 1e3, figures[i].last * 1e3, figures[i].cpu * 1e3,
            figures[i].memoryMb, figures[i].startedMb);
    }
}

/// Our dialog's figures as ratios to those of the toolkit's.
std::vector<GoalLine> ratios(int queues, const Figures &ours, const Figures &theirs)
{
    const auto found = goalsByQueues.find(queues);
    if (found == goalsByQueues.end()) {
        std::printf("  ratios to QPrintDialog: first %.2f  last %.2f  CPU %.2f  memory %.2f\n",
                    ours.first / theirs.first, ours.last / theirs.last, ours.cpu / theirs.cpu,
                    ours.memoryMb / theirs.memoryMb);
        return {};
    }
    const Goals &goals = found->second;
    const std::string where = " at " + std::to_string(queues) + (queues == 1 ? " queue" : " queues");
    return {{"first paint" + where, "", ours.first / theirs.first, goals.first, "x QPrintDialog"},
            {"last paint" + where, "", ours.last / theirs.last, goals.last, "x QPrintDialog"},
            {"CPU time" + where, "", ours.cpu / theirs.cpu, goals.cpu, "x QPrintDialog"},
            {"memory" + where, "", ours.memoryMb / theirs.memoryMb, goals.memory, "x QPrintDialog"}};
}

struct Asked {
    bool isStrict = false;
    int runs = 7;
    std::vector<int> queues{1, 50, 500};
};

Asked parse(const QStringList &arguments)
{
    Asked asked;
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--strict")) {
            asked.isStrict = true;
        } else if (arguments[i] == QLatin1String("--runs") && i + 1 < arguments.size()) {
            asked.runs = std::max(1, arguments[++i].toInt());
        } else if (arguments[i] == QLatin1String("--queues") && i + 1 < arguments.size()) {
            asked.queues.clear();
            for (const QString &count : arguments[++i].split(u',')) {
                asked.queues.push_back(std::max(1, count.toInt()));
            }
        } else {
            give(QStringLiteral("usage: dialog_bench [--strict] [--runs N] [--queues N,N…]"));
        }
    }
    std::sort(asked.queues.begin(), asked.queues.end());
    return asked;
}

/// Adds queues up to a number; the first is the server's default and takes jobs without printing them.
void addQueues(systemtest::PrivateCups &cups, int from, int to)
{
    for (int i = from; i < to; ++i) {
        const QString problem = cups.addPlainQueue(QStringLiteral("queue%1").arg(i), QStringLiteral("mm"));
        if (!problem.isNull()) {
            give(problem);
        }
    }
    if (from == 0) {
        const QString first = QStringLiteral("queue0");
        systemtest::runClient(
            {QStringLiteral("/usr/sbin/lpadmin"), {QStringLiteral("-d"), first}, cups.clientVariables()});
        systemtest::runClient({QStringLiteral("/usr/sbin/cupsdisable"), {first}, cups.clientVariables()});
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const Asked asked = parse(QCoreApplication::arguments());
    systemtest::PrivateCups cups;
    systemtest::PrivateDisplay display;
    for (const QString &problem : {systemtest::PrivateCups::reasonToSkip(), systemtest::PrivateDisplay::reasonToSkip(),
                                   cups.start(), display.start()}) {
        if (!problem.isNull()) {
            give(problem);
        }
    }
    // A program without a window is told of the server alone: which platform it takes is its own affair.
    Variables variables;
    for (const auto &[name, value] : cups.clientVariables()) {
        variables.emplace_back(name.toStdString(), value.toStdString());
    }
    Variables onDisplay{{"DISPLAY", display.name().toStdString()},
                        {"GDK_BACKEND", "x11"},
                        {"QT_QPA_PLATFORM", "xcb"},
                        {"GSETTINGS_BACKEND", "memory"},
                        {"NO_AT_BRIDGE", "1"}};
    onDisplay.insert(onDisplay.end(), variables.begin(), variables.end());
    bench::ScreenWatch screen(display.name().toStdString());

    const std::string folder = QCoreApplication::applicationDirPath().toStdString();
    const std::string file = document.toStdString();
    const std::vector<Program> dialogs{{"tapeprint", {folder + "/tapeprint", file}},
                                       {"QPrintDialog", {folder + "/bench_qt_dialog"}},
                                       {"GTK's dialog", {folder + "/bench_gtk_dialog"}}};
    std::vector<GoalLine> goals;
    int made = 0;
    for (const int queues : asked.queues) {
        addQueues(cups, made, queues);
        made = std::max(made, queues);
        const std::vector<Figures> figures =
            measure(dialogs, asked.runs, [&](const Program &program) { return show(program, onDisplay, screen); });
        std::printf("%d queue%s, medians of %d runs:\n", queues, queues == 1 ? "" : "s", asked.runs);
        printFigures(dialogs, figures);
        const std::vector<GoalLine> lines = ratios(queues, figures[0], figures[1]);
        goals.insert(goals.end(), lines.begin(), lines.end());
    }

    const std::vector<Program> printing{
        {"tapeprint --no-dialog", {folder + "/tapeprint", "--no-dialog", "-d", "queue0", file}},
        {"lp", {"/usr/bin/lp", "-d", "queue0", file}}};
    const std::vector<Figures> figures =
        measure(printing, 3 * asked.runs, [&](const Program &program) { return run(program, variables); });
    std::printf("printing without a window, medians of %d runs:\n", 3 * asked.runs);
    printFigures(printing, figures);
    goals.push_back({"printing without a window", "", figures[0].last / figures[1].last, unattendedGoal, "x lp"});

    const int missed = printGoals(goals);
    return asked.isStrict && missed > 0 ? 1 : 0;
}
