// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "keystyle.h"

class QWidget;

namespace audiosetting {

/// The look that the screens bring themselves, so that they look the same on every unit: white texts, the colour of
/// disabled ones, and keys that are their pictures. Not a style sheet: it would make each widget's first showing
/// dearer.
///
/// It belongs to the widget that holds the screens, and must live as long as they do.
class Look {
public:
    /// Colours the texts of \a screens and of all that they hold or will hold.
    void colourTexts(QWidget *screens);
    /// Has the keys in \a screen drawn as their pictures.
    void dressKeys(QWidget *screen);

private:
    KeyStyle m_keyStyle;
};

}  // namespace audiosetting
