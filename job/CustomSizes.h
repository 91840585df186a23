// SPDX-License-Identifier: Apache-2.0
// Page sizes of a person's own: which a printer takes, how a job names them, and the ones that are remembered.
#pragma once

#include "job/CustomValues.h"
#include "job/Problem.h"

#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// A page size as a job names it, to a thousandth of a millimetre: Custom.12x45.5mm.
QString customSizeName(const QSizeF &sizePt);

/// The size that such a name says, in points, whatever its unit; nothing for any other value.
std::optional<QSizeF> customSizeOf(const QString &value);

/// Width and height of own sizes with the limits of the PPD, in that order; empty when it takes none. \param ppd may be
/// null.
std::vector<CustomParameter> customSizeParameters(const ppd_file_t *ppd);

/// Whether a printer takes a size. \param ppd not null.
bool takesCustomSize(const ppd_file_t *ppd, const QSizeF &sizePt);

/// The size that a standard says for a paper whose description gives it in whole points, such as 210 by 297 mm for 595
/// by 842 points: for being shown. A size in parts of points, and one that lies farther than a point beside every
/// standard's, stays.
QSizeF standardSize(const QSizeF &sizePt);

/// A size that a person gave a name.
struct NamedSize {
    QString name;
    QSizeF sizePt;
};

/// The sizes that a person has named, in a file of theirs.
class NamedSizes
{
public:
    /// \param path the file; empty for the person's own.
    explicit NamedSizes(const QString &path = {});

    /// In the order in which they were named.
    const std::vector<NamedSize> &all() const { return mSizes; }
    /// Remembers a size; one of the same name is replaced. \return false, and a sentence, when it cannot be kept: it is
    /// then known as long as this object lives.
    bool add(const NamedSize &size, Problem *error);
    /// Forgets a size.
    bool remove(const QString &name, Problem *error);

private:
    bool write(Problem *error) const;

    QString mPath;
    std::vector<NamedSize> mSizes;
};

} // namespace tapeprint::job
