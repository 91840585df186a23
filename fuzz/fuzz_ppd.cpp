// SPDX-License-Identifier: Apache-2.0
// Any bytes as a printer's description: the panel is constructed over what libcups makes of them, and driven through a
// dialog's calls. It has no bundle, so no view: every length comes from the description.
#include "fuzz/Application.h"
#include "fuzz/Invariants.h"
#include "fuzz/MemoryFile.h"

#include "panel/PanelFactory.h"

#include <memory>

using namespace pdekit;
using fuzz::require;

namespace
{

struct PpdCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using OpenPpd = std::unique_ptr<ppd_file_t, PpdCloser>;

/// A dialog over one description. Its first page size is the paper in use.
class Dialog : public PanelCallback
{
public:
    explicit Dialog(OpenPpd ppd) : mPpd(std::move(ppd))
    {
        ppdMarkDefaults(mPpd.get());
        mPrinter.deviceUri = QStringLiteral("usb://Test/Tape");
        if (mPpd->num_sizes > 0) {
            const ppd_size_t &size = mPpd->sizes[0];
            mFormat.paper =
                Paper{QString::fromUtf8(size.name), static_cast<double>(size.width), static_cast<double>(size.length)};
        }
    }

    PMPrintSession printSession() override { return &mSession; }
    PMPrintSettings printSettings() override { return &mSettings; }
    PMPageFormat pageFormat() override { return &mFormat; }
    Printer *PMPrinter() override { return &mPrinter; }
    ppd_file_t *ppdFile() override { return mPpd.get(); }

    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override
    {
        require(!key.isEmpty() && !choice.isNull());
        for (const auto *length : {"KsTapeLength", "KsMargin", "KsPrintTapeLength"}) {
            if (key.compare(QLatin1StringView(length), Qt::CaseInsensitive) == 0) {
                require(fuzz::isDecimalNumber(choice));
            }
        }
        ppdMarkOption(mPpd.get(), key.toUtf8().constData(), choice.toUtf8().constData());
        return true;
    }

private:
    OpenPpd mPpd;
    PrintSession mSession;
    PrintSettings mSettings;
    PageFormat mFormat;
    Printer mPrinter;
};

void checkSummary(const std::optional<QVariantMap> &summary)
{
    if (!summary) {
        return;
    }
    const QStringList order = summary->value(kSummaryDisplayOrder).toStringList();
    for (const QString &title : order) {
        require(summary->value(title).isValid());
    }
}

/// The calls of a dialog, in its order, and once again after a change.
void drive(Panel &panel)
{
    require(!panel.panelKind().isNull());
    const QStringList *keys = panel.supportedPPDOptionKeys();
    require(keys != nullptr);
    require(panel.panelView() == nullptr);
    panel.willShow();
    checkSummary(panel.summaryInfo());
    for (const QString &key : *keys) {
        panel.PPDOptionKeyValueDidChange(key, QStringLiteral("None"));
    }
    panel.willShow();
    panel.restoreValuesAndReturnError(nullptr);
    panel.saveValuesAndReturnError(nullptr);
    panel.shouldPrint();
    checkSummary(panel.summaryInfo());
    panel.printWindowWillClose(true);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool isReady = fuzz::makeApplication();
    static const fuzz::MemoryFile file;
    OpenPpd ppd(ppdOpenFile(file.hold(data, size).toLatin1().constData()));
    if (!isReady || ppd == nullptr) {
        return 0;
    }
    const std::shared_ptr<Panel> panel = newPageSettingPanel(std::make_shared<Dialog>(std::move(ppd)), nullptr);
    require(panel != nullptr);
    drive(*panel);
    return 0;
}
