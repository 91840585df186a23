// SPDX-License-Identifier: Apache-2.0
// Print: the program's document is printed, with the settings that were chosen for it, or else with the dialog.
#pragma once

#include "portal/Conversation.h"
#include "portal/PortalWindow.h"
#include "portal/ReceivedDocument.h"
#include "portal/SilentPrint.h"
#include "portal/Tokens.h"

#include <QDBusUnixFileDescriptor>
#include <QPointer>

#include <optional>

namespace tapeprint::portal
{

class PrintConversation : public Conversation
{
    Q_OBJECT

public:
    /// \param settings what the person chose beforehand; nothing: they are asked now.
    PrintConversation(Caller caller, std::optional<ChosenSettings> settings, const QDBusUnixFileDescriptor &descriptor,
                      QObject *parent);
    ~PrintConversation() override;

    void close() override;

private:
    void printSilently();
    void showWindow();
    void fail(const job::Problem &problem);
    void tell(const QString &sentence);

    Caller mCaller;
    std::optional<ChosenSettings> mSettings;
    ReceivedDocument mDocument;
    QPointer<SilentPrint> mPrint;
    QPointer<PortalWindow> mWindow;
    bool mIsClosed = false;
};

} // namespace tapeprint::portal
