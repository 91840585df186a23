// SPDX-License-Identifier: Apache-2.0
// Outlines in the colour of the text, for desktops of high contrast: the toolkit's own are a darker shade of the
// window, and of black there is none, so that an empty check box or a field is nowhere to be seen.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace tapeprint::dialog
{

/// The toolkit's style with an outline around all that can be clicked or typed into.
class ContrastStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ContrastStyle();

    /// Whether the toolkit's outlines cannot be told from these colours.
    static bool isWanted(const QPalette &palette);
    /// The colours with texts of controls that are off halfway between window and text: the toolkit makes these a shade
    /// of the window, too.
    static QPalette withGreyTexts(QPalette palette);
    /// The colours with hints in empty fields that can be read: where a desktop names no colour for them, the toolkit
    /// keeps the one of its light look, which is dark, in the dark as well.
    static QPalette withReadableHints(QPalette palette);
    /// Takes it for the program where it is wanted, and readable hints in any style. Asked once, at the start: a
    /// desktop whose colours change while a print dialog is open is rare.
    static void takeWhereWanted();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
};

} // namespace tapeprint::dialog
