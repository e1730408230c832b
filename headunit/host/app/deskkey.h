// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAbstractButton>

namespace headunit {

/// The key at the foot of the hard keys that opens the tuner's desk. It belongs to the desk on which the unit stands,
/// not to the car: it is small, and it makes no sound.
class DeskKey : public QAbstractButton {
    Q_OBJECT
public:
    explicit DeskKey(QWidget *parent);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

}  // namespace headunit
