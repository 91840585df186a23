// SPDX-License-Identifier: Apache-2.0
// Wishes first, in the order of the controls; then whoever is left chooses.
#include "dialog/Mnemonics.h"

#include <QAbstractButton>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QVariant>

#include <algorithm>
#include <vector>

namespace tapeprint::dialog
{

namespace
{

constexpr QChar mark = u'&';
constexpr const char *wishProperty = "tapeprintMnemonicWish";
constexpr const char *givenProperty = "tapeprintMnemonicGiven";

struct Marked {
    QWidget *widget;
    QString wish; ///< the text as it was written
};

/// \return where the marked letter stands, its mark being before it; -1 when there is none.
qsizetype markedAt(const QString &text)
{
    for (qsizetype at = text.indexOf(mark); at >= 0 && at + 1 < text.size(); at = text.indexOf(mark, at + 2)) {
        if (text[at + 1] != mark) {
            return at + 1;
        }
    }
    return -1;
}

bool canLead(QChar letter)
{
    return letter.unicode() < 128 && letter.isLetterOrNumber();
}

QString textOf(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label != nullptr ? label->text() : qobject_cast<const QAbstractButton *>(widget)->text();
}

void setTextOf(QWidget *widget, const QString &text)
{
    if (text == textOf(widget)) {
        return;
    }
    if (auto *label = qobject_cast<QLabel *>(widget); label != nullptr) {
        label->setText(text);
    } else {
        qobject_cast<QAbstractButton *>(widget)->setText(text);
    }
}

bool leadsSomewhere(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    return (label != nullptr && label->buddy() != nullptr) || qobject_cast<const QAbstractButton *>(widget) != nullptr;
}

/// The text that was written for the widget. What was given to it last is no text of its own.
QString wishOf(QWidget *widget)
{
    const QString text = textOf(widget);
    if (text != widget->property(givenProperty).toString() || !widget->property(wishProperty).isValid()) {
        widget->setProperty(wishProperty, text);
    }
    return widget->property(wishProperty).toString();
}

QString bare(QString text)
{
    for (qsizetype at = markedAt(text); at >= 0; at = markedAt(text)) {
        text.remove(at - 1, 1);
    }
    return text;
}

const QRegularExpression &letterInBrackets()
{
    static const QRegularExpression pattern(QStringLiteral("\\s*\\(&[A-Za-z0-9]\\)"));
    return pattern;
}

/// The text with another letter marked: the first of a word, else any. Null when none of its letters is free.
QString markedAnew(const QString &text, const QSet<QChar> &taken)
{
    const auto isFree = [&](qsizetype at) { return canLead(text[at]) && !taken.contains(text[at].toUpper()); };
    for (const bool isFirst : {true, false}) {
        for (qsizetype at = 0; at < text.size(); ++at) {
            if (isFree(at) && (!isFirst || at == 0 || !text[at - 1].isLetterOrNumber())) {
                return QString(text).insert(at, mark);
            }
        }
    }
    return {};
}

/// The text with a letter of another's behind it, before a colon or dots. The text itself when all are taken.
QString marksBehind(const QString &text, const QSet<QChar> &taken)
{
    static const QRegularExpression end(QStringLiteral("\\s*[:：…]*$"));
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (!taken.contains(QLatin1Char(letter))) {
            return QString(text).insert(text.indexOf(end), QStringLiteral("(&%1)").arg(QLatin1Char(letter)));
        }
    }
    return text;
}

class Letters
{
public:
    void reserve(const QString &text)
    {
        if (const qsizetype at = markedAt(text); at >= 0) {
            mTaken.insert(text[at].toUpper());
        }
    }

    bool takeWish(const QString &wish)
    {
        const QChar letter = wish[markedAt(wish)].toUpper();
        const bool isFree = canLead(letter) && !mTaken.contains(letter);
        mTaken.insert(letter);
        return isFree;
    }

    QString takeAnother(const QString &wish)
    {
        const QString text = bare(QString(wish).remove(letterInBrackets()));
        QString marked = markedAnew(text, mTaken);
        if (marked.isNull()) {
            marked = marksBehind(text, mTaken);
        }
        reserve(marked);
        return marked;
    }

private:
    QSet<QChar> mTaken; ///< in upper case
};

void give(QWidget *widget, const QString &text)
{
    widget->setProperty(givenProperty, text);
    setTextOf(widget, text);
}

} // namespace

void assignMnemonics(const QWidget &window, const QList<const QWidget *> &foreign)
{
    Letters letters;
    std::vector<Marked> marked;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!leadsSomewhere(widget) || widget->window() != window.window()) { // a sheet has letters of its own
            continue;
        }
        const bool isForeign = std::any_of(foreign.begin(), foreign.end(), [widget](const QWidget *view) {
            return view == widget || view->isAncestorOf(widget);
        });
        if (isForeign) {
            letters.reserve(textOf(widget));
        } else if (const QString wish = wishOf(widget); markedAt(wish) >= 0) {
            marked.push_back({widget, wish});
        }
    }
    std::vector<Marked> left;
    for (const Marked &control : marked) {
        if (letters.takeWish(control.wish)) {
            give(control.widget, control.wish);
        } else {
            left.push_back(control);
        }
    }
    for (const Marked &control : left) {
        give(control.widget, letters.takeAnother(control.wish));
    }
}

QString withoutMnemonic(const QString &text)
{
    return bare(QString(text).remove(letterInBrackets())).replace(QStringLiteral("&&"), QStringLiteral("&"));
}

} // namespace tapeprint::dialog
