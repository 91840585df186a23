// SPDX-License-Identifier: Apache-2.0
// A text that does not begin with a letter from the right is put between Unicode's marks of an isolate from the left.
#include "dialog/OwnDirectionStyle.h"

#include <QApplication>
#include <QStyleOptionMenuItem>
#include <QStyleOptionViewItem>

namespace tapeprint::dialog
{

namespace
{

QString isolated(const QString &text)
{
    constexpr QChar leftToRightIsolate(0x2066);
    constexpr QChar endOfIsolate(0x2069);
    return text.isEmpty() || text.isRightToLeft() ? text : leftToRightIsolate + text + endOfIsolate;
}

/// A menu's text has its keys behind a tabulator, in a column of their own.
QString isolatedEntry(const QString &text)
{
    const qsizetype end = text.indexOf(u'\t');
    return end < 0 ? isolated(text) : isolated(text.left(end)) + text.mid(end);
}

} // namespace

void OwnDirectionStyle::takeWhereMirrored()
{
    if (QApplication::isRightToLeft()) {
        QApplication::setStyle(new OwnDirectionStyle(QApplication::style())); // the application's from here on
    }
}

void OwnDirectionStyle::drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                                     bool isEnabled, const QString &text, QPalette::ColorRole role) const
{
    QProxyStyle::drawItemText(painter, rect, flags, palette, isEnabled, isolated(text), role);
}

void OwnDirectionStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                    const QWidget *widget) const
{
    // These two are written without drawItemText().
    if (const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
        element == CE_ItemViewItem && item != nullptr) {
        QStyleOptionViewItem own(*item);
        own.text = isolated(item->text);
        QProxyStyle::drawControl(element, &own, painter, widget);
    } else if (const auto *entry = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
               element == CE_MenuItem && entry != nullptr) {
        QStyleOptionMenuItem own(*entry);
        own.text = isolatedEntry(entry->text);
        QProxyStyle::drawControl(element, &own, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

} // namespace tapeprint::dialog
