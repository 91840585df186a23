// SPDX-License-Identifier: Apache-2.0
// What a person reads in a window: texts that are cut off, and letters that lead to controls.
#pragma once

#include "dialog/ElidedLabel.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QWidget>

namespace hosttest
{

/// The room that a pop-up has for its text.
inline int roomForText(const QComboBox &popUp)
{
    QStyleOptionComboBox option;
    option.initFrom(&popUp);
    option.editable = popUp.isEditable();
    option.frame = popUp.hasFrame();
    return popUp.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &popUp)
        .adjusted(1, 0, -1, 0)
        .width();
}

/// The room that a field has for what stands in it before anything is typed.
inline int roomForText(const QLineEdit &field)
{
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
    constexpr int besideText = 2; // on each side, as the toolkit has it
    return field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field).width() - 2 * besideText;
}

/// Texts that are seen and do not fit their widgets, each with its widget's name. Texts that may be shortened, such as
/// names of printers, are none of them. \param popUps the names of pop-ups whose every item is to fit.
inline QStringList cutTexts(const QWidget &window, const QStringList &popUps = {})
{
    QStringList cut;
    const auto look = [&cut](const QWidget *widget, const QString &text, int has, int needs) {
        if (widget->isVisible() && !text.isEmpty() && has < needs) {
            cut.append(QStringLiteral("%1 \"%2\": %3 of %4 pixels")
                           .arg(widget->objectName(), text, QString::number(has), QString::number(needs)));
        }
    };
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->wordWrap()) {
            look(label, label->text(), label->height(), label->heightForWidth(label->width()));
        } else if (qobject_cast<const tapeprint::dialog::ElidedLabel *>(label) == nullptr) {
            look(label, label->text(), label->width(), label->sizeHint().width());
        }
    }
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        look(button, button->text(), button->width(), button->sizeHint().width());
    }
    for (const QGroupBox *box : window.findChildren<QGroupBox *>()) {
        look(box, box->title(), box->width(), box->minimumSizeHint().width());
    }
    for (const QLineEdit *field : window.findChildren<QLineEdit *>()) {
        const QString text = field->text().isEmpty() ? field->placeholderText() : QString();
        look(field, text, roomForText(*field), field->fontMetrics().horizontalAdvance(text));
    }
    for (const QString &name : popUps) {
        const auto *popUp = window.findChild<QComboBox *>(name);
        for (int i = 0; popUp != nullptr && i < popUp->count(); ++i) {
            const QString text = popUp->itemText(i);
            look(popUp, text, roomForText(*popUp), popUp->fontMetrics().horizontalAdvance(text));
        }
    }
    return cut;
}

/// The letters that lead to a window's controls with the Alt key, one for each control that has one.
inline QStringList lettersOf(const QWidget &window)
{
    QStringList letters;
    const auto take = [&](const QWidget *widget, const QString &text) {
        if (widget->window() != window.window()) { // a sheet over it
            return;
        }
        if (const QKeySequence letter = QKeySequence::mnemonic(text); !letter.isEmpty()) {
            letters.append(letter.toString());
        }
    };
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->buddy() != nullptr) {
            take(label, label->text());
        }
    }
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        take(button, button->text());
    }
    return letters;
}

/// Letters that two of a window's controls have.
inline QStringList lettersTwice(QStringList letters)
{
    QStringList once = letters;
    once.removeDuplicates();
    for (const QString &letter : once) {
        letters.removeOne(letter);
    }
    return letters;
}

/// The letters of a menu's items.
inline QStringList lettersOf(const QMenu &menu)
{
    QStringList letters;
    for (const QAction *action : menu.actions()) {
        if (const QKeySequence letter = QKeySequence::mnemonic(action->text()); !letter.isEmpty()) {
            letters.append(letter.toString());
        }
    }
    return letters;
}

} // namespace hosttest
