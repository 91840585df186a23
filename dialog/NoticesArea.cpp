// SPDX-License-Identifier: Apache-2.0
// The height follows from the width at which the sentences are wrapped.
#include "dialog/NoticesArea.h"

#include <QHash>
#include <QLabel>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tapeprint::dialog
{

namespace
{

constexpr int mostLines = 4;
constexpr int margin = 4;

/// Wrapped sentences. The layouts ask for their height at a few widths over and over, and each answer costs the shaping
/// of every word: it is remembered. A label that can be selected from keeps a whole text document, which costs twice
/// that: this one can be from when the pointer comes.
class Sentences : public QLabel
{
public:
    explicit Sentences(QWidget *parent) : QLabel(parent)
    {
        setWordWrap(true);
        setTextFormat(Qt::PlainText);
    }

    int heightForWidth(int width) const override
    {
        if (mMeasured != text()) {
            mMeasured = text();
            mHeights.clear();
        }
        const auto known = mHeights.constFind(width);
        return known != mHeights.constEnd() ? *known : *mHeights.insert(width, QLabel::heightForWidth(width));
    }
    QSize sizeHint() const override { return minimumSizeHint(); }
    /// As narrow as may be, which costs no measuring: the area around it sets the width.
    QSize minimumSizeHint() const override { return {1, fontMetrics().lineSpacing()}; }

protected:
    void changeEvent(QEvent *event) override
    {
        mHeights.clear(); // of another font or style
        QLabel::changeEvent(event);
    }
    void enterEvent(QEnterEvent *event) override
    {
        setTextInteractionFlags(Qt::TextSelectableByMouse);
        QLabel::enterEvent(event);
    }

private:
    mutable QString mMeasured;
    mutable QHash<int, int> mHeights;
};

} // namespace

NoticesArea::NoticesArea(QWidget *parent) : QScrollArea(parent)
{
    setObjectName(QStringLiteral("noticesArea"));
    setAccessibleName(tr("Notices"));
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::StyledPanel);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    // The keys come here only where something scrolls.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int /*least*/, int most) { setFocusPolicy(most > 0 ? Qt::TabFocus : Qt::NoFocus); });
    auto *content = new QWidget;
    mColumn = new QVBoxLayout(content);
    mColumn->setContentsMargins(margin, margin, margin, margin);
    mSentences = new Sentences(content);
    mSentences->setObjectName(QStringLiteral("notices"));
    mColumn->addWidget(mSentences);
    setWidget(content);
    hide();
}

void NoticesArea::setSentences(const QString &sentences)
{
    if (sentences != mSentences->text()) {
        mSentences->setText(sentences);
    }
    mSentences->setVisible(!sentences.isEmpty());
    notice();
}

void NoticesArea::addNotice(QWidget *notice)
{
    mColumn->addWidget(notice);
}

void NoticesArea::notice()
{
    bool isAny = false;
    for (int i = 0; i < mColumn->count(); ++i) {
        isAny = isAny || !mColumn->itemAt(i)->isEmpty();
    }
    setVisible(isAny);
    updateGeometry();
    const int wished = isAny ? heightFor(width()) : 0;
    if (wished > std::exchange(mNoticedHeight, wished)) {
        Q_EMIT grew();
    }
}

int NoticesArea::heightFor(int width) const
{
    const int frame = 2 * frameWidth();
    const int most = mostLines * fontMetrics().lineSpacing() + 2 * margin;
    const int inner = std::max(width - frame, 1);
    const int whole =
        mColumn->hasHeightForWidth() ? mColumn->totalHeightForWidth(inner) : mColumn->totalSizeHint().height();
    return std::min(whole, most) + frame;
}

QSize NoticesArea::sizeHint() const
{
    constexpr int usualWidth = 400;
    return {usualWidth, heightFor(width())};
}

QSize NoticesArea::minimumSizeHint() const
{
    return {1, heightFor(width())};
}

void NoticesArea::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        updateGeometry();
    }
}

} // namespace tapeprint::dialog
