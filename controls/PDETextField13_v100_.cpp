// SPDX-License-Identifier: Apache-2.0
// Leads every road of an insertion through the filter, and tells the ends of editing from mere losses of the focus.
#include "controls/PDETextField13_v100_.h"

#include "controls/PDETextFieldFilter13_v100_.h"
#include "pdekit/NotificationCenter.h"

#include <QFocusEvent>
#include <QHideEvent>
#include <QKeyEvent>
#include <QPointer>

PDETextField13_v100_::PDETextField13_v100_(QWidget *parent)
    : QLineEdit(parent), mFilter(new PDETextFieldFilter13_v100_(this))
{
    connect(this, &QLineEdit::textEdited, this, &PDETextField13_v100_::textDidChange);
    connect(this, &QLineEdit::returnPressed, this, &PDETextField13_v100_::endEditing);
}

PDETextField13_v100_::~PDETextField13_v100_() = default;

PDEFormatter *PDETextField13_v100_::formatter() const
{
    return mFilter->formatter();
}

void PDETextField13_v100_::setFormatter(std::unique_ptr<PDEFormatter> formatter)
{
    mFilter->setFormatter(std::move(formatter));
}

void PDETextField13_v100_::sendFirstResponderNotification(bool isFirstResponder)
{
    if (!isFirstResponder) {
        pdekit::NotificationCenter::defaultCenter().postNotification(kTextFieldResignFirstResponderNotification, this);
    }
}

bool PDETextField13_v100_::isFirstResponder() const
{
    return window()->focusWidget() == this;
}

bool PDETextField13_v100_::becomeFirstResponder()
{
    setFocus(Qt::OtherFocusReason);
    if (!isFirstResponder()) {
        return false;
    }
    sendFirstResponderNotification(true);
    return true;
}

void PDETextField13_v100_::textDidEndEditing()
{
    const QPointer<PDETextField13_v100_> self(this);
    Q_EMIT editingEnded();
    // The toolkit never refuses to give up an editing that has ended, and an exception passes through unchanged.
    if (self != nullptr) {
        sendFirstResponderNotification(true);
    }
}

void PDETextField13_v100_::selectText()
{
    sendFirstResponderNotification(false);
}

void PDETextField13_v100_::textDidChange()
{
    sendFirstResponderNotification(false);
}

void PDETextField13_v100_::undo()
{
    mFilter->moveInHistory(&QLineEdit::undo, &QLineEdit::redo);
}

void PDETextField13_v100_::redo()
{
    mFilter->moveInHistory(&QLineEdit::redo, &QLineEdit::undo);
}

void PDETextField13_v100_::keyPressEvent(QKeyEvent *event)
{
    if (!isReadOnly() && event->matches(QKeySequence::Undo)) {
        undo();
        event->accept();
        return;
    }
    if (!isReadOnly() && event->matches(QKeySequence::Redo)) {
        redo();
        event->accept();
        return;
    }
    mFilter->guard([=, this] { QLineEdit::keyPressEvent(event); });
}

void PDETextField13_v100_::inputMethodEvent(QInputMethodEvent *event)
{
    mFilter->handleInputMethod(event, [this](QInputMethodEvent *passed) { QLineEdit::inputMethodEvent(passed); });
}

// The middle button pastes the selection of another program.
void PDETextField13_v100_::mouseReleaseEvent(QMouseEvent *event)
{
    mFilter->guard([=, this] { QLineEdit::mouseReleaseEvent(event); });
}

void PDETextField13_v100_::dragEnterEvent(QDragEnterEvent *event)
{
    mFilter->beginDrag();
    QLineEdit::dragEnterEvent(event);
}

void PDETextField13_v100_::dropEvent(QDropEvent *event)
{
    mFilter->guardDrop([=, this] { QLineEdit::dropEvent(event); });
}

void PDETextField13_v100_::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    mIsEditing = !isReadOnly();
    sendFirstResponderNotification(true);
}

void PDETextField13_v100_::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // The focus comes back by itself from a menu, an alert or another application.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        endEditing();
    }
}

void PDETextField13_v100_::hideEvent(QHideEvent *event)
{
    QLineEdit::hideEvent(event);
    // A window that is minimised still holds its editing.
    if (!event->spontaneous()) {
        endEditing();
    }
}

void PDETextField13_v100_::endEditing()
{
    if (!mIsEditing || mIsEnding) {
        return;
    }
    const QPointer<PDETextField13_v100_> self(this);
    mIsEnding = true;
    textDidEndEditing();
    if (self != nullptr) {
        mIsEnding = false;
        // After Return the focus stays, and the next editing has begun.
        mIsEditing = isFirstResponder() && isVisible();
    }
}
