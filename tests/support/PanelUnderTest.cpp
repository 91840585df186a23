// SPDX-License-Identifier: Apache-2.0
// The built bundle's panel in a window.
#include "PanelUnderTest.h"

#include <QAbstractButton>
#include <QPluginLoader>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <dlfcn.h>

LoadedBundle::LoadedBundle(const QString &path)
{
    const QString directory = path.isNull() ? QStringLiteral(TAPEPRINT_BUNDLE_DIR "/PageSettings.bundle") : path;
    mBundle = pdekit::Bundle::bundleWithPath(directory);
    // The tests read English, whatever the session's language.
    mBundle->setLanguage(QStringLiteral("en"));
    const QString name = QFileInfo(directory).completeBaseName();
    mModulePath = directory + QLatin1Char('/') + name + QStringLiteral(".so");
    QPluginLoader loader(mModulePath);
    mEntry = qobject_cast<pdekit::PlugInEntry *>(loader.instance());
    if (mEntry == nullptr) {
        ADD_FAILURE() << loader.errorString().toStdString();
    }
}

std::unique_ptr<pdekit::PlugIn> LoadedBundle::newPlugIn() const
{
    QPluginLoader loader(mModulePath);
    const QString principalClass = loader.metaData()
                                       .value(QStringLiteral("MetaData"))
                                       .toObject()
                                       .value(QStringLiteral("PrincipalClass"))
                                       .toString();
    std::unique_ptr<pdekit::PlugIn> plugIn = mEntry->newPrincipalObject(principalClass);
    if (plugIn == nullptr || !plugIn->initWithBundle(mBundle.get())) {
        ADD_FAILURE() << "The bundle's principal object cannot be had.";
    }
    return plugIn;
}

void *LoadedBundle::symbol(const char *name) const
{
    void *module = dlopen(mModulePath.toUtf8().constData(), RTLD_LAZY | RTLD_NOLOAD);
    void *address = module == nullptr ? nullptr : dlsym(module, name);
    if (module != nullptr) {
        dlclose(module);
    }
    return address;
}

PanelUnderTest::PanelUnderTest(std::shared_ptr<RecordingCallback> recording, const QString &bundlePath)
    : loaded(bundlePath), callback(std::move(recording)), plugIn(loaded.newPlugIn())
{
    pdekit::setAlertHandler([this](const pdekit::AlertRequest &alert) { alerts.push_back(alert); });
    const pdekit::PanelArray *panels = plugIn->PDEPanelsForType(pdekit::kPrinterModulePanelType, callback);
    if (panels == nullptr || panels->size() != 1) {
        ADD_FAILURE() << "The bundle makes no panel.";
        return;
    }
    panel = panels->front();
}

PanelUnderTest::PanelUnderTest(const PpdText &ppd) : PanelUnderTest(std::make_shared<RecordingCallback>(ppd.open())) {}

PanelUnderTest::~PanelUnderTest()
{
    pdekit::setAlertHandler({});
    panel.reset();
    plugIn.reset();
}

PanelUnderTest &PanelUnderTest::show()
{
    panel->panelName();
    panel->panelKind();
    panel->supportedPPDOptionKeys();
    auto *layout = new QVBoxLayout(&window);
    if (QWidget *view = panel->panelView()) {
        layout->addWidget(view);
    }
    panel->willShow();
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    return *this;
}

void PanelUnderTest::dialogChanged(const QString &key, const QString &choice)
{
    panel->PPDOptionKeyValueDidChange(key, choice);
    panel->willShow();
}

void PanelUnderTest::pickRow(const char *matrixName, int row)
{
    QAbstractButton *cell = matrix(matrixName)->cellAtRow(row, 0);
    ASSERT_NE(cell, nullptr);
    const QPoint place = cell->mapTo(&window, QPoint(8, cell->height() / 2));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    ASSERT_EQ(matrix(matrixName)->selectedRow(), row);
}

void PanelUnderTest::pickItem(const char *popUpName, int index)
{
    QComboBox *control = popUp(popUpName);
    control->setFocus();
    while (control->currentIndex() != index) {
        const int before = control->currentIndex();
        QTest::keyClick(window.windowHandle(), before < index ? Qt::Key_Down : Qt::Key_Up);
        ASSERT_NE(control->currentIndex(), before) << popUpName << " cannot be moved by keys";
    }
}

void PanelUnderTest::type(const char *fieldName, const char *keys)
{
    QLineEdit *edit = field(fieldName);
    edit->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(window.windowHandle(), Qt::Key_Delete);
    for (const char *key = keys; *key != '\0'; ++key) {
        QTest::keyClick(window.windowHandle(), *key);
    }
}

bool PanelUnderTest::isTextEnabled(const char *labelName) const
{
    const QPalette shown = label(labelName)->palette();
    const QPalette normal = QApplication::palette();
    return shown.color(QPalette::Active, QPalette::WindowText) == normal.color(QPalette::Active, QPalette::WindowText);
}

std::vector<QString> PanelUnderTest::itemTitles(const char *popUpName) const
{
    std::vector<QString> titles;
    const QComboBox *control = popUp(popUpName);
    titles.reserve(static_cast<std::size_t>(control->count()));
    for (int i = 0; i < control->count(); ++i) {
        titles.push_back(control->itemText(i));
    }
    return titles;
}
