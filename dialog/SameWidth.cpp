// SPDX-License-Identifier: Apache-2.0
// The other's width is known when it has been laid out; the rows are laid out once more then.
#include "dialog/SameWidth.h"

#include <QEvent>

namespace tapeprint::dialog
{

SameWidth::SameWidth(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    lower();
}

void SameWidth::follow(QWidget *like)
{
    if (mLike != nullptr) {
        mLike->removeEventFilter(this);
    }
    mLike = like;
    if (like != nullptr) {
        like->installEventFilter(this);
    }
    updateGeometry();
}

QSize SameWidth::sizeHint() const
{
    return {mLike == nullptr ? 0 : mLike->width(), 0};
}

bool SameWidth::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mLike && event->type() == QEvent::Resize) {
        updateGeometry();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tapeprint::dialog
