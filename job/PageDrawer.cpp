// SPDX-License-Identifier: Apache-2.0
// The module that draws stands where bundles do: found from the program's own place, in a build tree and installed.
#include "job/PageDrawer.h"

#include "job/Reason.h"

#include <QCoreApplication>
#include <QLibrary>

namespace tapeprint::job
{

namespace
{

/// What the module exports. \return the document, which is the caller's; null when it cannot be read.
using OpenPdf = PageDrawer *(*)(const QString &path);

OpenPdf loadOpenPdf(const QString &folder, QString *problem)
{
    QLibrary module(folder + QLatin1String("/tapeprint_drawing.so"));
    module.setLoadHints(QLibrary::PreventUnloadHint); // Poppler keeps objects that go when the program ends
    const auto open = reinterpret_cast<OpenPdf>(module.resolve("tapeprintOpenPdf"));
    if (open == nullptr) {
        *problem = reasonText(module.errorString());
    }
    return open;
}

} // namespace

std::unique_ptr<PageDrawer> openDrawerOf(const QString &folder, const QString &path, QString *problem)
{
    *problem = QString();
    const OpenPdf open = loadOpenPdf(folder, problem);
    return std::unique_ptr<PageDrawer>(open == nullptr ? nullptr : open(path));
}

std::unique_ptr<PageDrawer> openDrawer(const QString &path, QString *problem)
{
    return openDrawerOf(QCoreApplication::applicationDirPath() + QLatin1String("/" TAPEPRINT_MODULE_PLACE), path,
                        problem);
}

} // namespace tapeprint::job
