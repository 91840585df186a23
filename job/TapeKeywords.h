// SPDX-License-Identifier: Apache-2.0
// What a plug-in's metadata says of a tape: which options and attributes of a PPD mean what. The job and the window
// know tapes by this alone.
#pragma once

#include <QColor>
#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace tapeprint::job
{

/// Names out of the metadata object "Tape". Every name may be empty: then there is no such thing.
struct TapeKeywords {
    QString lengthOption;           ///< PPD option: the tape's length in millimetres
    QString marginOption;           ///< PPD option: what stays free at each end, in millimetres
    QStringList fixedLengthPapers;  ///< beginnings of page size names whose length cannot be chosen
    QString minimumLengthAttribute; ///< PPD attribute, millimetres
    QString maximumLengthAttribute; ///< PPD attribute, millimetres
    QString wholeLengthAttribute;   ///< PPD attribute: "True" when lengths are whole millimetres, else tenths
    QString unitAttribute;          ///< PPD attribute: "inch" when lengths are shown in inches
    QString tapeColorOption;        ///< PPD option
    QString inkColorOption;         ///< PPD option
    QHash<QString, QColor> colors;  ///< what the choices of the colour options look like

    /// Whether nothing is said of a tape: the printer prints on paper.
    bool isEmpty() const { return lengthOption.isEmpty(); }

    /// Reads the object "Tape" of a plug-in's metadata. What is missing or of another type stays empty.
    static TapeKeywords fromMetadata(const QJsonObject &metadata);
};

} // namespace tapeprint::job
