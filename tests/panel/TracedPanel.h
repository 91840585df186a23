// SPDX-License-Identifier: Apache-2.0
// The panel's class as its tests need it: with its view, a dialog's side, and a trace of the operations it runs, in the
// order in which they begin.
#pragma once

#include "RecordingCallback.h"

#include "panel/PageSettingPDE13_v100_.h"
#include "pdekit/Alert.h"
#include "pdekit/Bundle.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

using Trace = std::vector<QString>;

/// The panel, writing down what it does and then doing it.
class TracedPanel : public PageSettingPDE13_v100_
{
public:
    explicit TracedPanel(Trace *trace) : mTrace(trace) {}

    void initSetTitleTexts() override
    {
        note("titles");
        PageSettingPDE13_v100_::initSetTitleTexts();
    }
    void updateUIItem(std::int32_t itemType) override
    {
        note("update " + QByteArray::number(itemType, 16));
        PageSettingPDE13_v100_::updateUIItem(itemType);
    }
    void updateMarkedSelections(std::int32_t itemType) override
    {
        note("marked " + QByteArray::number(itemType, 16));
        PageSettingPDE13_v100_::updateMarkedSelections(itemType);
    }
    bool checkValues(bool silent) override
    {
        note(silent ? "check in silence" : "check");
        return PageSettingPDE13_v100_::checkValues(silent);
    }

#define TRACED(operation, words)                                                                                       \
    void operation() override                                                                                          \
    {                                                                                                                  \
        note(words);                                                                                                   \
        PageSettingPDE13_v100_::operation();                                                                           \
    }
    TRACED(initializeUI_Width, "build Width")
    TRACED(initializeUI_Length, "build Length")
    TRACED(initializeUI_Margin, "build Margin")
    TRACED(initializeUI_Quality, "build Quality")
    TRACED(initializeUI_Resolution, "build Resolution")
    TRACED(initializeUI_Compress, "build Compress")
    TRACED(initializeUI_KsResolution, "build KsResolution")
    TRACED(initializeUI_TapeType, "build TapeType")
    TRACED(initializeUI_TapeColor, "build TapeColor")
    TRACED(initializeUI_InkColor, "build InkColor")
    TRACED(initializeUI_PrintTapeLength, "build PrintTapeLength")
    TRACED(saveSetting_Length, "save Length")
    TRACED(saveSetting_Margin, "save Margin")
    TRACED(saveSetting_Quality, "save Quality")
    TRACED(saveSetting_Resolution, "save Resolution")
    TRACED(saveSetting_Compress, "save Compress")
    TRACED(saveSetting_KsResolution, "save KsResolution")
    TRACED(saveSetting_TapeType, "save TapeType")
    TRACED(saveSetting_TapeColor, "save TapeColor")
    TRACED(saveSetting_InkColor, "save InkColor")
    TRACED(saveSetting_PrintTapeLength, "save PrintTapeLength")
#undef TRACED

private:
    void note(const QByteArray &words)
    {
        mTrace->push_back(QString::fromLatin1(words));
    }

    Trace *mTrace;
};

/// A dialog's side that writes into the same trace when it is told a choice.
class TracedCallback : public RecordingCallback
{
public:
    TracedCallback(OpenPpd openPpd, Trace *trace) : RecordingCallback(std::move(openPpd)), mTrace(trace) {}

    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override
    {
        mTrace->push_back(QStringLiteral("tell ") + key);
        return RecordingCallback::willChangePPDOptionKeyValue(key, choice);
    }

private:
    Trace *mTrace;
};

/// One panel of the class, without the bundle's module but with the bundle's interface file and texts.
class PanelOfTheClass
{
public:
    explicit PanelOfTheClass(OpenPpd ppd)
        : callback(std::make_shared<TracedCallback>(std::move(ppd), &trace)),
          bundle(pdekit::Bundle::bundleWithPath(QStringLiteral(TAPEPRINT_BUNDLE_DIR "/PageSettings.bundle"))),
          panel(std::make_unique<TracedPanel>(&trace))
    {
        bundle->setLanguage(QStringLiteral("en"));
        pdekit::setAlertHandler([this](const pdekit::AlertRequest &alert) { alerts.push_back(alert); });
    }
    PanelOfTheClass(const PanelOfTheClass &) = delete;
    PanelOfTheClass &operator=(const PanelOfTheClass &) = delete;
    ~PanelOfTheClass() { pdekit::setAlertHandler({}); }
    explicit PanelOfTheClass(const PpdText &ppd) : PanelOfTheClass(ppd.open()) {}

    PanelOfTheClass &construct()
    {
        EXPECT_TRUE(panel->initWithCallback(callback, bundle.get()));
        return *this;
    }
    /// Constructs, loads the view and shows it; the trace begins after that.
    PanelOfTheClass &show()
    {
        construct();
        panel->supportedPPDOptionKeys();
        EXPECT_NE(panel->panelView(), nullptr);
        panel->willShow();
        forget();
        return *this;
    }
    void forget()
    {
        trace.clear();
        callback->sent.clear();
    }

    template <typename Widget>
    Widget *outlet(const char *name) const
    {
        auto *widget = panel->panelView()->findChild<Widget *>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    TracedPanel *operator->() const { return panel.get(); }

    Trace trace;
    std::vector<pdekit::AlertRequest> alerts;
    std::shared_ptr<TracedCallback> callback;
    std::shared_ptr<pdekit::Bundle> bundle;
    std::unique_ptr<TracedPanel> panel;
};
