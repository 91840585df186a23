// SPDX-License-Identifier: Apache-2.0
// Lengths put into words, and the person's unit kept between windows.
#include "dialog/MeasureUnit.h"

#include "job/TapePage.h"
#include "job/Texts.h"

#include <QLocale>
#include <QSettings>
#include <QStandardPaths>

#include <cmath>
#include <utility>

namespace tapeprint::dialog
{

namespace
{

using job::Texts;

constexpr double pointsPerInch = 72.0;
const QString unitSetting = QStringLiteral("measures/unit");
const QString millimetreWord = QStringLiteral("mm");
const QString inchWord = QStringLiteral("inch");

QString ownSettings()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/tapeprint/dialog.ini");
}

std::optional<LengthUnit> remembered(const QString &settingsPath)
{
    const QString word = QSettings(settingsPath, QSettings::IniFormat).value(unitSetting).toString();
    return word == inchWord         ? std::optional(LengthUnit::Inch)
           : word == millimetreWord ? std::optional(LengthUnit::Millimetre)
                                    : std::nullopt;
}

/// Half of the last place is rounded up, as a person does it: 22.65 is a hair less as a binary fraction.
QString number(double value, int decimals)
{
    constexpr double hair = 1e-6;
    const double places = std::pow(10.0, decimals);
    return numbersLocale().toString(std::floor(value * places + 0.5 + hair) / places, 'f', decimals);
}

} // namespace

QLocale numbersLocale()
{
    QLocale locale = QLocale().zeroDigit() == QLatin1String("0") ? QLocale() : QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}

double inUnit(double lengthPt, LengthUnit unit)
{
    return unit == LengthUnit::Inch ? lengthPt / pointsPerInch : job::mmFromPoints(lengthPt);
}

double pointsOf(double value, LengthUnit unit)
{
    return unit == LengthUnit::Inch ? value * pointsPerInch : job::pointsFromMm(value);
}

int decimalsOf(LengthUnit unit)
{
    return unit == LengthUnit::Inch ? 2 : 1;
}

QString unitSign(LengthUnit unit)
{
    return unit == LengthUnit::Inch ? Texts::tr("in", "the sign of the inch") : QStringLiteral("mm");
}

QString measureText(double lengthPt, LengthUnit unit)
{
    return number(inUnit(lengthPt, unit), decimalsOf(unit)) + u' ' + unitSign(unit);
}

QString tapeText(double lengthPt, LengthUnit unit)
{
    constexpr double roundedUpTo = 0.05; // 99.95 cm would be shown as 100.0 cm
    if (unit == LengthUnit::Inch) {
        constexpr double inchesPerFoot = 12.0;
        constexpr double inchesPerYard = 36.0;
        const double inches = inUnit(lengthPt, unit);
        return inches + roundedUpTo < inchesPerYard
                   ? number(inches, 1) + u' ' + unitSign(unit)
                   : Texts::tr("%1 ft", "a length in feet").arg(number(inches / inchesPerFoot, 1));
    }
    constexpr double mmPerCm = 10.0;
    constexpr double mmPerMetre = 1000.0;
    const double mm = inUnit(lengthPt, unit);
    return mm + roundedUpTo * mmPerCm < mmPerMetre ? number(mm / mmPerCm, 1) + QStringLiteral(" cm")
                                                   : number(mm / mmPerMetre, 2) + QStringLiteral(" m");
}

MeasureUnit::MeasureUnit(const QString &settingsPath, QObject *parent)
    : QObject(parent), mSettingsPath(settingsPath.isEmpty() ? ownSettings() : settingsPath),
      mChosen(remembered(mSettingsPath)),
      mCountrys(QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? LengthUnit::Inch
                                                                                   : LengthUnit::Millimetre)
{
}

void MeasureUnit::setDescribed(std::optional<LengthUnit> unit)
{
    const LengthUnit before = this->unit();
    mDescribed = unit;
    if (this->unit() != before) {
        Q_EMIT changed();
    }
}

void MeasureUnit::choose(LengthUnit unit)
{
    const LengthUnit before = this->unit();
    mChosen = unit;
    QSettings settings(mSettingsPath, QSettings::IniFormat);
    settings.setValue(unitSetting, unit == LengthUnit::Inch ? inchWord : millimetreWord);
    settings.sync();
    if (unit != before) {
        Q_EMIT changed();
    }
    if (settings.status() != QSettings::NoError && !std::exchange(mSaidNotKept, true)) {
        Q_EMIT notKept(mSettingsPath);
    }
}

} // namespace tapeprint::dialog
