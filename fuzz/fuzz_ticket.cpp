// SPDX-License-Identifier: Apache-2.0
// Any bytes as the vendor ticket of a job: the codes stay within four bits, whichever way the ticket is reached.
#include "fuzz/Invariants.h"

#include "pagesettings/Exports.h"
#include "pdekit/PropertyList.h"

using namespace pdekit;
using fuzz::require;

namespace
{

void checkCodes(const TapeInfo &tape)
{
    require(tape.labelMaterial <= 15 && tape.labelColor <= 15 && tape.inkColor <= 15);
}

/// What has been read of a property list can be written, and then be read again; dates alone may be out of range.
void checkRoundTrip(const QByteArray &xml)
{
    const std::optional<QVariant> value = propertyListFromXml(xml);
    if (!value) {
        return;
    }
    const QByteArray written = propertyListToXml(*value);
    require(written.isEmpty() || propertyListFromXml(written).has_value());
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray xml(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    PrintSettings settings;
    settings.values.insert(kTicketKey, xml);

    TapeInfo ticket;
    ticket.labelMaterial = ticket.labelColor = ticket.inkColor = 99; // must be written over, readable ticket or not
    require(GetTapeInfo2(nullptr, &settings, &ticket) == kPMNoError);
    checkCodes(ticket);

    // A paper that has no PPD name leads to the same ticket.
    PageFormat format;
    format.paper = Paper{QString(), 68.0, 283.0};
    TapeInfo tape;
    require(GetTapeInfo(nullptr, &settings, &format, nullptr, &tape) == kPMNoError);
    require(tape.labelMaterial == ticket.labelMaterial && tape.labelColor == ticket.labelColor &&
            tape.inkColor == ticket.inkColor && tape.paperName == ticket.paperName);

    checkRoundTrip(xml);
    return 0;
}
