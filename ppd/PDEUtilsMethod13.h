// SPDX-License-Identifier: Apache-2.0
// Reading a PPD through libcups, and the small text helpers that the panel and its fields share.
#pragma once

#include "ppd/PDEChoice.h"

#include <QPointF>
#include <QString>

#include <memory>

class QWidget;

/// Class operations only. A null pointer, an absent keyword or undecodable text answers nil (a null string or pointer),
/// false or zero; nothing reports an error.
class PDEUtilsMethod13
{
public:
    PDEUtilsMethod13() = delete;

    /// Always true.
    static bool runningOn105OrLater();

    /// The value of the first PPD attribute of a name (ppdFindAttr without a specifier), in the system's encoding.
    static QString ppdAttrValStr(ppd_file_t *ppd, const char *cStrKey);
    /// The text of an option, in the system's encoding.
    static QString ppdOptionTextStr(ppd_file_t *ppd, const char *cStrKey);
    /// True exactly when the attribute's value is "False". The name promises the opposite; the comparison is
    /// deliberate.
    static bool isSupportedItem(ppd_file_t *ppd, const char *cStrKey);
    /// The attribute's value as a point in the form "{x, y}"; a single number is its x, with the y 0. The zero point
    /// when it is absent or holds no number.
    static QPointF originItem(ppd_file_t *ppd, const char *cStrKey);

    /// One record for each choice of an option, in its order. Null for a null option; empty for one without choices.
    static std::unique_ptr<PDEChoiceArray> arrayFromPPDOption(const ppd_option_t *option);
    /// The first record with that keyword; with a null keyword the first default choice. Null when there is none.
    static const PDEChoice *findChoiceForString(const QString &keyword, const PDEChoiceArray *choices);
    /// The text of an option, as UTF-8.
    static QString newOptionTitle(const ppd_option_t *option);
    /// The text of a choice, as UTF-8.
    static QString newChoiceTitle(const ppd_choice_t *choice);

    /// Gives a control that has a text colour the normal or the disabled one. Controls without a text colour are left
    /// alone. \param item a label or a text field; may be null.
    static void setEnabledForText(bool enabled, QWidget *item);

    // PDEUtils_String

    /// The length of a text in bytes of the system's encoding; when that cannot hold it, of the first available
    /// encoding that can; 0 for null, and when none can.
    static unsigned stringLengthConvertedToEncoding(const QString &text);
    /// Whether a text occurs in another, letter for letter. An empty text occurs in none.
    static bool scanString(const QString &text, const QString &searched);
    /// A text without the first occurrence of another; null when it does not occur.
    static QString deleteString(const QString &text, const QString &deleted);
};
