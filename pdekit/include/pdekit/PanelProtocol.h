// SPDX-License-Identifier: Apache-2.0
// What a print dialog and a panel say to each other: Panel is what every panel answers, PanelCallback is what the
// dialog answers to a panel. Everything runs on the user-interface thread; nothing is thrown across these calls.
#pragma once

#include "pdekit/Export.h"
#include "pdekit/Ppd.h"
#include "pdekit/PrintingCore.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class QWidget;

namespace pdekit
{

/// The dialog's side: hands out the objects of the job, and takes the choices that a panel makes.
///
/// Every object handed out stays the dialog's. It lives at least until the panel has been released, and each operation
/// may answer null when there is no such object.
class PDEKIT_EXPORT PanelCallback
{
public:
    PanelCallback() = default;
    PanelCallback(const PanelCallback &) = delete;
    PanelCallback &operator=(const PanelCallback &) = delete;
    virtual ~PanelCallback();

    /// The session of this run of the dialog.
    virtual PMPrintSession printSession() = 0;
    /// The settings of the job. The same object at every call of one dialog.
    virtual PMPrintSettings printSettings() = 0;
    /// The page format of the document. The dialog may put another paper into it at any time.
    virtual PMPageFormat pageFormat() = 0;
    /// The printer the job goes to.
    virtual Printer *PMPrinter() = 0;
    /// The dialog's own parsed copy of the printer's PPD, with the choices of the job marked in it.
    virtual ppd_file_t *ppdFile() = 0;

    /// A panel tells the dialog that a PPD option takes a new choice.
    ///
    /// The dialog marks the choice when the PPD lists it and records it in the job in any case.
    /// \param key the PPD option keyword; \param choice the choice keyword.
    /// \return whether the dialog took it.
    virtual bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) = 0;
};

/// An operation that a dialog may offer beside PanelCallback. A panel asks for it with a dynamic_cast of the callback.
class PDEKIT_EXPORT PanelViewResizing
{
public:
    PanelViewResizing() = default;
    PanelViewResizing(const PanelViewResizing &) = delete;
    PanelViewResizing &operator=(const PanelViewResizing &) = delete;
    virtual ~PanelViewResizing();

    /// The panel changed the size of its view; the dialog fits its panel area to it.
    virtual void panelViewDidResize() = 0;
};

/// The key in a panel's summary under which the titles stand in the panel's own order (a QStringList).
inline const QString kSummaryDisplayOrder = QStringLiteral("Summary Display Order");

/// A panel: one page of the print dialog.
///
/// The dialog calls, in this order: panelName, panelKind, supportedPPDOptionKeys, panelView; then willShow each time
/// the panel is about to be seen. A panel without an answer says so with nil: a null QString, a null pointer,
/// std::nullopt.
class PDEKIT_EXPORT Panel
{
public:
    Panel() = default;
    Panel(const Panel &) = delete;
    Panel &operator=(const Panel &) = delete;
    virtual ~Panel();

    /// The panel's view; null when it could not be made. Made at the first call. The dialog puts it into its own widget
    /// tree; from then on whichever of the two goes first, the other may still go safely.
    ///
    /// A text field that takes numbers with a point and nothing else says so by Qt::ImhFormattedNumbersOnly among its
    /// input method hints: the dialog then hands it the decimal key of the person's language, such as a comma, as a
    /// point.
    virtual QWidget *panelView() = 0;
    /// The name of the panel for the person, in the person's language.
    virtual QString panelName() = 0;
    /// A constant identifier of this kind of panel, in reverse-domain form.
    virtual QString panelKind() = 0;
    /// The PPD option keywords that the panel shows, so that the dialog need not show them again. Null when the panel
    /// does not say. The list stays the panel's.
    virtual const QStringList *supportedPPDOptionKeys() = 0;
    /// The panel is about to be seen.
    virtual void willShow() = 0;
    /// The person turns to another panel; false keeps this one in front.
    virtual bool shouldHide() = 0;
    /// The last word before the job goes out; false keeps the dialog open.
    virtual bool shouldPrint() = 0;
    /// Whether the dialog's help button is to lead to help for this panel. It does when the panel offers PanelHelp too;
    /// asked for each time the panel comes to the front.
    virtual bool shouldShowHelp() = 0;
    /// A PPD option took another choice: elsewhere in the dialog, by another panel, or by this panel's own
    /// willChangePPDOptionKeyValue, so that a panel which goes by what it is told stays right. Of each choice a panel
    /// is told once, and again only after it was told another of the same option: to answer with the choice just told
    /// is no change. The paper ("PageSize") alone is told once more when the panel has been shown with it.
    ///
    /// Sent during the call that changes the option, with the dialog's objects changed already, or when all panels have
    /// heard of the change before. \param key the option's keyword; \param choice the choice's keyword.
    virtual void PPDOptionKeyValueDidChange(const QString &key, const QString &choice) = 0;
    /// Go back to what the dialog's PPD and settings say. False: it could not, and *error (when asked for) says why.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Hand every value to the dialog. False: it could not, and *error (when asked for) says why.
    virtual bool saveValuesAndReturnError(QString *error) = 0;
    /// What the panel set, for the dialog's summary: title to value text (QString), and the titles in order under
    /// kSummaryDisplayOrder. std::nullopt when the panel has no summary.
    virtual std::optional<QVariantMap> summaryInfo() = 0;
    /// The dialog's window closes. \param userPrinted whether the person chose to print.
    virtual void printWindowWillClose(bool userPrinted) = 0;
};

/// An operation that a panel may offer beside Panel. A dialog asks for it with a dynamic_cast of the panel.
class PDEKIT_EXPORT PanelLiveValues
{
public:
    PanelLiveValues() = default;
    PanelLiveValues(const PanelLiveValues &) = delete;
    PanelLiveValues &operator=(const PanelLiveValues &) = delete;
    virtual ~PanelLiveValues();

    /// The values that a person may be dragging or typing at this moment, as PPD option keyword and choice keyword:
    /// exactly what saving would send of them from the controls as they stand. A value that the panel's checks would
    /// correct first is not corrected here.
    ///
    /// Changes nothing, checks nothing, shows nothing and calls nothing of the dialog but the operations that hand out
    /// the job's objects: a dialog may ask at every event. Empty before the panel has controls.
    virtual std::vector<std::pair<QString, QString>> currentValues() const = 0;
};

/// An operation that a panel may offer beside Panel. A dialog asks for it with a dynamic_cast of the panel.
class PDEKIT_EXPORT PanelHelp
{
public:
    PanelHelp() = default;
    PanelHelp(const PanelHelp &) = delete;
    PanelHelp &operator=(const PanelHelp &) = delete;
    virtual ~PanelHelp();

    /// The person pressed the dialog's help button, which is there while the panel is in front and answers
    /// shouldShowHelp() with true. The panel shows its help in a way of its own.
    virtual void showHelp() = 0;
};

/// Panels as a plug-in hands them out. The array and the dialog share each panel.
using PanelArray = std::vector<std::shared_ptr<Panel>>;

} // namespace pdekit
