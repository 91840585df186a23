// SPDX-License-Identifier: Apache-2.0
// The metadata object "Tape" and its names, as a table.
#include "job/TapeKeywords.h"

#include <QJsonArray>

#include <array>

namespace tapeprint::job
{

namespace
{

struct Name {
    QLatin1String key;
    QString TapeKeywords::*member;
};

const std::array names{
    Name{QLatin1String("LengthOption"), &TapeKeywords::lengthOption},
    Name{QLatin1String("MarginOption"), &TapeKeywords::marginOption},
    Name{QLatin1String("MinimumLengthAttribute"), &TapeKeywords::minimumLengthAttribute},
    Name{QLatin1String("MaximumLengthAttribute"), &TapeKeywords::maximumLengthAttribute},
    Name{QLatin1String("WholeLengthAttribute"), &TapeKeywords::wholeLengthAttribute},
    Name{QLatin1String("UnitAttribute"), &TapeKeywords::unitAttribute},
    Name{QLatin1String("TapeColorOption"), &TapeKeywords::tapeColorOption},
    Name{QLatin1String("InkColorOption"), &TapeKeywords::inkColorOption},
};

} // namespace

TapeKeywords TapeKeywords::fromMetadata(const QJsonObject &metadata)
{
    const QJsonObject tape = metadata.value(QLatin1String("Tape")).toObject();
    TapeKeywords keywords;
    for (const Name &name : names) {
        keywords.*name.member = tape.value(name.key).toString();
    }
    const QJsonArray papers = tape.value(QLatin1String("FixedLengthPapers")).toArray();
    for (const auto &paper : papers) {
        if (const QString beginning = paper.toString(); !beginning.isEmpty()) { // an empty one would name every paper
            keywords.fixedLengthPapers.append(beginning);
        }
    }
    const QJsonObject colors = tape.value(QLatin1String("Colors")).toObject();
    for (auto color = colors.begin(); color != colors.end(); ++color) {
        const QColor value(color.value().toString());
        if (value.isValid()) {
            keywords.colors.insert(color.key(), value);
        }
    }
    return keywords;
}

} // namespace tapeprint::job
