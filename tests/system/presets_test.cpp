// SPDX-License-Identifier: Apache-2.0
// A preset saved in the real window is CUPS's own: lp prints with it, lpoptions shows it, and other presets stay.
#include "tests/support/ExitStatuses.h"
#include "tests/system/WindowTest.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace
{

using systemtest::FilterCall;
using systemtest::Outcome;
using systemtest::panelOptionsMm;
using systemtest::tapeOptions;

class PresetJob : public systemtest::WindowTest
{
protected:
    QByteArray run(const QString &program, const QStringList &arguments) const
    {
        const Outcome outcome = systemtest::runClient({program, arguments, variables()});
        EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
        EXPECT_EQ(outcome.messages, "");
        return outcome.output;
    }
    /// The file that libcups reads and writes for root.
    QString optionsPath() const
    {
        for (const auto &[name, value] : variables()) {
            if (name == u"CUPS_SERVERROOT"_qs) {
                return value + u"/lpoptions"_qs;
            }
        }
        return {};
    }
    QByteArray saved() const
    {
        QFile file(optionsPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Prints with lp and waits. \param destination empty: where lp prints that is told nothing. \return what the
    /// filter got.
    std::vector<FilterCall> printedByLp(const QString &destination) const
    {
        const QStringList named = destination.isEmpty() ? QStringList() : QStringList{u"-d"_qs, destination};
        const QByteArray said = run(u"/usr/bin/lp"_qs, named + QStringList{document});
        const auto match = QRegularExpression(u"tape-(\\d+)"_qs).match(QString::fromUtf8(said));
        EXPECT_TRUE(match.hasMatch()) << said.toStdString();
        const int id = match.captured(1).toInt();
        EXPECT_TRUE(cups.waitForEnd(id).has_value());
        return cups.filterCalls(id);
    }
};

bool holds(const systemtest::Words &words, const std::string &word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

TEST_F(PresetJob, SavedInTheWindow_IsUsedByLpAndKeptByLpoptions)
{
    run(u"/usr/bin/lpoptions"_qs, {u"-p"_qs, u"tape/blue"_qs, u"-o"_qs, u"KsTapeColor=KsTapeColorBlue"_qs});
    QFile file(optionsPath());
    ASSERT_TRUE(file.open(QIODevice::Append) && file.write("# of a queue elsewhere\nDest away/thin A=1\n") > 0);
    file.close();

    const QString problem = dialog.open({QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint"),
                                         {u"-d"_qs, u"tape"_qs, u"-o"_qs, u"KsTapeLength=75.5"_qs, document},
                                         variables(),
                                         workFolder});
    ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    dialog.press({u"alt+c"_qs, u"ctrl+a"_qs});
    dialog.type(u"3"_qs);
    // The menu stands beside the presets.
    dialog.press({u"alt+s"_qs, u"Tab"_qs, u"space"_qs, u"s"_qs});
    ASSERT_FALSE(dialog.waitForFurtherWindow().isNull()) << "nobody asks for a name";
    dialog.type(u"small labels"_qs); // the blank keeps Return from taking it
    dialog.press({u"Return"_qs, u"ctrl+a"_qs});
    dialog.type(u"long"_qs);
    dialog.press({u"Return"_qs});
    ASSERT_TRUE(systemtest::waitUntil([this] { return saved().contains("Dest tape/long "); })) << saved().toStdString();
    EXPECT_TRUE(saved().contains("# of a queue elsewhere\nDest away/thin A=1\n")) << saved().toStdString();
    EXPECT_FALSE(saved().contains("small"));
    const QString picture = QStringLiteral(TAPEPRINT_SCREENSHOT_DIR "/preset.png");
    EXPECT_TRUE(display.takePicture(dialog.window(), picture));

    const std::vector<FilterCall> calls = printedByLp(u"tape/long"_qs);
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"KsTapeLength=75.5"}));
    EXPECT_EQ(calls[0].copies(), "3");
    const QByteArray listed = run(u"/usr/bin/lpoptions"_qs, {u"-d"_qs, u"tape/long"_qs}).prepend(' ');
    EXPECT_TRUE(listed.contains(" KsTapeLength=75.5") && listed.contains(" copies=3")) << listed.toStdString();

    // Another program has written the file anew, and made the preset the default: it is among what it knows.
    run(u"/usr/bin/lpoptions"_qs, {u"-p"_qs, u"tape/blue"_qs, u"-o"_qs, u"KsInkColor=KsInkColorGold"_qs});
    const std::vector<FilterCall> again = printedByLp({});
    ASSERT_EQ(again.size(), 1U);
    EXPECT_EQ(tapeOptions(again[0]), panelOptionsMm({"KsTapeLength=75.5"}));
    const std::vector<FilterCall> blue = printedByLp(u"tape/blue"_qs);
    ASSERT_EQ(blue.size(), 1U);
    EXPECT_TRUE(holds(tapeOptions(blue[0]), "KsTapeColor=KsTapeColorBlue"));
}

TEST_F(PresetJob, SavedByTheCommandLine_IsListedUsedAndDeleted)
{
    const QStringList gold{u"-d"_qs, u"tape"_qs, u"-n"_qs, u"2"_qs,
                           u"-P"_qs, u"1"_qs,    u"-o"_qs, u"KsInkColor=KsInkColorGold"_qs};
    const Outcome saved = tapeprint(gold + QStringList{u"--save-preset"_qs, u"gold"_qs});
    EXPECT_EQ(saved.status, 0) << saved.messages.toStdString();
    EXPECT_EQ(saved.output, "Preset tape/gold is saved.\n");
    EXPECT_TRUE(cups.jobs().empty());
    EXPECT_FALSE(this->saved().contains("page-ranges"));

    // A value that is not taken as it is given is not saved in another's place.
    const Outcome refused =
        tapeprint({u"-d"_qs, u"tape"_qs, u"-o"_qs, u"KsInkColor=Invisible"_qs, u"--save-preset"_qs, u"bad"_qs});
    EXPECT_EQ(refused.status, testsupport::refusedValue) << refused.messages.toStdString();
    EXPECT_EQ(tapeprint({u"-d"_qs, u"tape"_qs, u"--list-presets"_qs}).output, "gold\n");

    const std::vector<FilterCall> calls = printedByLp(u"tape/gold"_qs);
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(tapeOptions(calls[0]), panelOptionsMm({"KsInkColor=KsInkColorGold"}));
    EXPECT_EQ(calls[0].copies(), "2");
    const std::vector<FilterCall> own =
        filterCallsOf(tapeprint({u"-d"_qs, u"tape/gold"_qs, u"--no-dialog"_qs, document}));
    ASSERT_EQ(own.size(), 1U);
    EXPECT_EQ(tapeOptions(own[0]), panelOptionsMm({"KsInkColor=KsInkColorGold"}));

    EXPECT_EQ(tapeprint({u"-d"_qs, u"tape"_qs, u"--delete-preset"_qs, u"gold"_qs}).status, 0);
    EXPECT_EQ(tapeprint({u"-d"_qs, u"tape"_qs, u"--delete-preset"_qs, u"gold"_qs}).status, testsupport::badUsage);
    EXPECT_EQ(tapeprint({u"-d"_qs, u"tape"_qs, u"--list-presets"_qs}).output, "");
}

} // namespace
