// SPDX-License-Identifier: Apache-2.0
// The document is here as a whole before anything else is done with it.
#include "portal/PrintConversation.h"

#include "dialog/ButtonIcons.h"
#include "job/PlainText.h"
#include "portal/Log.h"

#include <QMessageBox>

#include <utility>

namespace tapeprint::portal
{

PrintConversation::PrintConversation(Caller caller, std::optional<ChosenSettings> settings,
                                     const QDBusUnixFileDescriptor &descriptor, QObject *parent)
    : Conversation(parent), mCaller(std::move(caller)), mSettings(std::move(settings))
{
    connect(&mDocument, &ReceivedDocument::arrived, this, [this] {
        if (!mIsClosed) {
            mSettings ? printSilently() : showWindow();
        }
    });
    connect(&mDocument, &ReceivedDocument::failed, this, &PrintConversation::fail);
    mDocument.receive(descriptor);
}

PrintConversation::~PrintConversation()
{
    if (mWindow) {
        mWindow->disconnect(this);
        delete mWindow;
    }
}

void PrintConversation::printSilently()
{
    mSettings->jobName = jobNameFor(mCaller, mSettings->jobName);
    mPrint = new SilentPrint(std::move(*mSettings), mDocument.file()->path(), this);
    connect(mPrint, &SilentPrint::sent, this, [this] { answer(Response::Done); });
    connect(mPrint, &SilentPrint::failed, this, &PrintConversation::fail);
    connect(mPrint, &SilentPrint::ended, this, [this] {
        answer(Response::Done);
        Q_EMIT ended();
    });
    mPrint->start();
}

void PrintConversation::showWindow()
{
    dialog::PrintDialog::Setup setup;
    setup.title = jobNameFor(mCaller, {});
    setup.files = QStringList{mDocument.file()->path()};
    setup.printers = dialog::PrinterSource::server();
    setup.heading = headingFor(mCaller);
    mWindow = new PortalWindow(setup, dialog::JobWindow::printing(setup.title, {mDocument.file()->path()}, {}),
                               mCaller.parentWindow, mCaller.isModal);
    connect(mWindow, &PortalWindow::closed, this, [this](bool isAccepted) {
        mWindow->deleteWhenQuiet();
        answer(isAccepted ? Response::Done : Response::Cancelled);
    });
    connect(mWindow, &QObject::destroyed, this, &Conversation::ended);
}

void PrintConversation::close()
{
    answer(Response::Ended);
    mIsClosed = true;
    if (mWindow) {
        mWindow->dismiss();
    } else if (mPrint) {
        mPrint->cancel(); // the end follows
    } else {
        Q_EMIT ended();
    }
}

void PrintConversation::fail(const job::Problem &problem)
{
    const bool isByPerson = problem.kind == job::Problem::Cancelled;
    answer(isByPerson ? Response::Cancelled : Response::Ended);
    if (!problem.isNull() && !isByPerson) {
        qCWarning(portalLog) << "a program's document is not printed:" << job::harmless(problem.sentence);
        tell(problem.sentence);
    }
    Q_EMIT ended();
}

/// A box of its own: the program's window may be gone, and what failed is not to go unsaid.
void PrintConversation::tell(const QString &sentence)
{
    auto *box = new QMessageBox(QMessageBox::Critical, headingFor(mCaller), {}, QMessageBox::Ok);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setText(sentence);
    box->setModal(false);
    dialog::removeButtonIcons(*box);
    box->show();
}

} // namespace tapeprint::portal
