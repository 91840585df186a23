// SPDX-License-Identifier: Apache-2.0
// What the program takes stands everywhere a person looks for it: in --help, in the manual page, in the completions.
#include "tapeprint/CommandLine.h"
#include "tapeprint/ExitStatus.h"
#include "tapeprint/ProgramOptions.h"

#include "tests/support/ExitStatuses.h"
#include "tests/support/TextPrinting.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{

using tapeprint::ProgramOption;
using tapeprint::job::Problem;

QString manualPage()
{
    QFile file(QStringLiteral(TAPEPRINT_SOURCE_DIR "/packaging/tapeprint.1"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll()).replace(u"\\-"_qs, u"-"_qs);
}

TEST(DocumentedOptions, StandInTheHelpAndInTheManualPageAndNothingElseDoes)
{
    const QString help = tapeprint::commandLineHelp();
    const QString manual = manualPage();
    QStringList documented;
    for (const ProgramOption &option : tapeprint::programOptions()) {
        if (option.help == nullptr) {
            continue;
        }
        const QString name = QString::fromLatin1(option.name);
        documented.append(name);
        EXPECT_TRUE(help.contains(u"\n  "_qs + name + u' ')) << option.name;
        const QRegularExpression entry(u"\n\\.TP\n\\.BI? "_qs + name + u"[ \n]"_qs);
        EXPECT_TRUE(entry.match(manual).hasMatch()) << option.name;
    }
    QRegularExpressionMatchIterator entries =
        QRegularExpression(u"\n\\.TP\n\\.BI? (--?[A-Za-z-]+)"_qs).globalMatch(manual);
    int count = 0;
    for (; entries.hasNext(); ++count) {
        const QString name = entries.next().captured(1);
        EXPECT_TRUE(name == u"-o" || documented.contains(name)) << name.toStdString();
    }
    EXPECT_GE(count, documented.size());
}

TEST(DocumentedOptions, StatusesAreThoseThatScriptsRelyOn)
{
    const std::vector<std::pair<Problem::Kind, testsupport::ExitStatus>> statuses{
        {Problem::General, testsupport::general},
        {Problem::BadUsage, testsupport::badUsage},
        {Problem::BadDocument, testsupport::badDocument},
        {Problem::Conflict, testsupport::conflict},
        {Problem::RefusedValue, testsupport::refusedValue},
        {Problem::NoSuchPrinter, testsupport::noSuchPrinter},
        {Problem::Unreachable, testsupport::unreachable},
        {Problem::RejectedJob, testsupport::rejectedJob},
        {Problem::UnwritableOutput, testsupport::unwritableOutput},
        {Problem::BadDescription, testsupport::badDescription},
        {Problem::FailedJob, testsupport::failedJob},
        {Problem::Cancelled, testsupport::cancelled},
    };
    const QString help = tapeprint::commandLineHelp();
    const QString manual = manualPage();
    for (const auto &[kind, status] : statuses) {
        EXPECT_EQ(tapeprint::exitStatus(kind), status);
        const QString name = tapeprint::kindName(kind);
        // In the manual page the number, and the name that JSON has for it.
        EXPECT_TRUE(manual.contains(QStringLiteral("\n.TP\n.BR %1 \" (%2)\"\n").arg(QString::number(status), name)))
            << name.toStdString();
        EXPECT_TRUE(help.contains(QStringLiteral("\n  %1  ").arg(static_cast<int>(status), 2))) << status;
    }
}

} // namespace
