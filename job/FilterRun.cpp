// SPDX-License-Identifier: Apache-2.0
// The filter chain by CUPS's own cupsfilter, so that filters get what a print server would give them. The output is
// written here, not by the filters: they need no right to, and a full disk is seen and named.
#include "job/FilterRun.h"

#include "job/CupsfilterProgram.h"
#include "job/OutputFile.h"
#include "job/PlainText.h"
#include "job/PpdFile.h"
#include "job/PpdPrograms.h"
#include "job/PrivateFile.h"
#include "job/Reason.h"
#include "job/Texts.h"

#include <QByteArray>
#include <QFile>
#include <QStandardPaths>

#include <array>
#include <memory>

#include <cups/file.h>

namespace tapeprint::job
{

namespace
{

/// A description of 600 choices in ten languages has a megabyte; a small compressed file may hold any number of them.
constexpr qsizetype largestPpdBytes = 64 << 20;

/// NAME=VALUE as -o takes it: blanks, quotes and backslashes of the value are escaped.
QString optionArgument(const JobOptions::Entry &option)
{
    QString escaped;
    for (const QChar character : option.second) {
        if (QStringView(u" \t\n\\\"'").contains(character)) {
            escaped += u'\\';
        }
        escaped += character;
    }
    return option.first + u'=' + escaped;
}

QStringList filterArguments(const FilterJob &job, const QString &ppdPath, const QString &file)
{
    QStringList arguments{
        QStringLiteral("-p"), ppdPath,  QStringLiteral("-m"), QStringLiteral("printer/tapeprint"), QStringLiteral("-e"),
        QStringLiteral("-t"), job.title};
    for (const JobOptions::Entry &option : job.options.entries()) {
        // Copies are an argument of their own, for filters as well.
        if (option.first == OptionName::copies) {
            arguments << QStringLiteral("-n") << option.second;
        } else {
            arguments << QStringLiteral("-o") << optionArgument(option);
        }
    }
    arguments << file;
    return arguments;
}

/// The line in which the filters say what went wrong; their last line when none does.
QString complaintOf(const QByteArray &messages)
{
    QString last;
    for (const QByteArray &line : messages.split('\n')) {
        if (line.startsWith("ERROR:")) {
            return reasonText(QString::fromUtf8(line.mid(6)));
        }
        if (!line.trimmed().isEmpty() && !line.startsWith("DEBUG:") && !line.startsWith("INFO:")) {
            last = reasonText(QString::fromUtf8(line));
        }
    }
    return last.isEmpty() ? Texts::tr("they do not say why") : last;
}

struct CupsFileCloser {
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

/// The text of a PPD, which may be compressed. Null, and a reason, when it cannot be read.
QByteArray ppdText(const QString &path, QString *reason)
{
    const std::unique_ptr<cups_file_t, CupsFileCloser> file(cupsFileOpen(QFile::encodeName(path).constData(), "r"));
    if (!file) {
        *reason = QString::fromUtf8(cupsLastErrorString());
        return {};
    }
    QByteArray text("");
    std::array<char, 65536> piece{};
    for (ssize_t size = 0; (size = cupsFileRead(file.get(), piece.data(), piece.size())) > 0;) {
        text.append(piece.data(), static_cast<qsizetype>(size));
        if (text.size() > largestPpdBytes) {
            *reason = Texts::tr("it is larger than any printer description");
            return {};
        }
    }
    return text;
}

/// The PPD that the filters get: a copy, so that what was looked at is what they read.
std::unique_ptr<PrivateFile> copyOfPpd(const FilterJob &job, Problem *error)
{
    QString reason;
    const QByteArray text = ppdText(job.ppdPath, &reason);
    if (text.isNull()) {
        *error = {Problem::BadDescription, Texts::tr("The PPD file %1 cannot be read (%2): name a readable PPD file.")
                                               .arg(harmless(job.ppdPath), reasonText(reason))};
        return nullptr;
    }
    auto copy = PrivateFile::create(QStringLiteral("printer.ppd"), &reason);
    if (!copy || !copy->fill(text, &reason)) {
        *error = Texts::tr("The PPD file %1 cannot be kept in a temporary file (%2): make room there.")
                     .arg(harmless(job.ppdPath), reason);
        return nullptr;
    }
    return copy;
}

/// The sentence about a run that did not end well.
QString failureOf(const ConfinedRun &run, const FilterJob &job, const QString &file)
{
    switch (run.end) {
    case ConfinedRun::End::notStarted:
        return Texts::tr("The filters cannot be started (%1): see that CUPS is installed whole.")
            .arg(reasonText(run.reason));
    case ConfinedRun::End::tooLong:
        return Texts::tr("The filters of %1 did not come to an end with the document %2 and were stopped.")
            .arg(harmless(job.ppdPath), harmless(file));
    default:
        return Texts::tr("The filters of %1 could not print the document %2: %3.")
            .arg(harmless(job.ppdPath), harmless(file), complaintOf(run.messages));
    }
}

/// What all documents of a run share.
struct FilterChain {
    QString program;    ///< cupsfilter
    QString ppdPath;    ///< of the copy
    QStringList others; ///< programs of a trusted description
};

bool runOneFile(const FilterJob &job, const FilterChain &chain, const QString &file, OutputFile &output, Problem *error)
{
    const QString path = placeOf(file);
    const ConfinedRun run = runConfined(
        {chain.program, filterArguments(job, chain.ppdPath, path), QStringList{chain.ppdPath, path} + chain.others},
        [&](const QByteArray &bytes) { return output.write(bytes, error); }, job.stop, job.longest);
    if (run.end == ConfinedRun::End::refused) {
        return false; // the output has said why
    }
    if (run.end == ConfinedRun::End::stopped) {
        *error = {Problem::Cancelled, Texts::tr("Printing was stopped.")};
        return false;
    }
    if (run.end != ConfinedRun::End::finished || run.exitCode != 0) {
        *error = {Problem::FailedJob, failureOf(run, job, file)};
        return false;
    }
    return true;
}

std::optional<FilterOutput> runChain(const FilterJob &job, const FilterChain &chain, Problem *error)
{
    const std::unique_ptr<OutputFile> output =
        OutputFile::open({job.outputPath, job.mayReplaceOutput, job.documents, job.stop}, error);
    if (!output) {
        return std::nullopt;
    }
    for (const QString &file : job.files) {
        if (!runOneFile(job, chain, file, *output, error)) {
            return std::nullopt;
        }
    }
    if (output->bytes() == 0) {
        *error = {Problem::FailedJob,
                  Texts::tr("The filters of %1 made nothing of the document: see that it has pages to print.")
                      .arg(harmless(job.ppdPath))};
        return std::nullopt;
    }
    if (!areUnchanged(job.documents, error) || !output->commit(error)) {
        return std::nullopt;
    }
    return FilterOutput{job.outputPath, output->bytes()};
}

} // namespace

std::optional<FilterOutput> runFilters(const FilterJob &job, Problem *error)
{
    const QString program = findCupsfilter();
    if (program.isEmpty()) {
        *error = cupsfilterMissing();
        return std::nullopt;
    }
    const std::unique_ptr<PrivateFile> copy = copyOfPpd(job, error);
    if (!copy) {
        return std::nullopt;
    }
    const PpdFile ppd = openPpdFile(copy->path(), error, job.ppdPath);
    if (!ppd || !mayRunPrograms(job.ppdPath, ppd.get(), job.trustsPpd, error)) {
        return std::nullopt;
    }
    return runChain(job, {program, copy->path(), foreignFilterPaths(foreignPrograms(ppd.get()))}, error);
}

QStringList filterNotices(const QString &ppdPath, ppd_file_t *ppd, bool trustsPpd)
{
    QStringList notices;
    if (const QString problem = confinementProblem(); !problem.isNull()) {
        notices.append(problem);
    }
    const std::vector<ForeignProgram> programs = foreignPrograms(ppd);
    if (trustsPpd && !programs.empty()) {
        notices.append(Texts::tr("The printer description %1 is trusted and runs programs or commands of its own: %2.")
                           .arg(harmless(ppdPath), describe(programs)));
    }
    return notices;
}

} // namespace tapeprint::job
