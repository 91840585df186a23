// SPDX-License-Identifier: Apache-2.0
// PreparePrint: the person chooses the settings, and the program gets them to lay its pages out.
#pragma once

#include "portal/Conversation.h"
#include "portal/PortalSettings.h"
#include "portal/PortalWindow.h"
#include "portal/Tokens.h"

#include <QPointer>

namespace tapeprint::portal
{

class AskConversation : public Conversation
{
    Q_OBJECT

public:
    /// \param tokens outlives this; takes what the person chose.
    AskConversation(Caller caller, AskedSettings asked, const QString &acceptLabel, Tokens &tokens, QObject *parent);
    ~AskConversation() override;

    void close() override;

private:
    void take(const job::SettledJob &job, const std::function<bool()> &keep);

    Caller mCaller;
    AskedSettings mAsked;
    Tokens &mTokens;
    QVariantMap mResults; ///< empty as long as the person has not decided
    QPointer<PortalWindow> mWindow;
};

} // namespace tapeprint::portal
