// SPDX-License-Identifier: Apache-2.0
// The options and what each does with its value. A value that is none is named in a sentence that says what would be.
#include "tapeprint/ProgramOptions.h"

#include "job/CupsOptions.h"
#include "job/PageRanges.h"
#include "job/Presets.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace tapeprint
{

namespace
{

using job::Problem;

bool refuse(Problem *error, const QString &sentence)
{
    *error = {Problem::BadUsage, sentence};
    return false;
}

bool takeText(QString *place, const QString &value, const char *missing, Problem *error)
{
    *place = value;
    return !value.isEmpty() || refuse(error, QString::fromUtf8(missing));
}

bool takeQueue(CommandLine &line, const QString &value, Problem *error)
{
    const job::QueueName name = job::QueueName::parse(value);
    line.request.queue = name.queue;
    line.request.instance = name.instance;
    return !name.queue.isEmpty() ||
           refuse(error, QStringLiteral("-d needs the name of a print queue: -d QUEUE or -d QUEUE/INSTANCE."));
}

bool takeCopies(CommandLine &line, const QString &value, Problem *error)
{
    bool isNumber = false;
    const int copies = value.toInt(&isNumber);
    if (!isNumber || copies < 1) {
        return refuse(error,
                      QStringLiteral("\"%1\" is no number of copies: give -n a whole number from 1.").arg(value));
    }
    line.request.options.set(job::OptionName::copies, QString::number(copies));
    return true;
}

bool takePages(CommandLine &line, const QString &value, Problem *error)
{
    if (value.isEmpty()) {
        return refuse(error,
                      QStringLiteral("\"\" is no list of pages: give -P page numbers and ranges such as 1-4,7."));
    }
    if (const QString problem = job::pageRangesProblem(value); !problem.isNull()) {
        return refuse(error, QStringLiteral("-P \"%1\": %2").arg(value, problem));
    }
    line.request.options.set(job::OptionName::pageRanges, value);
    return true;
}

bool takeOptions(CommandLine &line, const QString &value, Problem *error)
{
    job::CupsOptions parsed;
    parsed.parse(value.toUtf8());
    if (parsed.count() == 0) {
        return refuse(error, QStringLiteral("\"%1\" is no option: give -o a NAME=VALUE.").arg(value));
    }
    for (const cups_option_t &option : parsed) {
        const QString name = QString::fromUtf8(option.name);
        const QString text = QString::fromUtf8(option.value);
        line.request.options.set(name, text);
    }
    return true;
}

bool takePriority(CommandLine &line, const QString &value, Problem *error)
{
    bool isNumber = false;
    const int priority = value.toInt(&isNumber);
    if (!isNumber || priority < 1 || priority > 100) {
        return refuse(error, QStringLiteral("\"%1\" is no priority: give -q a whole number from 1 to 100.").arg(value));
    }
    line.request.options.set(QStringLiteral("job-priority"), QString::number(priority));
    return true;
}

struct HoldWord {
    const char *word; ///< lp's
    const char *cups; ///< the value that it is of job-hold-until
    bool isListed;    ///< or known without being told of: CUPS's own word for one that is listed
};

constexpr std::array holdWordTable{
    HoldWord{"immediate", "no-hold", true},
    HoldWord{"hold", "indefinite", true},
    HoldWord{"day-time", "day-time", true},
    HoldWord{"evening", "evening", true},
    HoldWord{"night", "night", true},
    HoldWord{"weekend", "weekend", true},
    HoldWord{"second-shift", "second-shift", true},
    HoldWord{"third-shift", "third-shift", true},
    HoldWord{"no-hold", "no-hold", false},
    HoldWord{"indefinite", "indefinite", false},
};

/// When a job is printed, in lp's words and in CUPS's own.
bool takeHold(CommandLine &line, const QString &value, Problem *error)
{
    static const QRegularExpression times(QStringLiteral(R"(\A([01]?\d|2[0-3]):[0-5]\d(:[0-5]\d)?\z)"));
    if (value == u"restart" || value == u"resume") {
        return refuse(
            error,
            QStringLiteral("-H %1 is for a job that is there already: use lp -i QUEUE-NUMBER -H %1.").arg(value));
    }
    const auto *known = std::find_if(holdWordTable.begin(), holdWordTable.end(),
                                     [&value](const HoldWord &each) { return value == QLatin1String(each.word); });
    if (known == holdWordTable.end() && !times.match(value).hasMatch()) {
        return refuse(error, QStringLiteral("\"%1\" is no time to print at: give -H immediate, hold, HH:MM (UTC), "
                                            "day-time, evening, night, weekend, second-shift or third-shift.")
                                 .arg(value));
    }
    line.request.options.set(QStringLiteral("job-hold-until"),
                             known == holdWordTable.end() ? value : QString::fromLatin1(known->cups));
    return true;
}

bool takeTitle(CommandLine &line, const QString &value, Problem * /*error*/)
{
    line.request.title = value;
    return true;
}

bool takeServer(CommandLine &line, const QString &value, Problem *error)
{
    return takeText(&line.server, value, "-h needs the name of a print server: -h HOST or -h HOST:PORT.", error);
}

bool takeUser(CommandLine &line, const QString &value, Problem *error)
{
    return takeText(&line.user, value, "-U needs the name of a person that the print server knows.", error);
}

bool takePpd(CommandLine &line, const QString &value, Problem *error)
{
    return takeText(&line.request.ppdPath, value, "--ppd needs the name of a PPD file.", error);
}

bool takeOutput(CommandLine &line, const QString &value, Problem *error)
{
    return takeText(&line.request.outputPath, value, "--output needs the name of a file.", error);
}

bool takePdf(CommandLine &line, const QString &value, Problem *error)
{
    return takeText(&line.request.pdfPath, value, "--pdf needs the name of a file.", error);
}

/// For the shells' completions: arguments, queues, times, options, or choices:OPTION.
bool takeCompletion(CommandLine &line, const QString &value, Problem *error)
{
    return takeText(&line.complete, value, "--complete needs to be told what.", error);
}

bool takeSavePreset(CommandLine &line, const QString &value, Problem *error)
{
    line.savePreset = value;
    const QString problem = job::problemWithPresetName(value);
    return problem.isNull() || refuse(error, problem);
}

bool takeDeletePreset(CommandLine &line, const QString &value, Problem *error)
{
    return takeText(&line.deletePreset, value, "--delete-preset needs the name of a preset.", error);
}

bool takeNothing(CommandLine & /*line*/, const QString & /*value*/, Problem * /*error*/)
{
    return true;
}

template <bool CommandLine::*flag>
bool raise(CommandLine &line, const QString & /*value*/, Problem * /*error*/)
{
    line.*flag = true;
    return true;
}

constexpr std::array options{
    ProgramOption{"-d", "QUEUE[/INSTANCE]", ValueKind::Queue, takeQueue,
                  "the print queue; without it, the default printer"},
    ProgramOption{"-n", "COPIES", ValueKind::Text, takeCopies, "the number of copies"},
    ProgramOption{"-o", "NAME=VALUE", ValueKind::JobOption, takeOptions,
                  "an option of the job; several may stand in one -o, separated by blanks"},
    ProgramOption{"-P", "PAGES", ValueKind::Text, takePages, "the pages to print, such as 1-4,7"},
    ProgramOption{"-t", "TITLE", ValueKind::Text, takeTitle, "the title of the job"},
    ProgramOption{"-q", "PRIORITY", ValueKind::Text, takePriority, "the priority of the job, from 1 to 100"},
    ProgramOption{"-H", "WHEN", ValueKind::Time, takeHold,
                  "when to print: immediate, hold, HH:MM (UTC), day-time, evening, night, weekend,\n"
                  "second-shift, third-shift"},
    ProgramOption{"-h", "HOST[:PORT]", ValueKind::Text, takeServer, "the print server"},
    ProgramOption{"-U", "USER", ValueKind::Text, takeUser, "who prints, for the print server"},
    ProgramOption{"-E", nullptr, ValueKind::None, raise<&CommandLine::encrypts>,
                  "print over an encrypted connection or not at all"},
    ProgramOption{"-s", nullptr, ValueKind::None, raise<&CommandLine::silent>,
                  "say nothing about a job that went well"},
    ProgramOption{"-c", nullptr, ValueKind::None, takeNothing, "accepted for the sake of lp"},
    ProgramOption{"--ppd", "FILE", ValueKind::File, takePpd,
                  "take the printer's description from a PPD file; without -d no print server is\n"
                  "needed: the document runs through the filters that the PPD names"},
    ProgramOption{"--pdf", "FILE", ValueKind::File, takePdf,
                  "save the job as a PDF in place of printing it, - for standard output: the\n"
                  "labels of a tape, or the chosen pages"},
    ProgramOption{"--output", "FILE", ValueKind::File, takeOutput,
                  "make the printer's bytes here and write them to FILE, - for standard output, by the\n"
                  "PPD of --ppd or of the print queue, which gets no job"},
    ProgramOption{"--trust-ppd", nullptr, ValueKind::None, raise<&CommandLine::trustPpd>,
                  "with --ppd: run programs and commands of its own that the PPD file names"},
    ProgramOption{"--fit-length", nullptr, ValueKind::None, raise<&CommandLine::fitLength>,
                  "make the tape as long as what is drawn on the document needs, with both margins"},
    ProgramOption{"--resolve", nullptr, ValueKind::None, raise<&CommandLine::resolve>,
                  "change options that do not go together, and say which"},
    ProgramOption{"--adjust", nullptr, ValueKind::None, raise<&CommandLine::adjusts>,
                  "print also when a value given is not taken as it is, with what takes its place"},
    ProgramOption{"--save-preset", "NAME", ValueKind::Text, takeSavePreset,
                  "save the settings as the queue's preset NAME, and submit nothing"},
    ProgramOption{"--delete-preset", "NAME", ValueKind::Text, takeDeletePreset, "delete the queue's preset NAME"},
    ProgramOption{"--list-presets", nullptr, ValueKind::None, raise<&CommandLine::listPresets>,
                  "print the names of the queue's presets"},
    ProgramOption{"--no-dialog", nullptr, ValueKind::None, raise<&CommandLine::noDialog>,
                  "do the same job without a window"},
    ProgramOption{"--wait", nullptr, ValueKind::None, raise<&CommandLine::wait>,
                  "without a window: end when the job is printed, held or has failed"},
    ProgramOption{"--show-options", nullptr, ValueKind::None, raise<&CommandLine::showOptions>,
                  "print the options that the job would carry, and submit nothing"},
    ProgramOption{"--summary", nullptr, ValueKind::None, raise<&CommandLine::summary>,
                  "print the summary of the job as \"title: value\" lines, and submit nothing"},
    ProgramOption{"--check", nullptr, ValueKind::None, raise<&CommandLine::check>,
                  "see whether documents, options, printer and server are all right, and submit nothing"},
    ProgramOption{"--json", nullptr, ValueKind::None, raise<&CommandLine::json>,
                  "say everything as one JSON object on standard output, problems too"},
    ProgramOption{"--complete", "WHAT", ValueKind::Text, takeCompletion, nullptr},
    ProgramOption{"--help", nullptr, ValueKind::None, raise<&CommandLine::help>, "print this text"},
    ProgramOption{"--version", nullptr, ValueKind::None, raise<&CommandLine::version>, "print the version"},
};

struct Instead {
    char letter;
    const char *sentence;
};

constexpr std::array insteads{
    Instead{'i', "-i changes a job that is there already: use lp -i, or cancel for one that is not wanted."},
    Instead{'m', "-m asks for a mail that CUPS has not sent for long: wait for the job in a script, and send the mail "
                 "there."},
};

} // namespace

std::span<const ProgramOption> programOptions()
{
    return options;
}

QStringList holdWords()
{
    QStringList words;
    for (const HoldWord &each : holdWordTable) {
        if (each.isListed) {
            words.append(QString::fromLatin1(each.word));
        }
    }
    return words;
}

QString insteadOfLetter(QChar letter)
{
    for (const Instead &instead : insteads) {
        if (letter == QLatin1Char(instead.letter)) {
            return QString::fromUtf8(instead.sentence);
        }
    }
    return {};
}

} // namespace tapeprint
