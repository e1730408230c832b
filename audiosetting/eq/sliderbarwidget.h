// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QPixmap>
#include <QVector>
#include <QWidget>

class QImage;

namespace cm {

/// A vertical slider in discrete levels, 0 at the top: a bar that fills from the knob down, and a number on the knob.
///
/// The owner supplies the places of the levels and the numbers. The slider knows nothing of audio.
class SliderBarWidget : public QWidget {
    Q_OBJECT
public:
    explicit SliderBarWidget(QWidget *parent);

    /// The knob, which stays the caller's and is painted as it then is: after drawing into it, update() the slider. Its
    /// width is also that of the bar's area and of the number.
    void setImage(QImage *&image);
    /// Width in pixels of the filled bar; 16 unless set.
    void setBarWidth(int width);
    /// Top edge of the knob for each level: up to 25 entries; any other number stands for 24.
    void setCenterPoint(const int *points, unsigned int count);
    /// First pixel below the touch zone of each level: up to 24 entries; more are dropped.
    void setBorderPoint(const int *points, unsigned int count);
    /// The number of this slider, sent with every signal.
    void setId(int id);
    /// The number printed on the knob at each level.
    void addFreqLevel(const QList<int> &texts);

    /// Moves the knob, without a signal. The level is kept as it is, even where the slider has no such level.
    void setBarLevel(int level);
    int getLevel() const { return m_level; }
    /// y of the last touch; painting keeps it on the bar. Required: owners place by it what follows the finger. Nothing
    /// here calls it.
    int lastTouchY() const { return m_lastTouchY; }

    /// y of the knob's top edge.
    int level2Point(int level) const;
    int point2Level(int y) const;

    /// One level down, and one level up.
    void clickNext();
    void clickPrev();

Q_SIGNALS:
    /// The finger came down or moved.
    void press(int section, int value);
    void release(int section, int value);
    void valueChanged(int section, int value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum { maxCenterPoints = 25, maxBorderPoints = 24, defaultPoints = 13 };

    void touch(int y);
    void moveTo(int level);
    void dropPictures();
    QSize knobSize() const;
    QRect knobRect() const;
    const QPixmap &knob();
    void paintBar(QPainter &painter);

    QImage *m_image = nullptr;
    int m_halfKnob = 14;  ///< half the knob's height in pixels, rounded up
    int m_barWidth = 16;
    int m_currentPoint = 0;
    int m_lastTouchY = 0;
    int m_level = 0;
    int m_centerPoints[maxCenterPoints];
    int m_centerCount = defaultPoints;
    int m_borderPoints[maxBorderPoints];
    int m_borderCount = defaultPoints;
    int m_id = 0;
    QList<int> m_texts;

    QPixmap m_bar;             ///< the bar at its full height
    qint64 m_knobsKey = 0;     ///< of the image that m_knobs were made of
    QVector<QPixmap> m_knobs;  ///< the knob with the number of each level, and last one without; made when first seen
};

}  // namespace cm
