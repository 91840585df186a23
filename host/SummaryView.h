// SPDX-License-Identifier: Apache-2.0
// The summary area: what every panel set, as titles and values.
#pragma once

#include "host/DialogModel.h"

#include <QTreeWidget>

#include <vector>

namespace tapeprint
{

class SummaryView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SummaryView(QWidget *parent = nullptr);

    /// Shows a summary. The lines keep their place on the screen while the person looks at them.
    void show(const std::vector<PanelSummary> &summary);
    using QWidget::show;
};

} // namespace tapeprint
