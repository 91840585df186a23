// SPDX-License-Identifier: Apache-2.0
// The decimal key of the person's language in a panel's fields, which take a point whatever the language is.
#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;
class QWidget;

namespace tapeprint::dialog
{

/// Hands the decimal key of the locale (a comma in German, of the main block or the keypad) to the fields that ask for
/// numbers by Qt::ImhFormattedNumbersOnly as the point that they take. What is pasted stays as it is, and so does every
/// other key. In a language of the point nothing is changed.
///
/// To be installed as an event filter of the application.
class DecimalKey : public QObject
{
    Q_OBJECT

public:
    /// \param isPanels whether a widget is part of a panel; asked at each decimal key.
    explicit DecimalKey(std::function<bool(const QWidget &)> isPanels, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isForPoint(const QWidget &field, const QKeyEvent &event) const;

    std::function<bool(const QWidget &)> mIsPanels;
};

} // namespace tapeprint::dialog
