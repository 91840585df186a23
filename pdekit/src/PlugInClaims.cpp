// SPDX-License-Identifier: Apache-2.0
// Reading claims from metadata and names from a PPD. Both are strangers' texts: nothing here opens a file.
#include "pdekit/BundleLoading.h"

#include <QDir>
#include <QJsonArray>

#include <algorithm>
#include <climits>

namespace pdekit
{

namespace
{

const char *const extensionAttribute = "APDialogExtension";

bool hasKeyword(ppd_file_t *ppd, const QByteArray &keyword)
{
    return !keyword.isEmpty() && (ppdFindOption(ppd, keyword.constData()) != nullptr ||
                                  ppdFindAttr(ppd, keyword.constData(), nullptr) != nullptr);
}

/// Whether a text can be the name of a bundle's folder.
bool isBundleName(const QString &name)
{
    return name.size() > kBundleEnding.size() && name.endsWith(kBundleEnding) && name.toUtf8().size() <= NAME_MAX;
}

} // namespace

bool claimsPrinter(const QJsonObject &metadata, ppd_file_t *ppd)
{
    const QJsonArray keywords = metadata.value(u"PPDKeywords").toArray();
    return ppd != nullptr && std::any_of(keywords.begin(), keywords.end(), [ppd](const QJsonValue &keyword) {
               return hasKeyword(ppd, keyword.toString().toUtf8());
           });
}

std::vector<NamedBundle> namedBundles(ppd_file_t *ppd)
{
    std::vector<NamedBundle> bundles;
    if (ppd == nullptr) {
        return bundles;
    }
    for (const ppd_attr_t *attribute = ppdFindAttr(ppd, extensionAttribute, nullptr); attribute != nullptr;
         attribute = ppdFindNextAttr(ppd, extensionAttribute, nullptr)) {
        const QString path = QDir::cleanPath(QString::fromUtf8(attribute->value).trimmed());
        const QString name = path.mid(path.lastIndexOf(u'/') + 1);
        if (isBundleName(name)) {
            // To Qt ":name" is absolute as well, a path among a program's resources.
            bundles.push_back({name, path.startsWith(u'/') ? path : QString()});
        }
    }
    return bundles;
}

} // namespace pdekit
