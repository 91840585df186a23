// SPDX-License-Identifier: Apache-2.0
// Modal alerts: a message box by default, or whatever a dialog without a window puts in its place.
#include "pdekit/Alert.h"

#include "InterruptedPress.h"
#include "pdekit/Log.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <utility>

namespace pdekit
{

namespace
{

void showMessageBox(const AlertRequest &alert)
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr) {
        qCWarning(lcPde).noquote() << alert.text;
        return;
    }
    // The box is the child of a window that may be closed while it is open, and then goes with it.
    const QPointer<QMessageBox> box = new QMessageBox(QApplication::activeWindow());
    box->setWindowTitle(alert.title);
    box->setIcon(QMessageBox::Warning);
    box->setTextFormat(Qt::PlainText);
    box->setText(alert.text);
    QPushButton *button = box->addButton(alert.defaultButton, QMessageBox::AcceptRole);
    box->setDefaultButton(button);
    box->setEscapeButton(button);
    box->setWindowModality(Qt::ApplicationModal);
    box->exec();
    delete box.data();
}

AlertHandler &alertHandler()
{
    static AlertHandler handler;
    return handler;
}

int &alertCount()
{
    static int count = 0;
    return count;
}

} // namespace

void NSRunAlertPanel(const QString &title, const QString &text, const QString &defaultButton)
{
    // A copy, as the handler may put another one in its own place.
    const AlertHandler handler = alertHandler();
    const AlertRequest alert{title, text, defaultButton};
    const AlertDuringPress press;
    ++alertCount();
    if (handler) {
        handler(alert);
    } else {
        showMessageBox(alert);
    }
}

int alertsRun()
{
    return alertCount();
}

void setAlertHandler(AlertHandler handler)
{
    alertHandler() = std::move(handler);
}

} // namespace pdekit
