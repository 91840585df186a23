// SPDX-License-Identifier: Apache-2.0
// What a person does to a length group, as real events, and what the panel is asked about its lengths afterwards.
#pragma once

#include "PanelUnderTest.h"

namespace gestures
{

/// The middle of a slider's knob, in the panel's window.
QPoint knob(const PanelUnderTest &panel, const char *sliderName);
/// A place left (negative) or right of the slider's middle at which the knob reaches its end.
QPoint endOfSlider(const PanelUnderTest &panel, const char *sliderName, bool right);

void press(PanelUnderTest &panel, QPoint place);
void drag(PanelUnderTest &panel, QPoint place);
void release(PanelUnderTest &panel, QPoint place);

/// Clicks into the middle of a widget.
void click(PanelUnderTest &panel, const char *widgetName);
/// Gives a widget the focus without an event, and presses a key.
void key(PanelUnderTest &panel, const char *widgetName, Qt::Key key);
/// Presses a key where the focus is.
void key(PanelUnderTest &panel, Qt::Key key);
/// Turns the wheel over a slider. \param notches away from the person when positive.
void wheel(PanelUnderTest &panel, const char *sliderName, int notches);

/// Types a margin that every full check rewrites, and no other check touches.
void layMarginProbe(PanelUnderTest &panel);
/// Whether the full check has run since.
bool fullCheckRan(const PanelUnderTest &panel);

/// The localised text of a key; fails the running test when the catalogue lacks it.
QString text(const PanelUnderTest &panel, const char *key);
/// Whether exactly one alert was shown, with a blank title, this key's text and the one button.
testing::AssertionResult alertedOnce(const PanelUnderTest &panel, const char *key);

/// The dialog saves.
void save(PanelUnderTest &panel);

/// Types into a field and ends its editing by Return.
void enterLength(PanelUnderTest &panel, const char *text);
void enterPrintTapeLength(PanelUnderTest &panel, const char *text);
/// What stands in the fields.
QString length(const PanelUnderTest &panel);
QString margin(const PanelUnderTest &panel);
QString printTapeLength(const PanelUnderTest &panel);

/// Whether everything sent for a length so far is a number as the PPD writes it.
testing::AssertionResult onlyNumbersWereSent(const PanelUnderTest &panel);

/// Every option, in millimetres with one decimal, in whole millimetres, or in inches.
PpdText oneDecimal();
PpdText wholeMillimetres();
PpdText inches();
PpdText withTapeLimits(const char *min, const char *max);
PpdText withResolution(const char *keyword);

/// A callback over a PPD whose paper is a 24 mm tape of this length.
std::shared_ptr<RecordingCallback> tape(const PpdText &ppd, double lengthMm);

} // namespace gestures
