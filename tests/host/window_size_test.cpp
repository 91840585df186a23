// SPDX-License-Identifier: Apache-2.0
// The window on small screens, in every language and with names as long as strangers make them: nothing is cut, and the
// buttons stay.
#include "TestPrinter.h"
#include "WindowTexts.h"

#include "dialog/ElidedLabel.h"
#include "dialog/NoticesArea.h"
#include "dialog/PageStack.h"
#include "dialog/PopUp.h"
#include "dialog/PresetRow.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/ScrollingColumn.h"
#include "dialog/SummaryView.h"
#include "dialog/Translations.h"
#include "tests/support/TextPrinting.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStackedWidget>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

/// What is left of a screen of 1920 by 1080 at 300 %; one of 1366 by 768 at 200 % is larger.
constexpr QSize smallestScreen(640, 360);
constexpr QSize smallScreen(800, 600);

const QString longName = QStringLiteral("The label printer beside the window on the third floor, ").repeated(5);

class WindowSize : public testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(QString::fromLatin1(GetParam())));
        translations = std::make_unique<Translations>();
    }
    void TearDown() override
    {
        dialog.reset();
        translations.reset();
        QLocale::setDefault(mBefore);
    }

    void open(const QString &printer = u"mm"_qs)
    {
        dialog.reset();
        job::Destination destination;
        job::Problem problem;
        destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-%1.ppd").arg(printer);
        destination.ppd = job::openPpdFile(destination.ppdPath, &problem);
        ASSERT_NE(destination.ppd, nullptr);
        destination.queue.emplace().name = u"tape"_qs;
        panels.open(std::move(destination), {});
        dialog::PrinterSource source;
        source.list = [](const std::atomic<bool> & /*stop*/, job::Problem * /*problem*/) {
            job::Printer queue;
            queue.name = u"tape"_qs;
            queue.info = longName;
            return std::optional(job::PrinterList{queue});
        };
        dialog = std::make_unique<PrintDialog>(job, panels, PrintDialog::Setup{{}, u"label"_qs, {}, source},
                                               [](auto &&...) -> std::optional<job::PrintedJob> { return {}; });
        const auto *printers = dialog->findChild<QComboBox *>(u"printer"_qs);
        ASSERT_TRUE(QTest::qWaitFor([printers] { return printers->itemText(0).contains(longName.left(10)); }));
    }

    void show(QSize size)
    {
        dialog->resize(size);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        QApplication::processEvents();
    }

    job::Job job;
    Panels panels{job, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<Translations> translations;
    std::unique_ptr<PrintDialog> dialog;

private:
    QLocale mBefore;
};

TEST_P(WindowSize, LongNames_LeaveTheWindowSmallEnoughForAScreenAtThreeTimesTheScale)
{
    for (const QString &printer : {u"mm"_qs, u"hn"_qs, u"plain"_qs}) {
        ASSERT_NO_FATAL_FAILURE(open(printer));
        dialog->findChild<NoticesArea *>(u"noticesArea"_qs)->setSentences(longName);
        const QSize least = dialog->minimumSizeHint();
        EXPECT_LE(least.width(), smallestScreen.width()) << printer.toStdString();
        EXPECT_LE(least.height(), smallestScreen.height()) << printer.toStdString();
        ASSERT_NO_FATAL_FAILURE(show(smallestScreen));
        EXPECT_EQ(dialog->size(), smallestScreen);
        for (const QString &name : {u"print"_qs, u"cancel"_qs, u"revert"_qs}) {
            const auto *button = dialog->findChild<QAbstractButton *>(name);
            const QRect place(button->mapTo(dialog.get(), QPoint()), button->size());
            EXPECT_TRUE(dialog->rect().contains(place)) << name.toStdString();
            EXPECT_GE(button->width(), button->sizeHint().width()) << name.toStdString();
        }
    }
}

TEST_P(WindowSize, EveryTextOfEveryPage_FitsASmallScreen)
{
    const QStringList ownPopUps{u"layoutSize"_qs,   u"layoutTurn"_qs,  u"layoutAlong"_qs, u"layoutAcross"_qs,
                                u"layoutNumber"_qs, u"layoutOrder"_qs, u"pageSet"_qs,     u"holdUntil"_qs};
    for (const QString &printer : {u"mm"_qs, u"plain"_qs}) {
        ASSERT_NO_FATAL_FAILURE(open(printer));
        for (const QSize &screen : {smallScreen, QSize(1024, 600)}) {
            ASSERT_NO_FATAL_FAILURE(show(screen));
            EXPECT_EQ(dialog->size(), screen);
            auto *chooser = dialog->findChild<QComboBox *>(u"pageChooser"_qs);
            ASSERT_GE(chooser->count(), 2);
            for (int page = 0; page < chooser->count(); ++page) {
                chooser->setCurrentIndex(page);
                Q_EMIT chooser->activated(page);
                QApplication::processEvents();
                EXPECT_EQ(hosttest::cutTexts(*dialog, ownPopUps), QStringList())
                    << chooser->currentText().toStdString() << " at " << screen.width();
            }
        }
    }
}

TEST_P(WindowSize, Panel_IsSeenWholeOnASmallScreen)
{
    constexpr int titleBar = 28;
    constexpr int settledMs = 1000;
    for (const QString &printer : {u"mm"_qs, u"mv"_qs, u"inch"_qs, u"hn"_qs}) {
        ASSERT_NO_FATAL_FAILURE(open(printer));
        for (const QSize &screen : {smallScreen, QSize(1024, 600)}) {
            ASSERT_NO_FATAL_FAILURE(show(screen - QSize(0, titleBar)));
            EXPECT_EQ(dialog->size(), screen - QSize(0, titleBar));
            const auto *scroller =
                qobject_cast<const QScrollArea *>(dialog->findChild<PageStack *>()->parentWidget()->parentWidget());
            ASSERT_NE(scroller, nullptr);
            const auto isWhole = [scroller] {
                return scroller->horizontalScrollBar()->maximum() == 0 && scroller->verticalScrollBar()->maximum() == 0;
            };
            EXPECT_TRUE(QTest::qWaitFor(isWhole, settledMs))
                << printer.toStdString() << " on " << screen.width() << ": "
                << scroller->horizontalScrollBar()->maximum() << " and " << scroller->verticalScrollBar()->maximum();
        }
    }
}

TEST_P(WindowSize, RightColumns_BeginAtOneEdgeOnSmallScreens)
{
    const auto begin = [this](const QWidget &column) {
        const QRect place(column.mapTo(dialog.get(), QPoint()), column.size());
        return dialog->isRightToLeft() ? dialog->rect().right() - place.right() : place.left();
    };
    for (const QSize size : {smallScreen, QSize(1024, 600)}) {
        for (const QString &printer : {u"mm"_qs, u"plain"_qs}) {
            ASSERT_NO_FATAL_FAILURE(open(printer));
            ASSERT_NO_FATAL_FAILURE(show(size));
            const int lower = begin(*dialog->findChild<ScrollingColumn *>());
            const bool isBelow = lower < dialog->width() / 4; // where wide pages leave it no room beside them
            EXPECT_FALSE(isBelow && size != smallScreen) << printer.toStdString();
            if (!isBelow) { // rounded once in each of the two layouts
                EXPECT_NEAR(begin(*dialog->findChild<PresetRow *>()), lower, 1)
                    << size.width() << ' ' << printer.toStdString();
            }
        }
    }
}

TEST_P(WindowSize, Letters_AreThereOnceInEveryViewOfEveryPrinter)
{
    for (const QString &printer : {u"mm"_qs, u"mv"_qs, u"inch"_qs, u"hn"_qs, u"fixed"_qs, u"plain"_qs}) {
        ASSERT_NO_FATAL_FAILURE(open(printer));
        const QStringList letters = hosttest::lettersOf(*dialog);
        EXPECT_GE(letters.size(), 11) << letters.join(u' ').toStdString();
        EXPECT_EQ(hosttest::lettersTwice(letters), QStringList()) << printer.toStdString();
        for (const QMenu *menu : dialog->findChildren<QMenu *>()) {
            EXPECT_EQ(hosttest::lettersTwice(hosttest::lettersOf(*menu)), QStringList());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, WindowSize,
                         testing::Values("en_GB", "de_DE", "fr_FR", "es_ES", "it_IT", "nl_NL", "pt_PT", "ja_JP",
                                         "ko_KR", "zh_CN", "ar_EG"),
                         [](const testing::TestParamInfo<const char *> &tested) { return std::string(tested.param); });

/// Notices as they stand in the dialog: as high as their words, above what takes the rest.
NoticesArea *showNoticesIn(QWidget &window)
{
    auto *layout = new QVBoxLayout(&window);
    auto *notices = new NoticesArea(&window);
    layout->addWidget(notices);
    layout->addStretch();
    window.resize(400, 600);
    window.show();
    return notices;
}

class WindowParts : public WindowSize
{
};

INSTANTIATE_TEST_SUITE_P(English, WindowParts, testing::Values("en_GB"));

TEST(PageStackTest, NarrowPage_NeedsNoMoreRoomThanItsOwnForAWideOne)
{
    PageStack stack;
    for (const int width : {600, 200}) {
        auto *page = new QWidget;
        page->setMinimumSize(width, 100);
        stack.addWidget(page);
    }
    EXPECT_EQ(stack.minimumSizeHint(), QSize(600, 100));
    stack.setCurrentIndex(1);
    EXPECT_EQ(stack.minimumSizeHint(), QSize(200, 100));
}

TEST_P(WindowParts, LargerWindow_MakesThePreviewLarger)
{
    ASSERT_NO_FATAL_FAILURE(open());
    ASSERT_NO_FATAL_FAILURE(show({1000, 700}));
    const auto *preview = dialog->findChild<PreviewArea *>();
    const QSize before = preview->size();
    dialog->resize(1300, 900);
    QApplication::processEvents();
    EXPECT_GE(preview->width(), before.width() + 150); // the pages take the other half at most
    EXPECT_EQ(preview->height(), before.height() + 200);
}

TEST_P(WindowParts, NoticeThatComes_TakesNoRoomFromThePageUnlessSomebodySizedTheWindow)
{
    ASSERT_NO_FATAL_FAILURE(open());
    dialog->show();
    constexpr int settledMs = 400;
    QTest::qWait(settledMs);
    auto *notices = dialog->findChild<NoticesArea *>(u"noticesArea"_qs);
    const QWidget *page = dialog->findChild<PageStack *>()->parentWidget(); // what is seen of it
    const int before = page->height();
    notices->setSentences(u"The printer is stopped."_qs);
    QTest::qWait(settledMs);
    EXPECT_TRUE(notices->isVisible());
    EXPECT_EQ(page->height(), before);
    notices->setSentences({});
    dialog->resize(dialog->width() + 10, dialog->height());
    const QSize own = dialog->size();
    notices->setSentences(u"The printer is stopped."_qs);
    QTest::qWait(settledMs);
    EXPECT_EQ(dialog->size(), own);
}

TEST_P(WindowParts, NameThatIsShortened_IsWholeInTheTooltip)
{
    PopUp popUp;
    popUp.addItem(u"short"_qs);
    popUp.addItem(longName);
    popUp.resize(200, popUp.sizeHint().height());
    popUp.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&popUp));
    EXPECT_FALSE(popUp.isCut());
    popUp.setCurrentIndex(1);
    EXPECT_TRUE(popUp.isCut());
    QHelpEvent help(QEvent::ToolTip, {5, 5}, popUp.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&popUp, &help);
    EXPECT_TRUE(QToolTip::text().contains(longName)) << QToolTip::text().toStdString();
}

TEST_P(WindowParts, LineThatIsShortened_IsReadWhole)
{
    ElidedLabel label;
    label.setText(longName);
    EXPECT_LT(label.minimumSizeHint().width(), 100);
    label.resize(150, 20);
    EXPECT_TRUE(label.isCut());
    EXPECT_EQ(label.text(), longName);
    label.resize(label.sizeHint());
    EXPECT_FALSE(label.isCut());
}

TEST_P(WindowParts, ManyNotices_ScrollAndTakeTheKeys)
{
    QWidget window;
    NoticesArea *notices = showNoticesIn(window);
    EXPECT_FALSE(notices->isVisible());
    notices->setSentences(u"One line."_qs);
    QApplication::processEvents();
    EXPECT_TRUE(notices->isVisible());
    EXPECT_EQ(notices->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(notices->focusPolicy(), Qt::NoFocus);
    const int lineHeight = notices->height();
    notices->setSentences(QStringLiteral("Another line.\n").repeated(50));
    QApplication::processEvents();
    EXPECT_LT(notices->height(), 5 * lineHeight);
    EXPECT_GT(notices->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(notices->focusPolicy(), Qt::TabFocus);
    notices->setSentences({});
    EXPECT_FALSE(notices->isVisible());
}

TEST_P(WindowParts, NoticesUnderThePointer_CanBeSelectedAndCopied)
{
    NoticesArea notices;
    notices.setSentences(u"The printer needs 24 mm tape."_qs);
    notices.resize(400, 60);
    notices.show();
    auto *words = notices.findChild<QLabel *>(u"notices"_qs);
    const QPoint start(1, words->height() / 2);
    QEnterEvent enter(start, start, start);
    QApplication::sendEvent(words, &enter);
    QTest::mousePress(words, Qt::LeftButton, {}, start);
    QTest::mouseMove(words, {words->width() - 1, words->height() - 1});
    QTest::mouseRelease(words, Qt::LeftButton, {}, {words->width() - 1, words->height() - 1});
    EXPECT_EQ(words->selectedText(), u"The printer needs 24 mm tape."_qs);
}

TEST_P(WindowParts, NoticesInALargerFontOrLonger_GrowWithTheirWords)
{
    QWidget window;
    NoticesArea *notices = showNoticesIn(window);
    notices->setSentences(u"One line."_qs);
    QApplication::processEvents();
    const int lineHeight = notices->height();
    notices->setSentences(u"One line.\nAnd another."_qs);
    QApplication::processEvents();
    const int twoLines = notices->height();
    EXPECT_GT(twoLines, lineHeight);
    QFont larger = notices->font();
    larger.setPointSizeF(larger.pointSizeF() * 2.0);
    notices->setFont(larger);
    QApplication::processEvents();
    EXPECT_GT(notices->height(), twoLines * 3 / 2);
    const auto *words = notices->findChild<QLabel *>(u"notices"_qs);
    EXPECT_GE(words->height(), 2 * words->fontMetrics().lineSpacing());
}

TEST_P(WindowParts, SummaryTitle_IsShownWhole)
{
    SummaryView view;
    const QString title = u"Length of the tape that is printed on"_qs;
    view.showSummary({{u"Panel"_qs, {{title, u"2.0 m"_qs}}}});
    view.resize(600, 100);
    view.show();
    const int wished =
        static_cast<const QAbstractItemView &>(view).sizeHintForColumn(0); // the text and the style's gaps
    EXPECT_GE(view.columnWidth(0), wished);
    EXPECT_LT(view.columnWidth(0), wished + 20);
}

TEST_P(WindowParts, TabKey_GoesAsTheEyeReads)
{
    ASSERT_NO_FATAL_FAILURE(open());
    ASSERT_NO_FATAL_FAILURE(show(smallScreen));
    QStringList order;
    const auto *first = dialog->findChild<QWidget *>(u"printer"_qs);
    const QWidget *next = first;
    do {
        if (next->isVisible() && (next->focusPolicy() & Qt::TabFocus) != 0 &&
            !next->objectName().startsWith(u"qt_"_qs)) {
            order.append(next->objectName());
        }
        next = next->nextInFocusChain();
    } while (next != first);
    const QStringList known{u"printer"_qs,      u"tape"_qs,          u"copies"_qs,  u"pageChooser"_qs,
                            u"mLengthTxFld"_qs, u"mLengthSlider"_qs, u"summary"_qs, u"keepFitting"_qs,
                            u"revert"_qs,       u"cancel"_qs,        u"print"_qs};
    QStringList found;
    for (const QString &name : order) {
        if (known.contains(name)) {
            found.append(name);
        }
    }
    EXPECT_EQ(found, known);
}

bool isControl(const QObject *object)
{
    const auto *field = qobject_cast<const QLineEdit *>(object);
    return qobject_cast<const QAbstractButton *>(object) != nullptr ||
           qobject_cast<const QAbstractSlider *>(object) != nullptr ||
           qobject_cast<const QAbstractSpinBox *>(object) != nullptr ||
           qobject_cast<const QComboBox *>(object) != nullptr || (field != nullptr && !field->isReadOnly());
}

/// What a person can set in a page. Of buttons that exclude one another, arrows reach the others.
QList<QWidget *> controlsOf(const QWidget &page)
{
    QList<QWidget *> controls = page.findChildren<QWidget *>();
    controls.removeIf([](const QWidget *control) {
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        const bool isAnothers = button != nullptr && button->isCheckable() && !button->isChecked() &&
                                (button->autoExclusive() || button->group() != nullptr);
        return !isControl(control) || isControl(control->parent()) || isAnothers || !control->isVisible() ||
               !control->isEnabled() || qobject_cast<const QScrollBar *>(control) != nullptr;
    });
    return controls;
}

TEST_P(WindowParts, TabKey_ReachesEveryControlOfEveryPageFromTheTopDown)
{
    constexpr int mostKeys = 100;
    constexpr int sameRow = 12;
    for (const QString &printer : {u"mm"_qs, u"plain"_qs}) {
        ASSERT_NO_FATAL_FAILURE(open(printer));
        ASSERT_NO_FATAL_FAILURE(show({1000, 900}));
        auto *chooser = dialog->findChild<QComboBox *>(u"pageChooser"_qs);
        ASSERT_GE(chooser->count(), 3);
        for (int page = 0; page < chooser->count(); ++page) {
            chooser->setCurrentIndex(page);
            Q_EMIT chooser->activated(page);
            QTest::qWait(100); // rows are made in portions
            chooser->setFocus();
            const QWidget *shown = dialog->findChild<PageStack *>()->currentWidget();
            QList<QWidget *> reached;
            for (int key = 0; key < mostKeys; ++key) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                ASSERT_NE(QApplication::focusWidget(), nullptr);
                if (QApplication::focusWidget() == chooser) {
                    break;
                }
                if (shown->isAncestorOf(QApplication::focusWidget())) {
                    reached.append(QApplication::focusWidget());
                }
            }
            const QList<QWidget *> controls = controlsOf(*shown);
            EXPECT_GE(controls.size(), 3) << chooser->currentText().toStdString();
            for (const QWidget *control : controls) {
                EXPECT_TRUE(reached.contains(control))
                    << chooser->currentText().toStdString() << ": " << control->objectName().toStdString() << ", a "
                    << control->metaObject()->className();
            }
            // A panel has an order of its own.
            const bool isPanels = std::any_of(panels.entries().begin(), panels.entries().end(),
                                              [shown](const PanelEntry &entry) { return entry.view == shown; });
            int above = 0;
            for (const QWidget *control : isPanels ? QList<QWidget *>() : reached) {
                const int middle = control->mapTo(shown, control->rect().center()).y();
                EXPECT_GE(middle, above - sameRow)
                    << chooser->currentText().toStdString() << ": " << control->objectName().toStdString();
                above = middle;
            }
        }
    }
}

TEST_P(WindowParts, ReturnOnASlider_DoesNotPrint)
{
    ASSERT_NO_FATAL_FAILURE(open());
    ASSERT_NO_FATAL_FAILURE(show(smallScreen));
    auto *slider = dialog->findChild<QSlider *>(u"mLengthSlider"_qs);
    const auto *print = dialog->findChild<QAbstractButton *>(u"print"_qs);
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Return);
    EXPECT_TRUE(print->isEnabled());
    QTest::keyClick(slider, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(print->isEnabled()); // it prints
    ASSERT_TRUE(QTest::qWaitFor([&] { return print->isEnabled(); }));
}

TEST_P(WindowParts, GreyedControl_SaysWhyInItsTooltip)
{
    ASSERT_NO_FATAL_FAILURE(open());
    ASSERT_NO_FATAL_FAILURE(show(smallScreen));
    auto *popUp = dialog->findChild<QComboBox *>(u"mKsResolutionPUBtn"_qs);
    ASSERT_FALSE(popUp->isEnabled());
    QHelpEvent help(QEvent::ToolTip, {5, 5}, popUp->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(popUp, &help);
    // Which control it is, and who has switched it off.
    EXPECT_TRUE(QToolTip::text().contains(u"“Print Mode” is switched off by “Page Settings”: this printer"_qs))
        << QToolTip::text().toStdString();
    EXPECT_TRUE(popUp->toolTip().isEmpty()); // the panel's own view is left as it is
}

/// Sets the direction of the whole application, back at the end.
class Direction
{
public:
    explicit Direction(Qt::LayoutDirection direction) { QApplication::setLayoutDirection(direction); }
    ~Direction() { QApplication::setLayoutDirection(Qt::LeftToRight); }
    Direction(const Direction &) = delete;
    Direction &operator=(const Direction &) = delete;
};

TEST_P(WindowParts, RightToLeft_MirrorsTheWindowAndNotThePreview)
{
    ASSERT_NO_FATAL_FAILURE(open());
    ASSERT_NO_FATAL_FAILURE(show({1000, 700}));
    auto *preview = dialog->findChild<QWidget *>(u"tapePreview"_qs);
    const auto leftOf = [this](const QString &name) {
        const auto *widget = dialog->findChild<QWidget *>(name);
        return widget->mapTo(dialog.get(), QPoint()).x();
    };
    EXPECT_GT(leftOf(u"print"_qs), leftOf(u"revert"_qs));
    const QImage before = preview->grab().toImage();
    const Direction mirrored(Qt::RightToLeft);
    QApplication::processEvents();
    for (const auto &[first, second] : {std::pair{u"printer"_qs, u"copies"_qs},
                                        {u"pageChooser"_qs, u"summary"_qs},
                                        {u"mLengthTxFld"_qs, u"mLengthSlider"_qs},
                                        {u"cancel"_qs, u"print"_qs},
                                        {u"revert"_qs, u"cancel"_qs}}) {
        EXPECT_GT(leftOf(first), leftOf(second)) << first.toStdString();
    }
    // A heading follows the window, too, whatever language it is in.
    EXPECT_GT(leftOf(u"summaryHeading"_qs),
              leftOf(u"summary"_qs) + dialog->findChild<QWidget *>(u"summary"_qs)->width() / 2);
    EXPECT_EQ(preview->grab().toImage(), before);
}

} // namespace
