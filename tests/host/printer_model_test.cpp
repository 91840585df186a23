// SPDX-License-Identifier: Apache-2.0
// The rows of the printer pop-up, and how they follow a list that changes.
#include "dialog/PrinterModel.h"
#include "dialog/PrinterPopUp.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QIcon>
#include <QPixmap>
#include <QSignalSpy>
#include <QStyleOptionComboBox>

#include <cstdlib>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using dialog::PrinterModel;
using dialog::PrinterRow;

PrinterRow row(const QString &name, job::PrinterState state = job::PrinterState::Idle)
{
    PrinterRow row;
    row.printer.name = name;
    row.printer.state = state;
    return row;
}

std::vector<PrinterRow> rows(const QStringList &names)
{
    std::vector<PrinterRow> rows;
    for (const QString &name : names) {
        rows.push_back(row(name));
    }
    return rows;
}

QStringList namesIn(const PrinterModel &model)
{
    QStringList names;
    for (int i = 0; i < model.rowCount(); ++i) {
        names.append(model.index(i).data(PrinterModel::NameRole).toString());
    }
    return names;
}

TEST(PrinterModel, RowThatIsPointedAt_StaysTheSamePrinter)
{
    PrinterModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setRows(rows({u"b"_qs, u"d"_qs, u"f"_qs}));
    const QPersistentModelIndex pointed = model.index(1);
    const std::vector<QStringList> steps{{u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs, u"e"_qs, u"f"_qs},
                                         {u"d"_qs},
                                         {u"x"_qs, u"d"_qs, u"y"_qs},
                                         {u"d"_qs, u"x"_qs, u"y"_qs},
                                         {u"y"_qs, u"z"_qs, u"d"_qs}};
    for (const QStringList &step : steps) {
        model.setRows(rows(step));
        EXPECT_EQ(namesIn(model), step);
        if (step != steps.back()) { // a row that comes out of its order is made anew
            ASSERT_TRUE(pointed.isValid());
            EXPECT_EQ(pointed.data(PrinterModel::NameRole).toString(), u"d"_qs);
        }
    }
    model.setRows({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(PrinterModel, ChangeOfAState_IsToldOfItsRowAlone)
{
    PrinterModel model;
    model.setRows(rows({u"a"_qs, u"b"_qs, u"c"_qs}));
    QSignalSpy changes(&model, &PrinterModel::dataChanged);
    model.setRows({row(u"a"_qs), row(u"b"_qs, job::PrinterState::Stopped), row(u"c"_qs)});
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
    model.setRows({row(u"a"_qs), row(u"b"_qs, job::PrinterState::Stopped), row(u"c"_qs)});
    EXPECT_EQ(changes.size(), 1);
}

TEST(PrinterModel, Row_SaysWhatThereIsToKnow)
{
    PrinterRow hall = row(u"tape"_qs, job::PrinterState::Stopped);
    hall.printer.info = u"Tape <b>printer</b>"_qs;
    hall.printer.location = u"Hall"_qs;
    hall.printer.isDefault = true;
    hall.printer.reasons = job::stateReasons({u"media-empty"_qs});
    PrinterRow network = row(u"found"_qs, job::PrinterState::Unknown);
    network.printer.isDiscovered = true;
    PrinterRow gone = row(u"gone"_qs);
    gone.isGone = true;
    PrinterModel model;
    model.setIsTape(true);
    model.setRows({hall, network, gone});
    const QModelIndex index = model.index(0);
    // A mark alone does not say why; where the printer is chosen, the notices do.
    EXPECT_EQ(index.data().toString(), u"tape (Tape <b>printer</b>) (default) – Stopped: out of tape"_qs);
    EXPECT_EQ(index.data(PrinterModel::TitleRole).toString(), u"tape (Tape <b>printer</b>) (default)"_qs);
    EXPECT_EQ(index.data(Qt::AccessibleTextRole).toString(),
              u"tape (Tape <b>printer</b>) (default), Stopped: out of tape"_qs);
    EXPECT_EQ(index.data(PrinterModel::AboutRole).toString(), u"Location: Hall; Stopped: out of tape"_qs);
    const QString toolTip = index.data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(toolTip.contains(u"&lt;b&gt;printer"_qs)) << toolTip.toStdString();
    EXPECT_TRUE(toolTip.contains(u"Location: Hall"_qs)) << toolTip.toStdString();
    EXPECT_TRUE(toolTip.contains(u"Stopped: out of tape"_qs)) << toolTip.toStdString();
    EXPECT_FALSE(index.data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(index.data(PrinterModel::SearchRole).toString().contains(u"Hall"_qs));
    EXPECT_TRUE(model.index(1).data(Qt::ToolTipRole).toString().contains(u"Found on the network"_qs));
    EXPECT_FALSE(model.index(1).data(Qt::DecorationRole).value<QIcon>().isNull()); // its name begins where others do
    EXPECT_EQ(model.index(1).data().toString(), u"found"_qs);
    EXPECT_EQ(model.index(2).data().toString(), u"gone – not there any more"_qs);
    EXPECT_EQ(model.index(2).data(Qt::AccessibleTextRole).toString(), u"gone, not there any more"_qs);
}

TEST(PrinterModel, ChosenPrinter_IsShownWithoutItsState)
{
    class Looked : public dialog::PrinterPopUp
    {
    public:
        using PrinterPopUp::initStyleOption;
    };
    PrinterModel model;
    model.setRows({row(u"tape"_qs, job::PrinterState::Stopped)});
    Looked popUp;
    popUp.setModel(&model);
    popUp.setCurrentIndex(0);
    QStyleOptionComboBox option;
    popUp.initStyleOption(&option);
    EXPECT_EQ(option.currentText, u"tape"_qs);
    EXPECT_EQ(popUp.currentText(), u"tape – Stopped"_qs); // which is heard
}

TEST(PrinterModel, MarksOfAllStates_DifferByShapeWithoutTheirColours)
{
    PrinterRow warned = row(u"warned"_qs);
    warned.printer.reasons = job::stateReasons({u"media-low"_qs});
    PrinterRow closed = row(u"closed"_qs);
    closed.printer.isAccepting = false;
    PrinterModel model;
    model.setRows({row(u"idle"_qs), row(u"busy"_qs, job::PrinterState::Processing),
                   row(u"paused"_qs, job::PrinterState::Stopped), warned, closed});
    constexpr int side = 16;
    std::vector<QImage> shapes;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QPixmap mark = model.index(i).data(Qt::DecorationRole).value<QIcon>().pixmap(QSize(side, side), 1.0);
        shapes.push_back(mark.toImage().convertToFormat(QImage::Format_Alpha8));
    }
    const auto differingDots = [](const QImage &one, const QImage &other) {
        int dots = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                dots += std::abs(one.constScanLine(y)[x] - other.constScanLine(y)[x]) > 127 ? 1 : 0;
            }
        }
        return dots;
    };
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_GT(differingDots(shapes[i], shapes[j]), side * side / 10) << i << " and " << j;
        }
    }
}

TEST(PrinterModel, FiveHundredPrintersOfWhichOneComes_TakeNoTimeToSpeakOf)
{
    QStringList names;
    for (int i = 0; i < 500; ++i) {
        names.append(QStringLiteral("printer-%1").arg(i));
    }
    PrinterModel model;
    QElapsedTimer timer;
    timer.start();
    model.setRows(rows(names));
    names.insert(250, u"new"_qs);
    model.setRows(rows(names));
    EXPECT_LT(timer.elapsed(), 100);
    EXPECT_EQ(namesIn(model), names);
}

} // namespace
