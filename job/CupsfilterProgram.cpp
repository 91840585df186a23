// SPDX-License-Identifier: Apache-2.0
// Debian keeps it among the administrator's programs, which are not on everybody's path. Only the system's own places
// are looked at: what stands on somebody's path under this name is none of our business.
#include "job/CupsfilterProgram.h"

#include "job/Texts.h"

#include <QStandardPaths>

namespace tapeprint::job
{

QString findCupsfilter()
{
    return QStandardPaths::findExecutable(QStringLiteral("cupsfilter"),
                                          {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"),
                                           QStringLiteral("/usr/local/sbin"), QStringLiteral("/usr/local/bin")});
}

QString cupsfilterMissing()
{
    return Texts::tr("The program cupsfilter is missing: install the package cups.");
}

} // namespace tapeprint::job
