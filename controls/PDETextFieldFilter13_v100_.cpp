// SPDX-License-Identifier: Apache-2.0
// Finds out what an edit inserts, and where, from the texts and selections before and after it.
#include "controls/PDETextFieldFilter13_v100_.h"

#include <QInputMethodEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

namespace
{

using Range = PDEFormatter::Range;

qsizetype commonPrefix(QStringView a, QStringView b)
{
    return std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
}

qsizetype commonSuffix(QStringView a, QStringView b)
{
    return std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first - a.rbegin();
}

} // namespace

bool PDETextFieldFilter13_v100_::Snapshot::operator==(const Snapshot &other) const
{
    return text == other.text && cursor == other.cursor && selection.location == other.selection.location &&
           selection.length == other.selection.length;
}

PDETextFieldFilter13_v100_::PDETextFieldFilter13_v100_(QLineEdit *field) : QValidator(field), mField(field)
{
    connect(field, &QLineEdit::selectionChanged, this, [this] { watchSelection(); });
    connect(field, &QLineEdit::cursorPositionChanged, this, [this] { watchSelection(); });
    mText = field->text();
    field->setValidator(this);
}

PDETextFieldFilter13_v100_::~PDETextFieldFilter13_v100_() = default;

PDETextFieldFilter13_v100_::Snapshot PDETextFieldFilter13_v100_::current() const
{
    const qsizetype cursor = mField->cursorPosition();
    const Range selection =
        mField->hasSelectedText() ? Range{mField->selectionStart(), mField->selectedText().size()} : Range{cursor, 0};
    return {mField->text(), selection, cursor};
}

void PDETextFieldFilter13_v100_::watchSelection()
{
    mSelection = current().selection;
}

QValidator::State PDETextFieldFilter13_v100_::validate(QString &proposed, int &caret) const
{
    const bool isFromCode = !mField->isUndoAvailable() && !mField->isRedoAvailable();
    if (mPassing || isFromCode || mFormatter == nullptr) {
        if (isFromCode && !mPassing) {
            mComposition.reset();
        }
        mText = proposed;
        return Acceptable;
    }
    if (isQuestion(proposed)) {
        return Acceptable;
    }
    if (!acceptsEdit(proposed, caret)) {
        mRefused = true;
        return Invalid;
    }
    mComposition.reset();
    mText = proposed;
    return Acceptable;
}

/// The field also asks whether the text it has is acceptable (on Return, on losing the focus): nothing is inserted
/// then. A selection replaced by the same text is an edit; it is told apart by the selection that has gone.
bool PDETextFieldFilter13_v100_::isQuestion(const QString &proposed) const
{
    return proposed == mText && (mSelection.length == 0 || mField->hasSelectedText());
}

bool PDETextFieldFilter13_v100_::acceptsEdit(const QString &proposed, qsizetype caret) const
{
    // What stands behind the caret stood behind the replaced part, too. When that does not fit the selection last seen,
    // the edit happened elsewhere and the texts tell where.
    const qsizetype replacedEnd = std::max<qsizetype>(mText.size() - (proposed.size() - caret), 0);
    Range before = mSelection;
    const bool fits =
        before.location + before.length == replacedEnd && proposed.startsWith(QStringView(mText).left(before.location));
    if (!fits) {
        before.location = std::min({commonPrefix(mText, proposed), caret, replacedEnd});
        before.length = replacedEnd - before.location;
    }
    const Range after{caret, 0};
    return mFormatter->isPartialStringValid(proposed, &after, mText, before, nullptr);
}

void PDETextFieldFilter13_v100_::select(const Snapshot &snapshot)
{
    if (current() == snapshot) {
        return;
    }
    const auto start = static_cast<int>(snapshot.selection.location);
    const auto length = static_cast<int>(snapshot.selection.length);
    if (length == 0) {
        mField->setCursorPosition(static_cast<int>(snapshot.cursor));
        mField->deselect();
    } else if (snapshot.cursor == snapshot.selection.location) {
        mField->setSelection(start + length, -length);
    } else {
        mField->setSelection(start, length);
    }
}

void PDETextFieldFilter13_v100_::guard(const std::function<void()> &handling)
{
    guardFrom(current(), handling);
}

void PDETextFieldFilter13_v100_::beginDrag()
{
    mDrag = current();
}

void PDETextFieldFilter13_v100_::guardDrop(const std::function<void()> &handling)
{
    const Snapshot before = mDrag && mDrag->text == mField->text() ? *mDrag : current();
    mDrag.reset();
    guardFrom(before, handling);
}

void PDETextFieldFilter13_v100_::guardFrom(const Snapshot &before, const std::function<void()> &handling)
{
    const QPointer<PDETextFieldFilter13_v100_> self(this);
    mRefused = false;
    watchSelection();
    handling();
    if (self != nullptr && mRefused && mField->text() == before.text) {
        select(before);
    }
}

void PDETextFieldFilter13_v100_::moveInHistory(Step step, Step back)
{
    const Snapshot before = current();
    bool accepted = true;
    {
        // Nobody hears of a text that is refused.
        const QSignalBlocker quiet(mField);
        const QScopedValueRollback<bool> passing(mPassing, true);
        (mField->*step)();
        accepted = mFormatter == nullptr || acceptsHistory(before.text);
        if (!accepted) {
            bool moved = true;
            while (moved && mField->text() != before.text) {
                const QString text = mField->text();
                (mField->*back)();
                moved = mField->text() != text;
            }
            if (mField->text() != before.text) {
                mField->setText(before.text);
            }
        }
    }
    if (!accepted) {
        select(before);
    }
    watchSelection();
    tellChange(before);
}

/// An undo or redo happens wherever the edit was, not at the caret: the texts tell what came back. It came in the place
/// of what went away, which must not count against it: a text typed over another that has a point, too, can be undone.
bool PDETextFieldFilter13_v100_::acceptsHistory(const QString &original) const
{
    const QString proposed = mField->text();
    const qsizetype prefix = commonPrefix(original, proposed);
    const qsizetype suffix = commonSuffix(QStringView(original).mid(prefix), QStringView(proposed).mid(prefix));
    QString kept = original;
    kept.remove(prefix, original.size() - prefix - suffix);
    const Range before{prefix, 0};
    const Range after{proposed.size() - suffix, 0};
    return mFormatter->isPartialStringValid(proposed, &after, kept, before, nullptr);
}

/// Sends the signals that were held back while a move in the history was examined.
void PDETextFieldFilter13_v100_::tellChange(const Snapshot &before)
{
    const QPointer<QLineEdit> field(mField);
    const Snapshot now = current();
    const bool selectionDiffers =
        (before.selection.length != 0 || now.selection.length != 0) &&
        (before.selection.location != now.selection.location || before.selection.length != now.selection.length);
    if (before.text != now.text) {
        Q_EMIT field->textEdited(now.text);
        if (field != nullptr) {
            Q_EMIT field->textChanged(now.text);
        }
    }
    if (field != nullptr && selectionDiffers) {
        Q_EMIT field->selectionChanged();
    }
    if (field != nullptr && before.cursor != now.cursor) {
        Q_EMIT field->cursorPositionChanged(static_cast<int>(before.cursor), static_cast<int>(now.cursor));
    }
}

void PDETextFieldFilter13_v100_::handleInputMethod(QInputMethodEvent *event,
                                                   const std::function<void(QInputMethodEvent *)> &deliver)
{
    // The field removes the selection as soon as a composition begins. A commit that is refused must bring it back, so
    // the edit is the whole composition, from the text and the selection that it found.
    const Snapshot now = current();
    if (!mComposition && !event->preeditString().isEmpty()) {
        mComposition = now;
    }
    const Snapshot before = mComposition.value_or(now);
    const bool commits = !event->commitString().isEmpty();
    const bool refused = commits && mFormatter != nullptr && !mField->isReadOnly() && !acceptsCommit(*event, before);
    const bool stillComposing = !event->preeditString().isEmpty();

    const QPointer<PDETextFieldFilter13_v100_> self(this);
    {
        mPassing = true;
        QInputMethodEvent withoutCommit(event->preeditString(), event->attributes());
        deliver(refused ? &withoutCommit : event);
        if (self == nullptr) {
            return;
        }
        mPassing = false;
    }
    if (refused && !stillComposing) {
        restore(before);
    }
    if (!stillComposing) {
        mComposition.reset();
    } else if (commits && !refused) {
        mComposition = current();
    }
    watchSelection();
}

bool PDETextFieldFilter13_v100_::acceptsCommit(const QInputMethodEvent &event, const Snapshot &before) const
{
    const Snapshot now = current();
    QString proposed = now.text;
    proposed.remove(now.selection.location, now.selection.length);
    const qsizetype start =
        std::clamp<qsizetype>(now.selection.location + event.replacementStart(), 0, proposed.size());
    proposed.remove(start, event.replacementLength());
    proposed.insert(start, event.commitString());

    const Range replaced{start, event.replacementLength() > 0 ? event.replacementLength() : before.selection.length};
    const Range after{start + event.commitString().size(), 0};
    return mFormatter->isPartialStringValid(proposed, &after, before.text, replaced, nullptr);
}

void PDETextFieldFilter13_v100_::restore(const Snapshot &snapshot)
{
    const QPointer<PDETextFieldFilter13_v100_> self(this);
    if (mField->text() != snapshot.text) {
        // Only the removal of the selection stands between the two texts.
        mPassing = true;
        mField->undo();
        if (self != nullptr && mField->text() != snapshot.text) {
            mField->setText(snapshot.text);
        }
        if (self == nullptr) {
            return;
        }
        mPassing = false;
    }
    select(snapshot);
}
