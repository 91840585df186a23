// SPDX-License-Identifier: Apache-2.0
// Rows that share an edge with what stands below them, though no layout holds both.
#pragma once

#include <QPointer>
#include <QWidget>

namespace tapeprint::dialog
{

/// Seen by nobody: it would like its cell to be as wide as another widget is, and insists on nothing.
class SameWidth : public QWidget
{
    Q_OBJECT

public:
    explicit SameWidth(QWidget *parent);

    /// \param like whose width it is; not owned. Null: nobody's.
    void follow(QWidget *like);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, 0}; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> mLike;
};

} // namespace tapeprint::dialog
