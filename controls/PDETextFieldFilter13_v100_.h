// SPDX-License-Identifier: Apache-2.0
// Puts a formatter between a line edit and what a person enters, by whatever road it comes.
#pragma once

#include "controls/PDEFormatter.h"

#include <QLineEdit>
#include <QPointer>
#include <QValidator>

#include <functional>
#include <memory>
#include <optional>

class QInputMethodEvent;

/// A line edit has no one place through which all insertions pass, but it asks its validator after every change and
/// takes a change back that the validator calls invalid. The filter is that validator; it knows the text and the
/// selection before the edit from having watched the field. Two roads need more: an undo or redo is not taken back for
/// a validator's sake, and an input method's commit moves the caret before it asks; both are examined here themselves.
///
/// Text that code sets is never examined: setText forgets the field's history, and a change without a history is
/// therefore not a person's.
class PDETextFieldFilter13_v100_ : public QValidator
{
public:
    /// Becomes the validator of a field and its child.
    explicit PDETextFieldFilter13_v100_(QLineEdit *field);
    ~PDETextFieldFilter13_v100_() override;

    /// The formatter that decides; null lets everything pass.
    PDEFormatter *formatter() const { return mFormatter.get(); }
    void setFormatter(std::unique_ptr<PDEFormatter> formatter) { mFormatter = std::move(formatter); }

    State validate(QString &proposed, int &caret) const override;

    /// Runs the field's handling of an event. When an insertion was refused on the way, the cursor and the selection
    /// are put back where they were before the event. The field may be gone afterwards.
    void guard(const std::function<void()> &handling);

    /// A drag comes into the field, which moves the cursor along with it from now on.
    void beginDrag();
    /// Runs the field's handling of a drop. A refused one puts back what the drag found.
    void guardDrop(const std::function<void()> &handling);

    using Step = void (QLineEdit::*)();
    /// An undo or a redo, examined. \param step the move; \param back the move that takes it back.
    void moveInHistory(Step step, Step back);

    /// An input method's event. \param deliver the field's own handling of an input method event.
    void handleInputMethod(QInputMethodEvent *event, const std::function<void(QInputMethodEvent *)> &deliver);

private:
    /// What a refused edit must leave.
    struct Snapshot {
        QString text;
        PDEFormatter::Range selection; ///< the caret when the length is 0
        qsizetype cursor = 0;
        bool operator==(const Snapshot &other) const;
    };

    Snapshot current() const;
    void guardFrom(const Snapshot &before, const std::function<void()> &handling);
    void watchSelection();
    void select(const Snapshot &snapshot);
    void restore(const Snapshot &snapshot);
    bool isQuestion(const QString &proposed) const;
    bool acceptsEdit(const QString &proposed, qsizetype caret) const;
    bool acceptsHistory(const QString &original) const;
    bool acceptsCommit(const QInputMethodEvent &event, const Snapshot &before) const;
    void tellChange(const Snapshot &before);

    QLineEdit *mField;
    std::unique_ptr<PDEFormatter> mFormatter;
    PDEFormatter::Range mSelection;               ///< before the edit that may come next
    mutable QString mText;                        ///< before the edit that may come next
    mutable std::optional<Snapshot> mComposition; ///< before the input method's open composition began
    std::optional<Snapshot> mDrag;                ///< before the drag came in that is over the field
    mutable bool mRefused = false;                ///< an insertion was refused since the last event began
    bool mPassing = false;                        ///< the change on its way has been examined already
};
