// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>

class QWidget;

/// A finger on the screen. Every touch goes through the window, as on the unit: whatever lies on top takes it, and
/// keeps it until the release. Posted events are delivered afterwards; time does not move.
///
/// The widget names the place only (positions are in its coordinates); it must be visible and its window shown.
namespace finger {

void press(QWidget *at, const QPoint &pos);
void move(QWidget *at, const QPoint &pos);
void release(QWidget *at, const QPoint &pos);

/// Press and release.
void tap(QWidget *at, const QPoint &pos);
/// Press and release in the middle.
void tap(QWidget *at);
/// Press in the middle, hold, release there.
void hold(QWidget *at, int ms);

}  // namespace finger
