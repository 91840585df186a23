// SPDX-License-Identifier: Apache-2.0
// Qt's own print dialog in the smallest program that shows it: what ours is measured beside.
#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QPrinter printer;
    QPrintDialog dialog(&printer);
    dialog.open();
    return QApplication::exec();
}
