// SPDX-License-Identifier: Apache-2.0
// The text field under a person's hands: keys, clipboard, drops, input methods, undo; the ends of editing; its notices.
#include "controls/PDETextField13_v100_.h"

#include "BeepCounter.h"
#include "TextPrinting.h"
#include "pdekit/NotificationCenter.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <vector>

namespace
{

/// A window with a filtered field and another control beside it.
class TextField : public testing::Test
{
protected:
    TextField()
    {
        auto *layout = new QVBoxLayout(&mWindow);
        mField = new PDETextField13_v100_(&mWindow);
        mOther = new QLineEdit(&mWindow);
        layout->addWidget(mField);
        layout->addWidget(mOther);
        mField->setFormatter(PDEFormatter::initWithStyle(4));
        pdekit::NotificationCenter::defaultCenter().addObserver(
            &mWindow, [this](const pdekit::Notification &) { ++mPosts; },
            QStringLiteral("TextFieldResignFirstResponderNotification"), mField);
        QObject::connect(mField, &PDETextField13_v100_::editingEnded, mField, [this] { ++mEnds; });
    }

    ~TextField() override { mWindow.close(); }
    TextField(const TextField &) = delete;
    TextField &operator=(const TextField &) = delete;

    /// Shows the window with the field in focus.
    void show()
    {
        mWindow.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&mWindow));
        mField->setFocus();
        ASSERT_TRUE(mField->hasFocus());
    }

    void keys(const QString &text) { QTest::keyClicks(mField, text); }

    void paste(const QString &text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(mField, Qt::Key_V, Qt::ControlModifier);
    }

    void undoKey() { QTest::keyClick(mField, Qt::Key_Z, Qt::ControlModifier); }
    void redoKey() { QTest::keyClick(mField, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    /// Drops a text at the field's left edge.
    void dropAtStart(const QString &text)
    {
        QMimeData data;
        data.setText(text);
        const QPoint point(0, mField->height() / 2);
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(mField, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(point), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(mField, &drop);
    }

    void compose(const QString &preedit)
    {
        QInputMethodEvent event(preedit, {});
        QApplication::sendEvent(mField, &event);
    }

    void commit(const QString &text, int replaceFrom = 0, int replaceLength = 0, const QString &preedit = QString())
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(text, replaceFrom, replaceLength);
        QApplication::sendEvent(mField, &event);
    }

    /// Raises a modal alert whenever the field's editing ends; it closes itself once it has the focus.
    void alertAtEachEnd()
    {
        QObject::connect(mField, &PDETextField13_v100_::editingEnded, mField, [this] {
            ++mAlerts;
            ASSERT_LT(mAlerts, 5);
            QMessageBox box(&mWindow);
            QTimer closer;
            QObject::connect(&closer, &QTimer::timeout, &box, [&box] {
                if (box.isActiveWindow()) {
                    box.accept();
                }
            });
            closer.start(5);
            box.exec();
        });
    }

    /// Brings the window to the front again, as a desktop does when an alert has gone.
    void comeBack()
    {
        mWindow.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&mWindow));
    }

    /// The text with the selection in brackets, or the cursor as a bar.
    QString state() const
    {
        QString text = mField->text();
        if (mField->hasSelectedText()) {
            text.insert(mField->selectionEnd(), QLatin1Char(']'));
            return text.insert(mField->selectionStart(), QLatin1Char('['));
        }
        return text.insert(mField->cursorPosition(), QLatin1Char('|'));
    }

    QWidget mWindow;
    PDETextField13_v100_ *mField = nullptr;
    QLineEdit *mOther = nullptr;
    int mPosts = 0;
    int mEnds = 0;
    int mAlerts = 0;
};

QString q(const char *text)
{
    return QString::fromUtf8(text);
}

TEST_F(TextField, AcceptedKey_EntersTheField)
{
    show();
    keys(q("12.5"));
    EXPECT_EQ(state(), q("12.5|"));
}

TEST_F(TextField, RefusedKey_BeepsOnceAndChangesNothing)
{
    show();
    keys(q("125"));
    mField->setCursorPosition(1);
    QSignalSpy edited(mField, &QLineEdit::textEdited);
    QSignalSpy changed(mField, &QLineEdit::textChanged);
    const int before = tests::beeps();
    keys(q("x"));
    EXPECT_EQ(state(), q("1|25"));
    EXPECT_EQ(tests::beeps(), before + 1);
    EXPECT_EQ(edited.count(), 0);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(TextField, RefusedKeyOverASelection_LeavesTheSelection)
{
    show();
    mField->setText(q("12345"));
    mField->setSelection(1, 3);
    keys(q("x"));
    EXPECT_EQ(state(), q("1[234]5"));
    EXPECT_EQ(mField->cursorPosition(), 4);
    // A selection made backwards has its cursor at its start.
    mField->setSelection(4, -3);
    keys(q("x"));
    EXPECT_EQ(state(), q("1[234]5"));
    EXPECT_EQ(mField->cursorPosition(), 1);
    keys(q("7"));
    EXPECT_EQ(state(), q("17|5"));
}

TEST_F(TextField, PointTypedOverTheWholeText_IsRefusedWhenTheTextHasOne)
{
    show();
    mField->setText(q("12.5"));
    mField->selectAll();
    keys(q("."));
    EXPECT_EQ(state(), q("[12.5]"));
    mField->setSelection(2, 1);
    const int before = tests::beeps();
    // The text would be the same; the insertion is examined none the less.
    keys(q("."));
    EXPECT_EQ(state(), q("12[.]5"));
    EXPECT_EQ(tests::beeps(), before + 1);
}

TEST_F(TextField, SecondPoint_IsRefused)
{
    show();
    keys(q("1.2.3"));
    EXPECT_EQ(state(), q("1.23|"));
}

TEST_F(TextField, RefusedKey_LeavesTheUndoHistory)
{
    show();
    keys(q("12"));
    keys(q("x"));
    undoKey();
    EXPECT_EQ(state(), q("|"));
    redoKey();
    EXPECT_EQ(state(), q("12|"));
}

TEST_F(TextField, Deletion_IsNeverExamined)
{
    mField->setText(q("abc"));
    show();
    const int before = tests::beeps();
    mField->setCursorPosition(3);
    QTest::keyClick(mField, Qt::Key_Backspace);
    EXPECT_EQ(state(), q("ab|"));
    mField->setCursorPosition(0);
    QTest::keyClick(mField, Qt::Key_Delete);
    EXPECT_EQ(state(), q("|b"));
    mField->selectAll();
    QTest::keyClick(mField, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(state(), q("|"));
    EXPECT_EQ(tests::beeps(), before);
}

TEST_F(TextField, Paste_IsExaminedAsAWhole)
{
    show();
    paste(q("12.5"));
    EXPECT_EQ(state(), q("12.5|"));
    mField->setCursorPosition(0);
    const int before = tests::beeps();
    paste(q("3 mm"));
    EXPECT_EQ(state(), q("|12.5"));
    EXPECT_EQ(tests::beeps(), before + 1);
    paste(q("3"));
    EXPECT_EQ(state(), q("3|12.5"));
}

TEST_F(TextField, PasteFromTheContextMenu_IsExamined)
{
    show();
    mField->setText(q("12"));
    mField->setSelection(0, 1);
    QApplication::clipboard()->setText(q("x"));
    mField->paste();
    EXPECT_EQ(state(), q("[1]2"));
    QApplication::clipboard()->setText(q("9"));
    mField->paste();
    EXPECT_EQ(state(), q("9|2"));
}

TEST_F(TextField, PasteLongerThanTheLimit_IsRefused)
{
    show();
    mField->formatter()->setMaxLength(3);
    paste(q("1234"));
    EXPECT_EQ(state(), q("|"));
    paste(q("123"));
    EXPECT_EQ(state(), q("123|"));
}

TEST_F(TextField, RefusedDrop_LeavesTheSelectionWhereItWas)
{
    show();
    mField->setText(q("12345"));
    mField->setSelection(1, 3);
    const int before = tests::beeps();
    dropAtStart(q("mm"));
    EXPECT_EQ(state(), q("1[234]5"));
    EXPECT_EQ(tests::beeps(), before + 1);
    // A selection made backwards has its cursor at its start.
    mField->setSelection(4, -3);
    dropAtStart(q("mm"));
    EXPECT_EQ(state(), q("1[234]5"));
    EXPECT_EQ(mField->cursorPosition(), 1);
}

TEST_F(TextField, AcceptedDrop_EntersAtTheDropPointAndIsExaminedAlone)
{
    show();
    // The letters were set by code. Only what is dropped is examined, not what stands between it and the caret.
    mField->setText(q("ab"));
    mField->setCursorPosition(2);
    const int before = tests::beeps();
    dropAtStart(q("7"));
    EXPECT_EQ(mField->text(), q("7ab"));
    EXPECT_EQ(tests::beeps(), before);
}

TEST_F(TextField, Composition_IsShownButNotInTheTextUntilItIsCommitted)
{
    show();
    keys(q("1"));
    compose(q("か"));
    EXPECT_EQ(mField->text(), q("1"));
    commit(q("2"));
    EXPECT_EQ(state(), q("12|"));
}

TEST_F(TextField, RefusedCommit_BeepsOnceAndChangesNothing)
{
    show();
    mField->setText(q("12"));
    mField->setCursorPosition(1);
    compose(q("か"));
    QSignalSpy changed(mField, &QLineEdit::textChanged);
    const int before = tests::beeps();
    commit(q("か"));
    EXPECT_EQ(state(), q("1|2"));
    EXPECT_EQ(tests::beeps(), before + 1);
    EXPECT_EQ(changed.count(), 0);
    keys(q("3"));
    EXPECT_EQ(state(), q("13|2"));
}

TEST_F(TextField, RefusedCommitWithMoreToCome_GoesOnComposing)
{
    show();
    mField->setText(q("12"));
    mField->setCursorPosition(1);
    compose(q("か"));
    commit(q("か"), 0, 0, q("な"));
    EXPECT_EQ(mField->text(), q("12"));
    commit(q("5"));
    EXPECT_EQ(state(), q("15|2"));
}

TEST_F(TextField, CommitAfterACommitOfTheSameComposition_IsExaminedAgainstTheNewText)
{
    show();
    compose(q("か"));
    commit(q("1."), 0, 0, q("な"));
    EXPECT_EQ(mField->text(), q("1."));
    commit(q("."));
    EXPECT_EQ(state(), q("1.|"));
}

TEST_F(TextField, RefusedCommitOverASelection_BringsTheSelectionBack)
{
    show();
    mField->setText(q("12345"));
    mField->setSelection(1, 3);
    compose(q("か"));
    EXPECT_EQ(mField->text(), q("15"));
    commit(q("か"));
    EXPECT_EQ(state(), q("1[234]5"));
    EXPECT_EQ(mField->cursorPosition(), 4);
    mField->setSelection(4, -3);
    compose(q("か"));
    commit(q("か"));
    EXPECT_EQ(state(), q("1[234]5"));
    EXPECT_EQ(mField->cursorPosition(), 1);
}

TEST_F(TextField, RefusedCommitOverASelection_LeavesTheUndoHistory)
{
    show();
    keys(q("12"));
    mField->selectAll();
    compose(q("か"));
    commit(q("か"));
    EXPECT_EQ(state(), q("[12]"));
    undoKey();
    EXPECT_EQ(state(), q("|"));
}

TEST_F(TextField, CommitWithoutComposition_IsExaminedLikeAKey)
{
    show();
    mField->setText(q("12.5"));
    mField->selectAll();
    commit(q("."));
    EXPECT_EQ(state(), q("[12.5]"));
    commit(q("7"));
    EXPECT_EQ(state(), q("7|"));
}

TEST_F(TextField, CommitThatReplacesTextBeforeTheCursor_IsExaminedAlone)
{
    show();
    mField->setText(q("a12"));
    mField->setCursorPosition(3);
    commit(q("9"), -1, 1);
    EXPECT_EQ(state(), q("a19|"));
    commit(q("か"), -1, 1);
    EXPECT_EQ(state(), q("a19|"));
}

TEST_F(TextField, UndoOfADeletionThatTheFormatterForbids_IsRefused)
{
    show();
    mField->setText(q("1x"));
    mField->setCursorPosition(2);
    QTest::keyClick(mField, Qt::Key_Backspace);
    EXPECT_EQ(state(), q("1|"));
    QSignalSpy edited(mField, &QLineEdit::textEdited);
    QSignalSpy changed(mField, &QLineEdit::textChanged);
    const int before = tests::beeps();
    undoKey();
    EXPECT_EQ(state(), q("1|"));
    EXPECT_EQ(tests::beeps(), before + 1);
    EXPECT_EQ(edited.count(), 0);
    EXPECT_EQ(changed.count(), 0);
    // The field goes on filtering.
    keys(q("y2"));
    EXPECT_EQ(state(), q("12|"));
}

TEST_F(TextField, UndoThatBringsASecondPoint_IsRefusedWhereverTheFirstStands)
{
    show();
    mField->setText(q("1.5.2"));
    mField->setCursorPosition(2);
    QTest::keyClick(mField, Qt::Key_Backspace);
    EXPECT_EQ(state(), q("1|5.2"));
    undoKey();
    EXPECT_EQ(state(), q("1|5.2"));
    mField->setText(q("1.5.2"));
    mField->setCursorPosition(4);
    QTest::keyClick(mField, Qt::Key_Backspace);
    undoKey();
    EXPECT_EQ(state(), q("1.5|2"));
}

TEST_F(TextField, RefusedUndo_LeavesCursorAndSelectionWhereTheyAre)
{
    show();
    mField->setText(q("1.5.2"));
    mField->setCursorPosition(2);
    QTest::keyClick(mField, Qt::Key_Backspace);
    mField->setCursorPosition(4); // far from what would come back
    undoKey();
    EXPECT_EQ(state(), q("15.2|"));
    mField->setSelection(2, 2);
    undoKey();
    EXPECT_EQ(state(), q("15[.2]"));
}

TEST_F(TextField, UndoThatSelectsAgain_TellsOfTheSelectionOnce)
{
    show();
    mField->setText(q("12"));
    mField->selectAll();
    QTest::keyClick(mField, Qt::Key_Delete);
    EXPECT_EQ(state(), q("|"));
    // What comes back is selected from where the cursor was.
    QSignalSpy selected(mField, &QLineEdit::selectionChanged);
    undoKey();
    EXPECT_EQ(state(), q("[12]"));
    EXPECT_EQ(selected.count(), 1);
    mField->deselect();
    keys(q("3"));
    selected.clear();
    undoKey();
    EXPECT_EQ(state(), q("12|"));
    EXPECT_EQ(selected.count(), 0);
}

TEST_F(TextField, UndoBehindTheCursor_TellsOfNoOtherCursor)
{
    show();
    mField->setText(q("12"));
    mField->setCursorPosition(1);
    QTest::keyClick(mField, Qt::Key_Delete);
    EXPECT_EQ(state(), q("1|"));
    QSignalSpy moved(mField, &QLineEdit::cursorPositionChanged);
    undoKey();
    EXPECT_EQ(state(), q("1|2"));
    EXPECT_EQ(moved.count(), 0);
    keys(q("3"));
    moved.clear();
    undoKey();
    ASSERT_EQ(moved.count(), 1);
    EXPECT_EQ(moved.at(0), (QVariantList{2, 1}));
}

TEST_F(TextField, UndoOfTypingOverATextWithAPoint_BringsThatTextBack)
{
    show();
    keys(q("1.5"));
    mField->selectAll();
    keys(q("16."));
    EXPECT_EQ(mField->text(), q("16."));
    const int before = tests::beeps();
    undoKey();
    EXPECT_EQ(mField->text(), q("1.5"));
    undoKey();
    EXPECT_EQ(state(), q("|"));
    redoKey();
    EXPECT_EQ(mField->text(), q("1.5"));
    while (mField->isRedoAvailable() && tests::beeps() == before) {
        redoKey();
    }
    EXPECT_EQ(mField->text(), q("16."));
    EXPECT_EQ(tests::beeps(), before);
    // The field goes on filtering.
    keys(q("."));
    EXPECT_EQ(mField->text(), q("16."));
    EXPECT_EQ(tests::beeps(), before + 1);
}

TEST_F(TextField, UndoFromTheContextMenu_IsExamined)
{
    show();
    mField->setText(q("1x"));
    mField->setCursorPosition(2);
    QTest::keyClick(mField, Qt::Key_Backspace);
    const std::unique_ptr<QMenu> menu(mField->createStandardContextMenu());
    ASSERT_FALSE(menu->actions().isEmpty());
    ASSERT_TRUE(menu->actions().at(0)->isEnabled());
    const int before = tests::beeps();
    menu->actions().at(0)->trigger();
    EXPECT_EQ(state(), q("1|"));
    EXPECT_EQ(tests::beeps(), before + 1);
}

TEST_F(TextField, UndoThatIsAccepted_TellsOfTheChangeOnce)
{
    show();
    mField->setText(q("125"));
    mField->setSelection(1, 2);
    QTest::keyClick(mField, Qt::Key_Delete);
    EXPECT_EQ(state(), q("1|"));
    QSignalSpy edited(mField, &QLineEdit::textEdited);
    QSignalSpy changed(mField, &QLineEdit::textChanged);
    mPosts = 0;
    undoKey();
    EXPECT_EQ(mField->text(), q("125"));
    ASSERT_EQ(edited.count(), 1);
    EXPECT_EQ(edited.at(0).at(0).toString(), q("125"));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(mPosts, 1);
    redoKey();
    EXPECT_EQ(mField->text(), q("1"));
}

TEST_F(TextField, RedoOfATextThatIsForbiddenByNow_IsRefused)
{
    show();
    keys(q("12"));
    undoKey();
    EXPECT_EQ(state(), q("|"));
    mField->formatter()->setMaxValue(5);
    const int before = tests::beeps();
    redoKey();
    EXPECT_EQ(state(), q("|"));
    EXPECT_EQ(tests::beeps(), before + 1);
    mField->formatter()->setValidityMaxValue(false);
    redoKey();
    EXPECT_EQ(state(), q("12|"));
}

TEST_F(TextField, TextSetByCode_IsNotExaminedAndDoesNotSwitchTheFilterOff)
{
    show();
    keys(q("1"));
    const int before = tests::beeps();
    mField->setText(q("no number"));
    EXPECT_EQ(mField->text(), q("no number"));
    EXPECT_EQ(tests::beeps(), before);
    keys(q("x"));
    EXPECT_EQ(state(), q("no number|"));
    keys(q("1"));
    EXPECT_EQ(state(), q("no number1|"));
    {
        const QSignalBlocker quiet(mField);
        mField->setText(q("1.5"));
    }
    keys(q("."));
    EXPECT_EQ(state(), q("1.5|"));
}

TEST_F(TextField, CursorMovedUnheard_StillFindsWhatIsInserted)
{
    show();
    mField->setText(q("ab"));
    keys(q("1"));
    {
        const QSignalBlocker quiet(mField);
        mField->setCursorPosition(0);
    }
    mField->insert(q("x"));
    EXPECT_EQ(mField->text(), q("ab1"));
    mField->insert(q("7"));
    EXPECT_EQ(state(), q("7|ab1"));
    {
        const QSignalBlocker quiet(mField);
        mField->setCursorPosition(4);
    }
    mField->insert(q("8"));
    EXPECT_EQ(state(), q("7ab18|"));
}

TEST_F(TextField, WithoutAFormatter_EverythingEnters)
{
    show();
    mField->setFormatter(nullptr);
    EXPECT_EQ(mField->formatter(), nullptr);
    keys(q("a.b.c"));
    paste(q(" é"));
    EXPECT_EQ(state(), q("a.b.c é|"));
    undoKey();
    EXPECT_EQ(state(), q("a.b.c|"));
}

// Notices.

TEST_F(TextField, TypedCharacter_PostsTheNoticeOnce)
{
    show();
    EXPECT_EQ(mPosts, 0);
    keys(q("1"));
    EXPECT_EQ(mPosts, 1);
    keys(q("x"));
    EXPECT_EQ(mPosts, 1);
    mField->setText(q("5"));
    EXPECT_EQ(mPosts, 1);
}

TEST_F(TextField, EveryRoadOfAChange_PostsTheNoticeOnce)
{
    show();
    mField->setText(q("1234"));
    const auto posts = [this](const auto &act) {
        mPosts = 0;
        act();
        return mPosts;
    };
    mField->setSelection(1, 2);
    EXPECT_EQ(posts([&] { keys(q("7")); }), 1);
    EXPECT_EQ(mField->text(), q("174"));
    // The text stays the same, and yet it was typed.
    mField->setSelection(1, 1);
    EXPECT_EQ(posts([&] { keys(q("7")); }), 1);
    EXPECT_EQ(posts([&] { QTest::keyClick(mField, Qt::Key_Backspace); }), 1);
    EXPECT_EQ(posts([&] { paste(q("56")); }), 1);
    EXPECT_EQ(mField->text(), q("1564"));
    EXPECT_EQ(posts([&] { paste(q("mm")); }), 0);
    EXPECT_EQ(posts([&] { commit(q("9")); }), 1);
    EXPECT_EQ(posts([&] { commit(q("か")); }), 0);
    EXPECT_EQ(posts([&] { dropAtStart(q("8")); }), 1);
    EXPECT_EQ(mField->text(), q("815694"));
    mField->selectAll();
    EXPECT_EQ(posts([&] { QTest::keyClick(mField, Qt::Key_X, Qt::ControlModifier); }), 1);
    EXPECT_EQ(posts([&] { undoKey(); }), 1);
    EXPECT_EQ(posts([&] { redoKey(); }), 1);
    EXPECT_EQ(posts([&] { redoKey(); }), 0);
}

TEST_F(TextField, FocusAndEndOfEditing_PostNothing)
{
    show();
    mOther->setFocus();
    EXPECT_TRUE(mField->becomeFirstResponder());
    EXPECT_TRUE(mField->hasFocus());
    QTest::keyClick(mField, Qt::Key_Return);
    QTest::keyClick(mField, Qt::Key_Tab);
    mField->textDidEndEditing();
    mField->sendFirstResponderNotification(true);
    EXPECT_EQ(mPosts, 0);
    mField->sendFirstResponderNotification(false);
    EXPECT_EQ(mPosts, 1);
}

TEST_F(TextField, BecomeFirstResponder_OfADisabledField_AnswersNo)
{
    show();
    mOther->setFocus();
    mField->setEnabled(false);
    EXPECT_FALSE(mField->becomeFirstResponder());
    EXPECT_TRUE(mOther->hasFocus());
}

TEST_F(TextField, SelectText_PostsTheNoticeAndLeavesTheSelection)
{
    show();
    mField->setText(q("125"));
    mField->setSelection(1, 1);
    mField->selectText();
    EXPECT_EQ(mPosts, 1);
    EXPECT_EQ(state(), q("1[2]5"));
}

TEST_F(TextField, ChangeOfText_IsToldToNoDelegate)
{
    show();
    keys(q("1"));
    EXPECT_EQ(mEnds, 0);
    // The one signal that the class adds is the end of editing.
    const QMetaObject *meta = &PDETextField13_v100_::staticMetaObject;
    std::vector<QByteArray> signalNames;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal) {
            signalNames.push_back(meta->method(i).methodSignature());
        }
    }
    EXPECT_EQ(signalNames, std::vector<QByteArray>{"editingEnded()"});
}

// The end of editing.

TEST_F(TextField, Return_EndsEditingOnce)
{
    show();
    keys(q("1"));
    QTest::keyClick(mField, Qt::Key_Return);
    EXPECT_EQ(mEnds, 1);
    EXPECT_TRUE(mField->hasFocus());
    QTest::keyClick(mField, Qt::Key_Enter);
    EXPECT_EQ(mEnds, 2);
}

TEST_F(TextField, ReturnWithThePointSelected_IsNoInsertion)
{
    show();
    keys(q("12.5"));
    mField->setSelection(2, 1);
    const int before = tests::beeps();
    QTest::keyClick(mField, Qt::Key_Return);
    EXPECT_EQ(tests::beeps(), before);
    EXPECT_EQ(mEnds, 1);
}

TEST_F(TextField, Tab_EndsEditingOnce)
{
    show();
    QTest::keyClick(mField, Qt::Key_Tab);
    EXPECT_TRUE(mOther->hasFocus());
    EXPECT_EQ(mEnds, 1);
    mWindow.hide();
    EXPECT_EQ(mEnds, 1);
}

TEST_F(TextField, ClickOnAnotherControl_EndsEditingOnce)
{
    show();
    QTest::mouseClick(mOther, Qt::LeftButton);
    EXPECT_TRUE(mOther->hasFocus());
    EXPECT_EQ(mEnds, 1);
}

TEST_F(TextField, WindowThatCloses_EndsEditingOnce)
{
    show();
    mWindow.close();
    EXPECT_EQ(mEnds, 1);
}

TEST_F(TextField, FieldThatWasNotEdited_EndsNothing)
{
    mWindow.show();
    mOther->setFocus();
    mWindow.close();
    EXPECT_EQ(mEnds, 0);
}

TEST_F(TextField, MenuOrAnotherWindowInFront_EndsNothing)
{
    show();
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QApplication::sendEvent(mField, &out);
        QFocusEvent in(QEvent::FocusIn, reason);
        QApplication::sendEvent(mField, &in);
    }
    QWidget second;
    second.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&second));
    EXPECT_FALSE(mField->hasFocus());
    EXPECT_EQ(mEnds, 0);
    mWindow.close();
    EXPECT_EQ(mEnds, 1);
}

TEST_F(TextField, AlertAtTheEndByReturn_IsRaisedOnce)
{
    show();
    alertAtEachEnd();
    QTest::keyClick(mField, Qt::Key_Return);
    comeBack();
    EXPECT_EQ(mAlerts, 1);
    // The next end is a cause of its own.
    QTest::keyClick(mField, Qt::Key_Tab);
    EXPECT_EQ(mAlerts, 2);
}

TEST_F(TextField, AlertAtTheEndByTab_IsRaisedOnceAndTheFocusMovesOn)
{
    show();
    alertAtEachEnd();
    QTest::keyClick(mField, Qt::Key_Tab);
    comeBack();
    EXPECT_EQ(mAlerts, 1);
    EXPECT_TRUE(mOther->hasFocus());
}

TEST_F(TextField, ReceiverThatMovesTheFocusOrClosesTheWindow_CausesNoSecondEnd)
{
    show();
    QObject::connect(mField, &PDETextField13_v100_::editingEnded, mField, [this] {
        mOther->setFocus();
        mWindow.close();
    });
    QTest::keyClick(mField, Qt::Key_Return);
    EXPECT_EQ(mEnds, 1);
}

TEST_F(TextField, ReceiverThatDeletesTheField_DoesNotCrash)
{
    show();
    const QPointer<PDETextField13_v100_> field(mField);
    QObject::connect(mField, &PDETextField13_v100_::editingEnded, &mWindow, [=] { delete field.data(); });
    mField->textDidEndEditing();
    EXPECT_EQ(field, nullptr);
    EXPECT_EQ(mEnds, 1);
}

} // namespace
