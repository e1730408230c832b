// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>
#include <QPixmap>

namespace audiosetting {

/// A label for a value that changes under the finger: opaque, with a background of its own.
class ValueLabel : public QLabel {
    Q_OBJECT
public:
    explicit ValueLabel(QWidget *parent = nullptr) : QLabel(parent) {}

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_background;
};

}  // namespace audiosetting
