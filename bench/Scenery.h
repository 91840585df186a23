// SPDX-License-Identifier: Apache-2.0
// What is measured: printer descriptions of a size, the panel shown as a dialog shows it, and the bare interface file.
#pragma once

#include "PanelUnderTest.h"

#include <QEvent>
#include <QUiLoader>
#include <QVBoxLayout>

/// A printer description of a size.
struct PpdSize {
    int choices;   ///< of each of the seven choice options
    int pageSizes; ///< tape widths
};

/// The text of a description of that size. The last choice and the last page size are the ones in use, so that looking
/// for them from the front takes longest.
QByteArray ppdOfSize(const PpdSize &size);

/// A window that knows when it has been painted.
class ShownWindow
{
public:
    ShownWindow();
    /// Puts a view into the window.
    void place(QWidget *view);
    /// Shows the window and waits until it is painted for the first time.
    void show();
    QWidget *widget() { return &mWindow; }

private:
    class PaintWatcher : public QObject
    {
    public:
        bool eventFilter(QObject *watched, QEvent *event) override;
        bool painted = false;
    };

    PaintWatcher mWatcher;
    QWidget mWindow;
    QVBoxLayout *mLayout;
};

/// The interface file by itself, with the same classes of controls: what any panel of these controls costs.
class BareInterface
{
public:
    explicit BareInterface(const LoadedBundle &loaded);
    void load();
    void show();
    QWidget *view() const { return mView; }

private:
    QString mPath;
    ShownWindow mWindow;
    QWidget *mView = nullptr;
};

/// The bundle's panel, step by step as a dialog takes them.
class BenchedPanel
{
public:
    BenchedPanel(const LoadedBundle &loaded, OpenPpd ppd);
    ~BenchedPanel();

    /// The dialog's request for panels.
    void construct();
    /// Name, kind, supported keys, view, "you will be shown", window.
    void show();

    pdekit::Panel &panel() { return *mPanel; }
    RecordingCallback &callback() { return *mCallback; }
    QWidget *view() { return mPanel->panelView(); }
    template <typename Widget>
    Widget *outlet(const char *name)
    {
        return view()->findChild<Widget *>(QString::fromLatin1(name));
    }

private:
    std::shared_ptr<RecordingCallback> mCallback;
    std::unique_ptr<pdekit::PlugIn> mPlugIn;
    std::shared_ptr<pdekit::Panel> mPanel;
    ShownWindow mWindow;
};
