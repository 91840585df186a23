// SPDX-License-Identifier: Apache-2.0
// The images of choices, found without asking the disk for each choice and read when they are first seen.
#pragma once

#include "pdekit/Bundle.h"

#include <QHash>
#include <QIcon>

#include <memory>
#include <optional>

/// The bundle's images of one type, by name. Looking for one costs no look at the disk, so that thousands of choices
/// without an image cost little.
class BundleImages
{
public:
    /// \param bundle may be null: there are no images then.
    BundleImages(std::shared_ptr<pdekit::Bundle> bundle, const QString &type);

    /// An image that is read when it is first painted or asked whether it is null (it is when it cannot be read).
    /// \param name ASCII. \return std::nullopt when the bundle has none of that name.
    std::optional<QIcon> imageNamed(const char *name) const;

private:
    std::shared_ptr<pdekit::Bundle> mBundle;
    QString mType;
    QHash<QByteArray, QString> mNames;
};
