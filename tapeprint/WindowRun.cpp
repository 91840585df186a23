// SPDX-License-Identifier: Apache-2.0
// Opens what the command line names, shows the window, and says what became of the job.
#include "tapeprint/WindowRun.h"

#include "dialog/ButtonIcons.h"
#include "dialog/JobWindow.h"
#include "dialog/PasswordQuestion.h"
#include "dialog/Translations.h"
#include "job/CustomValues.h"
#include "job/DocumentSpool.h"
#include "job/LastSettings.h"
#include "tapeprint/JsonReport.h"
#include "tapeprint/OutputPath.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QMessageBox>
#include <QTimer>

#include <atomic>
#include <functional>

#include <fcntl.h>
#include <unistd.h>

namespace tapeprint
{

namespace
{

/// A printer that opens at once is there when the window comes up. One that takes its time is not waited for.
void waitABit(dialog::PrintDialog &window)
{
    constexpr int aBitMs = 250;
    QEventLoop untilSettled;
    QObject::connect(&window, &dialog::PrintDialog::settled, &untilSettled, &QEventLoop::quit);
    QTimer::singleShot(aBitMs, &untilSettled, &QEventLoop::quit);
    if (!window.isSettled()) {
        untilSettled.exec();
    }
}

/// Whether nobody reads standard error: it is no terminal, and the program has none either, as when a desktop started
/// it. Without a display that people see, nobody reads a window.
bool isOnlyTheWindowSeen()
{
    const QString platform = QGuiApplication::platformName();
    if (isatty(STDERR_FILENO) != 0 || !(platform == u"xcb" || platform.startsWith(u"wayland"))) {
        return false;
    }
    const int terminal = ::open("/dev/tty", O_RDONLY | O_NOCTTY | O_CLOEXEC);
    if (terminal >= 0) {
        ::close(terminal);
    }
    return terminal < 0;
}

/// What keeps the window from being opened is said in one of its own where nobody would see it else.
/// \param again asks for the problem once more, now that there are the person's own words for it.
RunReport failedBeforeTheWindow(const job::Problem &problem, const std::function<job::Problem()> &again)
{
    if (isOnlyTheWindowSeen()) {
        const dialog::Translations translations;
        const job::Problem said = again();
        QMessageBox box(QMessageBox::Critical, QStringLiteral("Tape Print"), {}, QMessageBox::Ok);
        box.setTextFormat(Qt::PlainText);
        box.setText(said.isNull() ? problem.sentence : said.sentence);
        dialog::removeButtonIcons(box);
        box.exec();
    }
    return failedRun(problem);
}

} // namespace

RunReport runWindow(const CommandLine &line)
{
    job::Problem error;
    std::optional<job::DocumentSpool> documents = job::DocumentSpool::collect(line.files, &error);
    if (!documents) {
        return failedBeforeTheWindow(error, [&line] {
            job::Problem said;
            if (!line.files.isEmpty()) { // what came on standard input has been read
                job::DocumentSpool::collect(line.files, &said);
            }
            return said;
        });
    }
    job::JobRequest request = line.request;
    request.documents = documents->sources();
    nameOutput(request, documents->title(QString()));
    // With a PPD file alone no print server is asked for anything, and what is wrong with the file is said at once. A
    // queue is opened by the window, which does not wait for it.
    std::optional<job::Destination> destination;
    const bool isQueue = request.ppdPath.isEmpty() || !request.queue.isEmpty();
    if (!isQueue && !(destination = job::openDestination(request, &error))) {
        return failedBeforeTheWindow(error, [&request] {
            job::Problem said;
            job::openDestination(request, &said);
            return said;
        });
    }

    // The window speaks the person's language; what is said on standard output and standard error does not, because
    // scripts read it.
    auto translations = std::make_optional<dialog::Translations>();
    const dialog::PasswordDesk passwords;
    const QString title = documents->title(request.title);
    dialog::PrintDialog::Setup setup;
    setup.request = request;
    setup.title = title;
    setup.files = documents->files();
    setup.printers = isQueue ? dialog::PrinterSource::server() : dialog::PrinterSource();
    dialog::JobWindow jobWindow(setup, dialog::JobWindow::printing(title, documents->files(), documents->sources()),
                                std::move(destination));
    dialog::PrintDialog &window = jobWindow.dialog();
    waitABit(window);
    QEventLoop untilClosed;
    QObject::connect(&window, &QDialog::finished, &untilClosed, &QEventLoop::quit);
    window.open();
    untilClosed.exec();
    translations.reset();

    RunReport report;
    if (!window.printed()) {
        report.problem = job::Problem(job::Problem::Cancelled, {}); // nobody has to be told what they did
        report.status = exitStatus(job::Problem::Cancelled);
        return report;
    }
    report.data.insert(QStringLiteral("options"),
                       jsonOptions(job::withoutSecrets(jobWindow.job().ppd(), job::settle(jobWindow.job()).carried())));
    report.data.insert(QStringLiteral("job"), jsonJob(*window.printed()));
    if (!window.printed()->isKept) {
        report.messages.append(job::lastSettingsNotKept());
    }
    if (!line.silent) {
        report.output.append(
            window.printed()->sentence()); // scripts read it: in English, now that the window is closed
    }
    return report;
}

} // namespace tapeprint
