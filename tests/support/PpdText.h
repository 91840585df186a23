// SPDX-License-Identifier: Apache-2.0
// Writes small printer descriptions for tests, a line a call, and opens them as a dialog does.
#pragma once

#include <QByteArray>

#include <memory>
#include <utility>
#include <vector>

#include <cups/ppd.h>

struct PpdCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
/// An open PPD with its defaults marked.
using OpenPpd = std::unique_ptr<ppd_file_t, PpdCloser>;

/// The text of a PPD. Page sizes stand in the order they are given, records and choices alike.
class PpdText
{
public:
    /// A choice's keyword and its text.
    using Choice = std::pair<QByteArray, QByteArray>;

    struct PageSize {
        QByteArray keyword;
        QByteArray text;
        double widthPt;
        double heightPt;
    };

    /// "24mm", "15mm", "12mm" and "DC24x80", each 100 mm or 80 mm long, unless pageSizes is called.
    PpdText();

    PpdText &pageSizes(std::vector<PageSize> sizes, const QByteArray &defaultKeyword);
    /// An option of which one choice is picked. Takes the place of an option of that keyword.
    PpdText &option(const QByteArray &keyword, const QByteArray &text, const std::vector<Choice> &choices,
                    const QByteArray &defaultKeyword);
    PpdText &withoutOption(const QByteArray &keyword);
    PpdText &defaultChoice(const QByteArray &keyword, const QByteArray &choice);
    /// A vendor attribute: *name: value. Takes the place of an attribute of that name.
    PpdText &attribute(const QByteArray &name, const QByteArray &value);
    PpdText &withoutAttribute(const QByteArray &name);
    /// A line as it is.
    PpdText &line(const QByteArray &text);

    /// The seven choice options, margin, tape length and print tape length with the panel's usual choices, millimetres
    /// with one decimal: tape length 4..1000, margin 1..100, print tape length 1..12 (cloth, 15 mm) or 1..8.
    static PpdText withEveryOption();

    QByteArray text() const;
    /// Opens it. Fails the running test when libcups cannot.
    OpenPpd open() const;

private:
    struct Option {
        QByteArray keyword;
        QByteArray text;
        std::vector<Choice> choices;
        QByteArray defaultKeyword;
    };

    std::vector<PageSize> mSizes;
    QByteArray mDefaultSize;
    std::vector<Option> mOptions;
    std::vector<std::pair<QByteArray, QByteArray>> mAttributes;
    QByteArray mLines;
};

/// Opens a PPD file. Fails the running test when libcups cannot.
OpenPpd openPpd(const QByteArray &path);
