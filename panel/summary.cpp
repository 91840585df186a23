// SPDX-License-Identifier: Apache-2.0
// The panel's lines in the dialog's summary: the job's state as the PPD's marks and the tape give it, and the three
// lengths as the fields show them once there are fields.
#include "panel/LengthOption.h"
#include "panel/PageSettingPDE13_v100_.h"
#include "panel/SummaryChoice.h"

#include "pdekit/Numbers.h"
#include "pdekit/StringEncoding.h"
#include "ppd/PDEUtilsMethod13.h"

#include <algorithm>
#include <vector>

using namespace pdekit;

namespace
{

/// The entries under their titles, and the titles in order. A title that stands twice keeps its last value and both its
/// places. Deliberate.
class SummaryEntries
{
public:
    void add(const QString &title, const QString &value)
    {
        mTitles.append(title);
        mEntries.insert(title, value);
    }

    /// The order holds every title, empty ones included.
    QVariantMap withOrder() &&
    {
        mEntries.insert(kSummaryDisplayOrder, mTitles);
        return std::move(mEntries);
    }

private:
    QVariantMap mEntries;
    QStringList mTitles;
};

float defaultValue(const ppd_option_t &option)
{
    return floatValue(stringFromSystemEncoding(option.defchoice));
}

} // namespace

std::optional<QVariantMap> PageSettingPDE13_v100_::summaryInfo()
{
    OSStatus tapeStatus = kPMNoError;
    const TapeInfo tape = currentTapeInfo(&tapeStatus);
    SummaryEntries entries;

    const auto addChoice = [&](const SummaryChoice &entry) {
        entries.add(summaryTitle(this->*ChoiceOption::of(entry.item).option, entry.titleKey),
                    summaryChoiceValue(entry));
    };
    entries.add(localized(QStringLiteral("RS_STitle_TapeWidth")), widthText(tape));
    if (tapeStatus == kPMNoError) {
        entries.add(summaryTitle(mTapeLength_Option, "RS_STitle_TapeLength"), summaryTapeLength(tape));
    }
    if (mMargin_Option != nullptr) {
        entries.add(summaryTitle(mMargin_Option, "RS_STitle_Margin"), summaryMargin());
    }
    if (mKsResolution_Selection != nullptr) {
        addChoice(SummaryChoice::vendorResolution());
    }
    if (mQuality_Selection != nullptr &&
        indexOfMarkedOption(mResolution_Choices.get(), QStringLiteral("Resolution")) != 1) {
        addChoice(SummaryChoice::quality());
    }
    if (mPrintTapeLength_Option != nullptr) {
        entries.add(summaryTitle(mPrintTapeLength_Option, "RS_STitle_PrintTapeLength"), summaryPrintTapeLength());
    }
    if (mTapeType_Selection != nullptr) {
        addChoice(SummaryChoice::tapeMaterial());
    }
    if (mTapeColor_Selection != nullptr) {
        addChoice(SummaryChoice::tapeColour());
    }
    if (mInkColor_Selection != nullptr) {
        addChoice(SummaryChoice::inkColour());
    }
    if (mResolution_Selection != nullptr && mKsResolution_Selection == nullptr) {
        addChoice(SummaryChoice::resolution(isMVPrinter()));
    }
    if (mCompress_Selection != nullptr && usb_dec) {
        addChoice(SummaryChoice::compression());
    }
    return std::move(entries).withOrder();
}

QString PageSettingPDE13_v100_::summaryTitle(const ppd_option_t *option, const char *titleKey) const
{
    const QString title = PDEUtilsMethod13::newOptionTitle(option);
    return localized(title.isNull() ? QString::fromLatin1(titleKey) : title);
}

QString PageSettingPDE13_v100_::summaryChoiceValue(const SummaryChoice &entry) const
{
    const ChoiceOption &option = ChoiceOption::of(entry.item);
    const std::int64_t marked = indexOfMarkedOption((this->*option.choices).get(), QString::fromLatin1(option.keyword));
    if (marked < 0 || marked >= static_cast<std::int64_t>(entry.valueKeys.size())) {
        return (this->*option.selection)->userTitle();
    }
    const QString text = PDEUtilsMethod13::newChoiceTitle(&(this->*option.option)->choices[marked]);
    return localized(text.isNull() ? QString::fromLatin1(entry.valueKeys[static_cast<std::size_t>(marked)]) : text);
}

QString PageSettingPDE13_v100_::summaryUnit() const
{
    return localized(unit() == lengths::Unit::Inches ? QStringLiteral("RS_Inch") : QStringLiteral("RS_mm"));
}

QString PageSettingPDE13_v100_::summaryTapeLength(const TapeInfo &tape) const
{
    const lengths::Rules rules = {unit(), isIntegerTapeLen(), minTapeLen(), maxTapeLen()};
    const LengthOption &group = LengthOption::of(LengthOption::TapeLength);
    QString number =
        isFilled(group) ? shownText(group) : lengths::paperLengthText(tape.paperLength, rules.unit, rules.isInteger);
    if (tape.fixedLength == 0) {
        number = lengths::summaryTapeLength(number, rules);
    }
    return number + summaryUnit();
}

QString PageSettingPDE13_v100_::summaryMargin() const
{
    const LengthOption &group = LengthOption::of(LengthOption::Margin);
    const QString number = isFilled(group)
                               ? shownText(group)
                               : lengths::summaryDefault(defaultValue(*mMargin_Option), unit(), isIntegerMarginLen());
    return number + summaryUnit();
}

QString PageSettingPDE13_v100_::summaryPrintTapeLength() const
{
    // Before there is a field the margin's integer rule is used, not the print tape length's; there is no inch form.
    // Deliberate.
    const LengthOption &group = LengthOption::of(LengthOption::PrintTapeLength);
    const QString number = isFilled(group) ? shownText(group)
                                           : lengths::summaryDefault(defaultValue(*mPrintTapeLength_Option),
                                                                     lengths::Unit::Millimetres, isIntegerMarginLen());
    return number + localized(QStringLiteral("RS_m"));
}

std::int32_t PageSettingPDE13_v100_::indexForSummary(const char *keyword)
{
    // Counts the entries of an empty list that are less than the keyword's value: always none. Deliberate.
    const double value = PDEUtilsMethod13::originItem(ppd, keyword).x();
    const std::vector<double> entries;
    return static_cast<std::int32_t>(
        std::count_if(entries.begin(), entries.end(), [value](double entry) { return entry < value; }));
}
