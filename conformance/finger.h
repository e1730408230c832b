// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>

class QWidget;

namespace conformance {

/// A finger on the screen: mouse events to whatever lies on top, which keeps them until the release. Positions are in
/// the coordinates of the widget named, which must be shown.
class Finger {
public:
    void press(QWidget *at, const QPoint &pos);
    void move(QWidget *at, const QPoint &pos);
    void release(QWidget *at, const QPoint &pos);
    void tap(QWidget *at);

private:
    QWidget *m_grabber = nullptr;
};

/// Shows a widget as a window.
void show(QWidget *widget);

}  // namespace conformance
