// SPDX-License-Identifier: Apache-2.0
// The filter chain by CUPS's own cupsfilter, so that filters get what a print server would give them. The output is
// written here, not by the filters: a full disk is then seen and named.
#include "job/FilterRun.h"

#include "job/Texts.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <memory>

namespace tapeprint::job
{

namespace
{

constexpr int startTimeoutMs = 10000;
constexpr int stepMs = 1000;

QString findCupsfilter()
{
    const QString program = QStringLiteral("cupsfilter");
    const QString inPath = QStandardPaths::findExecutable(program);
    // Debian keeps it among the administrator's programs, which are not on everybody's path.
    return inPath.isEmpty() ? QStandardPaths::findExecutable(
                                  program, {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")})
                            : inPath;
}

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

QStringList filterArguments(const FilterJob &job, const QString &file)
{
    QStringList arguments{QStringLiteral("-p"),
                          QFileInfo(job.ppdPath).absoluteFilePath(),
                          QStringLiteral("-m"),
                          QStringLiteral("printer/tapeprint"),
                          QStringLiteral("-e"),
                          QStringLiteral("-t"),
                          job.title};
    for (const JobOptions::Entry &option : job.options.entries()) {
        // Copies are an argument of their own, for filters as well.
        if (option.first == OptionName::copies) {
            arguments << QStringLiteral("-n") << option.second;
        } else {
            arguments << QStringLiteral("-o") << optionArgument(option);
        }
    }
    arguments << QFileInfo(file).absoluteFilePath();
    return arguments;
}

/// The line in which the filters say what went wrong; their last line when none does.
QString complaintOf(const QByteArray &messages)
{
    QString last;
    for (const QByteArray &line : messages.split('\n')) {
        if (line.startsWith("ERROR:")) {
            return QString::fromUtf8(line.mid(6)).simplified();
        }
        if (!line.trimmed().isEmpty() && !line.startsWith("DEBUG:") && !line.startsWith("INFO:")) {
            last = QString::fromUtf8(line).simplified();
        }
    }
    return last.isEmpty() ? Texts::tr("they do not say why") : last;
}

/// Moves what the filters have written so far into the output.
bool drain(QProcess &filters, QFile &output, QString *error)
{
    const QByteArray bytes = filters.readAllStandardOutput();
    if (output.write(bytes) == bytes.size() && output.flush()) {
        return true;
    }
    *error = Texts::tr("The printer's bytes cannot be written to %1 (%2): make room there, or name another file "
                       "with --output.")
                 .arg(output.fileName(), output.errorString());
    return false;
}

bool runOneFile(const FilterJob &job, const QString &file, const QString &program, QFile &output, QString *error)
{
    QProcess filters;
    filters.setProcessChannelMode(QProcess::SeparateChannels);
    filters.start(program, filterArguments(job, file), QIODevice::ReadOnly);
    if (!filters.waitForStarted(startTimeoutMs)) {
        *error = Texts::tr("The filters cannot be started (%1): see that CUPS is installed whole.")
                     .arg(filters.errorString());
        return false;
    }
    QByteArray messages;
    bool running = true;
    while (running) {
        running = !filters.waitForFinished(stepMs);
        messages += filters.readAllStandardError();
        if (!drain(filters, output, error)) {
            filters.kill();
            filters.waitForFinished();
            return false;
        }
    }
    if (filters.exitStatus() != QProcess::NormalExit || filters.exitCode() != 0) {
        *error = Texts::tr("The filters of %1 could not print the document %2: %3.")
                     .arg(job.ppdPath, file, complaintOf(messages));
        return false;
    }
    return true;
}

} // namespace

std::optional<FilterOutput> runFilters(const FilterJob &job, QString *error)
{
    const QString program = findCupsfilter();
    if (program.isEmpty()) {
        *error = Texts::tr("The program cupsfilter is missing: install the package cups.");
        return std::nullopt;
    }
    // Devices and pipes are written to as they are; only a plain file can be left half written, and is removed then.
    const QFileInfo before(job.outputPath);
    const bool isPlainFile = !before.exists() || before.isFile();
    QFile output(job.outputPath);
    if (!output.open(QIODevice::WriteOnly)) {
        *error = Texts::tr("The file %1 cannot be written (%2): name another with --output.")
                     .arg(job.outputPath, output.errorString());
        return std::nullopt;
    }
    FilterOutput result{job.outputPath, 0};
    bool done = true;
    for (const QString &file : job.files) {
        done = done && runOneFile(job, file, program, output, error);
    }
    result.bytes = output.isSequential() ? 0 : output.size();
    output.close();
    if (done && isPlainFile && result.bytes == 0) {
        *error = Texts::tr("The filters of %1 made nothing of the document: see that it has pages to print.")
                     .arg(job.ppdPath);
        done = false;
    }
    if (!done && isPlainFile) {
        output.remove();
    }
    return done ? std::optional(result) : std::nullopt;
}

} // namespace tapeprint::job
