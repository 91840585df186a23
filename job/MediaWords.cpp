// SPDX-License-Identifier: Apache-2.0
// Which keyword a tray has is known to libcups alone, so it is asked to mark one.
#include "job/MediaWords.h"

#include "job/CupsOptions.h"
#include "job/CustomSizes.h"
#include "job/CustomValues.h"
#include "job/PpdMarks.h"
#include "job/TapePage.h"

#include <QSizeF>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

#include <cups/pwg.h>

namespace tapeprint::job
{

namespace
{

constexpr double unitsPerMm = 100.0; // libcups counts so

/// Whether the marked size is this one, but for what a description in whole points rounds away.
bool isMarked(ppd_file_t *ppd, const QSizeF &sizePt)
{
    constexpr double roundingPt = 0.5;
    const ppd_size_t *marked = ppdPageSize(ppd, nullptr);
    return marked != nullptr && std::abs(static_cast<double>(marked->width) - sizePt.width()) <= roundingPt &&
           std::abs(static_cast<double>(marked->length) - sizePt.height()) <= roundingPt;
}

} // namespace

QString trayNamed(ppd_file_t *ppd, const QString &word)
{
    static const std::array options{QStringLiteral("InputSlot"), QStringLiteral("MediaType")};
    const auto *const found = std::find_if(options.begin(), options.end(),
                                           [&](const QString &key) { return !listedChoice(ppd, key, word).isNull(); });
    return found == options.end() ? QString() : *found;
}

bool isKeywordOfTray(ppd_file_t *ppd, const QString &word)
{
    if (ppd == nullptr) {
        return false;
    }
    const PpdMarks before = takeMarks(ppd);
    putMarks(ppd, {});
    JobOptions media;
    media.set(OptionName::media, word);
    const CupsOptions asked(media);
    cupsMarkOptions(ppd, asked.count(), asked.data());
    static const std::array options{QStringLiteral("InputSlot"), QStringLiteral("HPPaperSource"),
                                    QStringLiteral("MediaType")};
    const bool isMarked = std::any_of(options.begin(), options.end(),
                                      [ppd](const QString &key) { return !markedChoice(ppd, key).isNull(); });
    putMarks(ppd, before);
    return isMarked;
}

QString ownSizeIn(ppd_file_t *ppd, const QString &media)
{
    for (const QString &word : media.split(u',')) {
        if (word.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive)) {
            return word;
        }
        const pwg_media_t *size = ppd == nullptr ? nullptr : pwgMediaForPWG(word.toUtf8().constData());
        if (size != nullptr) {
            const QSizeF sizePt(pointsFromMm(size->width / unitsPerMm), pointsFromMm(size->length / unitsPerMm));
            // What has a name of its own is a listed size wherever libcups finds one.
            const bool isMeant = isCustomValue(markedValue(ppd, OptionName::pageSize)) ||
                                 (word.startsWith(QLatin1String("custom_")) && !isMarked(ppd, sizePt));
            return isMeant && takesCustomSize(ppd, sizePt) ? customSizeName(sizePt) : QString();
        }
    }
    return {};
}

} // namespace tapeprint::job
