// SPDX-License-Identifier: Apache-2.0
// The readings are those of CUPS's own filters, several of which know an option by several names.
#include "job/UsualOptions.h"

#include "job/PpdMarks.h"

#include <QDate>
#include <QDateTime>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>

namespace tapeprint::job
{

namespace
{

const QString collatedCopies = QStringLiteral("separate-documents-collated-copies");
const QString uncollatedCopies = QStringLiteral("separate-documents-uncollated-copies");
const QString timeFormat = QStringLiteral("HH:mm");
constexpr qsizetype mostTitleBytes = 255;

/// The value of an option whose name the filters read in any letters.
QString valueInAnyLetters(const JobOptions &options, const QString &name)
{
    const auto &entries = options.entries();
    const auto found = std::find_if(entries.begin(), entries.end(), [&name](const JobOptions::Entry &entry) {
        return entry.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == entries.end() ? QString() : found->second;
}

bool isWord(const QString &value, QLatin1String word)
{
    return value.compare(word, Qt::CaseInsensitive) == 0;
}

bool isYes(const QString &value)
{
    return isWord(value, QLatin1String("true")) || isWord(value, QLatin1String("yes")) ||
           isWord(value, QLatin1String("on"));
}

bool steersWriting(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

} // namespace

PageSet pageSetOf(const JobOptions &options)
{
    const QString set = options.value(OptionName::pageSet);
    return isWord(set, QLatin1String("odd"))    ? PageSet::Odd
           : isWord(set, QLatin1String("even")) ? PageSet::Even
                                                : PageSet::All;
}

bool isReversed(const JobOptions &options)
{
    const QString order = options.contains(OptionName::outputOrder)
                              ? options.value(OptionName::outputOrder)
                              : valueInAnyLetters(options, OptionName::outputOrder);
    return isWord(order, QLatin1String("reverse"));
}

bool isCollated(const JobOptions &options, ppd_file_t *ppd)
{
    const QString own = valueInAnyLetters(options, OptionName::collate);
    if (!own.isNull()) {
        return isYes(own);
    }
    if (options.contains(OptionName::documentHandling)) {
        return options.value(OptionName::documentHandling) != uncollatedCopies;
    }
    if (options.contains(OptionName::sheetCollate)) {
        return options.value(OptionName::sheetCollate) != u"uncollated";
    }
    return isYes(markedChoice(ppd, QStringLiteral("Collate")));
}

bool isTwoSided(const JobOptions &options, ppd_file_t *ppd)
{
    if (options.contains(OptionName::sides)) {
        return options.value(OptionName::sides).startsWith(QLatin1String("two-sided"));
    }
    // What makers call the option by which the filters tell.
    static const std::array names{QStringLiteral("Duplex"),     QStringLiteral("JCLDuplex"),
                                  QStringLiteral("EFDuplex"),   QStringLiteral("EFDuplexing"),
                                  QStringLiteral("KD03Duplex"), QStringLiteral("ARDuplex")};
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        const QString choice = options.contains(name) ? options.value(name) : markedChoice(ppd, name);
        return choice == u"DuplexNoTumble" || choice == u"DuplexTumble";
    });
}

JobOptions collating(bool collated, const JobOptions &options, ppd_file_t *ppd)
{
    const ppd_option_t *own = findOption(ppd, OptionName::collate);
    const QString name = own == nullptr ? OptionName::collate : QString::fromUtf8(own->keyword);
    JobOptions result;
    result.set(name, collated ? QStringLiteral("True") : QStringLiteral("False"));
    // The filters collate when one of the names says so.
    if (options.contains(OptionName::documentHandling)) {
        result.set(OptionName::documentHandling, collated ? collatedCopies : uncollatedCopies);
    }
    if (options.contains(OptionName::sheetCollate)) {
        result.set(OptionName::sheetCollate, collated ? QStringLiteral("collated") : QStringLiteral("uncollated"));
    }
    return result;
}

QString holdUntilTime(const QTime &local)
{
    return QDateTime(QDate::currentDate(), local).toUTC().toString(timeFormat);
}

std::optional<QTime> timeOfHoldUntil(const QString &value)
{
    const QTime utc = QTime::fromString(value.left(timeFormat.size()), timeFormat);
    if (!utc.isValid()) {
        return std::nullopt;
    }
    return QDateTime(QDateTime::currentDateTimeUtc().date(), utc, Qt::UTC).toLocalTime().time();
}

QString jobTitle(const QString &text)
{
    QString title = text;
    std::replace_if(title.begin(), title.end(), steersWriting, QChar(u' '));
    title = title.simplified();
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, title);
    characters.toEnd();
    while (title.left(characters.position()).toUtf8().size() > mostTitleBytes) {
        // Nearer to the end at once: a title may be as long as a file.
        const qsizetype most = std::min(characters.position(), mostTitleBytes + 1);
        characters.setPosition(most);
        characters.toPreviousBoundary();
    }
    return title.left(characters.position()).trimmed();
}

} // namespace tapeprint::job
