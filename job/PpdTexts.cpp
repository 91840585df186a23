// SPDX-License-Identifier: Apache-2.0
// Translations stand in a PPD as "*de.Option Choice/Text" and "*de.Translation Option/Text".
#include "job/PpdTexts.h"

#include "job/PlainText.h"
#include "job/PpdMarks.h"

#include <QHash>
#include <QLocale>
#include <QStringDecoder>

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

namespace tapeprint::job
{

namespace
{

std::optional<QString> fromUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

/// The bytes without a character at their end that is not whole. Only what fills one of libcups' records, of which the
/// shortest takes 39 bytes, can have been cut.
QByteArray withoutCutCharacter(QByteArray bytes)
{
    constexpr int shortestRecord = 39;
    if (bytes.size() < shortestRecord) {
        return bytes;
    }
    constexpr int mostTrailing = 3;
    const auto isTrailing = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
    for (int i = 0; i < mostTrailing && !bytes.isEmpty() && isTrailing(bytes.back()); ++i) {
        bytes.chop(1);
    }
    if (!bytes.isEmpty() && static_cast<unsigned char>(bytes.back()) >= 0xC0U) {
        bytes.chop(1);
    }
    return bytes;
}

/// Translations by "Keyword Spec", in one language.
using Translations = QHash<QByteArray, const ppd_attr_t *>;

QByteArray entryName(const QByteArray &keyword, const char *spec)
{
    return keyword.toLower() + ' ' + QByteArray(spec).toLower();
}

/// What the PPD says in one language, such as "de" or "pt_BR".
Translations translationsInto(const ppd_file_t *ppd, const QByteArray &language)
{
    Translations found;
    const QByteArray prefix = language.toLower() + '.';
    for (const ppd_attr_t *attribute : std::span(ppd->attrs, static_cast<std::size_t>(std::max(ppd->num_attrs, 0)))) {
        const QByteArray name = QByteArray(attribute->name).toLower();
        if (name.startsWith(prefix) && attribute->text[0] != '\0') {
            const QByteArray entry = entryName(name.mid(prefix.size()), attribute->spec);
            if (!found.contains(entry)) { // the first one counts, as with libcups
                found.insert(entry, attribute);
            }
        }
    }
    return found;
}

/// The first language that the PPD has: with its country, and without.
std::pair<Translations, Translations> preferredTranslations(const ppd_file_t *ppd, const QStringList &languages)
{
    for (const QString &name : languages) {
        const QByteArray full = QLocale(name).name().toLatin1();
        const QByteArray plain = full.left(full.indexOf('_'));
        std::pair<Translations, Translations> both{translationsInto(ppd, full), translationsInto(ppd, plain)};
        if (!both.first.isEmpty() || !both.second.isEmpty() || plain == "en") {
            return both;
        }
    }
    return {};
}

template <std::size_t size>
void replace(char (&record)[size], const ppd_attr_t *translation)
{
    if (translation != nullptr) {
        const QByteArray text = QByteArray(translation->text).left(static_cast<qsizetype>(size - 1));
        std::fill(std::copy(text.begin(), text.end(), std::begin(record)), std::end(record), '\0');
    }
}

class Translator
{
public:
    explicit Translator(std::pair<Translations, Translations> entries) : mEntries(std::move(entries)) {}

    bool isEmpty() const { return mEntries.first.isEmpty() && mEntries.second.isEmpty(); }

    template <std::size_t size>
    void translate(char (&record)[size], const QByteArray &keyword, const char *spec) const
    {
        const QByteArray entry = entryName(keyword, spec);
        replace(record, mEntries.first.value(entry, mEntries.second.value(entry)));
    }

private:
    std::pair<Translations, Translations> mEntries;
};

void translateOption(ppd_option_t &option, const Translator &translator)
{
    translator.translate(option.text, "Translation", option.keyword);
    for (ppd_choice_t &choice : choicesOf(option)) {
        translator.translate(choice.text, option.keyword, choice.choice);
        if (qstricmp(choice.choice, "Custom") == 0) {
            translator.translate(choice.text, QByteArray("Custom") + option.keyword, "True");
        }
    }
}

void translateGroups(ppd_group_t *groups, int count, const Translator &translator)
{
    for (ppd_group_t &group : std::span(groups, static_cast<std::size_t>(std::max(count, 0)))) {
        translator.translate(group.text, "Translation", group.name);
        for (ppd_option_t &option : std::span(group.options, static_cast<std::size_t>(group.num_options))) {
            translateOption(option, translator);
        }
        translateGroups(group.subgroups, group.num_subgroups, translator);
    }
}

} // namespace

QString ppdText(const char *bytes)
{
    const QByteArray raw(bytes);
    std::optional<QString> text = fromUtf8(raw);
    if (!text) {
        text = fromUtf8(withoutCutCharacter(raw));
    }
    return harmless(text.value_or(QString::fromLatin1(raw)).trimmed());
}

QString optionText(const ppd_option_t &option)
{
    const QString text = ppdText(option.text);
    return text.isEmpty() ? ppdText(option.keyword) : text;
}

QString choiceText(const ppd_choice_t &choice)
{
    const QString text = ppdText(choice.text);
    return text.isEmpty() ? ppdText(choice.choice) : text;
}

void translateTexts(ppd_file_t *ppd, const QStringList &languages)
{
    if (ppd == nullptr) {
        return;
    }
    const Translator translator(preferredTranslations(ppd, languages));
    if (translator.isEmpty()) {
        return;
    }
    translateGroups(ppd->groups, ppd->num_groups, translator);
    forEachOption(ppd, [ppd, &translator](const ppd_option_t &option) {
        ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
        for (ppd_cparam_t *parameter : parametersOf(custom)) {
            translator.translate(parameter->text, QByteArray("ParamCustom") + option.keyword, parameter->name);
        }
    });
}

} // namespace tapeprint::job
