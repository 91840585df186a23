// SPDX-License-Identifier: Apache-2.0
// The unit of the dialog's own measures, millimetres or inches: preview, tape used, custom sizes. Panels keep the unit
// of the printer's description, and job options stay in millimetres and points.
#pragma once

#include <QLocale>
#include <QObject>
#include <QString>

#include <optional>

namespace tapeprint::dialog
{

enum class LengthUnit { Millimetre, Inch };

/// A length in points as a number of a unit, and back.
double inUnit(double lengthPt, LengthUnit unit);
double pointsOf(double value, LengthUnit unit);

/// With how many decimals a length is shown and entered: tenths of a millimetre, hundredths of an inch.
int decimalsOf(LengthUnit unit);

/// How the dialog writes numbers: as the person does, but in the digits and without the groups of the panels' fields.
/// One length must not stand in the window in two ways.
QLocale numbersLocale();

/// The sign of a unit as it stands behind a number: "mm" or "in".
QString unitSign(LengthUnit unit);

/// A length with its unit, the number as the person's language writes it.
QString measureText(double lengthPt, LengthUnit unit);

/// How much tape, likewise: in centimetres and from a metre on in metres, or in inches and from a yard on in feet.
QString tapeText(double lengthPt, LengthUnit unit);

/// The unit that a window measures in, shared by everything in it that shows or takes a length.
class MeasureUnit : public QObject
{
    Q_OBJECT

public:
    /// Measures in the unit that the person has chosen last, in whatever window; before any choice in the country's.
    /// \param settingsPath where the choice is kept; an empty path is the person's own settings.
    explicit MeasureUnit(const QString &settingsPath = {}, QObject *parent = nullptr);

    LengthUnit unit() const { return mChosen.value_or(mDescribed.value_or(mCountrys)); }

    /// The unit in which the printer's description counts; nothing when it does not say. It holds until the person
    /// chooses one.
    void setDescribed(std::optional<LengthUnit> unit);
    /// The person chooses a unit: it is remembered, or else said once that it is not.
    void choose(LengthUnit unit);

    QString measureText(double lengthPt) const { return dialog::measureText(lengthPt, unit()); }
    QString tapeText(double lengthPt) const { return dialog::tapeText(lengthPt, unit()); }

Q_SIGNALS:
    /// Lengths are to be shown in another unit.
    void changed();
    /// The choice holds, but the next window will not know of it: the file cannot be written.
    void notKept(const QString &settingsPath);

private:
    QString mSettingsPath;
    std::optional<LengthUnit> mChosen;
    std::optional<LengthUnit> mDescribed;
    LengthUnit mCountrys;
    bool mSaidNotKept = false;
};

} // namespace tapeprint::dialog
