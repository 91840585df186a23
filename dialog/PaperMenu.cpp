// SPDX-License-Identifier: Apache-2.0
// Items carry the value of PageSize as data; the one that opens the sheet carries none.
#include "dialog/PaperMenu.h"

#include "dialog/CustomSizeSheet.h"
#include "dialog/PlainText.h"
#include "job/OptionGroups.h"
#include "job/PpdMarks.h"

#include <QComboBox>

#include <algorithm>
#include <cmath>

namespace tapeprint::dialog
{

namespace
{

bool isSameSize(const QSizeF &left, const QSizeF &right)
{
    constexpr double slackPt = 0.01;
    return std::abs(left.width() - right.width()) < slackPt && std::abs(left.height() - right.height()) < slackPt;
}

} // namespace

PaperMenu::PaperMenu(QComboBox &popUp, const job::Job &job, const MeasureUnit &unit, QObject *parent)
    : QObject(parent), mPopUp(popUp), mJob(job), mUnit(unit)
{
    // "activated" is the person's act alone.
    connect(&mPopUp, &QComboBox::activated, this, &PaperMenu::pick);
    connect(&mUnit, &MeasureUnit::changed, this, [this] {
        fill();
        follow();
    });
}

QString PaperMenu::sizeText(const QSizeF &sizePt) const
{
    return tr("%1 × %2", "width and height of a page")
        .arg(mUnit.measureText(sizePt.width()), mUnit.measureText(sizePt.height()));
}

void PaperMenu::fill()
{
    mPopUp.clear();
    mUnnamed = QString();
    const job::OfferedOption papers = job::offeredOption(mJob.ppd(), job::OptionName::pageSize);
    mPopUp.setEnabled(!papers.choices.empty());
    mPopUp.setToolTip(papers.choices.empty() ? plainToolTip(tr("The printer's description names no paper."))
                                             : QString());
    for (const job::OfferedChoice &paper : papers.choices) {
        mPopUp.addItem(paper.text, paper.keyword);
    }
    if (job::customSizeParameters(mJob.ppd()).empty()) {
        return;
    }
    for (const job::NamedSize &size : mNamed.all()) {
        if (job::takesCustomSize(mJob.ppd(), size.sizePt)) {
            mPopUp.addItem(tr("%1 (%2)", "a size's name and its measures").arg(size.name, sizeText(size.sizePt)),
                           job::customSizeName(size.sizePt));
        }
    }
    mPopUp.addItem(tr("Custom…", "opens a sheet for a page size of one's own"));
}

int PaperMenu::rowOf(const QString &paper) const
{
    const std::optional<QSizeF> size = job::customSizeOf(paper);
    for (int row = 0; row < mPopUp.count(); ++row) {
        const QString offered = mPopUp.itemData(row).toString();
        const std::optional<QSizeF> offeredSize = size ? job::customSizeOf(offered) : std::nullopt;
        if (offeredSize ? isSameSize(*size, *offeredSize) : !offered.isNull() && offered == paper) {
            return row;
        }
    }
    return -1;
}

void PaperMenu::follow()
{
    const QString paper = job::markedValue(mJob.ppd(), job::OptionName::pageSize);
    const std::optional<QSizeF> size = job::customSizeOf(paper);
    int row = rowOf(paper);
    if (row < 0 && size) {
        // A size without a name, from the command line or the sheet: one at a time, before the last item.
        if (const int old = mUnnamed.isNull() ? -1 : rowOf(mUnnamed); old >= 0) {
            mPopUp.removeItem(old);
        }
        mUnnamed = paper;
        row = std::max(mPopUp.count() - 1, 0);
        mPopUp.insertItem(row, tr("Custom (%1)", "a page size of one's own").arg(sizeText(*size)), paper);
    }
    if (row != mPopUp.currentIndex()) {
        mPopUp.setCurrentIndex(row);
    }
}

void PaperMenu::pick(int row)
{
    const QString paper = mPopUp.itemData(row).toString();
    if (!paper.isNull()) {
        Q_EMIT picked(paper);
        return;
    }
    follow(); // the paper stays until there is another
    openSheet();
}

void PaperMenu::openSheet()
{
    std::vector<job::NamedSize> taken;
    for (const job::NamedSize &size : mNamed.all()) {
        if (job::takesCustomSize(mJob.ppd(), size.sizePt)) {
            taken.push_back(size);
        }
    }
    const QSizeF first = mCurrentSize ? mCurrentSize() : mJob.page().sizePt;
    mSheet = new CustomSizeSheet(job::customSizeParameters(mJob.ppd()), taken, first, mUnit, mPopUp.window());
    mSheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(mSheet, &CustomSizeSheet::sizeEntered, this, &PaperMenu::takeSize);
    connect(mSheet, &CustomSizeSheet::removed, this, [this](const QString &name) {
        job::Problem reason;
        const bool isKept = mNamed.remove(name, &reason);
        fill();
        follow();
        if (!isKept) {
            Q_EMIT problem(reason.sentence);
        }
    });
    mSheet->open();
}

void PaperMenu::takeSize(const job::NamedSize &size)
{
    job::Problem reason;
    const bool isKept = size.name.isEmpty() || mNamed.add(size, &reason);
    fill();
    Q_EMIT picked(job::customSizeName(size.sizePt));
    follow();
    if (!isKept) {
        Q_EMIT problem(reason.sentence);
    }
}

} // namespace tapeprint::dialog
