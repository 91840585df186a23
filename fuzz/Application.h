// SPDX-License-Identifier: Apache-2.0
// The application that widgets need: made at the first input, without a display, and never again.
#pragma once

#include "pdekit/Alert.h"

#include <QApplication>
#include <QLoggingCategory>

namespace fuzz
{

/// \return true, so that a static can hold on to it.
inline bool makeApplication()
{
    static int argumentCount = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication application(argumentCount, arguments);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    pdekit::setAlertHandler([](const pdekit::AlertRequest &) {});
    return true;
}

} // namespace fuzz
