// SPDX-License-Identifier: Apache-2.0
// What the toolkit would read as markup is switched off where it can be, and doubled or escaped where it cannot.
#include "dialog/PlainText.h"

#include <QLabel>

namespace tapeprint::dialog
{

QLabel *plainLabel(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(buddy->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(buddy);
    // Only with a buddy is "&" the mark of a letter, and "&&" one "&".
    label->setAccessibleName(text);
    label->setText(QString(text).replace(u'&', QLatin1String("&&")));
    return label;
}

QString plainToolTip(const QString &text)
{
    // A tooltip has no format to be set: it is markup throughout, or the toolkit guesses.
    return text.isEmpty() ? QString()
                          : QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

QString plainTitle(const QString &text)
{
    return QString(text).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

} // namespace tapeprint::dialog
