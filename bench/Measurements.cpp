// SPDX-License-Identifier: Apache-2.0
// Showing, acting, memory.
#include "Measurements.h"

#include "Stopwatch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTemporaryFile>

#include <array>
#include <functional>
#include <memory>

#include <malloc.h>

namespace
{

constexpr Seconds kShowingTime(2.5);
constexpr Seconds kActionTime(0.15);
constexpr int kLeastRounds = 30;
constexpr std::size_t kActions = 13;

/// Bytes that the program holds from the heap.
double heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// A description on disk, where libcups reads it.
class PpdOnDisk
{
public:
    explicit PpdOnDisk(const PpdSize &size)
    {
        const QByteArray text = ppdOfSize(size);
        EXPECT_TRUE(mFile.open() && mFile.write(text) == text.size() && mFile.flush());
        mPath = mFile.fileName().toUtf8();
    }
    const char *path() const { return mPath.constData(); }

private:
    QTemporaryFile mFile;
    QByteArray mPath;
};

/// What a measurement repeats: one action, different each time it is done.
struct Action {
    const char *name;
    std::function<void(bool other)> act;
};

void pickItem(BenchedPanel &panel, const char *popUpName, bool other)
{
    auto *popUp = panel.outlet<QComboBox>(popUpName);
    popUp->setCurrentIndex(popUp->count() - (other ? 2 : 1));
    Q_EMIT popUp->activated(popUp->currentIndex());
}

void pickRow(BenchedPanel &panel, const char *matrixName, bool other)
{
    auto *matrix = panel.outlet<pdekit::RadioMatrix>(matrixName);
    matrix->selectCellAtRow(other ? 1 : 0, 0);
    Q_EMIT matrix->action();
}

std::vector<Action> actionsOf(BenchedPanel &panel)
{
    std::vector<Action> actions;
    actions.reserve(kActions);
    constexpr std::array<std::pair<const char *, const char *>, 3> matrices = {{
        {"pick of a quality", "mPrintQualityRdBtn"},
        {"pick of a resolution", "mResolutionRdBtn"},
        {"pick of a compression", "mCompressRdBtn"},
    }};
    for (const auto &[name, outlet] : matrices) {
        actions.push_back({name, [&panel, outlet = outlet](bool other) { pickRow(panel, outlet, other); }});
    }
    constexpr std::array<std::pair<const char *, const char *>, 4> popUps = {{
        {"pick of a print mode", "mKsResolutionPUBtn"},
        {"pick of a tape material", "mTapeTypePopBtn"},
        {"pick of a tape colour", "mTapeColorPopBtn"},
        {"pick of an ink colour", "mInkColorPopBtn"},
    }};
    for (const auto &[name, outlet] : popUps) {
        actions.push_back({name, [&panel, outlet = outlet](bool other) { pickItem(panel, outlet, other); }});
    }
    auto *slider = panel.outlet<pdekit::Slider>("mLengthSlider");
    slider->setFloatValue(100.0F);
    // No input event: as while the person drags, when nothing is checked.
    actions.push_back({kTick, [slider](bool other) {
                           slider->setFloatValue(other ? 101.0F : 100.0F);
                           Q_EMIT slider->action();
                       }});
    actions.push_back({kFullCheck, [slider](bool other) {
                           QKeyEvent key(QEvent::KeyPress, other ? Qt::Key_Right : Qt::Key_Left, Qt::NoModifier);
                           QCoreApplication::sendEvent(slider, &key);
                       }});
    actions.push_back({kSave, [&panel](bool) { panel.panel().saveValuesAndReturnError(nullptr); }});
    actions.push_back({"summary", [&panel](bool) { panel.panel().summaryInfo(); }});
    actions.push_back({"may I print", [&panel](bool) { panel.panel().shouldPrint(); }});
    actions.push_back({"change of tape in the dialog", [&panel](bool other) {
                           const ppd_file_t *ppd = panel.callback().ppd.get();
                           const char *name = ppd->sizes[ppd->num_sizes - (other ? 2 : 1)].name;
                           panel.callback().usePaper(name);
                           panel.panel().PPDOptionKeyValueDidChange(QStringLiteral("PageSize"),
                                                                    QString::fromUtf8(name));
                           panel.panel().willShow();
                       }});
    return actions;
}

ShowingTimes measureShowing(const LoadedBundle &loaded, const PpdOnDisk &file)
{
    Shortest open;
    Shortest bareShow;
    Shortest construct;
    Shortest show;
    repeat(kShowingTime, kLeastRounds, [&] {
        OpenPpd ppd;
        open.take(timeOf([&] { ppd.reset(ppdOpenFile(file.path())); }));
        ppdMarkDefaults(ppd.get());
        {
            BareInterface bare(loaded);
            bareShow.take(timeOf([&] {
                bare.load();
                bare.show();
            }));
        }
        BenchedPanel panel(loaded, std::move(ppd));
        construct.take(timeOf([&] { panel.construct(); }));
        show.take(timeOf([&] { panel.show(); }));
    });
    return {open.milliseconds(), bareShow.milliseconds(), construct.milliseconds(), show.milliseconds()};
}

void measureActions(BenchedPanel &panel, Measurement *measurement)
{
    const std::vector<Action> actions = actionsOf(panel);
    std::vector<Shortest> times(actions.size());
    Shortest repaint;
    bool other = false;
    repeat(kActionTime * static_cast<double>(actions.size()), kLeastRounds * 2, [&] {
        other = !other;
        for (std::size_t i = 0; i < actions.size(); ++i) {
            times[i].take(timeOf([&] { actions[i].act(other); }));
            QCoreApplication::processEvents();
        }
        repaint.take(timeOf([&] { panel.view()->repaint(); }));
        panel.callback().sent.clear();
    });
    for (std::size_t i = 0; i < actions.size(); ++i) {
        measurement->actions.push_back({actions[i].name, times[i].milliseconds()});
    }
    measurement->repaint = repaint.milliseconds();
}

} // namespace

double Measurement::action(const std::string &name) const
{
    for (const ActionTime &each : actions) {
        if (each.name == name) {
            return each.milliseconds;
        }
    }
    ADD_FAILURE() << "No action is called " << name;
    return 0.0;
}

Measurement measure(const LoadedBundle &loaded, const PpdSize &size)
{
    const PpdOnDisk file(size);
    Measurement measurement;
    measurement.size = size;
    measurement.showing = measureShowing(loaded, file);

    OpenPpd ppd = openPpd(file.path());
    const double before = heapBytes();
    BenchedPanel panel(loaded, std::move(ppd));
    panel.construct();
    panel.show();
    measurement.bytes = heapBytes() - before;
    measureActions(panel, &measurement);
    return measurement;
}
