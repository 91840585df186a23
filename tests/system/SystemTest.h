// SPDX-License-Identifier: Apache-2.0
// What the tests of the main job share: a private server with a queue, the program, and a job's way to the filter.
#pragma once

#include "tests/support/TextPrinting.h"
#include "tests/system/Client.h"
#include "tests/system/LabelBytes.h"
#include "tests/system/PrivateCups.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace systemtest
{

using Words = std::vector<std::string>;

/// The words of argv[5] that are about the tape: NAME=VALUE, sorted; a word that stands there twice is there twice.
Words tapeOptions(const FilterCall &call);

/// What the panel sends for the millimetre printer when nothing was laid down and nothing was touched, sorted.
/// \param changed NAME=VALUE words that take the place of those of the same name.
Words panelOptionsMm(const Words &changed = {});

class SystemTest : public testing::Test
{
protected:
    /// Starts the server with the queue "tape", or skips the test where no server can be run.
    void SetUp() override;

    /// The description of the sample printer "mm" that names a plug-in itself; its path.
    QString ppdThatNames(const QString &bundle) const;
    /// Runs the program.
    Outcome tapeprint(const QStringList &arguments, const QByteArray &input = {}) const;
    /// Runs the program without a window on the queue "tape" and waits for its job.
    std::vector<FilterCall> printed(const QStringList &arguments, const QByteArray &input = {}) const;
    /// Waits for the job that the program named. \return the runs of the filter; none, and a failure, when the job was
    /// not completed.
    std::vector<FilterCall> filterCallsOf(const Outcome &outcome) const;
    /// Variables of the program's environment.
    std::vector<std::pair<QString, QString>> variables() const;

    /// A document of so many pages, each as large as the 24 mm tape of 100 mm.
    QString documentOf(int pages) const;

    PrivateFolder folder;
    QString workFolder = folder.makeFolder(QStringLiteral("work"));
    QString document = QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/sample/address-label.pdf");
    std::vector<std::pair<QString, QString>> moreVariables;
    PrivateCups cups;
};

} // namespace systemtest
