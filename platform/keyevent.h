#pragma once

#include <QEvent>

/// A hard key of the unit, offered to the window in front.
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
