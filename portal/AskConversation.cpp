// SPDX-License-Identifier: Apache-2.0
// What the program asks with lies under what the person chooses, as far as the printer has it.
#include "portal/AskConversation.h"

#include "portal/PortalTexts.h"

#include <memory>
#include <utility>

namespace tapeprint::portal
{

namespace
{

/// The server's printers. What the program asks with counts as saved for the one that it used last.
dialog::PrinterSource printersFor(const AskedSettings &asked)
{
    dialog::PrinterSource source = dialog::PrinterSource::server();
    source.lastUsed = asked.printer;
    source.open = [asked, openAny = source.open](const job::JobRequest &request, const std::atomic<bool> &stop,
                                                 job::Problem *problem) {
        std::optional<job::Destination> destination = openAny(request, stop, problem);
        const bool isLast =
            destination && destination->queue && (asked.printer.isEmpty() || asked.printer == destination->queue->name);
        if (isLast && destination->queue->instance.isEmpty()) {
            const job::JobOptions fit = fitting(asked, destination->ppd.get());
            for (const auto &[name, value] : fit.entries()) {
                destination->queue->options.set(name, value);
            }
        }
        return destination;
    };
    return source;
}

} // namespace

AskConversation::AskConversation(Caller caller, AskedSettings asked, const QString &acceptLabel, Tokens &tokens,
                                 QObject *parent)
    : Conversation(parent), mCaller(std::move(caller)), mAsked(std::move(asked)), mTokens(tokens)
{
    dialog::PrintDialog::Setup setup;
    setup.request.options = mAsked.usual;
    setup.title = jobNameFor(mCaller, mAsked.documentName);
    setup.printers = printersFor(mAsked);
    setup.heading = headingFor(mCaller);
    setup.takeSettings = [this](const job::SettledJob &job, const std::function<bool()> &keep) { take(job, keep); };
    setup.acceptLabel = acceptLabel;
    if (mAsked.printsPart) {
        setup.aboutPages = PortalTexts::tr("The program prints a part: its current page, or what is selected.");
    }
    mWindow = new PortalWindow(setup, nullptr, mCaller.parentWindow, mCaller.isModal);
    connect(mWindow, &PortalWindow::closed, this, [this] {
        mWindow->deleteWhenQuiet();
        answer(mResults.isEmpty() ? Response::Cancelled : Response::Done, mResults);
    });
    connect(mWindow, &QObject::destroyed, this, &Conversation::ended);
}

AskConversation::~AskConversation()
{
    if (mWindow) {
        mWindow->disconnect(this);
        delete mWindow;
    }
}

void AskConversation::close()
{
    answer(Response::Ended);
    mWindow->dismiss();
}

void AskConversation::take(const job::SettledJob &job, const std::function<bool()> &keep)
{
    mResults = {
        {QStringLiteral("settings"), answeredSettings(mAsked, job, mWindow->job().ppd())},
        {QStringLiteral("page-setup"), answeredPageSetup(job)},
        {QStringLiteral("token"), mTokens.add(mCaller.program, {withoutProgramsPart(job), keep, mAsked.documentName,
                                                                std::make_shared<job::PasswordKeeping>()})}};
}

} // namespace tapeprint::portal
