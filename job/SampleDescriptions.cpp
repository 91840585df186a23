// SPDX-License-Identifier: Apache-2.0
// Samples stand beside the program: in its build, or in the place where both are installed.
#include "job/SampleDescriptions.h"

#include <QFileInfo>

namespace tapeprint::job
{

QString descriptionFile(const QString &asked)
{
    if (asked.contains(u'/') || QFileInfo::exists(asked)) {
        return asked;
    }
    // By the kernel's own word: completions ask before there is an application object that knows its place.
    const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    const QString name = asked.endsWith(QLatin1String(".ppd")) ? asked : asked + QLatin1String(".ppd");
    for (const QString &folder : {QStringLiteral("/../printers/"), QStringLiteral("/../share/ppd/tapeprint/")}) {
        if (const QFileInfo sample(program + folder + name); sample.isFile()) {
            return sample.canonicalFilePath();
        }
    }
    return asked;
}

} // namespace tapeprint::job
