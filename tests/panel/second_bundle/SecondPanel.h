// SPDX-License-Identifier: Apache-2.0
// A panel of one check box. Tests show with it that a dialog serves any panel and keeps two bundles apart.
#pragma once

#include <pdekit/Bundle.h>
#include <pdekit/PanelProtocol.h>

#include <QCheckBox>
#include <QPointer>

/// Offers the PPD option "AutoCut" with the choices "True" and "False".
class SecondPanel : public pdekit::Panel
{
public:
    SecondPanel(std::shared_ptr<pdekit::PanelCallback> hostInfo, std::shared_ptr<pdekit::Bundle> bundle);
    ~SecondPanel() override;

    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() override;
    const QStringList *supportedPPDOptionKeys() override;
    void willShow() override;
    bool shouldHide() override;
    bool shouldPrint() override;
    bool shouldShowHelp() override;
    void PPDOptionKeyValueDidChange(const QString &key, const QString &choice) override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    std::optional<QVariantMap> summaryInfo() override;
    void printWindowWillClose(bool userPrinted) override;

private:
    void showMarkedChoice();
    void sendChoice();

    std::shared_ptr<pdekit::PanelCallback> mHost;
    std::shared_ptr<pdekit::Bundle> mBundle;
    QStringList mKeys;
    // Guarded: the dialog's widget tree owns the view once it is shown, and may go first.
    QPointer<QWidget> mView;
    QPointer<QCheckBox> mCheckBox;
};
