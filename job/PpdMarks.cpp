// SPDX-License-Identifier: Apache-2.0
// Marks in a PPD. ppdMarkOption keeps the old mark in silence when a choice is not listed, so listing is asked first.
#include "job/PpdMarks.h"

#include "job/CustomValues.h"

#include <QHash>

namespace tapeprint::job
{

namespace
{

const QLatin1String customChoice("Custom");

QString keywordOf(const ppd_choice_t &choice)
{
    return QString::fromUtf8(choice.choice);
}

/// Choices of an option that takes several, in the PPD's order; null when one of them is not listed.
QString listedChoices(const ppd_option_t &option, const QString &value)
{
    const QStringList wanted = value.split(u',');
    QStringList listed;
    for (const ppd_choice_t &choice : choicesOf(option)) {
        if (wanted.contains(keywordOf(choice), Qt::CaseInsensitive)) {
            listed.append(keywordOf(choice));
        }
    }
    return listed.size() == wanted.size() ? listed.join(u',') : QString();
}

/// Takes every mark from an option. libcups finds marks by their option alone, so it is all of them or none.
void unmark(ppd_file_t *ppd, const ppd_option_t &option)
{
    for (ppd_choice_t &choice : choicesOf(option)) {
        if (choice.marked != 0) {
            cupsArrayRemove(ppd->marked, &choice);
            choice.marked = 0;
        }
    }
}

void markEach(ppd_file_t *ppd, const ppd_option_t &option, const QString &values)
{
    unmark(ppd, option);
    for (const QString &value : values.split(u',')) {
        ppdMarkOption(ppd, option.keyword, value.toUtf8().constData());
    }
}

QString numberText(float value)
{
    constexpr int floatDigits = 7;
    return QString::number(static_cast<double>(value), 'g', floatDigits);
}

QString currentValue(const ppd_cparam_t &parameter)
{
    switch (parameter.type) {
    case PPD_CUSTOM_CURVE:
        return numberText(parameter.current.custom_curve);
    case PPD_CUSTOM_INVCURVE:
        return numberText(parameter.current.custom_invcurve);
    case PPD_CUSTOM_POINTS:
        return numberText(parameter.current.custom_points);
    case PPD_CUSTOM_REAL:
        return numberText(parameter.current.custom_real);
    case PPD_CUSTOM_PASSCODE:
        return QString::fromUtf8(parameter.current.custom_passcode);
    case PPD_CUSTOM_PASSWORD:
        return QString::fromUtf8(parameter.current.custom_password);
    case PPD_CUSTOM_STRING:
        return QString::fromUtf8(parameter.current.custom_string);
    default:
        return QString::number(parameter.current.custom_int);
    }
}

/// The custom value that is marked.
QString currentCustomValue(ppd_file_t *ppd, const QString &key)
{
    if (key.compare(OptionName::pageSize, Qt::CaseInsensitive) == 0) {
        const ppd_size_t *size = ppdPageSize(ppd, customChoice.data());
        return size == nullptr ? QString(customChoice)
                               : QStringLiteral("Custom.%1x%2").arg(numberText(size->width), numberText(size->length));
    }
    const std::vector<CustomParameter> parameters = customParameters(ppd, key);
    QStringList values;
    for (const ppd_cparam_t *parameter : parametersOf(ppdFindCustomOption(ppd, key.toUtf8().constData()))) {
        values.append(currentValue(*parameter));
    }
    return parameters.empty() ? QString(customChoice) : customValue(parameters, values);
}

} // namespace

ppd_option_t *findOption(ppd_file_t *ppd, const QString &key)
{
    return ppd == nullptr || key.isEmpty() ? nullptr : ppdFindOption(ppd, key.toUtf8().constData());
}

std::vector<ppd_cparam_t *> parametersOf(ppd_coption_t *custom)
{
    std::vector<ppd_cparam_t *> parameters;
    if (custom != nullptr) {
        for (ppd_cparam_t *found = ppdFirstCustomParam(custom); found != nullptr; found = ppdNextCustomParam(custom)) {
            parameters.push_back(found);
        }
    }
    return parameters;
}

QString listedChoice(ppd_file_t *ppd, const QString &key, const QString &choice)
{
    ppd_option_t *option = findOption(ppd, key);
    if (option == nullptr || choice.isEmpty()) {
        return {};
    }
    if (option->ui == PPD_UI_PICKMANY && choice.contains(u',')) {
        return listedChoices(*option, choice);
    }
    // ppdFindChoice answers the choice "Custom" for a custom value, if the option allows one.
    const ppd_choice_t *found = ppdFindChoice(option, choice.toUtf8().constData());
    if (found == nullptr) {
        return {};
    }
    return isCustomValue(choice) ? choice : keywordOf(*found);
}

bool markChoice(ppd_file_t *ppd, const QString &key, const QString &choice)
{
    const QString listed = listedChoice(ppd, key, choice);
    if (listed.isNull()) {
        return false;
    }
    if (const ppd_option_t *option = findOption(ppd, key); option->ui == PPD_UI_PICKMANY) {
        markEach(ppd, *option, listed);
    } else {
        ppdMarkOption(ppd, key.toUtf8().constData(), listed.toUtf8().constData());
    }
    return true;
}

QString markedChoice(ppd_file_t *ppd, const QString &key)
{
    const ppd_choice_t *marked = ppd == nullptr ? nullptr : ppdFindMarkedChoice(ppd, key.toUtf8().constData());
    return marked == nullptr ? QString() : keywordOf(*marked);
}

QString markedValue(ppd_file_t *ppd, const QString &key)
{
    const ppd_option_t *option = findOption(ppd, key);
    if (option == nullptr) {
        return {};
    }
    QStringList marked;
    for (const ppd_choice_t &choice : choicesOf(*option)) {
        if (choice.marked != 0) {
            marked.append(keywordOf(choice));
        }
    }
    if (marked.size() == 1 && marked.first() == customChoice && ppdFindCustomOption(ppd, option->keyword) != nullptr) {
        return currentCustomValue(ppd, key);
    }
    return marked.isEmpty() ? QString() : marked.join(u',');
}

bool setDefaultChoice(ppd_file_t *ppd, const QString &key, const QString &value)
{
    ppd_option_t *option = findOption(ppd, key);
    const QByteArray bytes = value.toUtf8();
    if (option == nullptr || static_cast<std::size_t>(bytes.size()) >= sizeof option->defchoice) {
        return false;
    }
    const std::span<char> record(option->defchoice);
    std::fill(std::copy(bytes.begin(), bytes.end(), record.begin()), record.end(), '\0');
    return true;
}

PpdMarks takeMarks(ppd_file_t *ppd)
{
    PpdMarks marks;
    forEachOption(ppd, [ppd, &marks](const ppd_option_t &option) {
        const QString key = QString::fromUtf8(option.keyword);
        if (const QString value = markedValue(ppd, key); !value.isNull()) {
            marks.emplace_back(key, value);
        }
    });
    return marks;
}

void putMarks(ppd_file_t *ppd, const PpdMarks &marks)
{
    QHash<QString, QString> values;
    for (const auto &[key, value] : marks) {
        values.insert(key, value);
    }
    forEachOption(ppd, [ppd, &values](const ppd_option_t &option) {
        if (!values.contains(QString::fromUtf8(option.keyword))) {
            unmark(ppd, option);
        }
    });
    for (const auto &[key, value] : marks) {
        markChoice(ppd, key, value);
    }
}

PpdMarks takeDefaults(ppd_file_t *ppd)
{
    PpdMarks defaults;
    forEachOption(ppd, [&defaults](const ppd_option_t &option) {
        defaults.emplace_back(QString::fromUtf8(option.keyword), QString::fromUtf8(option.defchoice));
    });
    return defaults;
}

void putDefaults(ppd_file_t *ppd, const PpdMarks &defaults)
{
    for (const auto &[key, choice] : defaults) {
        const ppd_option_t *option = findOption(ppd, key);
        if (option != nullptr && QString::fromUtf8(option->defchoice) != choice) {
            setDefaultChoice(ppd, key, choice);
        }
    }
}

} // namespace tapeprint::job
