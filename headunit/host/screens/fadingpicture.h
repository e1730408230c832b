// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace headunit {

/// A picture of what has gone, over what took its place, and fainter until it is gone, too. Touches go through it.
///
/// It shows itself, and deletes itself at the end.
class FadingPicture : public QWidget {
    Q_OBJECT
public:
    FadingPicture(const QPixmap &picture, const QRect &place, int milliseconds, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void fade();

    const QPixmap m_picture;
    const int m_steps;
    int m_stepsLeft;
    QTimer m_timer;
};

}  // namespace headunit
