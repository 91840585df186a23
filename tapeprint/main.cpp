// SPDX-License-Identifier: Apache-2.0
// The program tapeprint: reads its command line, and runs the dialog with or without a window.
#include "dialog/Application.h"
#include "dialog/ContrastStyle.h"
#include "dialog/FontReading.h"
#include "dialog/ToolkitStart.h"
#include "job/KeptPasswords.h"
#include "job/OutputFile.h"
#include "job/PdfWorker.h"
#include "job/ServerConnection.h"
#include "job/TextPdf.h"
#include "tapeprint/CommandLine.h"
#include "tapeprint/Completion.h"
#include "tapeprint/Display.h"
#include "tapeprint/PresetRun.h"
#include "tapeprint/RunReport.h"
#include "tapeprint/ServerChoice.h"
#include "tapeprint/StandardStreams.h"
#include "tapeprint/TerminalPassword.h"
#include "tapeprint/UnattendedRun.h"
#include "tapeprint/WindowRun.h"

#include <QApplication>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <utility>

#include <unistd.h>

namespace
{

QtMessageHandler nextMessageHandler = nullptr;

/// The toolkit remarks at every start on sessions without a runtime folder, such as those of cron or ssh, and on one
/// that cannot be written; nothing here needs it. Standard error is for what a person can act on.
void passMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths: "))) {
        nextMessageHandler(type, context, message);
    }
}

/// A server that fifty programs print on at once may have nothing to say to one of them for long. It is waited for, and
/// that is said; an interrupt ends it.
void bePatientWithServers(bool isSilent)
{
    tapeprint::job::ServerConnection::Patience patience;
    constexpr int usualSeconds = 60;
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("TAPEPRINT_PATIENCE", &isGiven);
    patience.longest = std::chrono::seconds(isGiven && given > 0 ? given : usualSeconds);
    if (!isSilent) {
        patience.tell = [](const QString &server) {
            std::fputs(qPrintable(QStringLiteral("tapeprint: Waiting for the print server %1.\n").arg(server)), stderr);
        };
    }
    tapeprint::job::ServerConnection::setPatience(std::move(patience));
}

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QFile::decodeName(argv[i]));
    }
    return arguments;
}

/// Whether a run without a window may come upon a text that it has to draw by itself.
bool mayDrawText(const tapeprint::CommandLine &line)
{
    return line.readsDocuments() &&
           (line.files.isEmpty() || std::any_of(line.files.begin(), line.files.end(), tapeprint::job::mayNeedOwnFonts));
}

tapeprint::RunReport helpReport()
{
    const QString help = tapeprint::commandLineHelp().trimmed();
    return {help.split(u'\n'), {}, 0, {}, {{QStringLiteral("help"), help}}};
}

tapeprint::RunReport versionReport()
{
    const QString version = QStringLiteral(TAPEPRINT_VERSION);
    return {{QStringLiteral("tapeprint ") + version}, {}, 0, {}, {{QStringLiteral("version"), version}}};
}

} // namespace

int main(int argc, char **argv)
{
    tapeprint::prepareStandardStreams();
    tapeprint::job::Problem error;
    const QStringList arguments = argumentsOf(argc, argv);
    const std::optional<tapeprint::CommandLine> line = tapeprint::parseCommandLine(arguments, &error);
    if (!line) {
        return tapeprint::writeReport(tapeprint::failedRun(error), arguments.contains(QLatin1String("--json")));
    }
    if (line->help) {
        return tapeprint::writeReport(helpReport(), line->json);
    }
    if (line->version) {
        return tapeprint::writeReport(versionReport(), line->json);
    }

    tapeprint::chooseServer(*line);
    if (!line->complete.isNull()) {
        return tapeprint::writeCompletions(*line);
    }
    if (line->onlyManagesPresets()) {
        return tapeprint::writeReport(tapeprint::runPresets(*line), line->json);
    }
    nextMessageHandler = qInstallMessageHandler(passMessage);
    // Panels are real widgets with or without a window.
    const bool wantsWindow = !line->noDialog && line->submits();
    if (const tapeprint::job::Problem problem = wantsWindow ? tapeprint::displayProblem() : tapeprint::job::Problem();
        !problem.isNull()) {
        return tapeprint::writeReport(tapeprint::failedRun(problem), line->json);
    }
    if (!wantsWindow) {
        // By itself the toolkit would load whatever style is installed.
        QApplication::setStyle(QStringLiteral("fusion"));
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
            // The toolkit's quickest, which reads no fonts unless it is told to.
            qputenv("QT_QPA_PLATFORM", mayDrawText(*line) ? "minimal:enable_fonts" : "minimal");
        }
        if (line->readsDocuments()) {
            tapeprint::job::PdfWorker::prepare(); // is ready when the toolkit is
        }
    }
    // A handful of short texts is matched at a start: compiling the patterns to machine code costs more than it saves.
    qputenv("QT_ENABLE_REGEXP_JIT", "0");
    // The toolkit gets no arguments: its own options would take lp's letters away.
    int toolkitArgc = 1;
    auto start = std::make_optional<tapeprint::dialog::ToolkitStart>(
        tapeprint::wordsForNoStart(wantsWindow, line->json), line->json ? STDOUT_FILENO : STDERR_FILENO, wantsWindow);
    std::optional<tapeprint::dialog::FontReading> fonts;
    if (wantsWindow) {
        fonts.emplace();
    }
    const tapeprint::dialog::Application application(toolkitArgc, argv);
    tapeprint::dialog::nameCrashingPanels();
    if (wantsWindow) {
        tapeprint::dialog::ContrastStyle::takeWhereWanted();
    }
    fonts.reset(); // its thread reads the environment, which the end of the start changes
    start.reset();
    QApplication::setApplicationName(QStringLiteral("tapeprint"));
    QApplication::setDesktopFileName(QStringLiteral("org.tapeprint.TapePrint")); // whose icon a Wayland desktop shows

    const tapeprint::job::PasswordKeeping passwords; // typed once for the whole run
    if (!wantsWindow) {
        tapeprint::job::setPasswordAsker(tapeprint::askOnTerminal); // the window has its own
        bePatientWithServers(line->silent);
    }
    tapeprint::RunReport run = wantsWindow ? tapeprint::runWindow(*line) : tapeprint::runUnattended(*line);
    // Standard output is the printer's.
    const tapeprint::job::JobRequest &request = line->request;
    if (line->submits() &&
        (tapeprint::job::isStandardOutput(request.outputPath) || tapeprint::job::isStandardOutput(request.pdfPath))) {
        run.messages = run.output + run.messages;
        run.output.clear();
    }
    return tapeprint::writeReport(run, line->json);
}
