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
#include <QScrollBar>
#include <QStackedWidget>

#include <algorithm>

namespace tapeprint::dialog
{

void PrintDialog::helpPeople()
{
    auto *decimalKey = new DecimalKey([this](const QWidget &widget) { return isInPanel(widget); }, this);
    auto *reasons = new GreyedReason(this, [this](const QWidget &control) { return whyGrey(control); });
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

QString PrintDialog::whyGrey(const QWidget &control) const
{
    if (mRun.phase() != PrintRun::Phase::Idle) {
        return tr("The job is being printed.");
    }
    if (mGreyed.isOn()) {
        return mPrinters.isOpening() ? tr("The printer is still being connected.") : tr("Choose a printer first.");
    }
    if (&control == mTapePopUp) {
        return tr("The printer offers no choice here.");
    }
    return mPages->isAncestorOf(&control) ? whyGreyInThePages(control) : QString();
}

/// A panel tells of no control why it is switched off, nor which option it stands for: what can be said is which
/// control it is, whose, and what such a thing depends on.
QString PrintDialog::whyGreyInThePages(const QWidget &control) const
{
    const QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(const_cast<QWidget *>(&control));
    QString name = heard == nullptr ? QString() : job::harmless(heard->text(QAccessible::Name).simplified());
    while (name.endsWith(u':') || name.endsWith(u'：')) {
        name.chop(1);
    }
    const Page *page = currentPage();
    if (name.isEmpty() || page == nullptr || !page->panel || !isInPanel(control)) {
        return tr("Not available with this printer, this tape or the other settings.");
    }
    return tr("“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.",
              "a control, and the page of settings that it stands on")
        .arg(name.trimmed(), mPanels.entries()[*page->panel].name);
}

} // namespace tapeprint::dialog
