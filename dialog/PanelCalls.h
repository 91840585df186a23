// SPDX-License-Identifier: Apache-2.0
// Every call of a panel goes through here: a panel is a stranger's code, and what it does wrong is to cost the person a
// panel at the most, and never without a name.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace tapeprint::dialog
{

class PanelCalls
{
public:
    /// Calls a panel. \param who the panel as sentences name it. \return whether the call came to its end: one that
    /// throws, or that panels made from within too many others, did not, and a sentence says so. One that does not come
    /// back is named meanwhile.
    bool make(const QString &who, const std::function<void()> &call);
    /// Whether a call is under way. An event loop that a panel runs meanwhile, such as that of an alert, may bring
    /// anything; what frees a panel has to wait.
    bool isUnderWay() const { return mDepth > 0; }

    /// The panel whose call is under way in this process, for a handler of signals; empty when there is none.
    static const char *whoIsInCall();

    /// Keeps the sentence about a panel that threw. \param reason may be empty.
    void tellThrown(const QString &who, const QString &reason);
    /// Keeps a sentence about a panel or a plug-in. Said once, however often it is kept.
    void tell(const QString &sentence);
    /// What went wrong until now.
    const QStringList &sentences() const { return mSentences; }
    void forget() { mSentences.clear(); }

private:
    int mDepth = 0;
    QStringList mSentences;
};

} // namespace tapeprint::dialog
