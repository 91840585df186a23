// SPDX-License-Identifier: Apache-2.0
// What a person is offered of a PPD is what libcups sees in it: options and choices, own values and their limits,
// conflicts, translations; and all of it can be drawn.
#include "job/Conflicts.h"
#include "job/CustomSizes.h"
#include "job/OptionGroups.h"
#include "job/PlainText.h"
#include "job/PpdMarks.h"
#include "job/PpdTexts.h"
#include "tests/support/TextPrinting.h"
#include "tests/sweep/PpdFolder.h"

#include <QMap>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <span>

namespace
{

using namespace tapeprint::job;
using sweeptest::forEveryPpd;
using sweeptest::libcupsView;

/// Keywords of the choices of each option.
using Offer = QMap<QString, QStringList>;

bool hasOwnValues(ppd_file_t *ppd, const ppd_option_t &option)
{
    const ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
    return custom != nullptr && cupsArrayCount(custom->params) > 0 && qstricmp(option.keyword, "PageSize") != 0;
}

/// The choices of an option, of the same keyword the first, without the one that stands for own values.
QStringList choicesIn(ppd_file_t *ppd, const ppd_option_t &option)
{
    QStringList choices;
    for (const ppd_choice_t &choice : choicesOf(option)) {
        const QString keyword = QString::fromUtf8(choice.choice);
        const bool isOwn =
            ppdFindCustomOption(ppd, option.keyword) != nullptr && qstricmp(choice.choice, "Custom") == 0;
        if (!isOwn && !choices.contains(keyword, Qt::CaseInsensitive)) {
            choices.append(keyword);
        }
    }
    return choices;
}

/// What there is to choose as libcups goes through its options.
Offer offerOfLibcups(ppd_file_t *ppd)
{
    Offer offer;
    forEachOption(ppd, [&](const ppd_option_t &option) {
        const QStringList choices = choicesIn(ppd, option);
        const bool isThere = choices.size() > 1 || (option.ui == PPD_UI_PICKMANY && !choices.isEmpty());
        if ((isThere || hasOwnValues(ppd, option)) && ppdFindOption(ppd, option.keyword) == &option) {
            offer.insert(QString::fromUtf8(option.keyword), choices);
        }
    });
    return offer;
}

Offer offerOfOurs(ppd_file_t *ppd)
{
    Offer offer;
    for (const OptionGroup &group : optionGroups(ppd, {})) {
        for (const OfferedOption &option : group.options) {
            QStringList &choices = offer[option.keyword];
            for (const OfferedChoice &choice : option.choices) {
                choices.append(choice.keyword);
            }
        }
    }
    return offer;
}

QString differenceOf(const Offer &ours, const Offer &its)
{
    for (const QString &keyword : QStringList(ours.keys() + its.keys())) {
        if (ours.contains(keyword) != its.contains(keyword)) {
            return (ours.contains(keyword) ? u"invented option: "_qs : u"option left out: "_qs) + keyword;
        }
        if (ours.value(keyword) != its.value(keyword)) {
            return u"other choices: "_qs + keyword + u' ' + ours.value(keyword).join(u',') + u" instead of "_qs +
                   its.value(keyword).join(u',');
        }
    }
    return {};
}

TEST(View, OffersTheOptionsAndChoicesOfLibcups)
{
    forEveryPpd([](const QString &path) {
        const PpdFile ppd = libcupsView(path);
        return differenceOf(offerOfOurs(ppd.get()), offerOfLibcups(ppd.get()));
    });
}

struct Limits {
    double least;
    double most;
};

/// \return nothing for a type that libcups does not know either.
std::optional<Limits> limitsIn(const ppd_cparam_t &parameter)
{
    const auto limits = [&parameter](auto member) {
        return Limits{static_cast<double>(parameter.minimum.*member), static_cast<double>(parameter.maximum.*member)};
    };
    switch (parameter.type) {
    case PPD_CUSTOM_CURVE:
        return limits(&ppd_cplimit_t::custom_curve);
    case PPD_CUSTOM_INT:
        return limits(&ppd_cplimit_t::custom_int);
    case PPD_CUSTOM_INVCURVE:
        return limits(&ppd_cplimit_t::custom_invcurve);
    case PPD_CUSTOM_PASSCODE:
        return limits(&ppd_cplimit_t::custom_passcode);
    case PPD_CUSTOM_PASSWORD:
        return limits(&ppd_cplimit_t::custom_password);
    case PPD_CUSTOM_POINTS:
        return limits(&ppd_cplimit_t::custom_points);
    case PPD_CUSTOM_REAL:
        return limits(&ppd_cplimit_t::custom_real);
    case PPD_CUSTOM_STRING:
        return limits(&ppd_cplimit_t::custom_string);
    default:
        return std::nullopt;
    }
}

bool areSame(const CustomParameter &ours, const Limits &its)
{
    return ours.least == std::min(its.least, its.most) && ours.most == std::max(its.least, its.most);
}

QString differenceOfOwnValues(ppd_file_t *ppd, const ppd_option_t &option)
{
    ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
    for (const CustomParameter &ours : customParameters(ppd, QString::fromUtf8(option.keyword))) {
        const ppd_cparam_t *its =
            custom == nullptr ? nullptr : ppdFindCustomParam(custom, ours.name.toUtf8().constData());
        const std::optional<Limits> limits = its == nullptr ? std::nullopt : limitsIn(*its);
        if (!limits || !areSame(ours, *limits)) {
            return u"other limits: "_qs + QString::fromUtf8(option.keyword) + u' ' + ours.name;
        }
    }
    return {};
}

QString differenceOfOwnSizes(const ppd_file_t *ppd)
{
    const std::vector<CustomParameter> ours = customSizeParameters(ppd);
    if (ppd->variable_sizes == 0) {
        return ours.empty() ? QString() : u"own sizes: taken where there are none"_qs;
    }
    for (std::size_t i = 0; i < ours.size(); ++i) {
        if (ours[i].least != static_cast<double>(ppd->custom_min[i]) ||
            ours[i].most != static_cast<double>(ppd->custom_max[i])) {
            return u"other limits of own sizes: "_qs + ours[i].name;
        }
    }
    const bool areSound = ppd->custom_max[0] > 0 && ppd->custom_max[1] > 0 &&
                          ppd->custom_min[0] <= ppd->custom_max[0] && ppd->custom_min[1] <= ppd->custom_max[1];
    return ours.empty() && areSound ? u"own sizes: left out"_qs : QString();
}

TEST(View, OwnValuesAndSizes_HaveTheLimitsOfLibcups)
{
    forEveryPpd([](const QString &path) {
        const PpdFile ppd = libcupsView(path);
        QString difference = differenceOfOwnSizes(ppd.get());
        forEachOption(ppd.get(), [&](const ppd_option_t &option) {
            if (difference.isNull()) {
                difference = differenceOfOwnValues(ppd.get(), option);
            }
        });
        return difference;
    });
}

/// The options that libcups finds in conflict.
QSet<QString> conflictingForLibcups(ppd_file_t *ppd)
{
    ppdConflicts(ppd);
    QSet<QString> keys;
    forEachOption(ppd, [&](const ppd_option_t &option) {
        if (option.conflicted != 0) {
            const bool isPaper = qstricmp(option.keyword, "PageRegion") == 0; // another name of PageSize
            keys.insert(isPaper ? u"PageSize"_qs : QString::fromUtf8(option.keyword));
        }
    });
    return keys;
}

QSet<QString> conflictingForUs(ppd_file_t *ppd)
{
    QSet<QString> keys;
    for (const Conflict &conflict : conflictsOf(ppd)) {
        for (const ConflictingChoice &choice : conflict.choices) {
            keys.insert(choice.key);
        }
    }
    return keys;
}

QString differenceOfConflicts(ppd_file_t *ppd)
{
    const QSet<QString> ours = conflictingForUs(ppd);
    const QSet<QString> its = conflictingForLibcups(ppd);
    if (ours == its) {
        return {};
    }
    const auto listed = [](const QSet<QString> &keys) {
        QStringList list(keys.begin(), keys.end());
        list.sort();
        return list.join(u',');
    };
    return u"other conflicts: "_qs + listed(ours) + u" instead of "_qs + listed(its);
}

void mark(ppd_file_t *ppd, const char *option, const char *choice)
{
    const bool isPaper = qstricmp(option, "PageRegion") == 0; // another name of PageSize
    ppdMarkOption(ppd, isPaper ? "PageSize" : option, choice);
}

/// What differs when the choices of an old constraint are marked, one constraint after the other.
QString differenceOfConstraints(ppd_file_t *ppd)
{
    constexpr std::size_t most = 10; // some descriptions have thousands: a spread of them
    const std::span constraints(ppd->consts, static_cast<std::size_t>(std::max(ppd->num_consts, 0)));
    for (std::size_t i = 0; i < constraints.size(); i += std::max<std::size_t>(constraints.size() / most, 1)) {
        const ppd_const_t &constraint = constraints[i];
        ppdMarkDefaults(ppd);
        mark(ppd, constraint.option1, constraint.choice1);
        mark(ppd, constraint.option2, constraint.choice2);
        if (const QString difference = differenceOfConflicts(ppd); !difference.isNull()) {
            return difference;
        }
    }
    return {};
}

void markLastChoices(ppd_file_t *ppd)
{
    forEachOption(ppd, [ppd](const ppd_option_t &option) {
        const QStringList choices = choicesIn(ppd, option);
        if (!choices.isEmpty() && qstricmp(option.keyword, "PageRegion") != 0) {
            ppdMarkOption(ppd, option.keyword, choices.last().toUtf8().constData());
        }
    });
}

TEST(View, Conflicts_AreThoseOfLibcups)
{
    forEveryPpd([](const QString &path) {
        const PpdFile ppd = libcupsView(path);
        QString difference = differenceOfConflicts(ppd.get());
        if (difference.isNull()) {
            markLastChoices(ppd.get());
            difference = differenceOfConflicts(ppd.get());
        }
        return difference.isNull() ? differenceOfConstraints(ppd.get()) : difference;
    });
}

/// Every text of a PPD, with where it stands.
QStringList textsOf(ppd_file_t *ppd)
{
    QStringList texts;
    for (const ppd_group_t &group : std::span(ppd->groups, static_cast<std::size_t>(std::max(ppd->num_groups, 0)))) {
        texts.append(QString::fromUtf8(group.name) + u'=' + ppdText(group.text));
    }
    forEachOption(ppd, [&](const ppd_option_t &option) {
        const QString keyword = QString::fromUtf8(option.keyword);
        texts.append(keyword + u'=' + ppdText(option.text));
        for (const ppd_choice_t &choice : choicesOf(option)) {
            texts.append(keyword + u' ' + QString::fromUtf8(choice.choice) + u'=' + ppdText(choice.text));
        }
        for (const ppd_cparam_t *parameter : parametersOf(ppdFindCustomOption(ppd, option.keyword))) {
            texts.append(keyword + u' ' + QString::fromUtf8(parameter->name) + u'=' + ppdText(parameter->text));
        }
    });
    return texts;
}

bool hasGerman(ppd_file_t *ppd)
{
    const auto isGerman = [](const ppd_attr_t *attribute) { return qstrnicmp(attribute->name, "de.", 3) == 0; };
    return std::any_of(ppd->attrs, ppd->attrs + ppd->num_attrs, isGerman);
}

TEST(View, Translations_AreThoseOfLibcups)
{
    int translated = 0;
    forEveryPpd([&translated](const QString &path) {
        const PpdFile reference = libcupsView(path);
        if (!hasGerman(reference.get())) {
            return QString();
        }
        ++translated;
        ppdLocalize(reference.get());
        const PpdFile ppd = libcupsView(path);
        translateTexts(ppd.get(), {u"de-DE"_qs});
        const QStringList ours = textsOf(ppd.get());
        const QStringList its = textsOf(reference.get());
        for (qsizetype i = 0; i < ours.size(); ++i) {
            // Where a translation is empty, libcups leaves no text at all, and we the one that stood there.
            if (ours[i] != its.value(i) && !its.value(i).endsWith(u'=')) {
                return u"other texts: "_qs + ours[i] + u" instead of "_qs + its.value(i);
            }
        }
        return QString();
    });
    // How many there have to be is known of the small descriptions alone.
    EXPECT_GE(translated, qEnvironmentVariableIntValue("TAPEPRINT_SWEEP_GERMAN"));
}

/// \return why a text cannot be drawn, or is none; null when it can.
QString problemWith(const QString &text)
{
    if (text.trimmed().isEmpty()) {
        return u"no text: "_qs;
    }
    return harmless(text) == text && !text.contains(QChar::ReplacementCharacter) ? QString()
                                                                                 : u"a text that cannot be drawn: "_qs;
}

TEST(View, Texts_CanBeDrawn)
{
    forEveryPpd([](const QString &path) {
        const PpdFile ppd = libcupsView(path);
        for (const OptionGroup &group : optionGroups(ppd.get(), {})) {
            QStringList texts{group.text};
            for (const OfferedOption &option : group.options) {
                texts.append(option.text);
                for (const OfferedChoice &choice : option.choices) {
                    texts.append(choice.text);
                }
                for (const CustomParameter &parameter : option.customValues) {
                    texts.append(parameter.text);
                }
            }
            for (const QString &text : texts) {
                if (const QString problem = problemWith(text); !problem.isNull()) {
                    return problem + group.name + u' ' + text;
                }
            }
        }
        return QString();
    });
}

} // namespace
