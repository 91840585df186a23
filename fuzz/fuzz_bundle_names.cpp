// SPDX-License-Identifier: Apache-2.0
// Any values of APDialogExtension, one a line: what a description names is the name of a folder, and no road anywhere.
#include "fuzz/Invariants.h"
#include "fuzz/MemoryFile.h"

#include "job/PpdFile.h"

#include <QDir>

#include <climits>

#include <pdekit/BundleLoading.h>

using namespace tapeprint;
using fuzz::require;

namespace
{

const QByteArray head = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageEncoding: ISOLatin1\n*LanguageVersion: "
                        "English\n*ModelName: \"T\"\n*NickName: \"T\"\n";

job::PpdFile ppdOf(const std::uint8_t *data, std::size_t size)
{
    static const fuzz::MemoryFile memory;
    const QByteArray values(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QByteArray ppd = head;
    for (const QByteArray &value : values.split('\n')) {
        ppd += "*APDialogExtension: \"" + value + "\"\n";
    }
    const QString path =
        memory.hold(reinterpret_cast<const std::uint8_t *>(ppd.constData()), static_cast<std::size_t>(ppd.size()));
    return job::PpdFile(ppdOpenFile(path.toLatin1().constData()));
}

void checkName(const pdekit::NamedBundle &bundle)
{
    require(bundle.name.endsWith(pdekit::kBundleEnding) && bundle.name.size() > pdekit::kBundleEnding.size());
    require(!bundle.name.contains(u'/') && bundle.name.toUtf8().size() <= NAME_MAX);
    if (!bundle.path.isNull()) {
        require(bundle.path.startsWith(u'/') && bundle.path == QDir::cleanPath(bundle.path));
        require(bundle.path.endsWith(u'/' + bundle.name));
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (const job::PpdFile ppd = ppdOf(data, size)) {
        for (const pdekit::NamedBundle &bundle : pdekit::namedBundles(ppd.get())) {
            checkName(bundle);
        }
    }
    return 0;
}
