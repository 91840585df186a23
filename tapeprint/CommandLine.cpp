// SPDX-License-Identifier: Apache-2.0
// The command line's parser. lp accepts letters joined with their value ("-dQUEUE") and several options in one -o.
#include "tapeprint/CommandLine.h"

#include "job/CupsOptions.h"
#include "tapeprint/ExitStatus.h"

#include <QRegularExpression>

#include <array>

namespace tapeprint
{

namespace
{

bool takeQueue(CommandLine &line, const QString &value, job::Problem *error)
{
    const job::QueueName name = job::QueueName::parse(value);
    line.request.queue = name.queue;
    line.request.instance = name.instance;
    if (name.queue.isEmpty()) {
        *error = {job::Problem::BadUsage,
                  QStringLiteral("-d needs the name of a print queue: -d QUEUE or -d QUEUE/INSTANCE.")};
        return false;
    }
    return true;
}

bool takeCopies(CommandLine &line, const QString &value, job::Problem *error)
{
    bool isNumber = false;
    const int copies = value.toInt(&isNumber);
    if (!isNumber || copies < 1) {
        *error = {job::Problem::BadUsage,
                  QStringLiteral("\"%1\" is no number of copies: give -n a whole number from 1.").arg(value)};
        return false;
    }
    line.request.options.set(job::OptionName::copies, QString::number(copies));
    return true;
}

bool takePages(CommandLine &line, const QString &value, job::Problem *error)
{
    static const QRegularExpression ranges(QStringLiteral(R"(\A[1-9]\d*(-([1-9]\d*)?)?(,[1-9]\d*(-([1-9]\d*)?)?)*\z)"));
    if (!ranges.match(value).hasMatch()) {
        *error = {
            job::Problem::BadUsage,
            QStringLiteral("\"%1\" is no list of pages: give -P page numbers and ranges such as 1-4,7.").arg(value)};
        return false;
    }
    line.request.options.set(job::OptionName::pageRanges, value);
    return true;
}

bool takeOptions(CommandLine &line, const QString &value, job::Problem *error)
{
    job::CupsOptions parsed;
    parsed.parse(value.toUtf8());
    if (parsed.count() == 0) {
        *error = {job::Problem::BadUsage, QStringLiteral("\"%1\" is no option: give -o a NAME=VALUE.").arg(value)};
        return false;
    }
    for (const cups_option_t &option : parsed) {
        const QString name = QString::fromUtf8(option.name);
        const QString text = QString::fromUtf8(option.value);
        // The print server drops collections without a word: the filter would never see them.
        if (text.startsWith(u'{')) {
            *error = {job::Problem::BadUsage,
                      QStringLiteral("The value of option %1 is in braces, which the print server drops: "
                                     "give %1 a plain value.")
                          .arg(name)};
            return false;
        }
        line.request.options.set(name, text);
    }
    return true;
}

bool takeTitle(CommandLine &line, const QString &value, job::Problem * /*error*/)
{
    line.request.title = value;
    return true;
}

bool takePpd(CommandLine &line, const QString &value, job::Problem *error)
{
    line.request.ppdPath = value;
    if (value.isEmpty()) {
        *error = {job::Problem::BadUsage, QStringLiteral("--ppd needs the name of a PPD file.")};
    }
    return !value.isEmpty();
}

bool takeOutput(CommandLine &line, const QString &value, job::Problem *error)
{
    line.request.outputPath = value;
    if (value.isEmpty()) {
        *error = {job::Problem::BadUsage, QStringLiteral("--output needs the name of a file.")};
    }
    return !value.isEmpty();
}

struct ValueOption {
    QLatin1String name;
    bool (*take)(CommandLine &line, const QString &value, job::Problem *error);
};

struct Flag {
    QLatin1String name;
    bool CommandLine::*member; ///< null: accepted for lp's sake, without a meaning here
};

const std::array valueOptions{
    ValueOption{QLatin1String("-d"), takeQueue},        ValueOption{QLatin1String("-n"), takeCopies},
    ValueOption{QLatin1String("-o"), takeOptions},      ValueOption{QLatin1String("-P"), takePages},
    ValueOption{QLatin1String("-t"), takeTitle},        ValueOption{QLatin1String("--ppd"), takePpd},
    ValueOption{QLatin1String("--output"), takeOutput},
};

const std::array flags{
    Flag{QLatin1String("--no-dialog"), &CommandLine::noDialog},
    Flag{QLatin1String("--fit-length"), &CommandLine::fitLength},
    Flag{QLatin1String("--show-options"), &CommandLine::showOptions},
    Flag{QLatin1String("--summary"), &CommandLine::summary},
    Flag{QLatin1String("--help"), &CommandLine::help},
    Flag{QLatin1String("--version"), &CommandLine::version},
    Flag{QLatin1String("--trust-ppd"), &CommandLine::trustPpd},
    Flag{QLatin1String("--wait"), &CommandLine::wait},
    Flag{QLatin1String("-s"), &CommandLine::silent},
    Flag{QLatin1String("-c"), nullptr},
};

bool takeFlag(CommandLine &line, const QString &argument)
{
    for (const Flag &flag : flags) {
        if (argument == flag.name) {
            if (flag.member != nullptr) {
                line.*flag.member = true;
            }
            return true;
        }
    }
    return false;
}

/// The option that an argument names, and the value joined with it: "-dQUEUE", "--ppd=FILE". A null value: it follows.
std::pair<const ValueOption *, QString> findValueOption(const QString &argument)
{
    for (const ValueOption &option : valueOptions) {
        if (argument == option.name) {
            return {&option, QString()};
        }
        const bool isLong = option.name.startsWith(QLatin1String("--"));
        const qsizetype valueAt = option.name.size() + (isLong ? 1 : 0);
        if (argument.startsWith(option.name) && (!isLong || argument.at(option.name.size()) == u'=')) {
            return {&option, argument.mid(valueAt)};
        }
    }
    return {nullptr, QString()};
}

bool fitsTogether(const CommandLine &line, job::Problem *error)
{
    if (!line.request.outputPath.isEmpty() && line.request.ppdPath.isEmpty()) {
        *error = {job::Problem::BadUsage,
                  QStringLiteral("--output goes with --ppd: without a PPD file the job goes to a print queue.")};
        return false;
    }
    if (line.trustPpd && line.request.ppdPath.isEmpty()) {
        *error = {job::Problem::BadUsage,
                  QStringLiteral("--trust-ppd goes with --ppd: it is about the programs of that PPD file.")};
        return false;
    }
    return true;
}

} // namespace

std::optional<CommandLine> parseCommandLine(const QStringList &arguments, job::Problem *error)
{
    CommandLine line;
    bool onlyFiles = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        // "-" alone stands for standard input, which is read when no file is named.
        if (argument == u"-" && !onlyFiles) {
            continue;
        }
        if (onlyFiles || !argument.startsWith(u'-')) {
            line.files.append(argument);
            continue;
        }
        if (argument == u"--") {
            onlyFiles = true;
            continue;
        }
        if (takeFlag(line, argument)) {
            continue;
        }
        auto [option, value] = findValueOption(argument);
        if (option == nullptr) {
            *error = {job::Problem::BadUsage,
                      QStringLiteral("%1 is no option of tapeprint: see tapeprint --help.").arg(argument)};
            return std::nullopt;
        }
        if (value.isNull()) {
            if (++i == arguments.size()) {
                *error = {job::Problem::BadUsage,
                          QStringLiteral("%1 needs a value: see tapeprint --help.").arg(argument)};
                return std::nullopt;
            }
            value = arguments.at(i);
        }
        if (!option->take(line, value, error)) {
            return std::nullopt;
        }
    }
    if (line.fitLength) {
        line.request.options.set(job::OptionName::fitLength, QStringLiteral("true"));
    }
    line.request.trustsPpd = line.trustPpd;
    line.request.onlyShows = line.onlyShows();
    return fitsTogether(line, error) ? std::optional(line) : std::nullopt;
}

QString commandLineHelp()
{
    return QStringLiteral(
               "Usage: tapeprint [-d QUEUE[/INSTANCE]] [-n COPIES] [-o NAME=VALUE]... [-P PAGES] [-t TITLE]\n"
               "                 [--ppd FILE [--output FILE] [--trust-ppd]] [--fit-length] [--no-dialog]\n"
               "                 [--show-options] [--summary] [FILE...]\n"
               "\n"
               "Opens the print dialog for tape and label printers. Without FILE, standard input is printed.\n"
               "\n"
               "  -d QUEUE[/INSTANCE]  the print queue; without it, the default printer\n"
               "  -n COPIES            the number of copies\n"
               "  -o NAME=VALUE        an option of the job; several may stand in one -o, separated by blanks\n"
               "  -P PAGES             the pages to print, such as 1-4,7\n"
               "  -t TITLE             the title of the job\n"
               "  -s                   say nothing about a job that went well\n"
               "  -c                   accepted for the sake of lp\n"
               "  --ppd FILE           take the printer's description from a PPD file; without -d no print server is\n"
               "                       needed: the document runs through the filters that the PPD names\n"
               "  --output FILE        with --ppd: where the printer's bytes go, - for standard output; no print queue "
               "is\n"
               "                       used\n"
               "  --trust-ppd          with --ppd: run programs and commands of its own that the PPD file names\n"
               "  --fit-length         make the tape as long as what is drawn on the document needs, with both "
               "margins\n"
               "  --no-dialog          do the same job without a window\n"
               "  --wait               without a window: end when the job is printed, or has failed\n"
               "  --show-options       print the options that the job would carry, and submit nothing\n"
               "  --summary            print the summary of the job as \"title: value\" lines, and submit nothing\n"
               "  --help               print this text\n"
               "  --version            print the version\n"
               "\n") +
           exitStatusHelp();
}

} // namespace tapeprint
