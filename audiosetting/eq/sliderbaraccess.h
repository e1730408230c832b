// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QString>

namespace cm {

/// What screen readers and test tools learn of a SliderBarWidget: that it is a slider, and how far its knob is above
/// the lowest level. A factory for QAccessible::installFactory().
QAccessibleInterface *makeSliderBarAccess(const QString &className, QObject *object);

}  // namespace cm
