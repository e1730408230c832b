// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QScrollBar>

namespace cm {

/// The toolkit's vertical scroll bar: shows where the content stands, and can be dragged.
class PLATFORM_API ScrollBar : public QScrollBar {
    Q_OBJECT
public:
    /// \a style selects the bar's look; 0 is the only one in use.
    ScrollBar(QWidget *parent, const QRect &geometry, int style);
    ~ScrollBar() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    struct Private;
    Private *const d;
};

}  // namespace cm
