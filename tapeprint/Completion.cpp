// SPDX-License-Identifier: Apache-2.0
// Queues from the server, options and choices from the printer's description. No toolkit and no panel is needed for it.
#include "tapeprint/Completion.h"

#include "job/Destination.h"
#include "job/PlainText.h"
#include "job/PpdMarks.h"
#include "job/PrinterList.h"
#include "tapeprint/ExitStatus.h"
#include "tapeprint/ProgramOptions.h"

#include <QFile>

#include <cstdio>
#include <span>

namespace tapeprint
{

namespace
{

/// What CUPS and this program know beside the printer's own options, with the values that can be listed.
const std::vector<std::pair<QString, QStringList>> &commonOptions()
{
    static const std::vector<std::pair<QString, QStringList>> options{
        {QStringLiteral("fit-length"), {QStringLiteral("true")}},
        {QStringLiteral("job-billing"), {}},
        {QStringLiteral("job-sheets"), {}},
        {QStringLiteral("number-up"), {}},
        {QStringLiteral("orientation-requested"),
         {QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6")}},
        {QStringLiteral("outputorder"), {QStringLiteral("normal"), QStringLiteral("reverse")}},
        {QStringLiteral("page-set"), {QStringLiteral("all"), QStringLiteral("even"), QStringLiteral("odd")}},
        {QStringLiteral("position"),
         {QStringLiteral("center"), QStringLiteral("top"), QStringLiteral("bottom"), QStringLiteral("left"),
          QStringLiteral("right"), QStringLiteral("top-left"), QStringLiteral("top-right"),
          QStringLiteral("bottom-left"), QStringLiteral("bottom-right")}},
        {QStringLiteral("print-scaling"),
         {QStringLiteral("auto"), QStringLiteral("fit"), QStringLiteral("fill"), QStringLiteral("none")}},
    };
    return options;
}

QString meaningOf(ValueKind kind)
{
    switch (kind) {
    case ValueKind::Queue:
        return QStringLiteral("queue");
    case ValueKind::JobOption:
        return QStringLiteral("option");
    case ValueKind::File:
        return QStringLiteral("file");
    case ValueKind::Time:
        return QStringLiteral("time");
    case ValueKind::Text:
        return QStringLiteral("text");
    case ValueKind::None:
        break;
    }
    return {};
}

std::vector<Completion> arguments()
{
    std::vector<Completion> words;
    for (const ProgramOption &option : programOptions()) {
        if (option.help != nullptr) {
            words.emplace_back(QString::fromLatin1(option.name), meaningOf(option.valueKind));
        }
    }
    return words;
}

std::vector<Completion> queues()
{
    std::vector<Completion> words;
    job::Problem ignored;
    for (const job::Printer &printer : job::readPrinters(nullptr, &ignored).value_or(job::PrinterList())) {
        words.emplace_back(printer.fullName(), printer.info);
    }
    return words;
}

std::vector<Completion> times()
{
    std::vector<Completion> words;
    for (const QString &word : holdWords()) {
        words.emplace_back(word, QString());
    }
    return words;
}

std::vector<Completion> options(ppd_file_t *ppd)
{
    std::vector<Completion> words;
    job::forEachOption(ppd, [&words](const ppd_option_t &option) {
        words.emplace_back(QString::fromUtf8(option.keyword) + u'=', QString::fromUtf8(option.text));
    });
    for (const auto &[name, values] : commonOptions()) {
        words.emplace_back(name + u'=', QString());
    }
    return words;
}

std::vector<Completion> choices(ppd_file_t *ppd, const QString &name)
{
    std::vector<Completion> words;
    if (const ppd_option_t *option = job::findOption(ppd, name)) {
        for (const ppd_choice_t &choice : std::span(option->choices, static_cast<std::size_t>(option->num_choices))) {
            words.emplace_back(QString::fromUtf8(choice.choice), QString::fromUtf8(choice.text));
        }
    }
    for (const auto &[common, values] : commonOptions()) {
        for (const QString &value : common == name ? values : QStringList()) {
            words.emplace_back(value, QString());
        }
    }
    return words;
}

} // namespace

std::vector<Completion> completions(const CommandLine &line)
{
    static const QString choicesOf = QStringLiteral("choices:");
    if (line.complete == u"arguments") {
        return arguments();
    }
    if (line.complete == u"queues") {
        return queues();
    }
    if (line.complete == u"times") {
        return times();
    }
    job::JobRequest request = line.request;
    request.onlyShows = true;
    job::Problem ignored;
    const std::optional<job::Destination> destination = job::openDestination(request, &ignored);
    ppd_file_t *ppd = destination ? destination->ppd.get() : nullptr;
    if (line.complete == u"options") {
        return options(ppd);
    }
    return line.complete.startsWith(choicesOf) ? choices(ppd, line.complete.mid(choicesOf.size()))
                                               : std::vector<Completion>();
}

int writeCompletions(const CommandLine &line)
{
    for (const auto &[word, meaning] : completions(line)) {
        const QString text = job::harmless(word) + u'\t' + job::harmless(meaning) + u'\n';
        std::fputs(QFile::encodeName(text).constData(), stdout);
    }
    return std::fflush(stdout) == 0 ? 0 : exitStatus(job::Problem::UnwritableOutput);
}

} // namespace tapeprint
