// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace headunit {

/// Gives a window the look of a desk program: the application's own style, palette and font are those of the car's
/// screen.
void dressForDesk(QWidget *window);
/// Gives a widget that the window holds, or a window that belongs to it (a menu, a dialog, a tool tip, a panel taken
/// free), what Qt does not hand down to it. To be called when it is polished.
void followDesk(QWidget *widget);

}  // namespace headunit
