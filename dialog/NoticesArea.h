// SPDX-License-Identifier: Apache-2.0
// Everything that the person has to know before printing, between the printer's rows and the settings.
#pragma once

#include <QScrollArea>

class QLabel;
class QVBoxLayout;

namespace tapeprint::dialog
{

/// A column of notices, as high as they are and never higher than a few lines: what is longer scrolls. Hidden while
/// there is none.
class NoticesArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit NoticesArea(QWidget *parent = nullptr);

    /// The sentences, one on a line; empty for none.
    void setSentences(const QString &sentences);
    /// A notice of another kind, such as one with a button, below the sentences. It becomes the area's, and is shown
    /// and hidden by its owner, who calls notice() afterwards.
    void addNotice(QWidget *notice);
    /// A notice came, went, or changed its size.
    void notice();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// There is more to read than before.
    void grew();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int heightFor(int width) const;

    QVBoxLayout *mColumn = nullptr;
    QLabel *mSentences = nullptr;
    int mNoticedHeight = 0; ///< that was wished for last
};

} // namespace tapeprint::dialog
