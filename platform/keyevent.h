// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QEvent>

/// A hard key of the unit, offered to the window in front.
///
/// It is only ever handed to WindowInterface::keyEvent(), by a plain call. It carries the type numbers of Qt's own key
/// events and is none: never post or send it through Qt, whose widgets would take it for a QKeyEvent.
class KeyEvent : public QEvent {
public:
    /// Codes of the hard keys.
    enum Key { VolumeUp = 1, VolumeDown = 2, Back = 3, Home = 4, Mute = 5 };

    /// \a type is QEvent::KeyPress or QEvent::KeyRelease.
    KeyEvent(QEvent::Type type, int key) : QEvent(type), m_key(key) {}

    int key() const { return m_key; }

private:
    int m_key;
};
