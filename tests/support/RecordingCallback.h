// SPDX-License-Identifier: Apache-2.0
// A dialog's side for tests: owns the objects of a job and writes down every choice that a panel sends.
#pragma once

#include "PpdText.h"

#include "pdekit/PanelProtocol.h"

#include <QString>

#include <utility>
#include <vector>

/// Marks what the PPD lists, as a dialog does, and records every call.
class RecordingCallback : public pdekit::PanelCallback
{
public:
    /// A choice as a panel sent it: option keyword and choice keyword.
    using Sent = std::pair<QString, QString>;

    explicit RecordingCallback(OpenPpd ppd);

    pdekit::PMPrintSession printSession() override { return hasSession ? &session : nullptr; }
    pdekit::PMPrintSettings printSettings() override { return hasSettings ? &settings : nullptr; }
    pdekit::PMPageFormat pageFormat() override { return hasFormat ? &format : nullptr; }
    pdekit::Printer *PMPrinter() override { return hasPrinter ? &printer : nullptr; }
    ppd_file_t *ppdFile() override { return ppd.get(); }
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override;

    /// Puts a page size of the PPD into the page format, with its own length.
    void usePaper(const char *keyword);
    /// Puts a paper into the page format. \param lengthMm millimetres of 1 / 0.0393701 to the inch.
    void usePaper(const QString &ppdPaperName, double lengthMm);
    /// Puts a vendor ticket into the settings, and a paper without a PPD name into the page format so that it is read.
    void useTicket(int labelType, int inkType);

    /// The choices sent for one option, in order.
    std::vector<QString> sentFor(const QString &key) const;
    /// The last choice sent for an option; null when none was.
    QString lastSent(const QString &key) const;
    /// The option keywords in the order they were sent.
    std::vector<QString> sentKeys() const;

    OpenPpd ppd;
    pdekit::PrintSession session;
    pdekit::PrintSettings settings;
    pdekit::PageFormat format;
    pdekit::Printer printer;
    bool hasSession = true;
    bool hasSettings = true;
    bool hasFormat = true;
    bool hasPrinter = true;
    std::vector<Sent> sent;
};
