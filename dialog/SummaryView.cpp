// SPDX-License-Identifier: Apache-2.0
// A read-only list of two columns. It is filled anew at every change, which costs little: a panel says a dozen lines.
#include "dialog/SummaryView.h"

#include "dialog/PlainText.h"

#include <QHeaderView>

#include <algorithm>

namespace tapeprint::dialog
{

SummaryView::SummaryView(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("summary"));
    setAccessibleName(tr("Summary"));
    setColumnCount(2);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setAlternatingRowColors(true);
    setWordWrap(true);
    // Left to itself the header would measure every line at each change of the view's size.
    header()->setSectionResizeMode(0, QHeaderView::Fixed);
    header()->setMinimumSectionSize(0);
    header()->setStretchLastSection(true);
}

void SummaryView::showSummary(const std::vector<PanelSummary> &summary)
{
    QList<QTreeWidgetItem *> items;
    int titleWidth = 0;
    for (const PanelSummary &panel : summary) {
        // One panel needs no heading of its own.
        if (summary.size() > 1) {
            auto *heading = new QTreeWidgetItem({panel.panelName});
            heading->setFirstColumnSpanned(true);
            QFont bold = font();
            bold.setBold(true);
            heading->setFont(0, bold);
            items.append(heading);
        }
        for (const auto &[title, value] : panel.lines) {
            auto *item = new QTreeWidgetItem({title, value});
            item->setToolTip(1, plainToolTip(value));
            items.append(item);
            titleWidth = std::max(titleWidth, fontMetrics().horizontalAdvance(title));
        }
    }
    clear();
    constexpr int gaps = 4; // the style's, before and after a text
    header()->resizeSection(0, titleWidth +
                                   gaps * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1));
    addTopLevelItems(items);
    updateGeometry();
}

QSize SummaryView::sizeHint() const
{
    constexpr int usualWidth = 260;
    return {usualWidth, std::max(viewportSizeHint().height() + 2 * frameWidth(), minimumSizeHint().height())};
}

QSize SummaryView::minimumSizeHint() const
{
    constexpr int leastWidth = 200;
    constexpr int leastLines = 3;
    return {leastWidth, leastLines * fontMetrics().lineSpacing() + 2 * frameWidth()};
}

} // namespace tapeprint::dialog
