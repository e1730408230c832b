// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <initializer_list>

class QLabel;
class QWidget;

namespace audiosetting {

// What screen readers and test tools call the screens' keys and sliders, most of which show pictures alone. A name is
// the text of a caption that the screen shows anyway, so it is in the unit's language and needs no text of its own.

/// What the keys of a row do to what its caption names; read out as "minus" and "plus".
extern const char *const less;
extern const char *const more;

struct ControlName {
    QWidget *control;
    const QLabel *caption;
    const char *action;  ///< follows the caption's text; may be null
};

/// Names controls after their captions. A page calls it again when the captions have changed.
///
/// The contract's keys and sliders get their roles here, too: Qt knows those of its own classes only.
void nameControls(std::initializer_list<ControlName> names);

}  // namespace audiosetting
