// SPDX-License-Identifier: Apache-2.0
// The printer description of the tests is kept here, so that no test depends on a file that others edit.
#include "TestPrinter.h"

#include <QCoreApplication>
#include <QFile>

namespace hosttest
{

QByteArray testPpd(const QByteArray &more)
{
    static const QByteArray text = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Product: "(Test)"
*Manufacturer: "Test"
*ModelName: "Test Tape"
*ShortNickName: "Test Tape"
*NickName: "Test Tape, 1.0"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*OpenUI *PageSize/Tape: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: W12
*PageSize W12/12 mm: ""
*PageSize W24/24 mm: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: W12
*PageRegion W12/12 mm: ""
*PageRegion W24/24 mm: ""
*CloseUI: *PageRegion
*DefaultImageableArea: W12
*ImageableArea W12/12 mm: "0 0 36 288"
*ImageableArea W24/24 mm: "0 0 72 144"
*DefaultPaperDimension: W12
*PaperDimension W12/12 mm: "36 288"
*PaperDimension W24/24 mm: "72 144"
*OpenUI *KsMargin/Margin: PickOne
*OrderDependency: 20 AnySetup *KsMargin
*DefaultKsMargin: 2.0
*KsMargin 2.0/2 mm: ""
*KsMargin 5.0/5 mm: ""
*CloseUI: *KsMargin
*OpenUI *CutMedia/Cut: PickOne
*OrderDependency: 20 AnySetup *CutMedia
*DefaultCutMedia: None
*CutMedia None/Do not cut: ""
*CutMedia Label/After each label: ""
*CloseUI: *CutMedia
*OpenUI *KsMirror/Mirror: Boolean
*OrderDependency: 20 AnySetup *KsMirror
*DefaultKsMirror: False
*KsMirror True/Yes: ""
*KsMirror False/No: ""
*CloseUI: *KsMirror
)PPD";
    return text + more;
}

QString writeFile(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName();
}

tapeprint::job::Destination testDestination(const QTemporaryDir &folder, const QByteArray &more)
{
    tapeprint::job::Destination destination;
    destination.ppdPath = writeFile(folder, QStringLiteral("test.ppd"), testPpd(more));
    tapeprint::job::Problem error;
    destination.ppd = tapeprint::job::openPpdFile(destination.ppdPath, &error);
    if (!destination.ppd) {
        qFatal("%s", qPrintable(error.sentence));
    }
    return destination;
}

tapeprint::job::JobOptions options(std::initializer_list<tapeprint::job::JobOptions::Entry> entries)
{
    tapeprint::job::JobOptions result;
    for (const auto &[name, value] : entries) {
        result.set(name, value);
    }
    return result;
}

QStringList goodBundles()
{
    return {QStringLiteral(HOST_TEST_BUNDLES "/good")};
}

QStringList takeCalls()
{
    QStringList calls = qApp->property("hostTestCalls").toStringList();
    qApp->setProperty("hostTestCalls", QVariant());
    return calls;
}

} // namespace hosttest
