// SPDX-License-Identifier: Apache-2.0
// One request for all printers. Of each only what a list shows is asked for: five hundred come within milliseconds.
#include "job/PrinterList.h"

#include "job/IppQuestion.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <memory>

namespace tapeprint::job
{

namespace
{

constexpr std::array attributesOfAPrinter{"printer-name",
                                          "printer-info",
                                          "printer-location",
                                          "printer-state",
                                          "printer-state-message",
                                          "printer-state-reasons",
                                          "printer-is-accepting-jobs",
                                          "printer-type",
                                          "printer-config-change-time"};

constexpr int networkLookMs = 2000;

PrinterState stateOf(int value)
{
    switch (value) {
    case IPP_PSTATE_IDLE:
        return PrinterState::Idle;
    case IPP_PSTATE_PROCESSING:
        return PrinterState::Processing;
    case IPP_PSTATE_STOPPED:
        return PrinterState::Stopped;
    default:
        return PrinterState::Unknown;
    }
}

QStringList textsOf(ipp_attribute_t *attribute)
{
    QStringList texts;
    for (int i = 0; i < ippGetCount(attribute); ++i) {
        texts.append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
    }
    return texts;
}

void takeAttribute(ipp_attribute_t *attribute, Printer &printer)
{
    const QLatin1String name(ippGetName(attribute));
    if (name == u"printer-name") {
        printer.name = textsOf(attribute).value(0);
    } else if (name == u"printer-info") {
        printer.info = textsOf(attribute).value(0);
    } else if (name == u"printer-location") {
        printer.location = textsOf(attribute).value(0);
    } else if (name == u"printer-state") {
        printer.state = stateOf(ippGetInteger(attribute, 0));
    } else if (name == u"printer-state-message") {
        printer.stateMessage = textsOf(attribute).value(0);
    } else if (name == u"printer-state-reasons") {
        printer.reasons = stateReasons(textsOf(attribute));
    } else if (name == u"printer-is-accepting-jobs") {
        printer.isAccepting = ippGetBoolean(attribute, 0) != 0;
    } else if (name == u"printer-config-change-time") {
        printer.configuredAt = ippGetInteger(attribute, 0);
    } else if (name == u"printer-type") {
        const auto type = static_cast<unsigned>(ippGetInteger(attribute, 0));
        printer.isClass = (type & CUPS_PRINTER_CLASS) != 0U;
        printer.isDefault = (type & CUPS_PRINTER_DEFAULT) != 0U;
    }
}

/// The words of a printer's reasons and of whoever stopped it; empty when there are none.
QString details(const Printer &printer, bool isTape, ReasonWeight from)
{
    QStringList words;
    for (const StateReason &reason : printer.reasons) {
        if (reason.weight >= from) {
            words.append(reason.words(isTape));
        }
    }
    // A printer that works leaves the last message standing, which says nothing of now. "Paused" is what CUPS writes
    // when whoever paused it gives no reason.
    const QString message = reasonText(printer.stateMessage);
    const bool says = !message.isEmpty() && message.compare(QLatin1String("paused"), Qt::CaseInsensitive) != 0;
    if (says && !printer.isWorking()) {
        words.append(message);
    }
    // "Paused" says no more than that the printer is stopped, when somebody says why.
    if (says && printer.state == PrinterState::Stopped && words.size() > 1) {
        words.removeOne(StateReason::parse(QStringLiteral("paused")).words(isTape));
    }
    words.removeDuplicates();
    return words.join(QLatin1String(", "));
}

QString stateName(PrinterState state)
{
    switch (state) {
    case PrinterState::Idle:
        return Texts::tr("Ready");
    case PrinterState::Processing:
        return Texts::tr("Printing", "state of a printer");
    case PrinterState::Stopped:
        return Texts::tr("Stopped");
    case PrinterState::Unknown:
        return {};
    }
    return {};
}

int takeFound(void *found, unsigned flags, cups_dest_t *destination)
{
    const auto option = [destination](const char *name) {
        return QString::fromUtf8(cupsGetOption(name, destination->num_options, destination->options));
    };
    auto &printers = *static_cast<PrinterList *>(found);
    const QString name = QString::fromUtf8(destination->name);
    std::erase_if(printers, [&name](const Printer &printer) { return printer.name == name; });
    // What the server has a queue for is in its own list.
    const bool isNew = (option("printer-type").toUInt() & CUPS_PRINTER_DISCOVERED) != 0U;
    if (isNew && (flags & CUPS_DEST_FLAGS_REMOVED) == 0U) {
        Printer printer;
        printer.name = name;
        printer.info = option("printer-info");
        printer.location = option("printer-location");
        printer.isDiscovered = true;
        printers.push_back(printer);
    }
    return 1;
}

} // namespace

bool Printer::isWorking() const
{
    return state != PrinterState::Stopped && isAccepting;
}

bool Printer::isFine() const
{
    // Heaviest first.
    return isWorking() && (reasons.empty() || reasons.front().weight == ReasonWeight::Report);
}

QString Printer::stateWords(bool isTape) const
{
    QStringList words;
    if (const QString called = stateName(state); !called.isEmpty()) {
        words.append(called);
    }
    if (!isAccepting) {
        words.append(Texts::tr("takes no jobs"));
    }
    const QString why = details(*this, isTape, ReasonWeight::Report);
    const QString what = words.join(QLatin1String(", "));
    return why.isEmpty() || what.isEmpty() ? what + why : Texts::tr("%1: %2", "a state and its reasons").arg(what, why);
}

QString Printer::notice(bool isTape) const
{
    if (isFine()) {
        return {};
    }
    const QString why = details(*this, isTape, ReasonWeight::Warning);
    const QString shownAs = harmless(fullName());
    if (!isAccepting) {
        return why.isEmpty() ? Texts::tr("The printer %1 takes no jobs.").arg(shownAs)
                             : Texts::tr("The printer %1 takes no jobs: %2.").arg(shownAs, why);
    }
    if (state == PrinterState::Stopped) {
        return why.isEmpty()
                   ? Texts::tr("The printer %1 is stopped. A job waits until it goes on.").arg(shownAs)
                   : Texts::tr("The printer %1 is stopped: %2. A job waits until it goes on.").arg(shownAs, why);
    }
    return Texts::tr("The printer %1 says: %2.").arg(shownAs, why);
}

PrinterList printersIn(ipp_t *response)
{
    PrinterList printers;
    bool isInside = false;
    for (ipp_attribute_t *attribute = ippFirstAttribute(response); attribute != nullptr;
         attribute = ippNextAttribute(response)) {
        if (ippGetGroupTag(attribute) != IPP_TAG_PRINTER || ippGetName(attribute) == nullptr) {
            isInside = false; // what stands between two printers
            continue;
        }
        if (!isInside) {
            printers.emplace_back();
            isInside = true;
        }
        takeAttribute(attribute, printers.back());
    }
    QSet<QString> seen;
    std::erase_if(printers, [&seen](const Printer &printer) {
        const bool isKnown = seen.contains(printer.name);
        seen.insert(printer.name);
        return isKnown || printer.name.isEmpty();
    });
    return printers;
}

PrinterList withSaved(const PrinterList &printers, const SavedDestinations &saved)
{
    const auto isPreferred = [&saved](const Printer &printer) {
        return printer.name.compare(saved.preferred.queue, Qt::CaseInsensitive) == 0 &&
               printer.instance.compare(saved.preferred.instance, Qt::CaseInsensitive) == 0;
    };
    PrinterList all;
    for (const Printer &printer : printers) {
        all.push_back(printer);
        for (const QueueName &instance : saved.instances) {
            if (instance.queue.compare(printer.name, Qt::CaseInsensitive) == 0) {
                all.push_back(printer);
                all.back().instance = instance.instance;
                all.back().isDefault = false;
            }
        }
    }
    // The person's own default goes before the server's, if there is such a printer.
    if (std::any_of(all.begin(), all.end(), isPreferred)) {
        for (Printer &printer : all) {
            printer.isDefault = isPreferred(printer);
        }
    }
    return all;
}

std::optional<PrinterList> readPrinters(const std::atomic<bool> *stop, Problem *error)
{
    // Nobody is asked for a password once a second.
    const auto server = ServerConnection::open(stop, ServerConnection::Passwords::GoWithout);
    if (!server->isOpen()) {
        *error = serverProblem(*server);
        return std::nullopt;
    }
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(attributesOfAPrinter.size()), nullptr, attributesOfAPrinter.data());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const Response response = askServer(*server, request);
    // A server without a single printer says that it found none.
    if (response && ippGetStatusCode(response.get()) == IPP_STATUS_ERROR_NOT_FOUND) {
        return PrinterList();
    }
    if (!response || ippGetStatusCode(response.get()) > IPP_STATUS_OK_EVENTS_COMPLETE) {
        *error = serverProblem(*server);
        return std::nullopt;
    }
    return withSaved(printersIn(response.get()), SavedDestinations::read());
}

PrinterList findOnNetwork()
{
    PrinterList found;
    cupsEnumDests(CUPS_DEST_FLAGS_NONE, networkLookMs, nullptr, CUPS_PRINTER_DISCOVERED, CUPS_PRINTER_DISCOVERED,
                  takeFound, &found);
    return found;
}

} // namespace tapeprint::job
