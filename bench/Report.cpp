// SPDX-License-Identifier: Apache-2.0
// The goals and the tables.
#include "Report.h"

#include <QString>

#include <cstdio>

namespace
{

constexpr double kShowingGoal = 1.1;
constexpr double kActionGoalMs = 1000.0 / 60.0 / 10.0;
constexpr int kActionGoalChoices = 100;
constexpr double kGrowthGoal = 11.0;
constexpr double kRepaintGoal = 1.0;
constexpr double kBytesGoal = 1024.0;
constexpr int kChoiceOptions = 7;

std::string nameOf(const PpdSize &size)
{
    return QString::asprintf("%d choices, %d page sizes", size.choices, size.pageSizes).toStdString();
}

std::string milliseconds(double upper, double lower)
{
    return QString::asprintf("%.3f / %.3f ms", upper, lower).toStdString();
}

void addShowing(std::span<const Measurement> measurements, std::vector<GoalLine> *lines)
{
    for (const Measurement &each : measurements) {
        lines->push_back({"showing / floor, " + nameOf(each.size),
                          milliseconds(each.showing.panel(), each.showing.floor()),
                          each.showing.panel() / each.showing.floor(), kShowingGoal, "x"});
    }
}

void addActions(const Measurement &measurement, std::vector<GoalLine> *lines)
{
    for (const ActionTime &action : measurement.actions) {
        lines->push_back({action.name + ", " + nameOf(measurement.size), "", action.milliseconds, kActionGoalMs, "ms"});
    }
}

void addGrowth(std::span<const Measurement> measurements, std::vector<GoalLine> *lines)
{
    // Of each step by ten the worst.
    const auto worst = [&](const std::string &what, const auto &timeOf) {
        GoalLine line{"growth by ten: " + what, "", 0.0, kGrowthGoal, "x"};
        for (std::size_t i = 1; i < measurements.size(); ++i) {
            const double growth = timeOf(measurements[i]) / timeOf(measurements[i - 1]);
            if (growth > line.value) {
                line.value = growth;
                line.figures = milliseconds(timeOf(measurements[i]), timeOf(measurements[i - 1])) + ", at " +
                               nameOf(measurements[i].size);
            }
        }
        lines->push_back(line);
    };
    worst("construction", [](const Measurement &each) { return each.showing.construct; });
    worst("first showing", [](const Measurement &each) { return each.showing.show; });
    for (const ActionTime &action : measurements.front().actions) {
        worst(action.name, [&](const Measurement &each) { return each.action(action.name); });
    }
}

} // namespace

std::vector<GoalLine> holdAgainstGoals(std::span<const Measurement> choices, std::span<const Measurement> pageSizes,
                                       const ColdTimes &cold)
{
    std::vector<GoalLine> lines;
    lines.push_back({"showing / floor, first in a process", milliseconds(cold.panel, cold.floor),
                     cold.panel / cold.floor, kShowingGoal, "x"});
    addShowing(choices, &lines);
    addShowing(pageSizes, &lines);
    for (const auto &measurements : {choices, pageSizes}) {
        for (const Measurement &each : measurements) {
            if (each.size.choices == kActionGoalChoices || each.size.pageSizes == kActionGoalChoices) {
                addActions(each, &lines);
            }
        }
        for (const Measurement &each : measurements) {
            for (const char *name : {kTick, kFullCheck}) {
                lines.push_back({std::string(name) + " / repaint, " + nameOf(each.size),
                                 milliseconds(each.action(name), each.repaint), each.action(name) / each.repaint,
                                 kRepaintGoal, "x"});
            }
        }
        addGrowth(measurements, &lines);
    }
    const Measurement &least = choices.front();
    const Measurement &most = choices.back();
    lines.push_back({"memory of one more choice", "",
                     (most.bytes - least.bytes) / kChoiceOptions / (most.size.choices - least.size.choices), kBytesGoal,
                     "bytes"});
    return lines;
}

void printFigures(std::span<const Measurement> measurements)
{
    for (const Measurement &each : measurements) {
        const ShowingTimes &showing = each.showing;
        std::printf("%s (ms)\n", nameOf(each.size).c_str());
        std::printf("  open PPD %.3f, bare interface %.3f, construction %.3f, first showing %.3f, repaint %.3f\n ",
                    showing.openPpd, showing.bareShow, showing.construct, showing.show, each.repaint);
        for (const ActionTime &action : each.actions) {
            std::printf(" %s %.4f;", action.name.c_str(), action.milliseconds);
        }
        std::printf("\n");
    }
}
