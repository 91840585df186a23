// SPDX-License-Identifier: Apache-2.0
// libqpdf's exceptions told apart.
#include "job/PdfFailure.h"

#include "job/Reason.h"
#include "job/Texts.h"

#include <qpdf/QPDFExc.hh>

namespace tapeprint::job
{

QString pdfFailureReason(const std::exception &failure)
{
    const auto *pdf = dynamic_cast<const QPDFExc *>(&failure);
    return reasonText(QString::fromUtf8(pdf != nullptr ? pdf->getMessageDetail().c_str() : failure.what()));
}

QString pdfOpeningFailure(const QString &shownAs, const std::exception &failure)
{
    const auto *pdf = dynamic_cast<const QPDFExc *>(&failure);
    if (pdf != nullptr && pdf->getErrorCode() == qpdf_e_password) {
        return Texts::tr("The document %1 is locked with a password: save it without one and print that.").arg(shownAs);
    }
    return Texts::tr("The document %1 is damaged (%2): make it anew or name another.")
        .arg(shownAs, pdfFailureReason(failure));
}

} // namespace tapeprint::job
