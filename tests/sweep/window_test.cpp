// SPDX-License-Identifier: Apache-2.0
// Printers in the window: it opens, draws, shows what libcups has marked, and changes nothing by being looked at.
#include "dialog/OptionsPage.h"
#include "dialog/PrintDialog.h"
#include "job/PlainText.h"
#include "job/PpdMarks.h"
#include "tests/support/TextPrinting.h"
#include "tests/sweep/PpdFolder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace
{

using namespace tapeprint;
using dialog::PrintDialog;
using sweeptest::libcupsView;

QStringList shownTexts(const QWidget &window)
{
    QStringList texts;
    for (const QLabel *label : window.findChildren<const QLabel *>()) {
        texts.append(label->text());
    }
    for (const QAbstractButton *button : window.findChildren<const QAbstractButton *>()) {
        texts.append(button->text());
    }
    for (const QComboBox *popUp : window.findChildren<const QComboBox *>()) {
        for (int row = 0; row < popUp->count(); ++row) {
            texts.append(popUp->itemText(row));
        }
    }
    return texts;
}

QString problemOfTexts(const QWidget &window)
{
    for (const QString &text : shownTexts(window)) {
        for (const QString &line : text.split(u'\n')) {
            if (job::harmless(line) != line || line.contains(QChar::ReplacementCharacter)) {
                return u"a text that cannot be drawn: "_qs + text;
            }
        }
    }
    return {};
}

/// Whether an option's pop-up shows what libcups has marked. Options without a pop-up are shown by other means.
bool showsMark(const QWidget &options, ppd_file_t *ppd, const ppd_option_t &option)
{
    const QString keyword = QString::fromUtf8(option.keyword);
    const auto *popUp = options.findChild<const QComboBox *>(keyword);
    const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, option.keyword);
    return popUp == nullptr || marked == nullptr || qstricmp(marked->choice, "Custom") == 0 ||
           popUp->currentData().toString().compare(QString::fromUtf8(marked->choice), Qt::CaseInsensitive) == 0;
}

QString problemOfMarks(const PrintDialog &window, ppd_file_t *ppd)
{
    const auto *options = window.findChild<const dialog::OptionsPage *>();
    QString problem;
    job::forEachOption(ppd, [&](const ppd_option_t &option) {
        if (options != nullptr && problem.isNull() && !showsMark(*options, ppd, option)) {
            problem = u"another choice is shown: "_qs + QString::fromUtf8(option.keyword);
        }
    });
    return problem;
}

bool hasDrawn(PrintDialog &window)
{
    const QImage image = window.grab().toImage();
    const QRgb corner = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != corner) {
                return true;
            }
        }
    }
    return false;
}

/// Turns to each page of the window, as a person who looks around.
void lookAround(const PrintDialog &window)
{
    if (auto *chooser = window.findChild<QComboBox *>(u"pageChooser"_qs)) {
        for (int row = 0; row < chooser->count(); ++row) {
            chooser->setCurrentIndex(row);
            Q_EMIT chooser->activated(row);
            QApplication::processEvents();
        }
    }
}

QString problemOfWindow(const QString &path)
{
    job::Job printJob;
    dialog::Panels panels(printJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)});
    panels.open(sweeptest::destinationOf(path), {});
    const job::JobOptions before = printJob.options();
    PrintDialog window(printJob, panels, PrintDialog::Setup{{}, u"label"_qs, {}, {}},
                       [](auto &&...) -> std::optional<job::PrintedJob> { return {}; });
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return u"no window"_qs;
    }
    if (auto *options = window.findChild<dialog::OptionsPage *>()) {
        options->finish();
    }
    lookAround(window);
    if (printJob.options() != before) {
        return u"changed by being looked at: "_qs + printJob.options().lines().join(u' ') + u" instead of "_qs +
               before.lines().join(u' ');
    }
    if (!hasDrawn(window)) {
        return u"nothing is drawn"_qs;
    }
    const QString problem = problemOfTexts(window);
    return problem.isNull() ? problemOfMarks(window, libcupsView(path).get()) : problem;
}

TEST(Window, ShowsWhatLibcupsHasMarkedAndChangesNothing)
{
    bool isSet = false;
    const int every = qEnvironmentVariableIntValue("TAPEPRINT_SWEEP_WINDOWS", &isSet);
    constexpr int usually = 50; // a window takes as long as fifty looks at its description
    sweeptest::forEveryPpd(problemOfWindow, isSet ? std::max(every, 1) : usually);
}

} // namespace
