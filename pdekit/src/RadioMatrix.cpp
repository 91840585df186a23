// SPDX-License-Identifier: Apache-2.0
// The radio matrix: radio buttons in an exclusive group, so that arrow keys move the selection as people expect.
#include "pdekit/RadioMatrix.h"

#include "AccessibleControls.h"
#include "InterruptedPress.h"

#include <QButtonGroup>
#include <QMouseEvent>
#include <QRadioButton>
#include <QVBoxLayout>

namespace pdekit
{

namespace
{

/// A title is shown as it is: an ampersand in it marks no key. People who cannot see it hear the same words.
void showTitle(QRadioButton *button, const QString &title)
{
    button->setText(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
    button->setAccessibleName(title);
}

class Row : public QRadioButton
{
public:
    using QRadioButton::QRadioButton;

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        QRadioButton::mousePressEvent(event);
        completePress(this, *event);
    }
};

} // namespace

RadioMatrix::RadioMatrix(QWidget *parent) : QWidget(parent), mGroup(new QButtonGroup(this))
{
    makeControlsAccessible();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    mGroup->setExclusive(true);
    connect(mGroup, &QButtonGroup::idClicked, this, &RadioMatrix::action);
    // The Tab key comes to the selected row, so that Space there changes nothing.
    connect(mGroup, &QButtonGroup::buttonToggled, this, [](QAbstractButton *button, bool selected) {
        button->setFocusPolicy(selected ? Qt::StrongFocus : Qt::ClickFocus);
    });
}

RadioMatrix::~RadioMatrix() = default;

QStringList RadioMatrix::titles() const
{
    QStringList titles;
    for (const QRadioButton *button : mRows) {
        titles.append(button->accessibleName());
    }
    return titles;
}

void RadioMatrix::setTitles(const QStringList &titles)
{
    const auto count = static_cast<std::size_t>(titles.size());
    while (mRows.size() > count) {
        // Later: the button may be the one whose click is being handled.
        QRadioButton *button = mRows.back();
        mRows.pop_back();
        mGroup->removeButton(button);
        layout()->removeWidget(button);
        button->hide();
        button->deleteLater();
    }
    while (mRows.size() < count) {
        auto *button = new Row(this);
        button->setFocusPolicy(Qt::ClickFocus);
        mGroup->addButton(button, static_cast<int>(mRows.size()));
        layout()->addWidget(button);
        mRows.push_back(button);
    }
    for (std::size_t row = 0; row < count; ++row) {
        showTitle(mRows[row], titles[static_cast<qsizetype>(row)]);
    }
    selectCellAtRow(0, 0);
}

int RadioMatrix::numberOfRows() const
{
    return static_cast<int>(mRows.size());
}

int RadioMatrix::selectedRow() const
{
    return mGroup->checkedId();
}

void RadioMatrix::selectCellAtRow(int row, int column)
{
    if (QAbstractButton *button = cellAtRow(row, column)) {
        button->setChecked(true);
    }
}

void RadioMatrix::setTitleOfCell(const QString &title, int row, int column)
{
    if (cellAtRow(row, column) != nullptr) {
        showTitle(mRows[static_cast<std::size_t>(row)], title);
    }
}

QAbstractButton *RadioMatrix::cellAtRow(int row, int column) const
{
    if (row < 0 || row >= numberOfRows() || column != 0) {
        return nullptr;
    }
    return mRows[static_cast<std::size_t>(row)];
}

} // namespace pdekit
