// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QObject>

class QScrollArea;

namespace cm {

/// Kinetic scrolling of a scroll area by finger: a finger that starts on a slider moves the slider, one that
/// starts elsewhere scrolls with momentum and a soft end, and a tap stays a tap.
class PLATFORM_API ScrollManage : public QObject {
    Q_OBJECT
public:
    /// Scrolls \a area by finger, up and down where \a vertical, left and right where \a horizontal. The new object
    /// becomes a child of \a area, which deletes it: callers make it with new and keep it no longer than the area.
    ScrollManage(QScrollArea *area, bool vertical, bool horizontal);
    ~ScrollManage() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Private;
    Private *const d;
};

}  // namespace cm
