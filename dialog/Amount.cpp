// SPDX-License-Identifier: Apache-2.0
// Amounts in words, and where the usual ends.
#include "dialog/Amount.h"

#include "job/TapePage.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace tapeprint::dialog
{

namespace
{

/// The words stand among the preview's texts.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(tapeprint::dialog::PreviewArea)
};

/// More labels than a sheet of addresses is likely to have; more tape than a cartridge holds; more sheets than a ream.
constexpr std::size_t mostUsualLabels = 100;
constexpr double mostUsualTapeMm = 10000.0;
constexpr std::size_t mostUsualSheets = 500;

} // namespace

int countOf(const Amount &amount)
{
    return static_cast<int>(std::min<std::size_t>(amount.pieces, std::numeric_limits<int>::max()));
}

QString amountText(const Amount &amount, LengthUnit unit)
{
    const int pieces = countOf(amount);
    if (!amount.isTape) {
        return Words::tr("%n sheet(s)", nullptr, pieces);
    }
    return Words::tr("%1, %2 of tape", "such as: 3 labels, 18.6 cm of tape")
        .arg(Words::tr("%n label(s)", nullptr, pieces), tapeText(amount.tapePt, unit));
}

bool isUnusual(const Amount &amount)
{
    return amount.isTape ? amount.pieces > mostUsualLabels || job::mmFromPoints(amount.tapePt) > mostUsualTapeMm
                         : amount.pieces > mostUsualSheets;
}

} // namespace tapeprint::dialog
