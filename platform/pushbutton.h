// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QObject>

class QPushButton;

namespace cm {

/// Adds long press and auto-repeat to an existing button.
///
/// The button works as before: it emits its own pressed(), released() and clicked() also after a long press. While a
/// button without repeats is held, the toolkit shows on it how far the hold is.
class PLATFORM_API PushButton : public QObject {
    Q_OBJECT
public:
    /// \a button is not owned; this object may outlive it.
    PushButton(QPushButton *button, QObject *parent);
    ~PushButton() override;

    /// Time from the press to longPressed(); 1500 ms unless set.
    void setLongPressedInterval(int ms);
    /// Time between repeats while the button stays pressed; no repeats unless set above 0.
    void setRepeatInterval(int ms);

Q_SIGNALS:
    /// The button was held for the long-press interval. Once per press.
    void longPressed();
    /// With the long press, and then at every repeat interval until the button is released or disabled.
    void longPressedRepeat();

private:
    struct Private;
    Private *const d;
};

}  // namespace cm
