// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QEvent>
#include <QPoint>

namespace headunit {

class ScriptTarget;

/// The one finger of a script. Its touches reach the window the way real ones do. Positions are the window's.
class Finger {
public:
    explicit Finger(ScriptTarget &target) : m_target(target) {}

    bool isDown() const { return m_down; }
    void press(QPoint position);
    /// Passes every position on the way, at the pace of a touch screen.
    void moveTo(QPoint position);
    /// Is at once where the screen sees it next.
    void slideTo(QPoint position);
    void release();
    void releaseAt(QPoint position);
    /// A key of the keyboard.
    void key(int key, bool down);
    /// Lets \a ms milliseconds pass.
    void wait(int ms);

private:
    void send(QEvent::Type type);

    ScriptTarget &m_target;
    QPoint m_position;
    bool m_down = false;
    int m_timestamp = 0;
};

}  // namespace headunit
