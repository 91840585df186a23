// SPDX-License-Identifier: Apache-2.0
// What the job knows of the tape in use: from the page format's paper, the PPD, and the vendor's print-settings ticket.
#pragma once

#include "pdekit/PrintingCore.h"

#include <QString>

#include <cstdint>

#include <cups/ppd.h>

/// The tape in use. The caller provides the storage.
struct TapeInfo {
    /// The length of the paper in millimetres (points / 72.0 / 0.0393701); 100.0 when it cannot be found.
    double paperLength = 100.0;
    /// 1 when the paper is a page size of the PPD whose name begins with "DC", "AV" or "FL"; else 0.
    std::uint32_t fixedLength = 0;
    /// The paper's PPD name, or the ticket's; null when neither is known.
    QString paperName;
    std::uint32_t labelMaterial = 0; ///< position + 1 of the tape material in the ticket; 0: not given
    std::uint32_t labelColor = 0;    ///< position + 1 of the tape colour in the ticket; 0: not given
    std::uint32_t inkColor = 0;      ///< position + 1 of the ink colour in the ticket; 0: not given
};

/// The pages to print, counted from 1; 0: not given.
struct PageRange {
    std::uint32_t firstPage = 0;
    std::uint32_t lastPage = 0;
};

/// The settings key of the vendor ticket: XML property-list data with a dictionary at its root, holding "LxPaperName2"
/// (string), "LxHNLabelType" (number: bits 4-7 material, bits 0-3 tape colour) and "LxHNInkType" (number: bits 0-3
/// ink).
inline const QString kTicketKey = QStringLiteral("org.tapeprint.print.PrintSettingsTicket.LxE5");

extern "C" {

/// Fills *info from the page format's paper; only a paper without a PPD name leads to the ticket.
/// \param session not used. \return the error of the page format or the paper; else 0.
Q_DECL_EXPORT pdekit::OSStatus GetTapeInfo(pdekit::PMPrintSession session, pdekit::PMPrintSettings settings,
                                           pdekit::PMPageFormat format, ppd_file_t *ppd, TapeInfo *info);

/// Reads the ticket into *info: the paper name and the three codes; the other fields are left alone.
/// \param session not used. \return always 0.
Q_DECL_EXPORT pdekit::OSStatus GetTapeInfo2(pdekit::PMPrintSession session, pdekit::PMPrintSettings settings,
                                            TapeInfo *info);

/// Reads a number from the session's data into *value. \return kPMNoSessionData when there is none; else 0.
Q_DECL_EXPORT pdekit::OSStatus GetTicketFromSession(pdekit::PMPrintSession session, const QString &key,
                                                    std::int32_t *value);

/// Reads the page range and writes it back unlocked. \return the error of reading or of writing the last page; else 0.
Q_DECL_EXPORT pdekit::OSStatus GetTapeInfo3(pdekit::PMPrintSettings settings, PageRange *range);

} // extern "C"
