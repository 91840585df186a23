// SPDX-License-Identifier: Apache-2.0
// The abstract panel where only a subclass can see: the order of its template operations, its construction, and the
// helpers it offers.
#include "RecordingCallback.h"
#include "TextPrinting.h"

#include "pdekit/StringEncoding.h"
#include "plugin/BasePDE13_v100_.h"
#include "ppd/PDEUtilsMethod13.h"

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

using Calls = std::vector<QString>;

/// A panel that writes down its template operations.
class RecordingPanel : public BasePDE13_v100_
{
public:
    using BasePDE13_v100_::deviceURI;
    using BasePDE13_v100_::formatSettings;
    using BasePDE13_v100_::kPDEView;
    using BasePDE13_v100_::mSupportedOptions;
    using BasePDE13_v100_::paperSizeName;
    using BasePDE13_v100_::pdePluginCallbackObject;
    using BasePDE13_v100_::pmPrintSettings;
    using BasePDE13_v100_::ppd;
    using BasePDE13_v100_::printer;
    using BasePDE13_v100_::printSession;
    using BasePDE13_v100_::printSettings;
    using BasePDE13_v100_::thePDEName;

    void initSetTitleTexts() override { calls.push_back(u"initSetTitleTexts"_qs); }
    void initUI() override { calls.push_back(u"initUI"_qs); }
    void updateUI() override
    {
        calls.push_back(u"updateUI"_qs);
        BasePDE13_v100_::updateUI();
    }
    void getValuesFromKey() override { calls.push_back(u"getValuesFromKey"_qs); }
    void setValuesToKey() override { calls.push_back(u"setValuesToKey"_qs); }
    void setPDEItems() override { calls.push_back(u"setPDEItems"_qs); }
    void setPDEItems2() override { calls.push_back(u"setPDEItems2"_qs); }
    void updateUIItem(std::int32_t itemType) override { calls.push_back(u"updateUIItem %1"_qs.arg(itemType)); }
    void updateMarkedSelections(std::int32_t itemType) override
    {
        calls.push_back(u"updateMarkedSelections %1"_qs.arg(itemType));
    }
    void viewDidLoad() override { calls.push_back(u"viewDidLoad"_qs); }

    Calls calls;
};

/// A dialog that writes down what it is asked for.
class AskedCallback : public RecordingCallback
{
public:
    using RecordingCallback::RecordingCallback;

    PMPrintSession printSession() override
    {
        asked.push_back(u"printSession"_qs);
        return RecordingCallback::printSession();
    }
    PMPrintSettings printSettings() override
    {
        asked.push_back(u"printSettings"_qs);
        return RecordingCallback::printSettings();
    }
    PMPageFormat pageFormat() override
    {
        asked.push_back(u"pageFormat"_qs);
        return RecordingCallback::pageFormat();
    }
    Printer *PMPrinter() override
    {
        asked.push_back(u"PMPrinter"_qs);
        return RecordingCallback::PMPrinter();
    }
    ppd_file_t *ppdFile() override
    {
        asked.push_back(u"ppdFile"_qs);
        return RecordingCallback::ppdFile();
    }

    Calls asked;
};

class PanelBaseClass : public testing::Test
{
protected:
    void construct(const PpdText &text = PpdText::withEveryOption())
    {
        callback = std::make_shared<AskedCallback>(text.open());
        constructWith(callback);
    }
    void constructWith(std::shared_ptr<PanelCallback> dialog, Bundle *bundle = nullptr)
    {
        ASSERT_TRUE(panel.initWithCallback(std::move(dialog), bundle));
    }
    std::unique_ptr<PDEChoiceArray> choicesOf(const char *keyword) const
    {
        return PDEUtilsMethod13::arrayFromPPDOption(ppdFindOption(callback->ppd.get(), keyword));
    }

    std::shared_ptr<AskedCallback> callback;
    RecordingPanel panel;
};

// ---- Construction
// -----------------------------------------------------------------------------------------------------

TEST_F(PanelBaseClass, Construction_AsksTheDialogForItsObjectsInOrder)
{
    construct();
    EXPECT_EQ(callback->asked, (Calls{u"printSession"_qs, u"printSettings"_qs, u"printSettings"_qs, u"pageFormat"_qs,
                                      u"PMPrinter"_qs, u"ppdFile"_qs}));
    EXPECT_EQ(panel.printSession, &callback->session);
    EXPECT_EQ(panel.pmPrintSettings, &callback->settings);
    EXPECT_EQ(panel.printSettings, &callback->settings);
    EXPECT_EQ(panel.formatSettings, &callback->format);
    EXPECT_EQ(panel.printer, &callback->printer);
    EXPECT_EQ(panel.ppd, callback->ppd.get());
    EXPECT_EQ(panel.pdePluginCallbackObject, callback);
    EXPECT_TRUE(panel.calls.empty());
}

TEST_F(PanelBaseClass, Construction_StartsWithNothingSet)
{
    construct();
    EXPECT_EQ(panel.mSupportedOptions, nullptr);
    EXPECT_TRUE(panel.thePDEName.isNull());
    EXPECT_TRUE(panel.paperSizeName.isNull());
    EXPECT_EQ(panel.imageModeFlag(), 0U);
    EXPECT_EQ(panel.kPDEView, nullptr);
    EXPECT_TRUE(callback->sent.empty());
}

TEST_F(PanelBaseClass, Construction_WithoutACallback_Fails)
{
    EXPECT_FALSE(panel.initWithCallback(nullptr, nullptr));
}

TEST_F(PanelBaseClass, Construction_SharesTheCallbackUntilRelease)
{
    const auto dialog = std::make_shared<RecordingCallback>(nullptr);
    {
        RecordingPanel other;
        ASSERT_TRUE(other.initWithCallback(dialog, nullptr));
        EXPECT_EQ(dialog.use_count(), 2);
    }
    EXPECT_EQ(dialog.use_count(), 1);
}

class DeviceUri : public PanelBaseClass
{
protected:
    /// The URI as the panel keeps it for a printer's.
    std::string keptFor(const QString &uri)
    {
        RecordingPanel other;
        const auto dialog = std::make_shared<RecordingCallback>(nullptr);
        dialog->printer.deviceUri = uri;
        EXPECT_TRUE(other.initWithCallback(dialog, nullptr));
        return other.deviceURI.data();
    }
    static QString uriOfBytes(int bytes) { return u"usb://"_qs + QString(bytes - 6, QLatin1Char('x')); }
    ~DeviceUri() override { setSystemEncoding({}); }
};

TEST_F(DeviceUri, UpTo254Bytes_IsKept)
{
    EXPECT_EQ(keptFor(u"KSLXUSB://Maker/Tape"_qs), "KSLXUSB://Maker/Tape");
    for (const int bytes : {253, 254}) {
        EXPECT_EQ(keptFor(uriOfBytes(bytes)), uriOfBytes(bytes).toStdString()) << bytes;
    }
}

TEST_F(DeviceUri, OfMoreBytes_IsEmptyNotCut)
{
    // The buffer counts as 255 bytes with the NUL, one less than the field has.
    for (const int bytes : {255, 256, 257, 260, 1000}) {
        EXPECT_EQ(keptFor(uriOfBytes(bytes)), "") << bytes;
    }
}

TEST_F(DeviceUri, IsInTheSystemsEncoding)
{
    setSystemEncoding("UTF-8");
    EXPECT_EQ(keptFor(u"usb://B\u00E4nd"_qs), "usb://B\xC3\xA4nd");
    setSystemEncoding("ISO-8859-1");
    EXPECT_EQ(keptFor(u"usb://B\u00E4nd"_qs), "usb://B\xE4nd");
    setSystemEncoding("US-ASCII");
    EXPECT_EQ(keptFor(u"usb://B\u00E4nd"_qs), "");
}

TEST_F(DeviceUri, OfAPrinterWithoutOne_IsEmpty)
{
    EXPECT_EQ(keptFor(QString()), "");
    const auto dialog = std::make_shared<RecordingCallback>(nullptr);
    dialog->hasPrinter = false;
    constructWith(dialog);
    EXPECT_STREQ(panel.deviceURI.data(), "");
}

// ---- The order of template operations
// ---------------------------------------------------------------------------------

TEST_F(PanelBaseClass, WillShow_TitlesControlsUpdateItems)
{
    construct();
    panel.willShow();
    const Calls once = {u"initSetTitleTexts"_qs, u"initUI"_qs, u"updateUI"_qs, u"setPDEItems"_qs};
    EXPECT_EQ(panel.calls, once);
    panel.calls.clear();
    panel.willShow();
    EXPECT_EQ(panel.calls, once);
}

TEST_F(PanelBaseClass, Restore_MarkedItemsThenUpdateItems)
{
    construct();
    QString error = u"untouched"_qs;
    EXPECT_TRUE(panel.restoreValuesAndReturnError(&error));
    EXPECT_EQ(panel.calls, (Calls{u"setPDEItems2"_qs, u"updateUI"_qs, u"setPDEItems"_qs}));
    EXPECT_EQ(error, u"untouched");
}

TEST_F(PanelBaseClass, Save_ValuesToKey)
{
    construct();
    QString error = u"untouched"_qs;
    EXPECT_TRUE(panel.saveValuesAndReturnError(&error));
    EXPECT_EQ(panel.calls, (Calls{u"setValuesToKey"_qs}));
    EXPECT_EQ(error, u"untouched");
}

TEST_F(PanelBaseClass, SupportedKeys_OfTheBase_SaveAndAnswerNil)
{
    construct();
    panel.setSupportedOptions(std::make_shared<QStringList>(QStringList{u"KsMargin"_qs}));
    EXPECT_EQ(panel.supportedPPDOptionKeys(), nullptr);
    EXPECT_EQ(panel.calls, (Calls{u"setValuesToKey"_qs}));
}

TEST_F(PanelBaseClass, Questions_HaveTheirBaseAnswersAndCallNothing)
{
    construct();
    EXPECT_TRUE(panel.shouldHide());
    EXPECT_TRUE(panel.shouldPrint());
    EXPECT_FALSE(panel.shouldShowHelp());
    EXPECT_FALSE(panel.summaryInfo().has_value());
    EXPECT_EQ(panel.indexForSummary("KsMargin"), 0);
    panel.PPDOptionKeyValueDidChange(u"PageSize"_qs, u"12mm"_qs);
    panel.printWindowWillClose(true);
    EXPECT_TRUE(panel.calls.empty());
    EXPECT_TRUE(callback->sent.empty());
}

// ---- What the PPD says
// ------------------------------------------------------------------------------------------------

TEST_F(PanelBaseClass, FileVersion_IsThePpds_NilWithoutAPpd)
{
    construct();
    EXPECT_EQ(panel.fileVerString(), u"1.0");
    RecordingPanel other;
    ASSERT_TRUE(other.initWithCallback(std::make_shared<RecordingCallback>(nullptr), nullptr));
    EXPECT_TRUE(other.fileVerString().isNull());
}

struct Family {
    const char *tapeType; ///< null: no such attribute
    bool isMV;
    bool isHN;
};

class TapeFamily : public PanelBaseClass, public testing::WithParamInterface<Family>
{
};

TEST_P(TapeFamily, IsComparedExactly)
{
    PpdText text;
    if (GetParam().tapeType != nullptr) {
        text.attribute("KsTapeType", GetParam().tapeType);
    }
    construct(text);
    EXPECT_EQ(panel.isMVPrinter(), GetParam().isMV);
    EXPECT_EQ(panel.isHNPrinter(), GetParam().isHN);
}

INSTANTIATE_TEST_SUITE_P(Types, TapeFamily,
                         testing::Values(Family{"MV", true, false}, Family{"HN", false, true},
                                         Family{"mv", false, false}, Family{"Mv", false, false},
                                         Family{"hn", false, false}, Family{"MV2", false, false},
                                         Family{"M", false, false}, Family{"", false, false},
                                         Family{nullptr, false, false}));

TEST_F(PanelBaseClass, TapeFamily_WithoutAPpd_IsNone)
{
    constructWith(std::make_shared<RecordingCallback>(nullptr));
    EXPECT_FALSE(panel.isMVPrinter());
    EXPECT_FALSE(panel.isHNPrinter());
}

// ---- Choices
// ----------------------------------------------------------------------------------------------------------

TEST_F(PanelBaseClass, SelectionForItem_TellsTheDialogThenRefreshesTheItem)
{
    construct();
    const auto choices = choicesOf("KsTapeColor");
    const PDEChoice *selection = panel.selectionForItem(2, u"KsTapeColor"_qs, choices.get(), 0x60000);
    EXPECT_EQ(selection, &(*choices)[2]);
    EXPECT_EQ(callback->sent, (std::vector<RecordingCallback::Sent>{{u"KsTapeColor"_qs, u"KsTapeColorRed"_qs}}));
    EXPECT_EQ(panel.calls, (Calls{u"updateMarkedSelections 393216"_qs})); // 6 * 65536
}

TEST_F(PanelBaseClass, SelectionForItem_RefreshesAfterTheDialogWasTold)
{
    class Panel : public RecordingPanel
    {
    public:
        void updateMarkedSelections(std::int32_t) override
        {
            marked = QString::fromLatin1(ppdFindMarkedChoice(ppd, "KsTapeColor")->choice);
        }
        QString marked;
    };
    callback = std::make_shared<AskedCallback>(PpdText::withEveryOption().open());
    Panel other;
    ASSERT_TRUE(other.initWithCallback(callback, nullptr));
    other.selectionForItem(1, u"KsTapeColor"_qs, choicesOf("KsTapeColor").get(), 0x60000);
    EXPECT_EQ(other.marked, u"KsTapeColorBlue");
}

TEST_F(PanelBaseClass, SelectionForItem_WithoutSuchAChoice_IsNilAndTellsNothing)
{
    construct();
    const auto choices = choicesOf("KsTapeColor");
    ASSERT_EQ(choices->size(), 3U);
    const PDEChoiceArray none;
    EXPECT_EQ(panel.selectionForItem(3, u"KsTapeColor"_qs, choices.get(), 0x60000), nullptr);
    EXPECT_EQ(panel.selectionForItem(-1, u"KsTapeColor"_qs, choices.get(), 0x60000), nullptr);
    EXPECT_EQ(panel.selectionForItem(0x100000000, u"KsTapeColor"_qs, choices.get(), 0x60000), nullptr);
    EXPECT_EQ(panel.selectionForItem(0, u"KsTapeColor"_qs, &none, 0x60000), nullptr);
    EXPECT_EQ(panel.selectionForItem(0, u"KsTapeColor"_qs, nullptr, 0x60000), nullptr);
    EXPECT_TRUE(callback->sent.empty());
    EXPECT_TRUE(panel.calls.empty());
}

TEST_F(PanelBaseClass, IndexOfMarkedOption_IsThatOfThePpdsMark)
{
    construct();
    const auto choices = choicesOf("KsTapeColor");
    EXPECT_EQ(panel.indexOfMarkedOption(choices.get(), u"KsTapeColor"_qs), 0);
    ppdMarkOption(callback->ppd.get(), "KsTapeColor", "KsTapeColorRed");
    EXPECT_EQ(panel.indexOfMarkedOption(choices.get(), u"KsTapeColor"_qs), 2);
}

TEST_F(PanelBaseClass, IndexOfMarkedOption_WithoutAMark_IsMinusOne)
{
    construct();
    const auto colours = choicesOf("KsTapeColor");
    EXPECT_EQ(panel.indexOfMarkedOption(colours.get(), u"KsNone"_qs), -1);
    // Marked, but not among these choices.
    EXPECT_EQ(panel.indexOfMarkedOption(colours.get(), u"KsInkColor"_qs), -1);
    EXPECT_EQ(panel.indexOfMarkedOption(nullptr, u"KsTapeColor"_qs), -1);
    RecordingPanel other;
    ASSERT_TRUE(other.initWithCallback(std::make_shared<RecordingCallback>(nullptr), nullptr));
    EXPECT_EQ(other.indexOfMarkedOption(colours.get(), u"KsTapeColor"_qs), -1);
}

TEST_F(PanelBaseClass, IndexOfChoices_IsTheFirstWithThatKeyword)
{
    construct();
    const auto choices = choicesOf("KsTapeColor");
    EXPECT_EQ(panel.indexOfChoices(choices.get(), u"KsTapeColorBlue"_qs), 1);
    EXPECT_EQ(panel.indexOfChoices(choices.get(), u"kstapecolorblue"_qs), -1);
    EXPECT_EQ(panel.indexOfChoices(choices.get(), u"Blue"_qs), -1);
}

TEST_F(PanelBaseClass, IndexOfChoices_OfNil_IsMinusOneInAFullArray)
{
    construct();
    const auto choices = choicesOf("KsTapeColor");
    const PDEChoiceArray none;
    EXPECT_EQ(panel.indexOfChoices(choices.get(), QString()), -1);
    EXPECT_EQ(panel.indexOfChoices(choices.get(), u""_qs), -1);
    EXPECT_EQ(panel.indexOfChoices(&none, u"KsTapeColorBlue"_qs), -1);
    EXPECT_EQ(panel.indexOfChoices(nullptr, u"KsTapeColorBlue"_qs), -1);
}

TEST_F(PanelBaseClass, IndexOfDefaultOption_ZeroWithoutChoices_MinusOneWithoutADefault)
{
    construct();
    const auto choices = choicesOf("KsResolution");
    const PDEChoiceArray none;
    EXPECT_EQ(panel.indexOfDefaultOption(choices.get()), 1); // KsResolQ300300
    EXPECT_EQ(panel.indexOfDefaultOption(&none), 0);
    EXPECT_EQ(panel.indexOfDefaultOption(nullptr), 0);
    ppd_option_t *option = ppdFindOption(callback->ppd.get(), "KsResolution");
    qstrncpy(option->defchoice, "Unknown", sizeof(option->defchoice));
    EXPECT_EQ(panel.indexOfDefaultOption(choices.get()), -1);
}

class DefaultChoices : public PanelBaseClass
{
protected:
    DefaultChoices()
    {
        construct();
        option = ppdFindOption(callback->ppd.get(), "KsResolution");
        choices = choicesOf("KsResolution");
        // Gone from the PPD's own list of marks too.
        const std::string keyword(option->keyword);
        ppd_choice_t *marked = ppdFindMarkedChoice(callback->ppd.get(), keyword.c_str());
        marked->marked = 0;
        cupsArrayRemove(callback->ppd->marked, marked);
    }
    void set() { panel.setDefaultChoices(option, choices.get(), "KsResolution", u"KsResolution"_qs); }

    ppd_option_t *option = nullptr;
    std::unique_ptr<PDEChoiceArray> choices;
};

TEST_F(DefaultChoices, OptionWithoutAMark_IsToldWithItsDefault)
{
    set();
    EXPECT_EQ(callback->sent, (std::vector<RecordingCallback::Sent>{{u"KsResolution"_qs, u"KsResolQ300300"_qs}}));
    EXPECT_TRUE(panel.calls.empty());
}

TEST_F(DefaultChoices, OptionWithAMark_IsLeftAlone)
{
    ppdMarkOption(callback->ppd.get(), "KsResolution", "KsResolS300300");
    set();
    EXPECT_TRUE(callback->sent.empty());
}

TEST_F(DefaultChoices, KeywordComesFromTheOptionsOwnList)
{
    // The array of another option: its default stands first, so the option's own first choice is told.
    const auto others = choicesOf("KsTapeColor");
    panel.setDefaultChoices(option, others.get(), "KsResolution", u"KsResolution"_qs);
    EXPECT_EQ(callback->sent, (std::vector<RecordingCallback::Sent>{{u"KsResolution"_qs, u"KsResolS300300"_qs}}));
}

TEST_F(DefaultChoices, EmptyArray_TellsTheFirstChoiceOfTheOption)
{
    const PDEChoiceArray none;
    panel.setDefaultChoices(option, &none, "KsResolution", u"KsResolution"_qs);
    EXPECT_EQ(callback->sent, (std::vector<RecordingCallback::Sent>{{u"KsResolution"_qs, u"KsResolS300300"_qs}}));
}

TEST_F(DefaultChoices, WithoutADefaultOrAnOption_NothingIsTold)
{
    panel.setDefaultChoices(nullptr, choices.get(), "KsResolution", u"KsResolution"_qs);
    qstrncpy(option->defchoice, "Unknown", sizeof(option->defchoice));
    set();
    EXPECT_TRUE(callback->sent.empty());
}

TEST_F(PanelBaseClass, SupportedOptions_AreKeptAndReplaced)
{
    const auto first = std::make_shared<QStringList>(QStringList{u"KsMargin"_qs});
    panel.setSupportedOptions(first);
    panel.setSupportedOptions(first);
    EXPECT_EQ(panel.supportedOptions(), first);
    EXPECT_EQ(first.use_count(), 2);
    panel.setSupportedOptions(nullptr);
    EXPECT_EQ(panel.supportedOptions(), nullptr);
    EXPECT_EQ(first.use_count(), 1);
}

} // namespace
