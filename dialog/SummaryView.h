// SPDX-License-Identifier: Apache-2.0
// The summary area: what every panel set, as titles and values.
#pragma once

#include "dialog/Panels.h"

#include <QTreeWidget>

#include <vector>

namespace tapeprint::dialog
{

class SummaryView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SummaryView(QWidget *parent = nullptr);

    /// Shows a summary. The lines keep their place on the screen while the person looks at them.
    void showSummary(const std::vector<PanelSummary> &summary);

    /// As high as its lines.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

} // namespace tapeprint::dialog
