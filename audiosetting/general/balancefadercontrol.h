// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QTimer>

namespace settings {

/// The touch pad of balance (left to right) and fader (up is front), each -15 to 15.
///
/// A touch is turned into values and announced; the owner answers with setValueX(), setValueY() and updatePos(),
/// which move the marker. The pad knows nothing of the audio service but its key beep. Getters and setcircleX() to
/// setHlineY() are required: pages of a unit's own that hold a pad read and place its marker by them. So is
/// onUpdateBalance(): units invoke it by name. Nothing here calls them.
class balanceFaderControl : public QLabel {
    Q_OBJECT
public:
    balanceFaderControl(QWidget *parent, const QRect &geometry);

    /// Plain accessors: no clamping, no repaint.
    void setValueX(int value) { m_valueX = value; }
    void setValueY(int value) { m_valueY = value; }
    int getValueX() const { return m_valueX; }
    int getValueY() const { return m_valueY; }

    /// Moves the marker to the values: 100 px for 15 steps.
    void updatePos();
    /// Sets both values from a position on the pad: 6 px a step, clamped to +-15.
    void updateValue(const QPoint &position);

    /// Top left corner of the marker and place of the guide lines, in pixels.
    void setcircleX(int x);
    void setcircleY(int y);
    void setVlineX(int x);
    void setHlineY(int y);

    /// Called on release; does nothing.
    void setBalance(int, int) {}

Q_SIGNALS:
    /// A touch chose these values (balance, fader).
    void balanceFaderChanged(int x, int y);

public Q_SLOTS:
    void onUpdateBalance() {}

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void updateLabel();
    void moveMarker(const QPoint &topLeft);
    QRect markerRect() const;
    const QPixmap &still();
    qreal opacity() const;

    QPixmap m_background;
    QPixmap m_verticalLine;
    QPixmap m_horizontalLine;
    QPixmap m_marker;
    QPoint m_center;  ///< where the marker's centre is drawn
    QPoint m_origin;  ///< the pad's zero point
    int m_valueX = 0;
    int m_valueY = 0;
    QPoint m_verticalLinePos;
    QPoint m_horizontalLinePos;
    QPoint m_markerPos;
    QTimer m_dragTimer;
    QPixmap m_still;  ///< screen background, pad and lines, composed once: a drag then costs one marker
};

}  // namespace settings
