// SPDX-License-Identifier: Apache-2.0
// The numeric fields' line edit: filtered by a formatter, it announces editing and says once when an editing ends.
#pragma once

#include "controls/PDEFormatter.h"

#include <QLineEdit>

#include <memory>

class PDETextFieldFilter13_v100_;

/// A line edit with a formatter, for interface files under this class name.
///
/// Everything that a person inserts (typed, pasted, dropped, composed, undone, redone) is put to the formatter; a
/// refused insertion leaves the text, the cursor and the selection as they were. Deletions and text set by code pass.
///
/// Its delegate is told of one thing, the end of editing. Of changes it tells nobody: the change of text is announced
/// as the notice below in the place of a message to the delegate. (QLineEdit's own signals are the toolkit's.)
class PDETextField13_v100_ : public QLineEdit
{
    Q_OBJECT

public:
    /// Posted about the field when its text is selected by selectText and when a person changes its text; never when it
    /// gains or loses the focus. The name says otherwise; the sense is deliberate and kept.
    static inline const QString kTextFieldResignFirstResponderNotification =
        QStringLiteral("TextFieldResignFirstResponderNotification");

    explicit PDETextField13_v100_(QWidget *parent = nullptr);
    ~PDETextField13_v100_() override;

    /// The field's formatter; null when it has none. Owned by the field.
    PDEFormatter *formatter() const;
    void setFormatter(std::unique_ptr<PDEFormatter> formatter);

    /// Posts kTextFieldResignFirstResponderNotification about the field when the argument is false; nothing when true.
    void sendFirstResponderNotification(bool isFirstResponder);
    /// Takes the focus. \return whether the field has it in its window now.
    bool becomeFirstResponder();
    /// The editing has ended: tells the delegate (editingEnded).
    void textDidEndEditing();
    /// Posts the notice. Selects nothing: it stands in for the toolkit's selection, it does not extend it.
    void selectText();
    /// Posts the notice, in the place of a message to the delegate.
    void textDidChange();

public Q_SLOTS:
    /// QLineEdit's, examined by the formatter. Keys and the context menu come here.
    void undo();
    void redo();

Q_SIGNALS:
    /// A person's editing ended: by Return or Enter, by the focus going to another control, or by the field being
    /// hidden with its window. Sent once an end: what a receiver causes (an alert that takes the focus, a window it
    /// closes) ends nothing a second time. A menu that opens or another application in front is no end.
    void editingEnded();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void endEditing();
    bool isFirstResponder() const;

    PDETextFieldFilter13_v100_ *mFilter;
    bool mIsEditing = false; ///< the focus came in and no end of editing has followed
    bool mIsEnding = false;  ///< the receivers of editingEnded are at work
};
