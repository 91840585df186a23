// SPDX-License-Identifier: Apache-2.0
// Opening PPD files. libcups answers null for a missing file and a broken one alike, so the file is looked at first.
#include "job/PpdFile.h"

#include "job/PlainText.h"
#include "job/Texts.h"

#include <QFile>
#include <QFileInfo>

namespace tapeprint::job
{

PpdFile openPpdFile(const QString &path, QString *error, const QString &shownAs)
{
    const QString name = harmless(shownAs.isNull() ? path : shownAs);
    const QFileInfo info(path);
    QFile file(path);
    // A description is read more than once, which no pipe stands.
    if (info.isDir() || (info.exists() && !info.isFile()) || !file.open(QIODevice::ReadOnly)) {
        const QString reason = info.isDir()                      ? Texts::tr("it is a folder")
                               : info.exists() && !info.isFile() ? Texts::tr("it is a pipe or a device")
                                                                 : file.errorString();
        *error = Texts::tr("The PPD file %1 cannot be read (%2): name a readable PPD file.").arg(name, reason);
        return nullptr;
    }
    file.close();

    PpdFile ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        *error = Texts::tr("The PPD file %1 is not valid, line %2: %3. Correct the file or name another.")
                     .arg(name, QString::number(line), harmless(QString::fromUtf8(ppdErrorString(status))));
        return nullptr;
    }
    ppdMarkDefaults(ppd.get());
    return ppd;
}

} // namespace tapeprint::job
