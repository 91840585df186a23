// SPDX-License-Identifier: Apache-2.0
// One call of the portal's, from its arrival to its answer, and to the last thing that has to be done for it.
#pragma once

#include "job/KeptPasswords.h"

#include <QObject>
#include <QVariantMap>

namespace tapeprint::portal
{

/// The portal's words for how a call ended.
enum class Response : uint { Done = 0, Cancelled = 1, Ended = 2 };

/// What both calls come with.
struct Caller {
    QString program;      ///< its identity; empty for a program that has none
    QString parentWindow; ///< as the portal names windows
    QString title;        ///< that the program wishes for
    bool isModal = true;
};

class Conversation : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The caller has ended the call, or is gone.
    virtual void close() = 0;

Q_SIGNALS:
    /// Sent once.
    void answered(tapeprint::portal::Response response, const QVariantMap &results);
    /// Nothing more is done: the object may go. Sent after the answer.
    void ended();

protected:
    /// Answers, unless it has been done.
    void answer(Response response, const QVariantMap &results = {});

private:
    job::PasswordKeeping mPasswords; ///< the program runs on for others: what was typed for one call goes with it
    bool mIsAnswered = false;
};

/// The window's title for a program's dialog.
QString headingFor(const Caller &caller);

/// The job's name: the document's, or where the program does not tell it the window's title, which is "Print" of all
/// GTK programs. \param documentName as the program wrote it.
QString jobNameFor(const Caller &caller, const QString &documentName);

/// The text of our button, of one that a program wishes for: there "_" goes before the letter that is its key, here
/// "&". Empty for none.
QString buttonText(const QString &label);

/// A setting among the options of a call; its own default when it is missing or of another type, which is logged.
bool truthIn(const QVariantMap &options, const QString &key, bool otherwise);
uint numberIn(const QVariantMap &options, const QString &key);
QString textIn(const QVariantMap &options, const QString &key);

} // namespace tapeprint::portal
