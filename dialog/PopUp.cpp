// SPDX-License-Identifier: Apache-2.0
// The toolkit cuts a text that is too long in the middle of a letter; here it ends in dots. And it makes the list that
// opens as soon as anything is set that the list or the size depends on: here it is made when it opens first.
#include "dialog/PopUp.h"

#include "dialog/PlainText.h"
#include "dialog/Shortened.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <numeric>
#include <utility>
#include <vector>

namespace tapeprint::dialog
{

namespace
{

constexpr int leastLetters = 12;
/// A list of more opens as an editable box's does, below the control and with a scroll bar.
constexpr int mostWithoutScrollBar = 200;
constexpr int rowsBesideScrollBar = 20;

} // namespace

PopUp::PopUp(QWidget *parent) : QComboBox(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PopUp::setWishedLetters(int letters)
{
    mWishedLetters = letters;
    updateGeometry();
}

void PopUp::setHasItemsAlike(bool hasItemsAlike)
{
    mHasItemsAlike = hasItemsAlike;
}

QSize PopUp::sizeHint() const
{
    const int more = std::max(mWishedLetters - leastLetters, 0);
    return minimumSizeHint() + QSize(more * fontMetrics().averageCharWidth(), 0);
}

QSize PopUp::minimumSizeHint() const
{
    constexpr int beforeText = 4;
    constexpr int aroundText = 2;
    const QFontMetrics metrics = fontMetrics();
    const int width = leastLetters * metrics.horizontalAdvance(u'X') + iconSize().width() + beforeText;
    const int height = std::max(metrics.height(), iconSize().height()) + aroundText;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, {width, height}, this);
}

int PopUp::listWidth() const
{
    // The widest text is one of those with the most letters; of ten thousand papers, measuring each would be felt.
    constexpr std::size_t mostMeasured = 50;
    std::vector<std::pair<qsizetype, int>> lettersAndRow;
    lettersAndRow.reserve(static_cast<std::size_t>(count()));
    for (int row = 0; row < count(); ++row) {
        lettersAndRow.emplace_back(itemText(row).size(), row);
    }
    const auto end = lettersAndRow.begin() + static_cast<std::ptrdiff_t>(std::min(lettersAndRow.size(), mostMeasured));
    std::partial_sort(lettersAndRow.begin(), end, lettersAndRow.end(), std::greater<>());
    return std::accumulate(lettersAndRow.begin(), end, 0, [this](int width, const auto &measured) {
        const QModelIndex index = model()->index(measured.second, modelColumn(), rootModelIndex());
        return std::max(width, view()->sizeHintForIndex(index).width());
    });
}

int PopUp::textWidth() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width() - 2;
    return option.currentIcon.isNull() ? room : room - option.iconSize.width() - 4;
}

bool PopUp::isCut() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return fontMetrics().horizontalAdvance(option.currentText) > textWidth();
}

void PopUp::showPopup()
{
    mIsOpeningLongList = count() > mostWithoutScrollBar;
    if (mIsOpeningLongList) {
        setMaxVisibleItems(rowsBesideScrollBar);
        view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        removeArrows();
    }
    const int bar = view()->verticalScrollBar()->sizeHint().width() + 2 * view()->frameWidth();
    const int most = screen()->availableSize().width() * 2 / 3;
    view()->setTextElideMode(Qt::ElideMiddle);
    if (auto *list = qobject_cast<QListView *>(view()); list != nullptr && mHasItemsAlike) {
        // Or each of ten thousand would be measured and placed before the first is seen.
        list->setUniformItemSizes(true);
        list->setLayoutMode(QListView::Batched);
    }
    view()->setMinimumWidth(std::min(listWidth() + bar, most));
    QComboBox::showPopup();
    mIsOpeningLongList = false;
}

/// The toolkit makes the list's frame for one without a scroll bar, with arrows at its ends. They are known by their
/// class alone; where a toolkit calls it otherwise, they stay beside the scroll bar.
void PopUp::removeArrows() const
{
    for (QWidget *part : view()->parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (part->inherits("QComboBoxPrivateScroller")) {
            part->setFixedHeight(0);
        }
    }
}

void PopUp::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    // A list that opens over the control is made wide enough by the toolkit, which measures all of ten thousand texts
    // for that; and it is moved along by arrows at its ends alone.
    option->editable = option->editable || mIsOpeningLongList;
}

bool PopUp::event(QEvent *event)
{
    // A tooltip that was set, such as a reason, goes first.
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isCut()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(currentText()), this);
        return true;
    }
    return QComboBox::event(event);
}

void PopUp::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    option.currentText = shortened(option.currentText, fontMetrics(), textWidth());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace tapeprint::dialog
