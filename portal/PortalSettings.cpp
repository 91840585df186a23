// SPDX-License-Identifier: Apache-2.0
// Tables of keys, each with the option it stands for; the few that are not one to one have a function of their own.
#include "portal/PortalSettings.h"

#include "job/CustomValues.h"
#include "job/PageLayout.h"
#include "job/PlainText.h"
#include "job/PpdMarks.h"
#include "job/UsualOptions.h"
#include "portal/Log.h"
#include "portal/PortalPaper.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <limits>

#include <pdekit/Numbers.h>

namespace tapeprint::portal
{

namespace
{

const QString cupsPrefix = QStringLiteral("cups-");
const QString printPages = QStringLiteral("print-pages");
const QString pageRanges = QStringLiteral("page-ranges");
const QString printerKey = QStringLiteral("printer");
/// Meant for the name of a file; GTK's programs put the document's name there, which nothing else of a call holds.
const QString documentKey = QStringLiteral("output-basename");
const QString resolutionKey = QStringLiteral("resolution");
const QString resolutionOption = QStringLiteral("Resolution");

// What a value becomes as an option; null when it makes no sense, empty when it says nothing.

/// What a program is told when there is nothing to do says nothing when it comes back.
QString unlessNeutral(const QString &value, QLatin1String neutral)
{
    return value == neutral ? QStringLiteral("") : value;
}

QString readCopies(const QString &value)
{
    constexpr int most = 9999;
    bool isNumber = false;
    const int copies = value.toInt(&isNumber);
    return isNumber && copies >= 1 && copies <= most ? unlessNeutral(QString::number(copies), QLatin1String("1"))
                                                     : QString();
}

/// \param yes what "true" becomes.
QString readTruth(const QString &value, const QString &yes)
{
    return value == u"true" ? yes : value == u"false" ? QStringLiteral("") : QString();
}

QString readCollate(const QString &value)
{
    return readTruth(value, QStringLiteral("True"));
}

QString readReverse(const QString &value)
{
    return readTruth(value, QStringLiteral("reverse"));
}

QString readPageSet(const QString &value)
{
    const bool isKnown = value == u"all" || value == u"even" || value == u"odd";
    return isKnown ? unlessNeutral(value, QLatin1String("all")) : QString();
}

QString readNumberUp(const QString &value)
{
    bool isNumber = false;
    const int pages = value.toInt(&isNumber);
    return isNumber && pages >= 1 ? unlessNeutral(QString::number(pages), QLatin1String("1")) : QString();
}

QString readNumberUpLayout(const QString &value)
{
    static const QRegularExpression order(QStringLiteral("\\A(lr(tb|bt)|rl(tb|bt)|tb(lr|rl)|bt(lr|rl))\\z"));
    return order.match(value).hasMatch() ? unlessNeutral(value, QLatin1String("lrtb")) : QString();
}

/// Ranges count from 0 there, from 1 here. What is no list of pages is not left out: all pages would come out where a
/// few were asked for. The person sees it where pages are typed.
QString readPageRanges(const QString &value)
{
    constexpr qsizetype mostCharacters = 4096;
    static const QRegularExpression number(QStringLiteral("\\d+"));
    if (value.size() > mostCharacters) {
        return {};
    }
    QString counted;
    qsizetype end = 0;
    for (auto numbers = number.globalMatch(value); numbers.hasNext();) {
        const QRegularExpressionMatch page = numbers.next();
        bool isSmall = false;
        const int index = page.captured().toInt(&isSmall);
        counted += value.mid(end, page.capturedStart() - end) +
                   (isSmall && index < std::numeric_limits<int>::max() ? QString::number(index + 1) : page.captured());
        end = page.capturedEnd();
    }
    return job::harmless(counted + value.mid(end));
}

/// A key whose value is an option of any printer's.
struct UsualSetting {
    QLatin1String key;
    const QString &option;
    QString (*read)(const QString &value);
    QLatin1String nothingToDo; ///< what the program is told; null: the key is left out
};

const std::array<UsualSetting, 7> &usualSettings()
{
    static const std::array<UsualSetting, 7> table{{
        {QLatin1String("n-copies"), job::OptionName::copies, readCopies, QLatin1String("1")},
        {QLatin1String("collate"), job::OptionName::collate, readCollate, QLatin1String("false")},
        {QLatin1String("reverse"), job::OptionName::outputOrder, readReverse, QLatin1String("false")},
        {QLatin1String("page-set"), job::OptionName::pageSet, readPageSet, QLatin1String("all")},
        {QLatin1String("number-up"), job::OptionName::numberUp, readNumberUp, QLatin1String("1")},
        {QLatin1String("number-up-layout"), job::OptionName::numberUpLayout, readNumberUpLayout, QLatin1String("lrtb")},
        {QLatin1String("page-ranges"), job::OptionName::pageRanges, readPageRanges, QLatin1String()},
    }};
    return table;
}

/// A key whose value is a choice of the printer's description under another name.
struct PpdSetting {
    QLatin1String key;
    QLatin1String option;
};

constexpr std::array ppdSettings{
    PpdSetting{QLatin1String("media-type"), QLatin1String("MediaType")},
    PpdSetting{QLatin1String("default-source"), QLatin1String("InputSlot")},
    PpdSetting{QLatin1String("output-bin"), QLatin1String("OutputBin")},
};

struct Word {
    QLatin1String key;
    QLatin1String choice;
};

constexpr std::array duplexWords{
    Word{QLatin1String("simplex"), QLatin1String("None")},
    Word{QLatin1String("horizontal"), QLatin1String("DuplexNoTumble")},
    Word{QLatin1String("vertical"), QLatin1String("DuplexTumble")},
};
const QString duplexKey = QStringLiteral("duplex");
const QString duplexOption = QStringLiteral("Duplex");

/// What of a program's settings is not understood: said in one line, for a program may send thousands.
class LeftOut
{
public:
    explicit LeftOut(const char *why) : mWhy(why) {}
    ~LeftOut()
    {
        if (!mKeys.isEmpty()) {
            qCInfo(portalLog).noquote() << mCount << "setting(s) left out," << mWhy << '-'
                                        << job::harmless(mKeys.join(u' '));
        }
    }
    LeftOut(const LeftOut &) = delete;
    LeftOut &operator=(const LeftOut &) = delete;

    void add(const QString &key)
    {
        constexpr qsizetype mostKeys = 8;
        constexpr qsizetype mostCharacters = 40;
        ++mCount;
        if (mKeys.size() < mostKeys) {
            mKeys.append(key.left(mostCharacters));
        }
    }

private:
    const char *mWhy;
    int mCount = 0;
    QStringList mKeys; ///< the first of them
};

/// The settings whose values are texts, as all are that the contract names.
QVariantMap textsIn(const QVariantMap &settings)
{
    QVariantMap texts;
    LeftOut leftOut("whose values are no texts");
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        if (setting.value().userType() == QMetaType::QString) {
            texts.insert(setting.key(), setting.value());
        } else {
            leftOut.add(setting.key());
        }
    }
    return texts;
}

void readUsual(const QVariantMap &texts, AskedSettings &asked)
{
    const QString part = texts.value(printPages).toString();
    asked.printsPart = part == u"current" || part == u"selection";
    LeftOut leftOut("whose values make no sense");
    for (const UsualSetting &setting : usualSettings()) {
        const bool isAsked =
            texts.contains(setting.key) && (setting.key != pageRanges || part.isEmpty() || part == u"ranges");
        if (!isAsked) {
            continue;
        }
        const QString value = setting.read(texts.value(setting.key).toString());
        if (value.isNull()) {
            leftOut.add(setting.key);
        } else if (!value.isEmpty()) {
            asked.usual.set(setting.option, value);
        }
    }
}

void readResolution(const QVariantMap &texts, AskedSettings &asked)
{
    bool isNumber = false;
    const int dpi = texts.value(resolutionKey).toString().toInt(&isNumber);
    if (isNumber && dpi > 0) {
        asked.ofPpd.set(resolutionOption, QStringLiteral("%1x%1dpi").arg(dpi));
    }
}

void readOfPpd(const QVariantMap &texts, AskedSettings &asked)
{
    readResolution(texts, asked);
    for (const PpdSetting &setting : ppdSettings) {
        if (texts.contains(setting.key)) {
            asked.ofPpd.set(setting.option, texts.value(setting.key).toString());
        }
    }
    for (const Word &word : duplexWords) {
        if (texts.value(duplexKey) == word.key) {
            asked.ofPpd.set(duplexOption, word.choice);
        }
    }
    // The printer's own words go before the general ones.
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        if (text.key().startsWith(cupsPrefix) && text.key().size() > cupsPrefix.size()) {
            asked.ofPpd.set(text.key().mid(cupsPrefix.size()), text.value().toString());
        }
    }
}

/// A value as the printer's description has it; null when it does not.
QString fittingValue(const QString &keyword, const QString &value, ppd_file_t *ppd)
{
    if (job::isCustomValue(value)) {
        const std::vector<job::CustomParameter> parameters = job::customParameters(ppd, keyword);
        const QStringList values = job::customValuesIn(parameters, value);
        bool isGood = !parameters.empty() && keyword != job::OptionName::pageSize;
        for (std::size_t i = 0; i < parameters.size() && isGood; ++i) {
            isGood = job::customProblem(parameters[i], values.value(static_cast<qsizetype>(i)), false).isNull();
        }
        return isGood ? value : QString();
    }
    const QString listed = job::listedChoice(ppd, keyword, value);
    return listed.isNull() && job::isNumber(value) ? value : listed;
}

} // namespace

AskedSettings askedSettings(const QVariantMap &settings, const QVariantMap &pageSetup)
{
    AskedSettings asked;
    asked.given = textsIn(settings);
    asked.printer = asked.given.value(printerKey).toString();
    asked.documentName = asked.given.value(documentKey).toString();
    readUsual(asked.given, asked);
    if (const QString turn = askedTurn(asked.given, pageSetup); !turn.isEmpty()) {
        asked.usual.set(job::OptionName::orientation, turn);
    }
    readOfPpd(asked.given, asked);
    asked.paperMm = paperSizeMm(asked.given, pageSetup);
    return asked;
}

job::JobOptions fitting(const AskedSettings &asked, ppd_file_t *ppd)
{
    job::JobOptions options;
    LeftOut leftOut("which the printer does not have");
    if (const QString paper = paperOfSize(asked.paperMm, ppd); !paper.isNull()) {
        options.set(job::OptionName::pageSize, paper);
    }
    for (const auto &[name, value] : asked.ofPpd.entries()) {
        const ppd_option_t *option = job::findOption(ppd, name);
        const QString keyword = option == nullptr ? QString() : QString::fromUtf8(option->keyword);
        const QString fits = option == nullptr ? QString() : fittingValue(keyword, value, ppd);
        if (!fits.isNull()) {
            options.set(keyword, fits);
        } else {
            leftOut.add(name);
        }
    }
    return options;
}

QVariantMap answeredSettings(const AskedSettings &asked, const job::SettledJob &job, ppd_file_t *ppd)
{
    QVariantMap answer = asked.given;
    for (const QString &key : answer.keys()) {
        if (key.startsWith(cupsPrefix)) {
            answer.remove(key); // another printer's, or what was chosen before
        }
    }
    for (const UsualSetting &setting : usualSettings()) {
        answer.remove(setting.key);
        if (!setting.nothingToDo.isNull()) {
            answer.insert(setting.key, QString(setting.nothingToDo));
        }
    }
    if (!asked.printsPart) {
        answer.insert(printPages, QStringLiteral("all"));
    }
    answer.remove(printerKey);
    if (job.queue) {
        answer.insert(printerKey, job.queue->name);
    }
    answer.remove(resolutionKey);
    answer.remove(duplexKey);
    const job::JobOptions shown = job::withoutSecrets(ppd, job.options);
    for (const auto &[name, value] : job.options.entries()) {
        if (job::findOption(ppd, name) == nullptr || shown.value(name) != value) {
            continue; // a general option stays with us, a password is for no program
        }
        answer.insert(cupsPrefix + name, value);
        if (name == resolutionOption) {
            static const QRegularExpression dpi(QStringLiteral("\\A(\\d+)(x\\d+)?dpi\\z"));
            const QRegularExpressionMatch match = dpi.match(value);
            if (match.hasMatch()) {
                answer.insert(resolutionKey, match.captured(1));
            }
        }
    }
    for (const PpdSetting &setting : ppdSettings) {
        answer.remove(setting.key);
        if (job.options.contains(setting.option)) {
            answer.insert(setting.key, job.options.value(setting.option));
        }
    }
    for (const Word &word : duplexWords) {
        if (job.options.value(duplexOption) == word.choice) {
            answer.insert(duplexKey, QString(word.key));
        }
    }
    answer.insert(paperSettings(job));
    return answer;
}

QVariantMap answeredPageSetup(const job::SettledJob &job)
{
    return pageSetupOf(job);
}

job::SettledJob withoutProgramsPart(job::SettledJob job)
{
    job.options.remove(job::OptionName::orientation);
    job.options.remove(QStringLiteral("landscape"));
    job.options.remove(job::OptionName::fitLength);
    return job;
}

} // namespace tapeprint::portal
