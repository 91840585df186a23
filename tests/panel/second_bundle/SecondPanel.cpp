// SPDX-License-Identifier: Apache-2.0
// The one check box of the second panel, and the one choice that it sends.
#include "SecondPanel.h"

#include <utility>

#include <cups/ppd.h>

namespace
{

constexpr char kOption[] = "AutoCut";
constexpr char kOn[] = "True";
constexpr char kOff[] = "False";

} // namespace

SecondPanel::SecondPanel(std::shared_ptr<pdekit::PanelCallback> hostInfo, std::shared_ptr<pdekit::Bundle> bundle)
    : mHost(std::move(hostInfo)), mBundle(std::move(bundle)), mKeys{QString::fromLatin1(kOption)}
{
}

SecondPanel::~SecondPanel()
{
    delete mView.data();
}

QWidget *SecondPanel::panelView()
{
    if (mView) {
        return mView;
    }
    auto view = mBundle->loadInterface(QStringLiteral("SecondPanel"), {}, [this](const QString &name, QWidget *widget) {
        if (name == QLatin1String("secondCheckBox")) {
            mCheckBox = qobject_cast<QCheckBox *>(widget);
        }
    });
    if (!view || !mCheckBox) {
        return nullptr;
    }
    QObject::connect(mCheckBox, &QCheckBox::clicked, mCheckBox, [this] { sendChoice(); });
    mView = view.release();
    return mView;
}

QString SecondPanel::panelName()
{
    return mBundle->localizedStringForKey(QStringLiteral("SECOND_PANEL_NAME"));
}

QString SecondPanel::panelKind()
{
    return QStringLiteral("org.tapeprint.test.SecondPanel");
}

const QStringList *SecondPanel::supportedPPDOptionKeys()
{
    return &mKeys;
}

void SecondPanel::willShow()
{
    showMarkedChoice();
}

bool SecondPanel::shouldHide()
{
    return true;
}

bool SecondPanel::shouldPrint()
{
    return true;
}

bool SecondPanel::shouldShowHelp()
{
    return false;
}

void SecondPanel::PPDOptionKeyValueDidChange(const QString &key, const QString &choice)
{
    if (mCheckBox && key == mKeys.constFirst()) {
        mCheckBox->setChecked(choice == QLatin1String(kOn));
    }
}

bool SecondPanel::restoreValuesAndReturnError(QString *)
{
    showMarkedChoice();
    return true;
}

bool SecondPanel::saveValuesAndReturnError(QString *)
{
    sendChoice();
    return true;
}

std::optional<QVariantMap> SecondPanel::summaryInfo()
{
    if (!mCheckBox) {
        return std::nullopt;
    }
    const QString title = QStringLiteral("Cutting");
    return QVariantMap{{title, mCheckBox->isChecked() ? QStringLiteral("On") : QStringLiteral("Off")},
                       {pdekit::kSummaryDisplayOrder, QStringList{title}}};
}

void SecondPanel::printWindowWillClose(bool) {}

void SecondPanel::showMarkedChoice()
{
    ppd_file_t *ppd = mHost->ppdFile();
    if (!mCheckBox || ppd == nullptr) {
        return;
    }
    const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, kOption);
    mCheckBox->setChecked(marked != nullptr && qstrcmp(marked->choice, kOn) == 0);
}

void SecondPanel::sendChoice()
{
    if (mCheckBox) {
        mHost->willChangePPDOptionKeyValue(mKeys.constFirst(), QLatin1String(mCheckBox->isChecked() ? kOn : kOff));
    }
}
