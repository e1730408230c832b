// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QEvent>

/// Number of the event type that carries a code of type Code; specialised beside each code.
template <typename Code> struct SimpleEventType;

/// An event that carries a code and a position, posted to the application object.
template <typename Code> class SimpleEvent : public QEvent {
public:
    SimpleEvent(Code code, int x, int y) : QEvent(eventType()), m_code(code), m_x(x), m_y(y) {}

    /// The same number in every library of the process.
    static QEvent::Type eventType() { return static_cast<QEvent::Type>(SimpleEventType<Code>::value); }

    Code code() const { return m_code; }
    int x() const { return m_x; }
    int y() const { return m_y; }

private:
    Code m_code;
    int m_x;
    int m_y;
};
