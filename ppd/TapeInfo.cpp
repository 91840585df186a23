// SPDX-License-Identifier: Apache-2.0
// Reading the tape in use from the job.
#include "pagesettings/Exports.h"

#include "pdekit/PropertyList.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <string_view>

using namespace pdekit;

namespace
{

/// The longest paper name, in bytes of UTF-8, that is looked for among the PPD's page sizes.
constexpr qsizetype kLongestPaperName = 255;

/// Page sizes whose name begins so are media of a fixed length.
constexpr std::array<std::string_view, 3> kFixedLengthPrefixes = {"DC", "AV", "FL"};

bool isFixedLengthPageSize(const ppd_file_t *ppd, const QByteArray &paperName)
{
    const std::string_view name(paperName.constData(), static_cast<std::size_t>(paperName.size()));
    const bool hasPrefix = std::any_of(kFixedLengthPrefixes.begin(), kFixedLengthPrefixes.end(),
                                       [name](std::string_view prefix) { return name.substr(0, 2) == prefix; });
    return hasPrefix && ppd != nullptr &&
           std::any_of(ppd->sizes, ppd->sizes + ppd->num_sizes,
                       [name](const ppd_size_t &size) { return name == size.name; });
}

std::uint32_t nibble(std::int32_t value, unsigned shift)
{
    return (static_cast<std::uint32_t>(value) >> shift) & 15U;
}

void readTicket(const QVariantMap &ticket, TapeInfo *info)
{
    const QVariant paperName = ticket.value(QStringLiteral("LxPaperName2"));
    if (paperName.typeId() == QMetaType::QString) {
        info->paperName = paperName.toString();
    }
    if (const auto labelType = propertyListInt32(ticket.value(QStringLiteral("LxHNLabelType")))) {
        info->labelMaterial = nibble(*labelType, 4);
        info->labelColor = nibble(*labelType, 0);
    }
    if (const auto inkType = propertyListInt32(ticket.value(QStringLiteral("LxHNInkType")))) {
        info->inkColor = nibble(*inkType, 0);
    }
}

} // namespace

OSStatus GetTapeInfo(PMPrintSession /*session*/, PMPrintSettings settings, PMPageFormat format, ppd_file_t *ppd,
                     TapeInfo *info)
{
    if (info == nullptr) {
        return kPMInvalidParameter;
    }
    *info = TapeInfo();

    PMPaper paper = nullptr;
    if (const OSStatus status = PMGetPageFormatPaper(format, &paper); status != kPMNoError) {
        return status;
    }
    if (paper == nullptr) {
        return kPMNoError;
    }

    // A paper that has a PPD name keeps the ticket unread: material, colour and ink then stay "not given".
    QByteArray nameOfPageFormat;
    QString name;
    if (PMPaperGetPPDPaperName(paper, &name) == kPMNoError && !name.isNull()) {
        info->paperName = name;
        nameOfPageFormat = name.toUtf8();
        if (nameOfPageFormat.size() > kLongestPaperName) {
            nameOfPageFormat.clear();
        }
    } else {
        GetTapeInfo2(nullptr, settings, info);
    }

    double heightPt = 0.0;
    if (const OSStatus status = PMPaperGetHeight(paper, &heightPt); status != kPMNoError) {
        return status;
    }
    if (heightPt == 0.0) {
        return kPMNoError;
    }
    info->paperLength = heightPt / 72.0 / 0.0393701;

    if (!nameOfPageFormat.isEmpty()) {
        info->fixedLength = isFixedLengthPageSize(ppd, nameOfPageFormat) ? 1 : 0;
    }
    return kPMNoError;
}

OSStatus GetTapeInfo2(PMPrintSession /*session*/, PMPrintSettings settings, TapeInfo *info)
{
    if (info == nullptr) {
        return kPMNoError;
    }
    info->labelMaterial = 0;
    info->labelColor = 0;
    info->inkColor = 0;
    info->paperName = QString();

    QVariant value;
    if (PMPrintSettingsGetValue(settings, kTicketKey, &value) != kPMNoError ||
        value.typeId() != QMetaType::QByteArray) {
        return kPMNoError;
    }
    const std::optional<QVariant> ticket = propertyListFromXml(value.toByteArray());
    if (ticket && ticket->typeId() == QMetaType::QVariantMap) {
        readTicket(ticket->toMap(), info);
    }
    return kPMNoError;
}

OSStatus GetTicketFromSession(PMPrintSession session, const QString &key, std::int32_t *value)
{
    QVariant data;
    if (PMSessionGetDataFromSession(session, key, &data) != kPMNoError || !data.isValid()) {
        return kPMNoSessionData;
    }
    if (const auto number = propertyListInt32(data); number && value != nullptr) {
        *value = *number;
    }
    return kPMNoError;
}

OSStatus GetTapeInfo3(PMPrintSettings settings, PageRange *range)
{
    if (range == nullptr) {
        return kPMInvalidParameter;
    }
    *range = PageRange();
    if (PMGetFirstPage(settings, &range->firstPage) == kPMNoError) {
        PMSetFirstPage(settings, range->firstPage, false);
    }
    std::uint32_t last = 0;
    if (const OSStatus status = PMGetLastPage(settings, &last); status != kPMNoError) {
        return status;
    }
    const OSStatus status = PMSetLastPage(settings, last, false);
    range->lastPage = last;
    return status;
}
