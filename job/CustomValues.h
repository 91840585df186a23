// SPDX-License-Identifier: Apache-2.0
// Values of a person's own for options that take more than the listed choices: numbers, lengths, texts, passwords. They
// are written as CUPS reads them: Custom.VALUE, or {NAME=VALUE NAME=VALUE} where an option has several parameters.
#pragma once

#include "job/JobOptions.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

enum class CustomKind { Curve, InverseCurve, Integer, Real, Length, Text, Password, Passcode };

/// One part of an own value.
struct CustomParameter {
    QString name;
    QString text; ///< for people
    CustomKind kind = CustomKind::Text;
    double least = 0.0; ///< of numbers; of lengths in points; of texts their least length in characters
    double most = 0.0;

    bool isLength() const { return kind == CustomKind::Length; }
    bool isWhole() const { return kind == CustomKind::Integer; }
    /// Whether the value is written where others read it only in asterisks, and kept nowhere.
    bool isSecret() const { return kind == CustomKind::Password || kind == CustomKind::Passcode; }
    bool isText() const { return kind == CustomKind::Text || isSecret(); }
};

/// What an own value of an option consists of, in the PPD's order; empty when the option takes none. Limits that a PPD
/// gives the wrong way round are exchanged. The page size is none of these: see CustomSizes.
std::vector<CustomParameter> customParameters(ppd_file_t *ppd, const QString &key);

/// Whether a job's value is an own one.
bool isCustomValue(const QString &value);

/// An option's value out of those of its parameters, in their order. Numbers have a decimal point, lengths a unit that
/// CUPS knows or none for points.
QString customValue(const std::vector<CustomParameter> &parameters, const QStringList &values);

/// The values of the parameters in an option's value, in their order; null strings for those that it does not name.
QStringList customValuesIn(const std::vector<CustomParameter> &parameters, const QString &value);

/// Points of a length as CUPS reads it: "12.5", "4.4mm", "1in"; nothing for what is no length.
std::optional<double> pointsOfLength(const QString &length);

/// What a parameter takes, as a sentence. \param inInches the unit in which limits of lengths are named, millimetres
/// otherwise.
QString customLimits(const CustomParameter &parameter, bool inInches);
/// Why a parameter does not take a value, as a sentence; null when it does.
QString customProblem(const CustomParameter &parameter, const QString &value, bool inInches);

/// A sentence for each option whose value stands in braces though the PPD has no own values of several parameters for
/// it: no filter would see it. \param ppd may be null.
QStringList bracedForNobody(ppd_file_t *ppd, const JobOptions &options);

/// A job's options as they may be shown: passwords and passcodes in asterisks.
JobOptions withoutSecrets(ppd_file_t *ppd, const JobOptions &options);
/// The same for one value.
QString withoutSecret(ppd_file_t *ppd, const QString &key, const QString &value);

} // namespace tapeprint::job
