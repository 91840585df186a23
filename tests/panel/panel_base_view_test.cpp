// SPDX-License-Identifier: Apache-2.0
// The abstract panel's view: loading the interface file, its lifetime, and following a change of its size.
#include "RecordingCallback.h"
#include "TextPrinting.h"

#include "pdekit/Bundle.h"
#include "pdekit/NotificationCenter.h"
#include "plugin/BasePDE13_v100_.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

const QString kTrackingAreasNotice = QStringLiteral("NSViewDidUpdateTrackingAreasNotification");

/// A panel that counts how often its interface file was loaded.
class ViewPanel : public BasePDE13_v100_
{
public:
    using BasePDE13_v100_::connectOutlet;
    using BasePDE13_v100_::kPDEView;

    void viewDidLoad() override { ++loads; }
    int loads = 0;
};

/// A dialog that follows the size of its panels.
class ResizingCallback : public RecordingCallback, public PanelViewResizing
{
public:
    ResizingCallback() : RecordingCallback(nullptr) {}
    void panelViewDidResize() override { ++resizes; }
    int resizes = 0;
};

class PanelBaseView : public testing::Test
{
protected:
    PanelBaseView()
    {
        QDir(directory.path()).mkdir(u"Resources"_qs);
        QFile file(directory.filePath(u"Resources/PageSettingPDE.ui"_qs));
        const QByteArray text =
            "<ui version=\"4.0\"><class>kPDEView</class><widget class=\"QWidget\" name=\"kPDEView\">"
            "<widget class=\"QLabel\" name=\"label\"/></widget></ui>";
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(text), text.size());
        file.close();
        bundle = Bundle::bundleWithPath(directory.path());
        EXPECT_TRUE(panel->initWithCallback(callback, bundle.get()));
    }

    QTemporaryDir directory;
    std::shared_ptr<Bundle> bundle;
    std::shared_ptr<ResizingCallback> callback = std::make_shared<ResizingCallback>();
    std::unique_ptr<ViewPanel> panel = std::make_unique<ViewPanel>();
};

TEST_F(PanelBaseView, OutletOfItsName_IsTheView)
{
    QWidget other;
    QWidget view;
    panel->connectOutlet(u"label"_qs, &other);
    EXPECT_EQ(panel->kPDEView, nullptr);
    panel->connectOutlet(u"kPDEView"_qs, &view);
    EXPECT_EQ(panel->kPDEView, &view);
    panel->connectOutlet(u"label"_qs, &other);
    EXPECT_EQ(panel->kPDEView, &view);
    panel->kPDEView = nullptr; // which is not the panel's to delete
}

TEST_F(PanelBaseView, InterfaceFile_IsLoadedOnTheFirstRequestOnly)
{
    EXPECT_EQ(panel->loads, 0);
    QWidget *view = panel->panelView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->objectName(), u"kPDEView");
    EXPECT_NE(view->findChild<QLabel *>(u"label"_qs), nullptr);
    EXPECT_EQ(panel->panelView(), view);
    EXPECT_EQ(panel->loads, 1);
}

TEST_F(PanelBaseView, MissingInterfaceFile_GivesNoViewAndIsLookedForAgain)
{
    const QString file = directory.filePath(u"Resources/PageSettingPDE.ui"_qs);
    ASSERT_TRUE(QFile::rename(file, file + u".away"_qs));
    EXPECT_EQ(panel->panelView(), nullptr);
    EXPECT_EQ(panel->loads, 0);
    ASSERT_TRUE(QFile::rename(file + u".away"_qs, file));
    EXPECT_NE(panel->panelView(), nullptr);
    EXPECT_EQ(panel->loads, 1);
}

TEST_F(PanelBaseView, BundleIsShared_UntilThePanelGoes)
{
    EXPECT_EQ(bundle.use_count(), 2);
    panel.reset();
    EXPECT_EQ(bundle.use_count(), 1);
}

TEST_F(PanelBaseView, ViewOfItsOwn_GoesWithThePanel)
{
    const QPointer<QWidget> view = panel->panelView();
    panel.reset();
    EXPECT_EQ(view, nullptr);
}

TEST_F(PanelBaseView, ViewInTheDialogsTree_StaysWhenThePanelGoes)
{
    QWidget window;
    const QPointer<QWidget> view = panel->panelView();
    view->setParent(&window);
    panel.reset();
    EXPECT_EQ(view->parentWidget(), &window);
}

TEST_F(PanelBaseView, ViewDeletedWithTheDialogsTree_IsForgotten)
{
    {
        QWidget window;
        panel->panelView()->setParent(&window);
    }
    EXPECT_EQ(panel->kPDEView, nullptr);
    panel.reset();
}

// ---- A change of size
// -------------------------------------------------------------------------------------------------

class PanelViewSize : public PanelBaseView
{
protected:
    /// An active window; answers the height of its frame.
    double openWindow()
    {
        window.resize(400, 500);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_GE(window.frameGeometry().height(), 500);
        return window.frameGeometry().height();
    }
    static void post(const void *sender)
    {
        NotificationCenter::defaultCenter().postNotification(kTrackingAreasNotice, sender);
    }

    QWidget window;
};

TEST_F(PanelViewSize, RoomInTheWindow_TellsTheDialogAtOnce)
{
    const double frameHeight = openWindow();
    panel->panelView()->resize(10, 10);
    panel->setViewFrameSize(300.0, frameHeight - 97.0);
    EXPECT_EQ(panel->kPDEView->size(), QSize(300, static_cast<int>(frameHeight) - 97));
    EXPECT_EQ(callback->resizes, 1);
    post(panel->kPDEView);
    EXPECT_EQ(callback->resizes, 1);
}

TEST_F(PanelViewSize, NoRoomInTheWindow_WaitsForTheViewsOwnNotice)
{
    // 96 points around the view is no room yet: the frame has to be higher.
    const double frameHeight = openWindow();
    panel->panelView();
    panel->setViewFrameSize(300.0, frameHeight - 96.0);
    EXPECT_EQ(panel->kPDEView->height(), static_cast<int>(frameHeight) - 96);
    EXPECT_EQ(callback->resizes, 0);
    post(&window);
    EXPECT_EQ(callback->resizes, 0);
    post(panel->kPDEView);
    EXPECT_EQ(callback->resizes, 1);
    post(panel->kPDEView);
    EXPECT_EQ(callback->resizes, 1);
}

TEST_F(PanelViewSize, NoWindow_WaitsForTheNotice)
{
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    panel->panelView();
    panel->setViewFrameSize(30.0, 20.0);
    EXPECT_EQ(panel->kPDEView->size(), QSize(30, 20));
    EXPECT_EQ(callback->resizes, 0);
    post(panel->kPDEView);
    EXPECT_EQ(callback->resizes, 1);
}

TEST_F(PanelViewSize, PanelGoneBeforeTheNotice_IsNotTold)
{
    panel->panelView()->setParent(&window);
    panel->setViewFrameSize(30.0, 20.0);
    const QWidget *view = panel->kPDEView;
    panel.reset();
    post(view);
    EXPECT_EQ(callback->resizes, 0);
}

TEST_F(PanelViewSize, WithoutAView_NothingIsResized)
{
    openWindow();
    panel->setViewFrameSize(30.0, 20.0);
    EXPECT_EQ(panel->kPDEView, nullptr);
    EXPECT_EQ(callback->resizes, 1);
}

TEST_F(PanelViewSize, DialogThatCannotFollow_LeavesTheViewAsItIs)
{
    openWindow();
    ViewPanel other;
    ASSERT_TRUE(other.initWithCallback(std::make_shared<RecordingCallback>(nullptr), bundle.get()));
    other.panelView()->resize(10, 10);
    other.setViewFrameSize(300.0, 200.0);
    EXPECT_EQ(other.kPDEView->size(), QSize(10, 10));
}

} // namespace
