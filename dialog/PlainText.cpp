// SPDX-License-Identifier: Apache-2.0
// What the toolkit would read as markup is switched off where it can be, and doubled or escaped where it cannot.
#include "dialog/PlainText.h"

#include <QComboBox>
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

void nameByFarLabel(QWidget *control, const QLabel &label)
{
    const QString name = label.accessibleName().isEmpty() ? label.text() : label.accessibleName();
    control->setAccessibleName(name);
    // A pop-up is called by what is chosen in it, whatever its name; only a label beside it says what it is for.
    if (qobject_cast<QComboBox *>(control) != nullptr) {
        auto *heard = new QLabel(label.text(), control->parentWidget());
        heard->setTextFormat(label.textFormat());
        heard->setAccessibleName(name);
        heard->setBuddy(control);
        heard->hide();
    }
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
