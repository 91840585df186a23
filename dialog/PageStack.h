// SPDX-License-Identifier: Apache-2.0
// The pages of which one is seen: as large as the largest of them would like, but in need of no more room than the one
// that is seen, so that no page scrolls because of another.
#pragma once

#include <QStackedWidget>

namespace tapeprint::dialog
{

class PageStack : public QStackedWidget
{
public:
    explicit PageStack(QWidget *parent = nullptr) : QStackedWidget(parent)
    {
        connect(this, &QStackedWidget::currentChanged, this, &QWidget::updateGeometry);
    }

    QSize minimumSizeHint() const override
    {
        const QWidget *page = currentWidget();
        // A panel may have given its view a size of its own.
        return page == nullptr ? QStackedWidget::minimumSizeHint()
                               : page->minimumSizeHint().expandedTo(page->minimumSize());
    }
};

} // namespace tapeprint::dialog
