// SPDX-License-Identifier: Apache-2.0
// What the window does for everyone: letters of its controls, the decimal key of the person's language, and why
// something is grey.
#include "dialog/DecimalKey.h"
#include "dialog/GreyedReason.h"
#include "dialog/Mnemonics.h"
#include "dialog/NoticesArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/TabOrder.h"
#include "job/PlainText.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

/// What a screen reader calls a control, without the colon of its title; a choice among several goes by what is chosen.
QString spokenName(const QWidget &control)
{
    const QWidget *spoken = &control;
    if (qobject_cast<const QRadioButton *>(spoken) != nullptr && !spoken->parentWidget()->accessibleName().isEmpty()) {
        spoken = spoken->parentWidget();
    }
    const QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(spoken));
    QString name = heard == nullptr ? QString() : job::harmless(heard->text(QAccessible::Name).simplified());
    while (name.endsWith(u':') || name.endsWith(u'：') || name.endsWith(u' ')) {
        name.chop(1);
    }
    return name;
}

} // namespace

void PrintDialog::helpPeople()
{
    auto *decimalKey = new DecimalKey([this](const QWidget &widget) { return isInPanel(widget); }, this);
    auto *reasons =
        new GreyedReason(this, [this](const QWidget &off, const QWidget *changed) { return whyGrey(off, changed); });
    QApplication::instance()->installEventFilter(decimalKey);
    QApplication::instance()->installEventFilter(reasons);
    // Notices take the keys as long as they scroll.
    connect(mNotices->verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this] { orderTabsByLayout(*this, mPages); });
}

void PrintDialog::addHelpButton()
{
    mHelpButton = new QPushButton(tr("&Help"), mRevertButton->parentWidget());
    mHelpButton->setObjectName(QStringLiteral("help"));
    mHelpButton->setToolTip(tr("Help for this page of the settings"));
    mHelpButton->setAutoDefault(false);
    mHelpButton->hide();
    mMoreButtonsPlace->addWidget(mHelpButton);
    connect(mHelpButton, &QPushButton::clicked, this, [this] {
        if (const Page *page = currentPage(); page != nullptr && page->panel) {
            mPanels.showHelp(*page->panel);
            follow(); // what went wrong is said
        }
    });
}

void PrintDialog::showWhetherHelp()
{
    const Page *page = currentPage();
    mHelpButton->setVisible(page != nullptr && page->panel && mPanels.hasHelp(*page->panel));
}

void PrintDialog::assignKeys()
{
    QList<const QWidget *> views;
    for (const PanelEntry &entry : mPanels.entries()) {
        if (entry.view != nullptr) {
            views.append(entry.view);
        }
    }
    assignMnemonics(*this, views);
}

bool PrintDialog::isInPanel(const QWidget &widget) const
{
    return std::any_of(mPageList.begin(), mPageList.end(), [&widget](const Page &page) {
        return page.panel && page.widget != nullptr && page.widget->isAncestorOf(&widget);
    });
}

QString PrintDialog::whyGrey(const QWidget &off, const QWidget *changed) const
{
    if (mRun.phase() != PrintRun::Phase::Idle) {
        return tr("The job is being printed.");
    }
    if (mGreyed.isOn()) {
        return mPrinters.isOpening() ? tr("The printer is still being connected.") : tr("Choose a printer first.");
    }
    if (&off == mTapePopUp) {
        return tr("The printer offers no choice here.");
    }
    return mPages->isAncestorOf(&off) ? whyGreyInThePages(off, changed) : QString();
}

/// A panel tells of no control why it is switched off, nor which option it stands for. What can be seen from outside is
/// whether there is anything to choose, and which control the person had just changed.
QString PrintDialog::whyGreyInThePages(const QWidget &off, const QWidget *changed) const
{
    const QString name = spokenName(off);
    const Page *page = currentPage();
    if (name.isEmpty() || page == nullptr || !page->panel || !isInPanel(off)) {
        return tr("Not available with this printer, this tape or the other settings.");
    }
    const auto *popUp = qobject_cast<const QComboBox *>(&off);
    if (popUp != nullptr && popUp->count() == 0) {
        return tr("“%1” is switched off by “%2”: this printer offers nothing to choose there.",
                  "a control, and the page of settings that it stands on")
            .arg(name, mPanels.entries()[*page->panel].name);
    }
    if (changed != nullptr && changed != &off && (changed == mTapePopUp || isInPanel(*changed))) {
        if (const QString other = spokenName(*changed); !other.isEmpty()) {
            return tr("“%1” does not go with what is set for “%2”.", "two controls").arg(name, other);
        }
    }
    return tr("“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.",
              "a control, and the page of settings that it stands on")
        .arg(name, mPanels.entries()[*page->panel].name);
}

} // namespace tapeprint::dialog
