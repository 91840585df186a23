// SPDX-License-Identifier: Apache-2.0
// Choices looked up, lengths put into words.
#include "dialog/TapeLook.h"

#include "job/PpdMarks.h"
#include "job/TapePage.h"
#include "job/Texts.h"

#include <algorithm>
#include <cmath>

#include <pdekit/Numbers.h>

namespace tapeprint::dialog
{

namespace
{

using job::Texts;

constexpr double pointsPerInch = 72.0;

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
    const ppd_attr_t *unit =
        ppd == nullptr || attribute.isEmpty() ? nullptr : ppdFindAttr(ppd, attribute.toUtf8().constData(), nullptr);
    return unit != nullptr && unit->value != nullptr && QLatin1String(unit->value) == QLatin1String("inch");
}

QString inches(double lengthPt, int decimals)
{
    return Texts::tr("%1 in", "a length in inches").arg(pdekit::fixedDecimals(lengthPt / pointsPerInch, decimals));
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
    look.unit = isInInches(ppd, keywords.unitAttribute) ? LengthUnit::Inch : LengthUnit::Millimetre;
    return look;
}

QString measureText(double lengthPt, LengthUnit unit)
{
    constexpr int inchDecimals = 2;
    return unit == LengthUnit::Inch ? inches(lengthPt, inchDecimals)
                                    : pdekit::fixedDecimals(job::mmFromPoints(lengthPt), 1) + QStringLiteral(" mm");
}

QString tapeText(double lengthPt, LengthUnit unit)
{
    constexpr double mmPerCm = 10.0;
    constexpr double mmPerMetre = 1000.0;
    constexpr double roundedUpTo = 0.05; // 99.95 cm would be shown as 100.0 cm
    if (unit == LengthUnit::Inch) {
        return inches(lengthPt, 1);
    }
    const double mm = job::mmFromPoints(lengthPt);
    return mm + roundedUpTo * mmPerCm < mmPerMetre ? pdekit::fixedDecimals(mm / mmPerCm, 1) + QStringLiteral(" cm")
                                                   : pdekit::fixedDecimals(mm / mmPerMetre, 2) + QStringLiteral(" m");
}

} // namespace tapeprint::dialog
