// SPDX-License-Identifier: Apache-2.0
// A paper is told standing, and so are its margins, also where its pages lie: that is how GTK reads them.
#include "portal/PortalPaper.h"

#include "job/PageLayout.h"
#include "job/PpdMarks.h"
#include "job/UsualOptions.h"

#include <QMarginsF>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include <pdekit/Numbers.h>

namespace tapeprint::portal
{

namespace
{

/// Papers of the same size are written a little differently by each program.
constexpr double samePaperMm = 0.5;
/// What is larger is no paper.
constexpr double longestMm = 100000.0;

struct Turned {
    QLatin1String word;
    QLatin1String option; ///< of orientation-requested
    job::Turn turn;
};

constexpr std::array orientations{
    Turned{QLatin1String("portrait"), QLatin1String("3"), job::Turn::None},
    Turned{QLatin1String("landscape"), QLatin1String("4"), job::Turn::Left},
    Turned{QLatin1String("reverse_landscape"), QLatin1String("5"), job::Turn::Right},
    Turned{QLatin1String("reverse_portrait"), QLatin1String("6"), job::Turn::Half},
};

bool isLength(double mm)
{
    return std::isfinite(mm) && mm > 0.0 && mm < longestMm;
}

double numberIn(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.userType() == QMetaType::Double ? value.toDouble(&isNumber) : 0.0;
    return isNumber ? number : 0.0;
}

/// Pages that nobody turned stand, as programs say it that were not asked: some viewers turn pages by themselves, and
/// then draw beside a page that lies.
QString orientationOf(const job::SettledJob &job)
{
    const job::Turn turn = job::layoutChoicesOf(job.options).turn;
    const auto found = std::find_if(orientations.begin(), orientations.end(),
                                    [turn](const Turned &turned) { return turned.turn == turn; });
    return found == orientations.end() ? QString(orientations.front().word) : QString(found->word);
}

QSizeF sizeMmOf(const job::SettledJob &job)
{
    return {job::mmFromPoints(job.page.sizePt.width()), job::mmFromPoints(job.page.sizePt.height())};
}

/// A name of our own: what the description calls the paper may be another length.
QString paperName(const job::SettledJob &job)
{
    const QSizeF size = sizeMmOf(job);
    constexpr int decimals = 1;
    return QStringLiteral("tape_%1x%2mm")
        .arg(QString::number(size.width(), 'f', decimals), QString::number(size.height(), 'f', decimals));
}

} // namespace

QSizeF paperSizeMm(const QVariantMap &settings, const QVariantMap &pageSetup)
{
    const QSizeF set(pdekit::doubleValue(settings.value(QStringLiteral("paper-width")).toString()),
                     pdekit::doubleValue(settings.value(QStringLiteral("paper-height")).toString()));
    const QSizeF page(numberIn(pageSetup.value(QStringLiteral("Width"))),
                      numberIn(pageSetup.value(QStringLiteral("Height"))));
    for (const QSizeF &size : {set, page}) {
        if (isLength(size.width()) && isLength(size.height())) {
            return size;
        }
    }
    return {};
}

QString paperOfSize(const QSizeF &sizeMm, ppd_file_t *ppd)
{
    if (sizeMm.isEmpty() || ppd == nullptr) {
        return {};
    }
    for (const ppd_size_t &size : std::span(ppd->sizes, static_cast<std::size_t>(std::max(ppd->num_sizes, 0)))) {
        QString name = QString::fromUtf8(size.name);
        const bool isSame =
            std::abs(job::mmFromPoints(static_cast<double>(size.width)) - sizeMm.width()) < samePaperMm &&
            std::abs(job::mmFromPoints(static_cast<double>(size.length)) - sizeMm.height()) < samePaperMm;
        if (isSame && !job::listedChoice(ppd, job::OptionName::pageSize, name).isNull()) {
            return name;
        }
    }
    return {};
}

QString askedTurn(const QVariantMap &settings, const QVariantMap &pageSetup)
{
    const QString setup = pageSetup.value(QStringLiteral("Orientation")).toString();
    const QString orientation = setup.isEmpty() ? settings.value(QStringLiteral("orientation")).toString() : setup;
    const auto found = std::find_if(orientations.begin(), orientations.end(),
                                    [&orientation](const Turned &turned) { return orientation == turned.word; });
    return found == orientations.end() || found->turn == job::Turn::None ? QString() : QString(found->option);
}

QVariantMap pageSetupOf(const job::SettledJob &job)
{
    QVariantMap setup;
    setup.insert(QStringLiteral("Orientation"), orientationOf(job));
    if (job.page.isEmpty()) {
        return setup;
    }
    const QSizeF size = sizeMmOf(job);
    const QRectF inside = job.page.layoutRect();
    const QRectF whole = job.page.wholeRect();
    QMarginsF margins;
    if (!inside.isEmpty()) {
        margins = {inside.left(), inside.top(), whole.right() - inside.right(), whole.bottom() - inside.bottom()};
    }
    setup.insert(QStringLiteral("Name"), paperName(job));
    setup.insert(QStringLiteral("DisplayName"), paperName(job));
    setup.insert(QStringLiteral("Width"), size.width());
    setup.insert(QStringLiteral("Height"), size.height());
    setup.insert(QStringLiteral("MarginTop"), job::mmFromPoints(margins.top()));
    setup.insert(QStringLiteral("MarginBottom"), job::mmFromPoints(margins.bottom()));
    setup.insert(QStringLiteral("MarginLeft"), job::mmFromPoints(margins.left()));
    setup.insert(QStringLiteral("MarginRight"), job::mmFromPoints(margins.right()));
    return setup;
}

QVariantMap paperSettings(const job::SettledJob &job)
{
    QVariantMap settings{{QStringLiteral("orientation"), orientationOf(job)}};
    if (!job.page.isEmpty()) {
        const QSizeF size = sizeMmOf(job);
        settings.insert(QStringLiteral("paper-format"), QLatin1String("custom-") + paperName(job));
        settings.insert(QStringLiteral("paper-width"), QString::number(size.width(), 'g', 10));
        settings.insert(QStringLiteral("paper-height"), QString::number(size.height(), 'g', 10));
    }
    return settings;
}

} // namespace tapeprint::portal
