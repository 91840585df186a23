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

/// How the module is loaded. Poppler keeps objects that go when the program ends.
///
/// Bound deeply, its libraries look for a name among themselves before they look through the seventy that the program
/// has loaded by then: a third of the time that loading takes. Not where somebody stands between them and the C
/// library, as sanitizers and preloaded allocators do: what one of these hands out, the other cannot free.
QLibrary::LoadHints loadHints()
{
#ifdef __SANITIZE_ADDRESS__
    return QLibrary::PreventUnloadHint;
#else
    return qEnvironmentVariableIsEmpty("LD_PRELOAD") ? QLibrary::PreventUnloadHint | QLibrary::DeepBindHint
                                                     : QLibrary::LoadHints(QLibrary::PreventUnloadHint);
#endif
}

OpenPdf loadOpenPdf(const QString &folder, QString *problem)
{
    QLibrary module(folder + QLatin1String("/tapeprint_drawing.so"));
    module.setLoadHints(loadHints());
    const auto open = reinterpret_cast<OpenPdf>(module.resolve("tapeprintOpenPdf"));
    if (open == nullptr) {
        *problem = reasonText(module.errorString());
    }
    return open;
}

QString usualFolder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/" TAPEPRINT_MODULE_PLACE);
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
    return openDrawerOf(usualFolder(), path, problem);
}

} // namespace tapeprint::job
