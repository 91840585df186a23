// SPDX-License-Identifier: Apache-2.0
// The keys go to the search line, which passes on those that move in the list.
#include "dialog/PrinterPopUp.h"

#include "dialog/PrinterModel.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QStyleOptionComboBox>
#include <QVBoxLayout>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

constexpr int shownRows = 14;
constexpr int frameMargin = 2;

/// Keys that move in the list while the search line has the others.
bool movesInList(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

PrinterPopUp::PrinterPopUp(QWidget *parent) : PopUp(parent) {}

void PrinterPopUp::initStyleOption(QStyleOptionComboBox *option) const
{
    PopUp::initStyleOption(option);
    // What the printer has to say stands in the notices.
    option->currentText = currentIndex() < 0 ? placeholderText() : currentData(PrinterModel::TitleRole).toString();
}

void PrinterPopUp::makeSearch()
{
    mSearch = new QFrame(this, Qt::Popup);
    mSearch->setFrameShape(QFrame::StyledPanel);
    mLine = new QLineEdit(mSearch);
    mLine->setObjectName(QStringLiteral("printerSearch"));
    mLine->setPlaceholderText(tr("Search by name, description or location"));
    mLine->setAccessibleName(tr("Search printers"));
    mLine->setClearButtonEnabled(true);
    mLine->installEventFilter(this);
    mFound = new QSortFilterProxyModel(mSearch);
    mFound->setFilterRole(PrinterModel::SearchRole);
    mFound->setFilterCaseSensitivity(Qt::CaseInsensitive);
    mFound->setSourceModel(model());
    mList = new QListView(mSearch);
    mList->setObjectName(QStringLiteral("foundPrinters"));
    mList->setAccessibleName(tr("Printers"));
    mList->setModel(mFound);
    mList->setUniformItemSizes(true); // however many there are
    mList->setTextElideMode(Qt::ElideMiddle);
    mList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mList->setFocusPolicy(Qt::NoFocus);
    auto *layout = new QVBoxLayout(mSearch);
    layout->setContentsMargins(frameMargin, frameMargin, frameMargin, frameMargin);
    layout->setSpacing(frameMargin);
    layout->addWidget(mLine);
    layout->addWidget(mList);
    connect(mLine, &QLineEdit::textChanged, this, &PrinterPopUp::search);
    connect(mLine, &QLineEdit::returnPressed, this, [this] { choose(mList->currentIndex()); });
    connect(mList, &QListView::clicked, this, &PrinterPopUp::choose);
}

void PrinterPopUp::showPopup()
{
    if (count() <= mostWithoutSearch) {
        PopUp::showPopup();
        return;
    }
    if (mSearch == nullptr) {
        makeSearch();
    }
    mLine->clear();
    const QRect screenArea = screen()->availableGeometry();
    const int rowHeight = std::max(mList->sizeHintForRow(0), 1);
    const QSize size(
        std::min(std::max(width(), mList->sizeHintForColumn(0) + 2 * rowHeight), screenArea.width() * 2 / 3),
        std::min(mLine->sizeHint().height() + shownRows * rowHeight + 4 * frameMargin, screenArea.height()));
    QPoint place = mapToGlobal(QPoint(0, height()));
    place.setX(
        std::clamp(place.x(), screenArea.left(), std::max(screenArea.left(), screenArea.right() - size.width())));
    place.setY(
        std::clamp(place.y(), screenArea.top(), std::max(screenArea.top(), screenArea.bottom() - size.height())));
    mSearch->setGeometry(QRect(place, size));
    mSearch->show();
    mLine->setFocus();
    mList->setCurrentIndex(meant(QString()));
    mList->scrollTo(mList->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void PrinterPopUp::hidePopup()
{
    if (mSearch != nullptr) {
        mSearch->hide();
    }
    PopUp::hidePopup();
}

void PrinterPopUp::search(const QString &text)
{
    mFound->setFilterFixedString(text);
    mList->setCurrentIndex(meant(text));
    mList->scrollTo(mList->currentIndex());
}

/// What Return takes: the printer of that very name, else the first whose name begins so, else the first found. Without
/// a text it is the one that is open.
QModelIndex PrinterPopUp::meant(const QString &text) const
{
    QModelIndex best = mFound->index(0, 0);
    if (text.isEmpty()) {
        const QModelIndex current = mFound->mapFromSource(model()->index(currentIndex(), 0));
        return current.isValid() ? current : best;
    }
    bool isBeginning = false;
    for (int row = 0; row < mFound->rowCount(); ++row) {
        const QModelIndex found = mFound->index(row, 0);
        const QString name = found.data(PrinterModel::NameRole).toString();
        if (name.compare(text, Qt::CaseInsensitive) == 0) {
            return found;
        }
        if (!isBeginning && name.startsWith(text, Qt::CaseInsensitive)) {
            best = found;
            isBeginning = true;
        }
    }
    return best;
}

void PrinterPopUp::choose(const QModelIndex &found)
{
    if (!found.isValid()) {
        QApplication::beep();
        return;
    }
    const int row = mFound->mapToSource(found).row();
    mSearch->hide();
    setCurrentIndex(row);
    Q_EMIT activated(row);
}

bool PrinterPopUp::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mLine && event->type() == QEvent::KeyPress && movesInList(static_cast<QKeyEvent *>(event)->key())) {
        QApplication::sendEvent(mList, event);
        return true;
    }
    return PopUp::eventFilter(watched, event);
}

} // namespace tapeprint::dialog
