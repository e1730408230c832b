// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

namespace headunit {

/// The telephone while a call is going on. It takes the screen from whichever application has it.
class CallScreen : public QWidget {
    Q_OBJECT
public:
    explicit CallScreen(QWidget *parent);

Q_SIGNALS:
    void ended();

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
};

}  // namespace headunit
