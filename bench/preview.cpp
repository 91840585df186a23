// SPDX-License-Identifier: Apache-2.0
// preview_bench [--strict]: how soon a change is in the preview, held against a frame of a 60 Hz screen, and how long
// it takes to find what is drawn on a label. With --strict a goal that is missed makes the exit status 1.
#include "Goals.h"
#include "Stopwatch.h"

#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/TapePreview.h"
#include "job/PdfPages.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <cstdio>
#include <vector>

namespace
{

using namespace tapeprint;

constexpr double kFrameMs = 1000.0 / 60.0;
constexpr double kDrawnRectMs = 50.0;
constexpr Seconds kTime(2.0);
constexpr int kLeastRounds = 50;
constexpr QSizeF kLabelMm(100.0, 24.0);

/// A label such as a person prints: three lines of text and a frame.
void writeLabel(const QString &path)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(kLabelMm, QPageSize::Millimeter));
    writer.setPageMargins({});
    QPainter painter(&writer);
    const QRect page(0, 0, writer.width(), writer.height());
    painter.drawRect(page.adjusted(20, 20, -20, -20));
    painter.drawText(page, Qt::AlignCenter, QStringLiteral("Ada Example\n12 Sample Street\n12345 Exampletown"));
}

/// From the press of an arrow key on the panel's length slider until the preview has been painted with the new length.
/// Negative when there is nothing to measure.
double changeToRepaint(const QString &label)
{
    job::Problem error;
    job::Destination destination;
    destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd");
    destination.ppd = job::openPpdFile(destination.ppdPath, &error);
    job::Job printJob;
    dialog::Panels panels(printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)});
    panels.open(std::move(destination), {});
    dialog::PrintDialog window(printJob, panels, {{}, QStringLiteral("label"), {label}, {}}, nullptr);
    window.show();
    auto *slider = window.findChild<QAbstractSlider *>(QStringLiteral("mLengthSlider"));
    auto *preview = window.findChild<dialog::TapePreview *>();
    const auto *area = window.findChild<dialog::PreviewArea *>();
    if (slider == nullptr || preview == nullptr) {
        return -1.0;
    }
    while (area->isWorking()) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    Shortest shortest;
    bool isRight = false;
    bool isFollowed = true;
    repeat(kTime, kLeastRounds, [&] {
        isRight = !isRight;
        const QString before = preview->accessibleDescription();
        shortest.take(timeOf([&] {
            QKeyEvent press(QEvent::KeyPress, isRight ? Qt::Key_Right : Qt::Key_Left, Qt::NoModifier);
            QApplication::sendEvent(slider, &press);
            QApplication::processEvents(); // the dialog follows, and what changed is painted
            preview->repaint();            // a window that is not on a screen need not have been
        }));
        isFollowed = isFollowed && preview->accessibleDescription() != before;
    });
    return isFollowed ? shortest.milliseconds() : -1.0;
}

/// What is drawn on the label, as automatic length asks for it. Negative when nothing is found.
double findDrawnRect(const QString &label)
{
    job::Problem error;
    const std::unique_ptr<job::PdfPages> pages = job::PdfPages::open(label, &error);
    if (pages == nullptr) {
        return -1.0;
    }
    static const std::atomic<bool> goOn = false;
    Shortest shortest;
    bool isFound = true;
    repeat(kTime, kLeastRounds,
           [&] { shortest.take(timeOf([&] { isFound = pages->drawnRect(0, goOn).has_value() && isFound; })); });
    return isFound ? shortest.milliseconds() : -1.0;
}

int run(const QStringList &arguments)
{
    const bool strict = arguments.contains(QStringLiteral("--strict"));
    if (arguments.size() > (strict ? 2 : 1)) {
        std::fprintf(stderr, "usage: preview_bench [--strict]\n");
        return 2;
    }
    const QTemporaryDir folder;
    const QString label = folder.filePath(QStringLiteral("label.pdf"));
    writeLabel(label);
    const std::vector<GoalLine> lines = {
        {"change of the length to repainted preview, one-page label", "", changeToRepaint(label), kFrameMs, "ms"},
        {"what is drawn on a one-page label", "", findDrawnRect(label), kDrawnRectMs, "ms"},
    };
    for (const GoalLine &line : lines) {
        if (line.value < 0.0) {
            std::fprintf(stderr, "not measured: %s\n", line.what.c_str());
            return 2;
        }
    }
    const int missed = printGoals(lines);
    return strict && missed > 0 ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The offscreen platform warns of every window that it has no size hints; printing that is no cost of a preview.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const QApplication application(argc, argv);
    return run(QCoreApplication::arguments());
}
