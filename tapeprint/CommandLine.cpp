// SPDX-License-Identifier: Apache-2.0
// The command line's parser. As with lp, letters without a value may stand together ("-sc"), and a letter's value may
// stand beside it ("-dQUEUE").
#include "tapeprint/CommandLine.h"

#include "tapeprint/ExitStatus.h"
#include "tapeprint/ProgramOptions.h"

#include <algorithm>

namespace tapeprint
{

namespace
{

using job::Problem;

const ProgramOption *findOption(const QString &name)
{
    const auto options = programOptions();
    const auto found = std::find_if(options.begin(), options.end(), [&name](const ProgramOption &option) {
        return name == QLatin1String(option.name);
    });
    return found == options.end() ? nullptr : &*found;
}

/// The arguments, taken one after the other.
class Parser
{
public:
    Parser(const QStringList &arguments, Problem *error) : mArguments(arguments), mError(error) {}

    bool takeAll()
    {
        bool onlyFiles = false;
        while (mNext < mArguments.size()) {
            const QString &argument = mArguments.at(mNext++);
            if (argument == u"-" && !onlyFiles) {
                continue; // stands for standard input, which is read when no file is named
            }
            if (onlyFiles || !argument.startsWith(u'-')) {
                line.files.append(argument);
            } else if (argument == u"--") {
                onlyFiles = true;
            } else if (!(argument.startsWith(QLatin1String("--")) ? takeLong(argument) : takeLetters(argument))) {
                return false;
            }
        }
        return true;
    }

    CommandLine line;

private:
    bool fail(const QString &sentence)
    {
        *mError = {Problem::BadUsage, sentence};
        return false;
    }

    bool isNone(const QString &argument)
    {
        return fail(QStringLiteral("%1 is no option of tapeprint: see tapeprint --help.").arg(argument));
    }

    bool takeLong(const QString &argument)
    {
        const qsizetype equals = argument.indexOf(u'=');
        const ProgramOption *option = findOption(argument.left(equals));
        if (option == nullptr || (!option->takesValue() && equals >= 0)) {
            return isNone(argument);
        }
        return equals < 0 ? takeNext(*option) : option->take(line, argument.mid(equals + 1), mError);
    }

    bool takeLetters(const QString &argument)
    {
        for (qsizetype i = 1; i < argument.size(); ++i) {
            const ProgramOption *option = findOption(QLatin1Char('-') + argument.sliced(i, 1));
            if (option == nullptr) {
                const QString instead = insteadOfLetter(argument.at(i));
                return instead.isNull() ? isNone(i == 1 ? argument : u'-' + argument.sliced(i, 1)) : fail(instead);
            }
            if (option->takesValue()) {
                return i + 1 < argument.size() ? option->take(line, argument.mid(i + 1), mError) : takeNext(*option);
            }
            if (!option->take(line, QString(), mError)) {
                return false;
            }
        }
        return true;
    }

    /// Takes an option whose value, if it has one, is the next argument.
    bool takeNext(const ProgramOption &option)
    {
        if (!option.takesValue()) {
            return option.take(line, QString(), mError);
        }
        if (mNext == mArguments.size()) {
            return fail(QStringLiteral("%1 needs a value: see tapeprint --help.").arg(QLatin1String(option.name)));
        }
        return option.take(line, mArguments.at(mNext++), mError);
    }

    const QStringList &mArguments;
    qsizetype mNext = 0;
    Problem *mError;
};

bool fitsTogether(const CommandLine &line, Problem *error)
{
    if (line.trustPpd && line.request.ppdPath.isEmpty()) {
        *error = {Problem::BadUsage,
                  QStringLiteral("--trust-ppd goes with --ppd: it is about the programs of that PPD file.")};
        return false;
    }
    if (!line.request.pdfPath.isEmpty() && !line.request.outputPath.isEmpty()) {
        *error = {Problem::BadUsage,
                  QStringLiteral("--pdf and --output both say where the job goes: give one of them.")};
        return false;
    }
    if (line.json && line.request.pdfPath == u"-") {
        *error = {Problem::BadUsage,
                  QStringLiteral("--json and --pdf - both write to standard output: give the PDF a name.")};
        return false;
    }
    if (line.onlyManagesPresets() && line.request.queue.isEmpty()) {
        *error = {Problem::BadUsage,
                  QStringLiteral("--list-presets and --delete-preset go with -d: presets belong to a print queue.")};
        return false;
    }
    if (line.json && line.request.outputPath == u"-") {
        *error = {Problem::BadUsage,
                  QStringLiteral("--json and --output - both write to standard output: give the output a name.")};
        return false;
    }
    return true;
}

/// An option's line of --help: what it is, and from a column on what it does.
QString helpOf(const ProgramOption &option)
{
    constexpr int column = 25;
    QString text = QStringLiteral("  ") + QLatin1String(option.name);
    if (option.takesValue()) {
        text += u' ' + QLatin1String(option.valueName);
    }
    const QString indent = u'\n' + QString(column, u' ');
    return text.leftJustified(column) + QString::fromUtf8(option.help).replace(u'\n', indent) + u'\n';
}

} // namespace

std::optional<CommandLine> parseCommandLine(const QStringList &arguments, Problem *error)
{
    Parser parser(arguments, error);
    if (!parser.takeAll()) {
        return std::nullopt;
    }
    CommandLine &line = parser.line;
    if (line.fitLength) {
        line.request.options.set(job::OptionName::fitLength, QStringLiteral("true"));
    }
    line.request.trustsPpd = line.trustPpd;
    line.request.onlyShows = line.onlyShows();
    return fitsTogether(line, error) ? std::optional(line) : std::nullopt;
}

QString commandLineHelp()
{
    QString text =
        QStringLiteral("Usage: tapeprint [-d QUEUE[/INSTANCE]] [-n COPIES] [-o NAME=VALUE]... [-P PAGES] [-t TITLE]\n"
                       "                 [--ppd FILE [--trust-ppd]] [--output FILE] [OPTION]... [--] [FILE]...\n"
                       "\n"
                       "Opens the print dialog for tape and label printers. Without FILE, standard input is printed.\n"
                       "\n");
    for (const ProgramOption &option : programOptions()) {
        text += option.help == nullptr ? QString() : helpOf(option);
    }
    return text + u'\n' + exitStatusHelp();
}

} // namespace tapeprint
