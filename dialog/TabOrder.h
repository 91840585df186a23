// SPDX-License-Identifier: Apache-2.0
// The way of the Tab key through a window, as the eye reads it.
#pragma once

class QWidget;

namespace tapeprint::dialog
{

/// Orders everything in a window that takes the focus by its layouts, from the first item to the last. Controls that
/// were made later, or put into a place that another file left open, come where they stand.
/// \param keepOrder a widget whose inner order stays as it was made, such as pages of others; null for none.
void orderTabsByLayout(QWidget &window, const QWidget *keepOrder);

} // namespace tapeprint::dialog
