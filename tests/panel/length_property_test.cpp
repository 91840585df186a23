// SPDX-License-Identifier: Apache-2.0
// Walks random printers and random acts of a person, and holds at every step what must hold of lengths: the job gets
// numbers in the PPD's form, within the limits when there are any, and field, slider and summary tell the same.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include "pdekit/Numbers.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

using namespace gestures;
using namespace pdekit;

namespace
{

constexpr std::uint32_t kSeed = 20240917;
constexpr int kPrinters = 40;
constexpr int kStepsPerPrinter = 15;
constexpr qint64 kTimeLimitMs = 8000;

/// One length as a random PPD describes it.
struct Length {
    const char *keyword;
    const char *field;
    const char *slider;
    const char *summaryTitle;
    QByteArray min;
    QByteArray max;
    bool isInteger = false;

    bool hasLimitsInOrder() const { return lower() <= upper(); }
    double lower() const { return static_cast<double>(floatValue(QString::fromLatin1(min))); }
    double upper() const { return static_cast<double>(floatValue(QString::fromLatin1(max))); }
};

/// A printer with random limits, flags and unit.
struct Printer {
    Length tapeLength{"KsTapeLength", "mLengthTxFld", "mLengthSlider", "Tape Length", {}, {}};
    Length margin{"KsMargin", "mMarginTxFld", "mMarginSlider", "Margin", {}, {}};
    Length printTapeLength{"KsPrintTapeLength", "mTapeLengthTxFld", "mTapeLengthSlider", "Print Tape Length", {}, {}};
    QByteArray max15mm;
    bool inInches = false;
};

class Walk
{
public:
    explicit Walk(std::uint32_t seed) : mRandom(seed) {}

    int below(int end) { return static_cast<int>(mRandom() % static_cast<std::uint32_t>(end)); }
    bool chance(int percent) { return below(100) < percent; }

    QByteArray number(int largest, int decimals)
    {
        QByteArray text = QByteArray::number(below(largest));
        if (decimals > 0) {
            text += '.';
            for (int i = 0; i < decimals; ++i) {
                text += static_cast<char>('0' + below(10));
            }
        }
        return text;
    }

    QByteArray limit(int largest)
    {
        static const std::array<const char *, 9> odd = {"", "inf", "nan", "text", "-5.5", "0", "1e30", "1e400", "-1e9"};
        return chance(15) ? QByteArray(odd[static_cast<std::size_t>(below(9))]) : number(largest, below(4));
    }

    /// Mostly in order, as real descriptions are.
    void limits(Length *length, int smallest, int largest)
    {
        length->min = limit(smallest);
        length->max = limit(largest);
        if (!length->hasLimitsInOrder() && chance(80)) {
            std::swap(length->min, length->max);
        }
    }

    Printer printer()
    {
        Printer printer;
        limits(&printer.tapeLength, 60, 1000);
        limits(&printer.margin, 10, 200);
        limits(&printer.printTapeLength, 3, 20);
        printer.max15mm = limit(20);
        printer.inInches = chance(40);
        for (Length *length : {&printer.tapeLength, &printer.margin, &printer.printTapeLength}) {
            length->isInteger = chance(40);
        }
        return printer;
    }

    PpdText ppd(const Printer &printer)
    {
        PpdText ppd = oneDecimal();
        const auto flag = [](bool isSet) { return QByteArray(isSet ? "True" : "False"); };
        ppd.attribute("KsUnitType", printer.inInches ? "inch" : "mm")
            .attribute("KsIsIntegerTapeLength", flag(printer.tapeLength.isInteger))
            .attribute("KsIsIntegerMargin", flag(printer.margin.isInteger))
            .attribute("KsIsIntegerPrintTapeLength", flag(printer.printTapeLength.isInteger))
            .attribute("KsMinTapeLength", printer.tapeLength.min)
            .attribute("KsMaxTapeLength", printer.tapeLength.max)
            .attribute("KsMinMargin", printer.margin.min)
            .attribute("KsMaxMargin", printer.margin.max)
            .attribute("KsMinPrintTapeLength", printer.printTapeLength.min)
            .attribute("KsMaxPrintTapeLengthForOther", printer.printTapeLength.max)
            .attribute("KsMaxPrintTapeLengthForClothOr15mm", printer.max15mm);
        static const std::array<const char *, 5> resolutions = {"300x300dpi", "180x180dpi", "Normal", "x0dpi",
                                                                "10x10dpi"};
        const QByteArray resolution = resolutions[static_cast<std::size_t>(below(5))];
        ppd.option("Resolution", "Resolution", {{resolution, "Only"}}, resolution);
        return ppd;
    }

    QByteArray typedText()
    {
        static const std::array<const char *, 8> odd = {"", ".", "0", "0.", ".5", "1.2300000001", "99999999999", "000"};
        return chance(20) ? QByteArray(odd[static_cast<std::size_t>(below(8))])
                          : number(chance(50) ? 30 : 1200, below(4));
    }

private:
    std::mt19937 mRandom;
};

/// One panel on its walk.
class Walker
{
public:
    Walker(Walk *walk, const Printer &printer)
        : mWalk(walk), mPrinter(printer), mPanel(tape(walk->ppd(printer), walk->below(300) + 1))
    {
        mPanel.show();
        holdSent(); // of the first paper
    }

    void step()
    {
        mPanel.alerts.clear();
        const std::array<const Length *, 3> all = {&mPrinter.tapeLength, &mPrinter.margin, &mPrinter.printTapeLength};
        const Length &length = *all[static_cast<std::size_t>(mWalk->below(3))];
        QCoreApplication::processEvents();
        switch (mWalk->below(7)) {
        case 0:
        case 1:
            enter(length);
            break;
        case 2:
            slideByKey(length);
            break;
        case 3:
            wheel(mPanel, length.slider, mWalk->below(60) - 30);
            break;
        case 4:
            changePaper();
            break;
        case 5:
            mPanel->shouldPrint();
            break;
        default:
            saveAndCompare();
            break;
        }
        EXPECT_LE(mPanel.alerts.size(), 1U);
        holdSent();
        holdSummary();
    }

    QString lastAct;

private:
    bool isFree() const { return mPaper != QLatin1StringView("DC24x80"); }

    void enter(const Length &length)
    {
        const QByteArray text = mWalk->typedText();
        lastAct = QLatin1StringView("type into ") + QLatin1StringView(length.field) + u' ' + QString::fromLatin1(text);
        if (!mPanel.field(length.field)->isEnabled()) {
            return;
        }
        mPanel.type(length.field, text.constData());
        key(mPanel, mWalk->chance(50) ? Qt::Key_Return : Qt::Key_Tab);
        // The margin is not checked at the end of its editing.
        if (&length != &mPrinter.margin && isFree()) {
            holdFieldAgainstSlider(length);
        }
    }

    void slideByKey(const Length &length)
    {
        static const std::array<Qt::Key, 6> keys = {Qt::Key_Right,    Qt::Key_Left, Qt::Key_PageUp,
                                                    Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
        lastAct = QLatin1StringView("key on ") + QLatin1StringView(length.slider);
        if (mPanel.slider(length.slider)->isEnabled()) {
            key(mPanel, length.slider, keys[static_cast<std::size_t>(mWalk->below(6))]);
        }
    }

    void changePaper()
    {
        static const std::array<const char *, 4> papers = {"24mm", "15mm", "12mm", "DC24x80"};
        mPaper = QString::fromLatin1(papers[static_cast<std::size_t>(mWalk->below(4))]);
        lastAct = QLatin1StringView("paper ") + mPaper;
        mPanel.callback->usePaper(mPaper, mWalk->below(300) + 1);
        mPanel.dialogChanged(QStringLiteral("PageSize"), mPaper);
    }

    void saveAndCompare()
    {
        lastAct = QStringLiteral("save");
        save(mPanel);
        if (isFree()) {
            holdFieldAgainstSlider(mPrinter.tapeLength);
            holdFieldAgainstSlider(mPrinter.margin);
        }
    }

    /// A check leaves the slider's own value in the field, in the shown form. The tape length that a margin needs has
    /// the margin's form, so that one may stand there as well.
    void holdFieldAgainstSlider(const Length &length)
    {
        const auto value = static_cast<double>(mPanel.slider(length.slider)->floatValue());
        const QString shown = mPanel.field(length.field)->text();
        if (mPrinter.inInches) {
            EXPECT_EQ(shown, fixedDecimals(value, 2)) << length.field;
            return;
        }
        const bool isWhole = &length == &mPrinter.tapeLength && shown != form(value, length.isInteger)
                                 ? mPrinter.margin.isInteger
                                 : length.isInteger;
        EXPECT_EQ(shown, form(value, isWhole)) << length.field;
    }

    static QString form(double value, bool isInteger)
    {
        return isInteger ? wholeNumber(value) : fixedDecimals(value, 1);
    }

    void holdSent()
    {
        const Length &print = mPrinter.printTapeLength;
        // The tape length is truncated, or printed to the nearest tenth; the other two are rounded up. So much, and no
        // more, may a limit that is no step itself be passed: a limit of 4.56 as the largest tape length lets 4.6
        // through, as the largest margin 4.6 too, and as the smallest whole tape length 4.
        for (; mSeen < mPanel.callback->sent.size(); ++mSeen) {
            const auto &[keyword, choice] = mPanel.callback->sent[mSeen];
            if (keyword == QLatin1StringView(mPrinter.tapeLength.keyword)) {
                holdNumber(mPrinter.tapeLength, choice);
                holdTruncatedWithin(mPrinter.tapeLength, doubleValue(choice));
            } else if (keyword == QLatin1StringView(mPrinter.margin.keyword)) {
                holdNumber(mPrinter.margin, choice);
                holdRoundedUpWithin(mPrinter.margin, doubleValue(choice));
            } else if (keyword == QLatin1StringView(print.keyword)) {
                holdNumber(print, choice);
                Length withLimit = print;
                withLimit.max = mPaper == QLatin1StringView("15mm") ? mPrinter.max15mm : print.max;
                holdRoundedUpWithin(withLimit, doubleValue(choice));
            }
        }
    }

    static void holdNumber(const Length &length, const QString &choice)
    {
        static const QRegularExpression whole(QStringLiteral("^-?[0-9]+$"));
        static const QRegularExpression oneDecimalPlace(QStringLiteral("^-?[0-9]+\\.[0-9]$"));
        EXPECT_TRUE((length.isInteger ? whole : oneDecimalPlace).match(choice).hasMatch())
            << length.keyword << ' ' << choice.toStdString();
    }

    void holdTruncatedWithin(const Length &length, double sent) const
    {
        if (isFree() && length.hasLimitsInOrder()) {
            const auto bound = [&length](double limit, double tolerance) {
                return length.isInteger ? inThirtyTwoBits(std::trunc(limit)) : limit + tolerance;
            };
            EXPECT_GE(sent, bound(length.lower(), -0.05) - slack(length.lower())) << length.keyword;
            EXPECT_LE(sent, bound(length.upper(), 0.05) + slack(length.upper())) << length.keyword;
        }
    }

    void holdRoundedUpWithin(const Length &length, double sent) const
    {
        if (isFree() && length.hasLimitsInOrder()) {
            const auto bound = [&length](double limit) {
                return length.isInteger ? inThirtyTwoBits(std::ceil(limit)) : std::ceil(limit * 10.0) / 10.0;
            };
            EXPECT_GE(sent, bound(length.lower()) - slack(length.lower())) << length.keyword;
            EXPECT_LE(sent, bound(length.upper()) + slack(length.upper())) << length.keyword;
        }
    }

    static double inThirtyTwoBits(double value) { return std::clamp(value, -2147483648.0, 2147483647.0); }
    /// What the decimal text of a number may be away from it.
    static double slack(double value) { return std::abs(value) * 1e-9 + 1e-9; }

    void holdSummary()
    {
        const QVariantMap summary = mPanel->summaryInfo().value_or(QVariantMap());
        const QString unit = text(mPanel, mPrinter.inInches ? "RS_Inch" : "RS_mm");
        EXPECT_EQ(entry(summary, mPrinter.margin), mPanel.field("mMarginTxFld")->text() + unit);
        EXPECT_EQ(entry(summary, mPrinter.printTapeLength),
                  mPanel.field("mTapeLengthTxFld")->text() + text(mPanel, "RS_m"));
        const QString said = entry(summary, mPrinter.tapeLength);
        EXPECT_TRUE(said.endsWith(unit)) << said.toStdString();
        const QString shown = mPanel.field("mLengthTxFld")->text();
        if (!isFree()) {
            EXPECT_EQ(said, shown + unit);
        } else if (mPrinter.tapeLength.hasLimitsInOrder()) {
            holdSummaryWithin(doubleValue(said), static_cast<double>(floatValue(shown)));
        }
    }

    static QString entry(const QVariantMap &summary, const Length &length)
    {
        return summary.value(QString::fromLatin1(length.summaryTitle)).toString();
    }

    /// The summary holds the field's length within the limits (in inches within their hundredths) and rounds it up to
    /// its form.
    void holdSummaryWithin(double said, double shown) const
    {
        const Length &length = mPrinter.tapeLength;
        const auto limit = [this](double mm) {
            return mPrinter.inInches ? doubleValue(fixedDecimals(mm * 0.0393701, 2)) : mm;
        };
        const double held = std::clamp(shown, limit(length.lower()), limit(length.upper()));
        const double upTo = mPrinter.inInches ? 0.005 : (length.isInteger ? 1.0 : 0.1);
        if (!length.isInteger || mPrinter.inInches || std::abs(held) < 2e9) {
            EXPECT_GE(said, held - (mPrinter.inInches ? 0.005 : 0.0) - std::abs(held) * 1e-6);
            EXPECT_LE(said, held + upTo + std::abs(held) * 1e-6);
        }
    }

    Walk *mWalk;
    Printer mPrinter;
    PanelUnderTest mPanel;
    QString mPaper = QStringLiteral("24mm");
    std::size_t mSeen = 0;
};

TEST(LengthProperty, RandomWalk_SendsNumbersWithinTheLimits_AndEverythingShownAgrees)
{
    QElapsedTimer timer;
    timer.start();
    Walk walk(kSeed);
    int steps = 0;
    for (int i = 0; i < kPrinters && timer.elapsed() < kTimeLimitMs; ++i) {
        Walker walker(&walk, walk.printer());
        for (int step = 0; step < kStepsPerPrinter; ++step, ++steps) {
            walker.step();
            ASSERT_FALSE(testing::Test::HasFailure())
                << "seed " << kSeed << ", printer " << i << ", step " << step << ": " << walker.lastAct.toStdString();
        }
    }
    // On a slow machine the walk ends early, but never before it has been somewhere.
    EXPECT_GE(steps, 100);
}

} // namespace
