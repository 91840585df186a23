// SPDX-License-Identifier: Apache-2.0
// What a person does with a window's controls, found by their names.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QString>
#include <QTest>

#include <gtest/gtest.h>

namespace hosttest
{

/// The control of that name; a failure and null where there is none.
template <typename Widget>
Widget *child(const QWidget &within, const QString &name)
{
    auto *widget = within.findChild<Widget *>(name);
    EXPECT_NE(widget, nullptr) << name.toStdString();
    return widget;
}

/// Types over what stands in a field, and leaves the focus there.
inline void type(QLineEdit *field, const QString &text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    QApplication::processEvents();
}

/// Picks a row of a pop-up; a failure for one that is not there.
inline void pick(QComboBox *popUp, int row)
{
    ASSERT_GE(row, 0) << popUp->objectName().toStdString();
    popUp->setCurrentIndex(row);
    Q_EMIT popUp->activated(row);
    QApplication::processEvents();
}

} // namespace hosttest
