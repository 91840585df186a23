// SPDX-License-Identifier: Apache-2.0
// The pop-up of papers of a description that names thousands: the window goes on answering.
#include "TestPrinter.h"

#include "dialog/PaperMenu.h"
#include "dialog/PopUp.h"
#include "tests/support/Noticeable.h"
#include "tests/support/ProcessorTime.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

/// The test PPD with papers P0, P1 and so on beside its own two.
QByteArray ppdWithPapers(int count)
{
    QByteArray names;
    QByteArray regions;
    QByteArray areas;
    QByteArray measures;
    for (int i = 0; i < count; ++i) {
        const QByteArray name = "P" + QByteArray::number(i);
        const QByteArray size = QByteArray::number(100 + i % 500) + ' ' + QByteArray::number(200 + i);
        names += "*PageSize " + name + "/Paper " + QByteArray::number(i) + ": \"\"\n";
        regions += "*PageRegion " + name + ": \"\"\n";
        areas += "*ImageableArea " + name + ": \"0 0 " + size + "\"\n";
        measures += "*PaperDimension " + name + ": \"" + size + "\"\n";
    }
    QByteArray ppd = hosttest::testPpd();
    ppd.replace("*CloseUI: *PageSize\n", names + "*CloseUI: *PageSize\n");
    ppd.replace("*CloseUI: *PageRegion\n", regions + "*CloseUI: *PageRegion\n");
    ppd.replace("*DefaultImageableArea: W12\n", "*DefaultImageableArea: W12\n" + areas);
    ppd.replace("*DefaultPaperDimension: W12\n", "*DefaultPaperDimension: W12\n" + measures);
    return ppd;
}

TEST(PaperMenu, OfTenThousandPapers_NeverKeepsTheWindowWaiting)
{
    const QTemporaryDir folder;
    job::Problem problem;
    job::Destination destination;
    destination.ppdPath = hosttest::writeFile(folder, u"papers.ppd"_qs, ppdWithPapers(10000));
    destination.ppd = job::openPpdFile(destination.ppdPath, &problem);
    ASSERT_NE(destination.ppd, nullptr) << problem.sentence.toStdString();
    job::Job job;
    job.open(std::move(destination), hosttest::options({{u"PageSize"_qs, u"P9999"_qs}}));
    MeasureUnit unit;
    PopUp popUp(nullptr);
    PaperMenu papers(popUp, job, unit, nullptr);
    popUp.show();
    QApplication::processEvents();

    EXPECT_LT(test::processorMsOf([&] {
                  papers.fill();
                  papers.follow();
                  QApplication::processEvents();
              }),
              test::noticeableMs);
    EXPECT_EQ(popUp.count(), 10002);
    EXPECT_EQ(popUp.currentText(), u"Paper 9999"_qs);
    EXPECT_LT(test::processorMsOf([&] {
                  popUp.showPopup();
                  QApplication::processEvents();
              }),
              test::noticeableMs);
    popUp.hidePopup();
    EXPECT_LT(test::processorMsOf([&] {
                  job.changeOption(job::OptionName::pageSize, u"W24"_qs);
                  papers.follow();
                  QApplication::processEvents();
              }),
              test::noticeableMs);
    EXPECT_EQ(popUp.currentText(), u"24 mm"_qs);
}

} // namespace
