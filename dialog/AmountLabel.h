// SPDX-License-Identifier: Apache-2.0
// How much a press of Print prints, beside it, and the question about an unusual amount.
#pragma once

#include "dialog/Amount.h"
#include "dialog/ElidedLabel.h"

#include <optional>

namespace tapeprint::dialog
{

class AmountLabel : public ElidedLabel
{
    Q_OBJECT

public:
    explicit AmountLabel(QWidget *parent);

    /// Shows an amount. \param amount nothing when it is not known. \param isCounting whether it is about to be.
    void showAmount(const std::optional<Amount> &amount, bool isCounting, LengthUnit unit);

    /// Asks about the amount shown when it is unusual; once for each amount. \return whether it is to be printed.
    bool isAgreed();

private:
    std::optional<Amount> mAmount;
    std::optional<Amount> mAgreed; ///< the unusual amount that was said yes to last
};

} // namespace tapeprint::dialog
