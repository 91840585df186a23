// SPDX-License-Identifier: Apache-2.0
// The program's real window, worked from outside as a person works it: by the keys and buttons of the display.
#pragma once

#include "tests/system/Client.h"
#include "tests/system/PrivateDisplay.h"

#include <QPoint>
#include <QRect>
#include <QString>

namespace systemtest
{

/// The controls of the Page Settings panel for the millimetre printer, by the number of times that a person presses
/// Tab from the chooser of settings: as they are read. What is disabled is passed over.
enum class PanelControl {
    tapeLength = 1,
    tapeLengthSlider = 2,
    margin = 3,
    printTapeLength = 5,
    quality = 7,
    resolution = 8,
    tapeMaterial = 9,
    tapeColour = 10,
    inkColour = 11
};

class WindowUnderTest
{
public:
    explicit WindowUnderTest(const PrivateDisplay &display) : mDisplay(display) {}
    ~WindowUnderTest();
    WindowUnderTest(const WindowUnderTest &) = delete;
    WindowUnderTest &operator=(const WindowUnderTest &) = delete;

    /// Starts the program and waits until its window is there, has the keys and its printer is connected. \return null,
    /// or why there is none.
    QString open(Client client);
    /// The same, without waiting for the printer.
    QString openUnconnected(Client client);
    /// Takes over the next window of a program that is running, whoever started it, once its printer is connected and
    /// it has the keys. \param process its number; \param known windows of it that are others.
    QString adopt(qint64 process, const QStringList &known = {});
    /// The same, without waiting for the printer.
    QString adoptUnconnected(qint64 process, const QStringList &known = {});
    /// Waits until its printer is connected.
    bool isConnected() const;
    /// Waits for the program's end.
    Outcome waitForEnd();

    /// The window's number on the display.
    QString window() const { return mWindow; }
    /// Its title, in UTF-8.
    QByteArray title() const;
    QRect geometry(const QString &window) const;
    /// Where the window is when it has come to rest: once its printer is connected it grows for its pages.
    QRect settledGeometry() const;

    /// Presses keys, such as "alt+n" or "Tab", one after the other.
    void press(const QStringList &keys) const;
    void type(const QString &text) const;
    void click(const QString &window, QPoint place) const;

    /// Gives a control of the panel the keys, by keys from the chooser of settings on.
    void goTo(PanelControl control) const;
    /// Opens the pop-up that has the keys and clicks on one of its items, all of which show. \return whether it opened.
    bool pickFromPopUp(int item, int items);
    /// Clicks on Print, the button in the lower right corner.
    void clickPrint() const;

    /// Waits for a window of the program beside those that were there before, such as an alert, and gives it the keys.
    /// \return its number; null when none comes.
    QString waitForFurtherWindow();
    /// Waits until a window is gone.
    bool waitForGone(const QString &window) const;
    /// The program's windows that are to be seen.
    QStringList windows() const;

private:
    bool giveKeysTo(const QString &window) const;
    QString waitForWindowBeside(const QStringList &known);

    const PrivateDisplay &mDisplay;
    QProcess mProgram;
    qint64 mProcess = 0;
    bool mIsAdopted = false;
    QString mWindow;
};

} // namespace systemtest
