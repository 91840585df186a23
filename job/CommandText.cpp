// SPDX-License-Identifier: Apache-2.0
// Commands are put together from words, and each word is quoted once for the shell and before that once for CUPS.
#include "job/CommandText.h"

#include "job/LabelPlan.h"
#include "job/PageRanges.h"
#include "job/UsualOptions.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace tapeprint::job
{

namespace
{

QString joined(const QStringList &words)
{
    QStringList quoted;
    for (const QString &word : words) {
        quoted.append(shellWord(word));
    }
    return quoted.join(u' ');
}

/// Words of the options, in lp's letters where it has one.
QStringList optionWords(const JobOptions &options)
{
    QStringList words;
    for (const auto &[name, value] : options.entries()) {
        if (name == OptionName::copies) {
            words << QStringLiteral("-n") << value;
        } else if (name == OptionName::pageRanges) {
            words << QStringLiteral("-P") << value;
        } else {
            words << QStringLiteral("-o") << optionWord(name, value);
        }
    }
    return words;
}

QStringList titleWords(const QString &title, const QStringList &files)
{
    const bool isTheFiles = !files.isEmpty() && title == QFileInfo(files.first()).fileName();
    return title.isEmpty() || isTheFiles ? QStringList() : QStringList{QStringLiteral("-t"), title};
}

/// What a job of labels does not carry because it is made of the chosen pages alone: lp sends the whole document.
JobOptions withSelection(JobOptions carried, const JobOptions &options)
{
    for (const QString &name : selectionOptionNames()) {
        if (!options.contains(name)) {
            continue;
        }
        const QString pages = name == OptionName::pageRanges ? wellFormedPageRanges(options.value(name)) : QString();
        carried.set(name, pages.isEmpty() ? options.value(name) : pages);
    }
    return carried;
}

QStringList fileWords(const QStringList &files)
{
    return files.isEmpty() ? QStringList() : QStringList{QStringLiteral("--")} + files;
}

} // namespace

QString shellWord(const QString &text)
{
    static const QRegularExpression plain(QStringLiteral(R"(\A[A-Za-z0-9_@%+=:,./-]+\z)"));
    if (plain.match(text).hasMatch()) {
        return text;
    }
    return u'\'' + QString(text).replace(u'\'', QLatin1String("'\\''")) + u'\'';
}

QString optionWord(const QString &name, const QString &value)
{
    static const QRegularExpression special(QStringLiteral(R"([\s'"\\{}\[\]])"));
    if (!value.isEmpty() && !value.contains(special)) {
        return name + u'=' + value;
    }
    QString quoted = value;
    quoted.replace(u'\\', QLatin1String("\\\\")).replace(u'"', QLatin1String("\\\""));
    return name + QLatin1String("=\"") + quoted + u'"';
}

QString tapeprintCommand(const CommandSource &source)
{
    QStringList words{QStringLiteral("tapeprint"), QStringLiteral("--no-dialog")};
    if (source.job.queue) {
        words << QStringLiteral("-d") << source.job.queue->fullName();
    }
    if (!source.job.ppdPath.isEmpty()) {
        words << QStringLiteral("--ppd") << source.job.ppdPath;
    }
    if (!source.job.outputPath.isEmpty()) {
        words << QStringLiteral("--output") << source.job.outputPath;
    }
    if (source.job.trustsPpd) {
        words << QStringLiteral("--trust-ppd");
    }
    return joined(words + optionWords(source.options) + titleWords(source.title, source.files) +
                  fileWords(source.files));
}

QString lpCommand(const CommandSource &source)
{
    if (source.job.isFile()) {
        return {};
    }
    const QStringList words{QStringLiteral("lp"), QStringLiteral("-d"), source.job.queue->fullName()};
    const QString title = source.options.contains(OptionName::jobName) ? source.job.title(source.title) : source.title;
    return joined(words + optionWords(withSelection(source.carried, source.options)) + titleWords(title, source.files) +
                  fileWords(source.files));
}

} // namespace tapeprint::job
