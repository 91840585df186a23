// SPDX-License-Identifier: Apache-2.0
// The list of printers, from a server's answer to the words about each.
#include "job/PrinterList.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

using namespace tapeprint::job;

struct MessageDeleter {
    void operator()(ipp_t *message) const { ippDelete(message); }
};

/// An answer to CUPS-Get-Printers, built as a server builds it.
class Answer
{
public:
    Answer &begin(const char *name, ipp_pstate_t state, bool accepts)
    {
        if (mIsFirst) {
            mIsFirst = false;
        } else {
            ippAddSeparator(mResponse.get());
        }
        ippAddString(mResponse.get(), IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, name);
        ippAddInteger(mResponse.get(), IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", state);
        ippAddBoolean(mResponse.get(), IPP_TAG_PRINTER, "printer-is-accepting-jobs", accepts ? 1 : 0);
        return *this;
    }
    Answer &text(const char *name, const char *value)
    {
        ippAddString(mResponse.get(), IPP_TAG_PRINTER, IPP_TAG_TEXT, name, nullptr, value);
        return *this;
    }
    Answer &type(unsigned bits)
    {
        ippAddInteger(mResponse.get(), IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-type", static_cast<int>(bits));
        return *this;
    }
    Answer &reasons(std::initializer_list<const char *> keywords)
    {
        ippAddStrings(mResponse.get(), IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "printer-state-reasons",
                      static_cast<int>(keywords.size()), nullptr, keywords.begin());
        return *this;
    }
    PrinterList read() const { return printersIn(mResponse.get()); }

private:
    std::unique_ptr<ipp_t, MessageDeleter> mRequest{ippNew()};
    std::unique_ptr<ipp_t, MessageDeleter> mResponse{ippNewResponse(mRequest.get())};
    bool mIsFirst = true;
};

Printer printer(PrinterState state, const QStringList &reasons = {}, const QString &message = {})
{
    Printer printer;
    printer.name = u"tape"_qs;
    printer.state = state;
    printer.reasons = stateReasons(reasons);
    printer.stateMessage = message;
    return printer;
}

QStringList namesOf(const PrinterList &printers)
{
    QStringList names;
    for (const Printer &each : printers) {
        names.append(each.fullName() + (each.isDefault ? u"*"_qs : QString()));
    }
    return names;
}

TEST(PrinterList, Answer_IsReadPrinterByPrinter)
{
    Answer answer;
    answer.begin("tape", IPP_PSTATE_STOPPED, true)
        .text("printer-info", "Tape in the hall")
        .text("printer-location", "Hall")
        .text("printer-state-message", "out of tape")
        .reasons({"paused"})
        .type(CUPS_PRINTER_DEFAULT);
    answer.begin("all", IPP_PSTATE_IDLE, false).reasons({"none"}).type(CUPS_PRINTER_CLASS);
    const PrinterList printers = answer.read();
    ASSERT_EQ(printers.size(), 2U);
    EXPECT_EQ(printers[0].name, u"tape"_qs);
    EXPECT_EQ(printers[0].info, u"Tape in the hall"_qs);
    EXPECT_EQ(printers[0].location, u"Hall"_qs);
    EXPECT_EQ(printers[0].state, PrinterState::Stopped);
    EXPECT_EQ(printers[0].stateMessage, u"out of tape"_qs);
    ASSERT_EQ(printers[0].reasons.size(), 1U);
    EXPECT_EQ(printers[0].reasons[0].keyword, u"paused"_qs);
    EXPECT_TRUE(printers[0].isAccepting);
    EXPECT_TRUE(printers[0].isDefault);
    EXPECT_FALSE(printers[0].isClass);
    EXPECT_EQ(printers[1].name, u"all"_qs);
    EXPECT_EQ(printers[1].state, PrinterState::Idle);
    EXPECT_TRUE(printers[1].reasons.empty());
    EXPECT_FALSE(printers[1].isAccepting);
    EXPECT_FALSE(printers[1].isDefault);
    EXPECT_TRUE(printers[1].isClass);
}

TEST(PrinterList, AnswerWithoutPrinters_IsAnEmptyList)
{
    EXPECT_TRUE(Answer().read().empty());
    EXPECT_TRUE(printersIn(nullptr).empty());
}

TEST(PrinterList, SavedInstances_StandBehindTheirQueuesAndThePersonsDefaultGoesFirst)
{
    Answer answer;
    answer.begin("mono", IPP_PSTATE_IDLE, true).type(CUPS_PRINTER_DEFAULT);
    answer.begin("tape", IPP_PSTATE_IDLE, true);
    SavedDestinations saved;
    saved.add("Dest tape/wide PageSize=24mm\nDest gone/by PageSize=A4\nDefault tape/Red KsTapeColor=Red\n# a remark\n"
              "Dest tape/wide again=1\n");
    EXPECT_EQ(namesOf(withSaved(answer.read(), saved)),
              (QStringList{u"mono"_qs, u"tape"_qs, u"tape/wide"_qs, u"tape/Red*"_qs}));
    EXPECT_TRUE(saved.hasInstance({u"Tape"_qs, u"red"_qs}));
    EXPECT_FALSE(saved.hasInstance({u"tape"_qs, u"blue"_qs}));
    // A default that is no printer any more leaves the server's.
    saved.add("Default gone\n");
    EXPECT_EQ(namesOf(withSaved(answer.read(), saved)),
              (QStringList{u"mono*"_qs, u"tape"_qs, u"tape/wide"_qs, u"tape/Red"_qs}));
}

TEST(PrinterState, Words_NameStateReasonsAndMessage)
{
    EXPECT_EQ(printer(PrinterState::Idle).stateWords(true), u"Ready"_qs);
    EXPECT_EQ(printer(PrinterState::Processing, {u"connecting-to-device"_qs}).stateWords(true),
              u"Printing: being connected"_qs);
    EXPECT_EQ(printer(PrinterState::Stopped, {u"paused"_qs}, u"Paused"_qs).stateWords(true), u"Stopped: paused"_qs);
    EXPECT_EQ(printer(PrinterState::Stopped, {u"paused"_qs, u"media-empty"_qs}, u"load \u202Etape"_qs).stateWords(true),
              u"Stopped: out of tape, load \\u202Etape"_qs);
    // What a driver said of the job before says nothing of now.
    EXPECT_EQ(printer(PrinterState::Idle, {}, u"Rendering completed"_qs).stateWords(true), u"Ready"_qs);
    Printer rejecting = printer(PrinterState::Idle);
    rejecting.isAccepting = false;
    rejecting.stateMessage = u"Moved to the hall"_qs;
    EXPECT_EQ(rejecting.stateWords(true), u"Ready, takes no jobs: Moved to the hall"_qs);
    // A printer of the network, of which nothing is known.
    EXPECT_EQ(printer(PrinterState::Unknown).stateWords(true), QString());
}

TEST(PrinterState, Notice_IsGivenOfWhatThePersonHasToKnowAlone)
{
    EXPECT_TRUE(printer(PrinterState::Idle).notice(true).isNull());
    EXPECT_TRUE(printer(PrinterState::Processing, {u"offline-report"_qs}).notice(true).isNull());
    EXPECT_EQ(printer(PrinterState::Idle, {u"media-low-warning"_qs, u"offline-report"_qs}).notice(false),
              u"The printer tape says: little paper is left."_qs);
    // Whoever stopped it said why, in a sentence of their own.
    EXPECT_EQ(printer(PrinterState::Stopped, {u"paused"_qs}, u"Out of tape."_qs).notice(true),
              u"The printer tape is stopped: Out of tape. A job waits until it goes on."_qs);
    EXPECT_EQ(printer(PrinterState::Stopped).notice(true),
              u"The printer tape is stopped. A job waits until it goes on."_qs);
    Printer rejecting = printer(PrinterState::Stopped, {u"paused"_qs});
    rejecting.isAccepting = false;
    EXPECT_EQ(rejecting.notice(true), u"The printer tape takes no jobs: paused."_qs);
}

} // namespace
