// SPDX-License-Identifier: Apache-2.0
// Texts in the direction of their own words where the window is mirrored: in an Arabic or Hebrew locale the toolkit
// would write "mm 100.0" and "...Show Command", because all of the window's own texts read from the left.
#pragma once

#include <QProxyStyle>

namespace tapeprint::dialog
{

/// A style that leaves everything to another but the direction in which a text is read.
class OwnDirectionStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// \param base draws; becomes owned. Null is the toolkit's default.
    explicit OwnDirectionStyle(QStyle *base = nullptr) : QProxyStyle(base) {}

    /// Takes it for the program when its windows are mirrored. Asked once, when the translations stand.
    static void takeWhereMirrored();

    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool isEnabled,
                      const QString &text, QPalette::ColorRole role = QPalette::NoRole) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
};

} // namespace tapeprint::dialog
