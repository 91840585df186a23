// SPDX-License-Identifier: Apache-2.0
// The toolkit's own file dialog asks about a file that is there already.
#include "dialog/SaveButton.h"

#include "job/UsualOptions.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QStandardPaths>

namespace tapeprint::dialog
{

namespace
{

constexpr qsizetype mostNameLength = 80;

/// A file's name of a title, which may hold anything.
QString nameOf(const QString &title)
{
    QString name =
        QFileInfo(job::jobTitle(title).replace(u'/', u'-')).completeBaseName().left(mostNameLength).trimmed();
    while (name.startsWith(u'.')) {
        name.remove(0, 1);
    }
    return name.isEmpty() ? SaveButton::tr("labels", "the name of a file") : name;
}

/// A name that no file has there, least of all the document that is printed.
QString freeName(const QDir &folder, const QString &name, const QString &ending)
{
    constexpr int mostTries = 1000;
    QString free = name + u'.' + ending;
    for (int i = 2; folder.exists(free) && i < mostTries; ++i) {
        free = QStringLiteral("%1-%2.%3").arg(name, QString::number(i), ending);
    }
    return free;
}

} // namespace

SaveButton::SaveButton(const QString &title, QWidget *parent) : MenuButton(parent), mName(nameOf(title))
{
    setObjectName(QStringLiteral("save"));
    setText(tr("Save"));
    setToolTip(tr("Save the job in a file in place of printing it"));
    auto *menu = new QMenu(this);
    QAction *pdf = menu->addAction(tr("Save as &PDF…"));
    pdf->setObjectName(QStringLiteral("saveAsPdf"));
    mPrinterData = menu->addAction(tr("Save Printer &Data…"));
    mPrinterData->setObjectName(QStringLiteral("savePrinterData"));
    setMenu(menu);
    connect(pdf, &QAction::triggered, this, [this] { ask(Kind::Pdf); });
    connect(mPrinterData, &QAction::triggered, this, [this] { ask(Kind::PrinterData); });
}

void SaveButton::setHasPrinterData(bool has)
{
    mPrinterData->setEnabled(has);
}

void SaveButton::ask(Kind kind)
{
    const bool isPdf = kind == Kind::Pdf;
    const QString ending = isPdf ? QStringLiteral("pdf") : QStringLiteral("prn");
    QFileDialog dialog(window(), isPdf ? tr("Save as PDF") : tr("Save Printer Data"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(ending);
    dialog.setNameFilters({isPdf ? tr("PDF documents (*.pdf)") : tr("Printer data (*.prn)"), tr("All files (*)")});
    dialog.setDirectory(mFolder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                          : mFolder);
    dialog.selectFile(freeName(dialog.directory(), mName, ending));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return;
    }
    const QString path = dialog.selectedFiles().constFirst();
    mFolder = QFileInfo(path).absolutePath();
    Q_EMIT wanted(kind, path);
}

} // namespace tapeprint::dialog
