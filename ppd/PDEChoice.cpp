// SPDX-License-Identifier: Apache-2.0
// Choice records: titles made once, the default test, the description.
#include "ppd/PDEChoice.h"

#include "pdekit/StringEncoding.h"

#include <cstring>

namespace
{

/// A title as the description shows it.
QString shown(const QString &title)
{
    return title.isNull() ? QStringLiteral("(null)") : title;
}

} // namespace

PDEChoice PDEChoice::choiceWithChoice(const ppd_choice_t *choice)
{
    return PDEChoice(choice);
}

PDEChoice::PDEChoice(const ppd_choice_t *choice) : mChoice(choice) {}

QString PDEChoice::userTitle() const
{
    if (!mUserTitle) {
        mUserTitle = mChoice == nullptr ? QString() : pdekit::stringFromUtf8(mChoice->text);
    }
    return *mUserTitle;
}

QString PDEChoice::ppdTitle() const
{
    if (!mPPDTitle) {
        mPPDTitle = mChoice == nullptr ? QString() : pdekit::stringFromAscii(mChoice->choice);
    }
    return *mPPDTitle;
}

bool PDEChoice::hasPPDTitle(const QString &keyword) const
{
    // Qt takes null and empty texts for equal.
    const QString title = ppdTitle();
    return !title.isNull() && title == keyword;
}

bool PDEChoice::isDefaultChoice() const
{
    return mChoice != nullptr && mChoice->option != nullptr &&
           std::strncmp(mChoice->choice, mChoice->option->defchoice, PPD_MAX_NAME) == 0;
}

QString PDEChoice::description() const
{
    const ppd_option_t *option = mChoice == nullptr ? nullptr : mChoice->option;
    const auto position = option == nullptr ? 0 : mChoice - option->choices + 1;
    const int count = option == nullptr ? 0 : option->num_choices;
    const bool marked = mChoice != nullptr && mChoice->marked != 0;
    return QStringLiteral("<PDEChoice 0x%1 userTitle:\"%2\" ppdTitle:\"%3\" marked:%4 choice:%5 of %6>")
        .arg(QString::number(reinterpret_cast<quintptr>(this), 16), shown(userTitle()), shown(ppdTitle()),
             marked ? QStringLiteral("YES") : QStringLiteral("NO"), QString::number(position), QString::number(count));
}
