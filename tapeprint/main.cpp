// SPDX-License-Identifier: Apache-2.0
// The program tapeprint: reads its command line, and runs the dialog with or without a window.
#include "job/OutputFile.h"
#include "job/PlainText.h"
#include "tapeprint/CommandLine.h"
#include "tapeprint/Display.h"
#include "tapeprint/RunReport.h"
#include "tapeprint/TerminalPassword.h"
#include "tapeprint/UnattendedRun.h"
#include "tapeprint/WindowRun.h"

#include <QApplication>
#include <QFile>

#include <csignal>
#include <cstdio>

namespace
{

/// Writes lines. \return whether all of them could be written.
bool writeLines(const QStringList &lines, std::FILE *stream, const char *prefix)
{
    for (const QString &line : lines) {
        std::fprintf(stream, "%s%s\n", prefix, tapeprint::job::harmless(line).toLocal8Bit().constData());
    }
    return std::fflush(stream) == 0;
}

int report(const tapeprint::RunReport &run)
{
    int status = run.status;
    QStringList messages = run.messages;
    if (!writeLines(run.output, stdout, "")) {
        messages = {QStringLiteral("Standard output cannot be written: send it elsewhere.")};
        status = tapeprint::exitStatus(tapeprint::job::Problem::UnwritableOutput);
    }
    writeLines(messages, stderr, "tapeprint: ");
    return status;
}

QtMessageHandler nextMessageHandler = nullptr;

/// The toolkit remarks on sessions without a runtime folder, such as those of cron or ssh, at every start. Standard
/// error is for what a person can act on.
void passMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"))) {
        nextMessageHandler(type, context, message);
    }
}

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QFile::decodeName(argv[i]));
    }
    return arguments;
}

} // namespace

int main(int argc, char **argv)
{
    tapeprint::job::Problem error;
    const std::optional<tapeprint::CommandLine> line = tapeprint::parseCommandLine(argumentsOf(argc, argv), &error);
    if (!line) {
        return report(tapeprint::failedRun(error));
    }
    if (line->help) {
        return report({tapeprint::commandLineHelp().trimmed().split(u'\n'), {}, 0});
    }
    if (line->version) {
        return report({{QStringLiteral("tapeprint " TAPEPRINT_VERSION)}, {}, 0});
    }

    // A reader that goes away is said, as a full disk is.
    std::signal(SIGPIPE, SIG_IGN);
    nextMessageHandler = qInstallMessageHandler(passMessage);
    // Panels are real widgets with or without a window.
    const bool wantsWindow = !line->noDialog && !line->onlyShows();
    const bool showsWindow = wantsWindow && tapeprint::hasDisplay();
    if (!showsWindow && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // The toolkit gets no arguments: its own options would take lp's letters away.
    int toolkitArgc = 1;
    const QApplication application(toolkitArgc, argv);
    QApplication::setApplicationName(QStringLiteral("tapeprint"));

    if (!showsWindow) {
        tapeprint::job::setPasswordAsker(tapeprint::askOnTerminal); // the window has its own
    }
    tapeprint::RunReport run = showsWindow ? tapeprint::runWindow(*line) : tapeprint::runUnattended(*line);
    if (wantsWindow && !showsWindow && run.status == 0) {
        run.output.prepend(QStringLiteral("There is no display: the job was done without a window."));
    }
    // Standard output is the printer's.
    if (!line->onlyShows() && tapeprint::job::isStandardOutput(line->request.outputPath)) {
        run.messages = run.output + run.messages;
        run.output.clear();
    }
    return report(run);
}
