// SPDX-License-Identifier: Apache-2.0
// The registered job attributes that a client may send with a job (job template and job description attributes).
#include "job/IppAttributeNames.h"

#include <algorithm>
#include <array>

namespace tapeprint::job
{

namespace
{

const std::array names{
    QLatin1String("compression"),
    QLatin1String("copies"),
    QLatin1String("cover-back"),
    QLatin1String("cover-front"),
    QLatin1String("document-format"),
    QLatin1String("document-name"),
    QLatin1String("feed-orientation"),
    QLatin1String("finishings"),
    QLatin1String("finishings-col"),
    QLatin1String("font-name-requested"),
    QLatin1String("font-size-requested"),
    QLatin1String("force-front-side"),
    QLatin1String("imposition-template"),
    QLatin1String("insert-sheet"),
    QLatin1String("job-account-id"),
    QLatin1String("job-account-type"),
    QLatin1String("job-accounting-sheets"),
    QLatin1String("job-accounting-user-id"),
    QLatin1String("job-cancel-after"),
    QLatin1String("job-copies"),
    QLatin1String("job-delay-output-until"),
    QLatin1String("job-error-action"),
    QLatin1String("job-error-sheet"),
    QLatin1String("job-hold-until"),
    QLatin1String("job-message-to-operator"),
    QLatin1String("job-name"),
    QLatin1String("job-password"),
    QLatin1String("job-phone-number"),
    QLatin1String("job-priority"),
    QLatin1String("job-recipient-name"),
    QLatin1String("job-retain-until"),
    QLatin1String("job-sheet-message"),
    QLatin1String("job-sheets"),
    QLatin1String("job-sheets-col"),
    QLatin1String("media"),
    QLatin1String("media-col"),
    QLatin1String("media-input-tray-check"),
    QLatin1String("multiple-document-handling"),
    QLatin1String("number-up"),
    QLatin1String("orientation-requested"),
    QLatin1String("output-bin"),
    QLatin1String("output-device"),
    QLatin1String("output-mode"),
    QLatin1String("overrides"),
    QLatin1String("page-delivery"),
    QLatin1String("page-order-received"),
    QLatin1String("page-ranges"),
    QLatin1String("pages-per-subset"),
    QLatin1String("pdl-init-file"),
    QLatin1String("presentation-direction-number-up"),
    QLatin1String("print-color-mode"),
    QLatin1String("print-content-optimize"),
    QLatin1String("print-quality"),
    QLatin1String("print-rendering-intent"),
    QLatin1String("print-scaling"),
    QLatin1String("print-supports"),
    QLatin1String("printer-resolution"),
    QLatin1String("proof-print"),
    QLatin1String("separator-sheets"),
    QLatin1String("sheet-collate"),
    QLatin1String("sides"),
    QLatin1String("x-image-position"),
    QLatin1String("x-image-shift"),
    QLatin1String("x-side1-image-shift"),
    QLatin1String("x-side2-image-shift"),
    QLatin1String("y-image-position"),
    QLatin1String("y-image-shift"),
    QLatin1String("y-side1-image-shift"),
    QLatin1String("y-side2-image-shift"),
};

} // namespace

bool isIppJobAttribute(const QString &name)
{
    return std::any_of(names.begin(), names.end(), [&name](QLatin1String known) { return name == known; });
}

QString ippJobAttributeInOtherLetters(const QString &name)
{
    const auto found = std::find_if(names.begin(), names.end(), [&name](QLatin1String known) {
        return name != known && name.compare(known, Qt::CaseInsensitive) == 0;
    });
    return found == names.end() ? QString() : QString(*found);
}

QStringList ippJobAttributes()
{
    return {names.begin(), names.end()};
}

} // namespace tapeprint::job
