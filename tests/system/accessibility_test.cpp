// SPDX-License-Identifier: Apache-2.0
// What a screen reader finds in the program's real window, on a session bus of the test's own.
#include "tests/support/TextPrinting.h"
#include "tests/system/Client.h"
#include "tests/system/PrivateCups.h"
#include "tests/system/PrivateDisplay.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace
{

/// A control as it is heard.
struct Heard {
    QString role;
    QString name;
    QString description;
    QStringList labels;
    QStringList states;
    std::vector<double> value; ///< the value and its limits; empty when there is none
    QString text;              ///< what stands in a field

    bool takesKeys() const { return states.contains(u"focusable"_qs) && states.contains(u"showing"_qs); }
    QString said() const { return (QStringList{role, name} + labels).join(u'/'); }
};

QStringList strings(const QJsonValue &list)
{
    QStringList found;
    for (const QJsonValue &entry : list.toArray()) {
        found.append(entry.toString());
    }
    return found;
}

Heard heardOf(const QJsonObject &line)
{
    Heard heard{line[u"role"_qs].toString(), line[u"name"_qs].toString(), line[u"description"_qs].toString(),
                strings(line[u"labels"_qs]), strings(line[u"states"_qs]), {},
                line[u"text"_qs].toString()};
    for (const QJsonValue &number : line[u"value"_qs].toArray()) {
        heard.value.push_back(number.toDouble());
    }
    return heard;
}

class ScreenReader : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString launcher = u"/usr/libexec/at-spi-bus-launcher"_qs;
        ASSERT_TRUE(QFileInfo::exists(launcher)) << "install at-spi2-core";
        const QString reason = systemtest::PrivateDisplay::reasonToSkip();
        ASSERT_TRUE(reason.isNull()) << reason.toStdString();
        const QString problem = display.start();
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
    }

    /// Opens the window and hears all of it.
    /// \param steps keys that are pressed one after the other, after each of which all is heard again.
    void listen(const QStringList &arguments, const QStringList &steps = {})
    {
        QStringList presses;
        for (const QString &keys : steps) {
            presses += {u"--press"_qs, keys};
        }
        const QString reader = QStringLiteral(TAPEPRINT_SOURCE_DIR "/tests/system/read_accessible.py");
        variables.insert(variables.end(),
                         {{u"DISPLAY"_qs, display.name()},
                          {u"XDG_RUNTIME_DIR"_qs, folder.makeFolder(u"run"_qs)},
                          {u"XDG_DATA_DIRS"_qs, u"/usr/share"_qs}, // the settings that the bus asks for
                          {u"GSETTINGS_BACKEND"_qs, u"memory"_qs},
                          {u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_qs, u"1"_qs}});
        const systemtest::Outcome outcome = systemtest::runClient(
            {u"dbus-run-session"_qs,
             QStringList{u"--"_qs, reader} + presses + QStringList{QStringLiteral(TAPEPRINT_BIN_DIR "/tapeprint")} +
                 printer + arguments +
                 QStringList{QStringLiteral(TAPEPRINT_SOURCE_DIR "/docs/sample/address-label.pdf")},
             variables});
        ASSERT_EQ(outcome.status, 0) << outcome.messages.toStdString();
        for (const QByteArray &line : outcome.output.split('\n')) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            if (object.contains(u"pressed"_qs)) {
                earlier.push_back(std::exchange(all, {}));
            } else if (!object.isEmpty()) {
                all.push_back(heardOf(object));
            }
        }
    }

    /// Whatever takes keys says what it is.
    void expectNames() const
    {
        for (const Heard &control : all) {
            if (control.takesKeys()) {
                EXPECT_FALSE(control.name.isEmpty() && control.labels.isEmpty()) << control.said().toStdString();
                EXPECT_NE(control.role, u"filler"_qs) << control.said().toStdString();
            }
        }
    }

    /// The control of a role that has a name, or a label of that name.
    Heard heard(const QString &role, const QString &name) const
    {
        for (const Heard &control : all) {
            if (control.role == role && (control.name == name || control.labels.contains(name))) {
                return control;
            }
        }
        ADD_FAILURE() << "nothing is heard of the " << role.toStdString() << " \"" << name.toStdString() << "\"";
        return {};
    }

    QStringList printer{u"--ppd"_qs, QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd")};
    std::vector<std::pair<QString, QString>> variables;

    systemtest::PrivateFolder folder;
    systemtest::PrivateDisplay display;
    std::vector<Heard> all;                  ///< what is heard last
    std::vector<std::vector<Heard>> earlier; ///< and before each press of keys
};

TEST_F(ScreenReader, HearsNamesValuesUnitsAndLimitsOfTheWindow)
{
    ASSERT_NO_FATAL_FAILURE(listen({u"-o"_qs, u"KsTapeLength=12.5"_qs, u"-o"_qs, u"KsMargin=3.3"_qs}));

    const Heard length = heard(u"slider"_qs, u"Tape Length:"_qs);
    EXPECT_EQ(length.value, (std::vector<double>{12.5, 4.0, 1000.0}));
    EXPECT_EQ(length.description, u"4.0 – 1000.0 mm"_qs);
    // A float of 3.3 is heard as it was written.
    EXPECT_EQ(heard(u"slider"_qs, u"Margin:"_qs).value.at(0), 3.3);
    EXPECT_EQ(heard(u"text"_qs, u"Tape Length:"_qs).description, u"4.0 – 1000.0 mm"_qs);
    EXPECT_EQ(heard(u"text"_qs, u"Print Tape Length:"_qs).description, u"0.5 – 8.0 m"_qs);
    EXPECT_EQ(heard(u"spin button"_qs, u"Copies:"_qs).value, (std::vector<double>{1.0, 1.0, 9999.0}));

    for (const QString &popUp : {u"Printer:"_qs, u"Tape:"_qs, u"Settings:"_qs, u"Tape Colour:"_qs}) {
        EXPECT_TRUE(heard(u"combo box"_qs, popUp).takesKeys()) << popUp.toStdString();
    }
    EXPECT_EQ(heard(u"panel"_qs, u"Print Quality:"_qs).name, u"Print Quality:"_qs);
    EXPECT_TRUE(heard(u"radio button"_qs, u"Quality"_qs).states.contains(u"checked"_qs));
    // Greyed: it is heard, and that it cannot be used.
    EXPECT_FALSE(heard(u"combo box"_qs, u"Print Mode:"_qs).states.contains(u"enabled"_qs));
    EXPECT_TRUE(heard(u"image"_qs, u"Tape preview"_qs).description.startsWith(u"Length 12.5 mm, width 24.0 mm"_qs));
    for (const QString &button : {u"Revert"_qs, u"Cancel"_qs, u"Print"_qs, u"Fit Length"_qs}) {
        EXPECT_TRUE(heard(u"push button"_qs, button).takesKeys()) << button.toStdString();
    }

    expectNames();
}

TEST_F(ScreenReader, HearsTheOtherPagesAndTheSheets)
{
    // The next page of the settings each time; then the commands, and a tape of one's own, which is the last.
    ASSERT_NO_FATAL_FAILURE(
        listen({}, {u"alt+n Down"_qs, u"Down"_qs, u"Down"_qs, u"alt+w"_qs, u"Escape"_qs, u"alt+t End"_qs}));
    ASSERT_EQ(earlier.size(), 6U);
    std::vector<std::vector<Heard>> heardAfter(earlier.begin() + 1, earlier.end());
    heardAfter.push_back(all);

    all = heardAfter[0];
    expectNames();
    for (const QString &popUp : {u"Size:"_qs, u"Direction:"_qs, u"Along the tape:"_qs, u"Across the tape:"_qs,
                                 u"Pages on a label:"_qs, u"Their order:"_qs}) {
        heard(u"combo box"_qs, popUp);
    }
    all = heardAfter[1];
    expectNames();
    EXPECT_TRUE(heard(u"text"_qs, u"Title:"_qs).takesKeys());
    EXPECT_TRUE(heard(u"text"_qs, u"Pages:"_qs).takesKeys());
    EXPECT_TRUE(heard(u"combo box"_qs, u"Of these:"_qs).takesKeys());
    EXPECT_FALSE(heard(u"check box"_qs, u"Last page first"_qs).states.contains(u"checked"_qs));
    all = heardAfter[2];
    expectNames();
    EXPECT_TRUE(heard(u"combo box"_qs, u"Cut:"_qs).takesKeys());
    all = heardAfter[3];
    expectNames();
    EXPECT_TRUE(heard(u"text"_qs, u"The same job by tapeprint:"_qs).takesKeys());
    EXPECT_TRUE(heard(u"push button"_qs, u"Copy the command of tapeprint"_qs).takesKeys());
    all = heardAfter[5];
    expectNames();
    // The description says 11.33 and 102.06 points: 3.997 and 36.004 mm.
    const Heard width = heard(u"text"_qs, u"Width:"_qs);
    EXPECT_TRUE(width.takesKeys());
    EXPECT_TRUE(width.description.contains(u" 4 to 36 mm"_qs)) << width.description.toStdString();
    EXPECT_TRUE(heard(u"text"_qs, u"Name:"_qs).takesKeys());
}

/// The same on a queue of a print server.
class ScreenReaderOnAQueue : public ScreenReader
{
protected:
    void SetUp() override
    {
        if (const QString reason = systemtest::PrivateCups::reasonToSkip(); !reason.isNull()) {
            GTEST_SKIP() << reason.toStdString();
        }
        ASSERT_NO_FATAL_FAILURE(ScreenReader::SetUp());
        printer = QStringList{u"-d"_qs, u"tape"_qs};
    }

    void startServer()
    {
        const QString problem = cups.start();
        ASSERT_TRUE(problem.isNull()) << problem.toStdString();
        const QString refusal = cups.addPlainQueue(u"tape"_qs, u"mm"_qs);
        ASSERT_TRUE(refusal.isNull()) << refusal.toStdString();
        variables = cups.clientVariables();
    }

    systemtest::PrivateCups cups;
};

TEST_F(ScreenReaderOnAQueue, HearsPriorityTimeOfPrintingAndWhyThePrinterWaits)
{
    ASSERT_NO_FATAL_FAILURE(startServer());
    ASSERT_TRUE(cups.run(u"lpadmin"_qs, {u"-p"_qs, u"tape"_qs, u"-L"_qs, u"Store room"_qs}).isNull());
    ASSERT_TRUE(cups.run(u"cupsdisable"_qs, {u"-r"_qs, u"out of tape"_qs, u"tape"_qs}).isNull());
    variables.emplace_back(u"TZ"_qs, u"UTC"_qs); // what is sent
    // The page "Job"; then the sheet of a new preset; then the question about an unusual amount.
    ASSERT_NO_FATAL_FAILURE(
        listen({u"-o"_qs, u"job-priority=60"_qs, u"-o"_qs, u"job-hold-until=12:30"_qs, u"-n"_qs, u"400"_qs},
               {u"alt+n Down Down"_qs, u"alt+s Tab space Down Return"_qs, u"Escape"_qs, u"ctrl+Return"_qs}));
    ASSERT_EQ(earlier.size(), 4U);
    const std::vector<Heard> question = std::exchange(all, earlier[1]);
    expectNames();
    EXPECT_EQ(heard(u"combo box"_qs, u"Printer:"_qs).description, u"Location: Store room; Stopped: out of tape"_qs);
    const Heard priority = heard(u"spin button"_qs, u"Priority:"_qs);
    EXPECT_EQ(priority.value, (std::vector<double>{60.0, 1.0, 100.0}));
    EXPECT_EQ(priority.description, u"1 is the lowest, 100 the highest"_qs);
    EXPECT_EQ(heard(u"combo box"_qs, u"Print it:"_qs).name, u"At a time"_qs);
    const Heard time = heard(u"spin button"_qs, u"Time of printing"_qs);
    EXPECT_TRUE(time.takesKeys());
    EXPECT_TRUE(time.text.startsWith(u"12:30"_qs)) << time.text.toStdString();
    EXPECT_TRUE(heard(u"text"_qs, u"Billing:"_qs).takesKeys());

    all = earlier[2];
    expectNames();
    EXPECT_TRUE(heard(u"text"_qs, u"Name:"_qs).takesKeys());
    all = question;
    expectNames();
    EXPECT_TRUE(heard(u"push button"_qs, u"Print 400 Labels"_qs).takesKeys());
}

TEST_F(ScreenReaderOnAQueue, HearsWhoAsksForAPassword)
{
    cups.requirePassword("anna", "right");
    ASSERT_NO_FATAL_FAILURE(startServer());
    variables.emplace_back(u"CUPS_SERVER"_qs, cups.guardedServer());
    ASSERT_NO_FATAL_FAILURE(listen({}, {u"ctrl+Return"_qs}));
    expectNames();
    EXPECT_TRUE(heard(u"text"_qs, u"User:"_qs).takesKeys());
    const Heard password = heard(u"password text"_qs, u"Password:"_qs);
    EXPECT_TRUE(password.takesKeys());
    EXPECT_TRUE(std::any_of(all.begin(), all.end(), [this](const Heard &control) {
        return control.role == u"label"_qs && control.name.contains(cups.guardedServer());
    }));
}

} // namespace
