// SPDX-License-Identifier: Apache-2.0
// The built bundle's panel in a window, loaded and shown as a dialog does it.
#pragma once

#include "RecordingCallback.h"

#include "pdekit/Alert.h"
#include "pdekit/Bundle.h"
#include "pdekit/PlugIn.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <memory>
#include <vector>

#include "pdekit/RadioMatrix.h"
#include "pdekit/Slider.h"

#include <gtest/gtest.h>

/// The product's bundle, loaded by the plug-in loader.
class LoadedBundle
{
public:
    /// \param path the bundle's directory; the product's own by default.
    explicit LoadedBundle(const QString &path = QString());

    pdekit::PlugInEntry *entry() const { return mEntry; }
    const std::shared_ptr<pdekit::Bundle> &bundle() const { return mBundle; }
    QString modulePath() const { return mModulePath; }
    /// A principal object that has taken the bundle.
    std::unique_ptr<pdekit::PlugIn> newPlugIn() const;
    /// The address of an exported function or table; null when it is not exported.
    void *symbol(const char *name) const;
    template <typename Function>
    Function *function(const char *name) const
    {
        return reinterpret_cast<Function *>(symbol(name));
    }

private:
    std::shared_ptr<pdekit::Bundle> mBundle;
    QString mModulePath;
    pdekit::PlugInEntry *mEntry = nullptr;
};

/// One panel of the bundle. Construct, arrange the callback's objects, then show().
class PanelUnderTest
{
public:
    /// The panel is made here, so lay down papers, tickets and printers in the callback before.
    /// \param bundlePath another bundle than the product's.
    explicit PanelUnderTest(std::shared_ptr<RecordingCallback> callback, const QString &bundlePath = QString());
    explicit PanelUnderTest(const PpdText &ppd);
    ~PanelUnderTest();

    /// Asks name, kind, keys and view, puts the view into a window, and lets the panel be seen.
    PanelUnderTest &show();
    /// Tells the panel of a change in the dialog, and lets it be seen again, as a dialog does.
    void dialogChanged(const QString &key, const QString &choice);

    pdekit::Panel *operator->() const { return panel.get(); }

    /// The widget of an outlet. Fails the running test when the interface file has none of that name and class.
    template <typename Widget>
    Widget *outlet(const char *name) const
    {
        auto *widget = window.findChild<Widget *>(QString::fromLatin1(name));
        if (widget == nullptr) {
            ADD_FAILURE() << "The view has no " << name;
        }
        return widget;
    }
    QLabel *label(const char *name) const { return outlet<QLabel>(name); }
    QLineEdit *field(const char *name) const { return outlet<QLineEdit>(name); }
    QComboBox *popUp(const char *name) const { return outlet<QComboBox>(name); }
    pdekit::RadioMatrix *matrix(const char *name) const { return outlet<pdekit::RadioMatrix>(name); }
    pdekit::Slider *slider(const char *name) const { return outlet<pdekit::Slider>(name); }

    /// Picks as a person does: a click on a radio button; keys in a pop-up that has the focus.
    void pickRow(const char *matrixName, int row);
    void pickItem(const char *popUpName, int index);
    /// Puts the focus into a field, replaces its text by keys, and leaves the focus there.
    void type(const char *fieldName, const char *keys);

    /// Whether a label has the colour of enabled text.
    bool isTextEnabled(const char *labelName) const;
    std::vector<QString> itemTitles(const char *popUpName) const;

    LoadedBundle loaded;
    std::shared_ptr<RecordingCallback> callback;
    std::unique_ptr<pdekit::PlugIn> plugIn;
    std::shared_ptr<pdekit::Panel> panel;
    QWidget window;
    /// Every alert shown while this object lives, in order.
    std::vector<pdekit::AlertRequest> alerts;
};
