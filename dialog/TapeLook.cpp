// SPDX-License-Identifier: Apache-2.0
// Choices and attributes looked up.
#include "dialog/TapeLook.h"

#include "job/PpdMarks.h"

#include <cstdlib>

namespace tapeprint::dialog
{

namespace
{

QColor colourOf(ppd_file_t *ppd, const job::JobOptions &options, const QString &option,
                const QHash<QString, QColor> &colours, const QColor &otherwise)
{
    if (option.isEmpty()) {
        return otherwise;
    }
    const QString chosen = options.contains(option) ? options.value(option) : job::markedChoice(ppd, option);
    return colours.value(chosen, otherwise);
}

bool isInInches(ppd_file_t *ppd, const QString &attribute)
{
    const ppd_attr_t *unit = ppd == nullptr ? nullptr : ppdFindAttr(ppd, attribute.toUtf8().constData(), nullptr);
    return unit != nullptr && unit->value != nullptr && QLatin1String(unit->value) == QLatin1String("inch");
}

} // namespace

bool TapeLook::isFaint() const
{
    constexpr int leastApart = 40; // of 255 shades of grey
    return !isClear() && std::abs(qGray(tape.rgb()) - qGray(ink.rgb())) < leastApart;
}

TapeLook tapeLookOf(ppd_file_t *ppd, const job::JobOptions &options, const job::TapeKeywords &keywords)
{
    TapeLook look;
    look.tape = colourOf(ppd, options, keywords.tapeColorOption, keywords.colors, look.tape);
    look.ink = colourOf(ppd, options, keywords.inkColorOption, keywords.colors, look.ink);
    return look;
}

std::optional<LengthUnit> describedUnit(ppd_file_t *ppd, const job::TapeKeywords &keywords)
{
    if (keywords.unitAttribute.isEmpty()) {
        return std::nullopt;
    }
    return isInInches(ppd, keywords.unitAttribute) ? LengthUnit::Inch : LengthUnit::Millimetre;
}

} // namespace tapeprint::dialog
