// SPDX-License-Identifier: Apache-2.0
// Printer descriptions of a size, the panel, and the bare interface file.
#include "Scenery.h"

#include <QCoreApplication>
#include <QFile>

#include <array>
#include <span>

namespace
{

struct BenchedOption {
    const char *keyword;
    const char *text;
    const char *choiceText;
    std::span<const char *const> lastKeywords = {}; ///< of the last choices, from the last on
};

/// The bundle has an image for each of these.
constexpr std::array kImagesOfInk = {"KsInkColorBlack", "KsInkColorBlue", "KsInkColorRed",
                                     "KsInkColorWhite", "KsInkColorGold", "KsInkColorSilver"};
constexpr std::array kImagesOfTape = {"KsTapeColorWhite",      "KsTapeColorBlue",      "KsTapeColorRed",
                                      "KsTapeColorYellow",     "KsTapeColorPink",      "KsTapeColorClear",
                                      "KsTapeColorPastelBlue", "KsTapeColorPastelRed", "KsTapeColorDeepBlue"};

constexpr std::array<BenchedOption, 7> kOptions = {{
    {"KsPriority", "Priority", "Priority"},
    {"Resolution", "Resolution", "Dots"},
    {"KsCompress", "Compression", "Compression"},
    {"KsResolution", "Print Mode", "Mode"},
    {"KsTapeMaterial", "Material", "Material"},
    {"KsInkColor", "Ink", "Ink", kImagesOfInk},
    {"KsTapeColor", "Tape", "Tape", kImagesOfTape},
}};

/// The size of a page whose length is 100 mm.
constexpr double kPageWidthPt = 68.0;
constexpr double kPageHeightPt = 283.46472;

/// The keyword of a choice, counted from 1.
QByteArray choiceKeyword(const BenchedOption &option, int number, int count)
{
    if (const auto fromLast = static_cast<std::size_t>(count - number); fromLast < option.lastKeywords.size()) {
        return option.lastKeywords[fromLast];
    }
    const bool isResolution = QByteArrayView(option.keyword) == QByteArrayView("Resolution");
    return isResolution ? QByteArray::number(number) + "x300dpi" : option.keyword + QByteArray::number(number);
}

/// Makes the controls of the interface file that Qt does not know, the plug-in's own as the plain one it builds on.
class BareLoader : public QUiLoader
{
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        QWidget *widget = nullptr;
        if (className == QLatin1StringView("pdekit::RadioMatrix")) {
            widget = new pdekit::RadioMatrix(parent);
        } else if (className == QLatin1StringView("pdekit::Slider")) {
            widget = new pdekit::Slider(parent);
        } else if (className == QLatin1StringView("PDETextField13_v100_")) {
            widget = new QLineEdit(parent);
        } else {
            return QUiLoader::createWidget(className, parent, name);
        }
        widget->setObjectName(name);
        return widget;
    }
};

} // namespace

QByteArray ppdOfSize(const PpdSize &size)
{
    PpdText ppd;
    std::vector<PpdText::PageSize> pageSizes;
    for (int i = 1; i <= size.pageSizes; ++i) {
        const QByteArray number = QByteArray::number(i);
        pageSizes.push_back({"W" + number + "mm", number + " mm", kPageWidthPt, kPageHeightPt});
    }
    ppd.pageSizes(pageSizes, pageSizes.back().keyword);
    for (const BenchedOption &option : kOptions) {
        std::vector<PpdText::Choice> choices;
        for (int i = 1; i <= size.choices; ++i) {
            choices.emplace_back(choiceKeyword(option, i, size.choices),
                                 option.choiceText + (" " + QByteArray::number(i)));
        }
        ppd.option(option.keyword, option.text, choices, choices.back().first);
    }
    ppd.option("KsTapeLength", "Tape Length", {{"100.0", "100.0 mm"}}, "100.0")
        .option("KsMargin", "Margin", {{"2.0", "2.0 mm"}, {"5.0", "5.0 mm"}}, "2.0")
        .option("KsPrintTapeLength", "Print Tape Length", {{"3.0", "3.0 m"}, {"5.0", "5.0 m"}}, "3.0")
        .attribute("KsMinTapeLength", "4.0")
        .attribute("KsMaxTapeLength", "1000.0")
        .attribute("KsMinMargin", "1.0")
        .attribute("KsMaxMargin", "100.0")
        .attribute("KsMinPrintTapeLength", "1.0")
        .attribute("KsMaxPrintTapeLengthForClothOr15mm", "12.0")
        .attribute("KsMaxPrintTapeLengthForOther", "8.0");
    return ppd.text();
}

ShownWindow::ShownWindow() : mLayout(new QVBoxLayout(&mWindow)) {}

void ShownWindow::place(QWidget *view)
{
    view->installEventFilter(&mWatcher);
    mLayout->addWidget(view);
}

void ShownWindow::show()
{
    mWindow.show();
    while (!mWatcher.painted) {
        QCoreApplication::processEvents();
    }
}

bool ShownWindow::PaintWatcher::eventFilter(QObject *, QEvent *event)
{
    painted = painted || event->type() == QEvent::Paint;
    return false;
}

BareInterface::BareInterface(const LoadedBundle &loaded)
    : mPath(loaded.bundle()->bundlePath() + QStringLiteral("/Resources/PageSettingPDE.ui"))
{
}

void BareInterface::load()
{
    BareLoader loader;
    QFile file(mPath);
    mView = file.open(QIODevice::ReadOnly) ? loader.load(&file) : nullptr;
    ASSERT_NE(mView, nullptr) << "The interface file cannot be loaded by itself.";
    mWindow.place(mView);
}

void BareInterface::show()
{
    mWindow.show();
}

BenchedPanel::BenchedPanel(const LoadedBundle &loaded, OpenPpd ppd)
    : mCallback(std::make_shared<RecordingCallback>(std::move(ppd))), mPlugIn(loaded.newPlugIn())
{
    // The page size in use is the last one: see ppdOfSize.
    const ppd_file_t *sizes = mCallback->ppd.get();
    mCallback->usePaper(sizes->sizes[sizes->num_sizes - 1].name);
}

BenchedPanel::~BenchedPanel()
{
    mPanel.reset();
    mPlugIn.reset();
}

void BenchedPanel::construct()
{
    const pdekit::PanelArray *panels = mPlugIn->PDEPanelsForType(pdekit::kPrinterModulePanelType, mCallback);
    ASSERT_TRUE(panels != nullptr && panels->size() == 1) << "The bundle makes no panel.";
    mPanel = panels->front();
}

void BenchedPanel::show()
{
    mPanel->panelName();
    mPanel->panelKind();
    mPanel->supportedPPDOptionKeys();
    QWidget *view = mPanel->panelView();
    ASSERT_NE(view, nullptr) << "The panel has no view.";
    mWindow.place(view);
    mPanel->willShow();
    mWindow.show();
}
