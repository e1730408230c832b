// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

#include <functional>

class QMouseEvent;
class QWidget;
class QWindow;

namespace headunit {

/// The actions of finger and keyboard on the unit's window, as the window system reported it.
struct Touch {
    enum Kind { Down, Move, Up, KeyDown, KeyUp };

    Kind kind = Down;
    int number = 0;   ///< counts presses, of finger and keys, from 1; what follows a press has its number
    QPoint position;  ///< in the window
    int key = 0;      ///< Qt::Key, of a key
    qint64 time = 0;  ///< ms since the log began
    QString object;   ///< object name of the widget under the finger
    QString page;     ///< the page that it belongs to, see pageOf()
};

/// Follows what is touched on the unit. A press comes before whatever it causes.
class TouchLog : public QObject {
    Q_OBJECT
public:
    explicit TouchLog(QWidget *window);

    /// The number of the last press; 0 before the first.
    int number() const { return m_number; }
    bool isDown() const { return m_down; }

Q_SIGNALS:
    void touched(const headunit::Touch &touch);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void report(Touch::Kind kind, const QPoint &position, int key);

    QWidget *const m_window;
    const qint64 m_start;
    int m_number = 0;
    bool m_down = false;
};

}  // namespace headunit
