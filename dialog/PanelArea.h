// SPDX-License-Identifier: Apache-2.0
// The scrolling area of the panels' views, which asks for as much room as the largest view takes, so that nothing
// scrolls on a screen that is large enough.
#pragma once

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace tapeprint::dialog
{

class PanelArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override
    {
        if (widget() == nullptr) {
            return QScrollArea::sizeHint();
        }
        const int frame = 2 * frameWidth();
        const QSize content = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
        const QSize whole = content + QSize(frame, frame);
        // A view that is cut in height alone gets room for the bar beside it.
        const QSize most = screen()->availableSize() * 2 / 3;
        const int bar = whole.height() > most.height() ? verticalScrollBar()->sizeHint().width() : 0;
        // And a view that cannot be narrower all that it needs: where that is too much, what stands beside it gives
        // way.
        const int needed = std::min(widget()->minimumSizeHint().width() + frame, screen()->availableSize().width());
        return (whole + QSize(bar, 0)).boundedTo(most).expandedTo(QSize(needed, 0));
    }
};

} // namespace tapeprint::dialog
