// SPDX-License-Identifier: Apache-2.0
// A small dialog: shows the panels of a printer's plug-ins, and prints the options that a job would carry.
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QTabWidget>
#include <QTextStream>
#include <QVBoxLayout>

#include <pdekit/Alert.h>
#include <pdekit/BundleLoading.h>

namespace
{

struct PpdCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using Ppd = std::unique_ptr<ppd_file_t, PpdCloser>;

/// The job, as panels see it. The objects that are handed out live as long as this does, and so longer than the panels.
class Job final : public pdekit::PanelCallback
{
public:
    explicit Job(Ppd ppd) : mPpd(std::move(ppd))
    {
        ppdMarkDefaults(mPpd.get());
        mPrinter.makeModel = QString::fromUtf8(mPpd->nickname);
        if (const ppd_size_t *size = ppdPageSize(mPpd.get(), nullptr)) {
            const auto width = static_cast<double>(size->width);
            mFormat.paper = pdekit::Paper{QString::fromUtf8(size->name), width, static_cast<double>(size->length)};
        }
    }

    pdekit::PMPrintSession printSession() override { return &mSession; }
    pdekit::PMPrintSettings printSettings() override { return &mSettings; }
    pdekit::PMPageFormat pageFormat() override { return &mFormat; }
    pdekit::Printer *PMPrinter() override { return &mPrinter; }
    ppd_file_t *ppdFile() override { return mPpd.get(); }

    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override
    {
        if (key.isEmpty() || choice.isEmpty()) {
            return false;
        }
        const bool isNew = mOptions.value(key) != choice;
        mOptions.insert(key, choice);
        ppdMarkOption(mPpd.get(), key.toUtf8().constData(), choice.toUtf8().constData());
        if (isNew) { // a panel that answers with the same value is told no more
            for (const std::shared_ptr<pdekit::Panel> &panel : panels) {
                panel->PPDOptionKeyValueDidChange(key, choice);
            }
        }
        return true;
    }

    const QMap<QString, QString> &options() const { return mOptions; }

    pdekit::PanelArray panels; ///< released before all that they borrow

private:
    Ppd mPpd;
    pdekit::PrintSession mSession;
    pdekit::PrintSettings mSettings;
    pdekit::PageFormat mFormat;
    pdekit::Printer mPrinter;
    QMap<QString, QString> mOptions;
};

QTextStream out(stdout);
QTextStream err(stderr);

/// Panels of the bundles, in the order of the calls that a panel may rely on.
QTabWidget *makePanels(const std::vector<pdekit::LoadedBundle> &bundles, const std::shared_ptr<Job> &job)
{
    auto *tabs = new QTabWidget;
    for (const pdekit::LoadedBundle &bundle : bundles) {
        const pdekit::BundleGuard guard(bundle.path, pdekit::BundleGuard::Step::MakingPanels);
        const pdekit::PanelArray *made = guard.reasonToSkip().isNull()
                                             ? bundle.principal->PDEPanelsForType(pdekit::kPrinterModulePanelType, job)
                                             : nullptr;
        if (made == nullptr) {
            err << "No panel of " << bundle.path << ' ' << guard.reasonToSkip() << Qt::endl;
            continue;
        }
        for (const std::shared_ptr<pdekit::Panel> &panel : *made) {
            if (panel == nullptr) {
                continue;
            }
            const QString name = panel->panelName();
            panel->panelKind();
            panel->supportedPPDOptionKeys(); // a dialog with controls of its own would leave these out
            if (QWidget *view = panel->panelView()) {
                job->panels.push_back(panel);
                tabs->addTab(view, name);
            }
        }
    }
    return tabs;
}

/// Every panel hands over its values and has its last word. \return why the job may not go out; null when it may.
QString reasonToStay(const Job &job)
{
    for (const std::shared_ptr<pdekit::Panel> &panel : job.panels) {
        QString reason;
        if (!panel->saveValuesAndReturnError(&reason)) {
            return panel->panelName() + QStringLiteral(": ") + reason;
        }
    }
    for (const std::shared_ptr<pdekit::Panel> &panel : job.panels) {
        if (!panel->shouldPrint()) {
            return panel->panelName() + QStringLiteral(" does not let the job out.");
        }
    }
    return {};
}

bool runDialog(QTabWidget *tabs, const Job &job)
{
    QDialog dialog;
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(tabs);
    layout->addWidget(buttons);
    const auto showPanel = [&job](int index) { job.panels[static_cast<std::size_t>(index)]->willShow(); };
    QObject::connect(tabs, &QTabWidget::currentChanged, &dialog, showPanel);
    if (!job.panels.empty()) {
        showPanel(0);
    }
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, [&] {
        if (const QString reason = reasonToStay(job); !reason.isNull()) {
            QMessageBox::warning(&dialog, QString(), reason);
            return;
        }
        dialog.accept();
    });
    const bool isPrinted = dialog.exec() == QDialog::Accepted;
    tabs->setParent(nullptr); // the views are still there when the panels hear that the window closes
    return isPrinted;
}

bool runWithoutWindow(const Job &job)
{
    pdekit::setAlertHandler([](const pdekit::AlertRequest &alert) { err << alert.text << Qt::endl; });
    for (const std::shared_ptr<pdekit::Panel> &panel : job.panels) {
        panel->willShow();
    }
    const QString reason = reasonToStay(job);
    if (!reason.isNull()) {
        err << reason << Qt::endl;
    }
    return reason.isNull();
}

void report(const Job &job)
{
    for (auto option = job.options().begin(); option != job.options().end(); ++option) {
        out << option.key() << '=' << option.value() << Qt::endl;
    }
    for (const std::shared_ptr<pdekit::Panel> &panel : job.panels) {
        const QVariantMap summary = panel->summaryInfo().value_or(QVariantMap());
        for (const QString &title : summary.value(pdekit::kSummaryDisplayOrder).toStringList()) {
            out << panel->panelName() << ": " << title << ": " << summary.value(title).toString() << Qt::endl;
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool hasWindow = arguments.removeAll(QStringLiteral("--no-window")) == 0;
    Ppd ppd(ppdOpenFile(arguments.value(0).toLocal8Bit().constData()));
    if (ppd == nullptr) {
        err << "usage: example-dialog [--no-window] FILE.ppd" << Qt::endl;
        return 2;
    }
    const auto job = std::make_shared<Job>(std::move(ppd));
    // Principal objects outlive the panels that they make.
    const pdekit::LoadedBundles loaded = pdekit::loadBundles(pdekit::bundleSearchPath(), job->ppdFile());
    for (const QString &problem : loaded.problems) {
        err << problem << Qt::endl;
    }

    const std::unique_ptr<QTabWidget> tabs(makePanels(loaded.bundles, job));
    const bool isPrinted = hasWindow ? runDialog(tabs.get(), *job) : runWithoutWindow(*job);
    if (isPrinted) {
        report(*job);
    }
    for (const std::shared_ptr<pdekit::Panel> &panel : job->panels) {
        panel->printWindowWillClose(isPrinted);
    }
    job->panels.clear();
    return isPrinted ? 0 : 1;
}
