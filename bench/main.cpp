// SPDX-License-Identifier: Apache-2.0
// panel_bench [--strict]: what the panel costs beside the floor, held against the goals. With --strict a goal that is
// missed makes the exit status 1.
#include "ColdStart.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstdio>

namespace
{

constexpr int kUsualChoices = 10;
constexpr int kUsualPageSizes = 10;

int run(const QStringList &arguments)
{
    if (isColdRun(arguments)) {
        runCold(arguments);
        return 0;
    }
    const bool strict = arguments.contains(QStringLiteral("--strict"));
    if (arguments.size() > (strict ? 2 : 1)) {
        std::fprintf(stderr, "usage: panel_bench [--strict]\n");
        return 2;
    }
    const LoadedBundle loaded;
    const ColdTimes cold = measureCold();
    std::vector<Measurement> choices;
    std::vector<Measurement> pageSizes;
    for (const int count : {10, 100, 1000, 10000}) {
        choices.push_back(measure(loaded, {count, kUsualPageSizes}));
        pageSizes.push_back(measure(loaded, {kUsualChoices, count}));
    }
    printFigures(choices);
    printFigures(pageSizes);
    std::printf("\n");
    const int missed = printGoals(holdAgainstGoals(choices, pageSizes, cold));
    return strict && missed > 0 ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The offscreen platform warns of every window that it has no size hints; printing that is no cost of a panel.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    // Expectations of the shared test harness hold here too: what is not shown must not be called fast.
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    const int status = run(QCoreApplication::arguments());
    return ::testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed() ? 2 : status;
}
