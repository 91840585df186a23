// SPDX-License-Identifier: Apache-2.0
// The file is this function's own, which can ask it for errors.
#include "job/PdfWriting.h"

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <memory>

#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

namespace tapeprint::job
{

void writePdf(QPDF &pdf, const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen(name.constData(), "wbe"), &std::fclose);
    if (file == nullptr) {
        QUtil::throw_system_error(name.toStdString());
    }
    QPDFWriter writer(pdf, name.constData(), file.get(), false);
    writer.setStaticID(true);
    writer.write();
    if (std::fflush(file.get()) != 0 || std::ferror(file.get()) != 0) {
        QUtil::throw_system_error(name.toStdString());
    }
}

} // namespace tapeprint::job
