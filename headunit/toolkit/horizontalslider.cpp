// SPDX-License-Identifier: Apache-2.0
#include "horizontalslider.h"

#include "headunit/toolkit/picture.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>

namespace {

constexpr int numberPixelSize = 20;
constexpr QRgb numberColour = qRgb(0x11, 0x11, 0x11);

}  // namespace

struct HorizontalSlider::Private : public QObject {
    explicit Private(HorizontalSlider *slider) : q(slider) { q->installEventFilter(this); }

    int knobWidth() const { return showKnob ? headunit::pictureSize(knob).width() : 0; }

    int lastIndex() const { return qMax(0, end - 1 - min); }

    /// In range for every value: the difference of two far ones would overflow.
    int index() const { return qBound(min, value, min + lastIndex()) - min; }

    /// Where the knob's centre may go: half a knob is kept free at either end of the widget.
    int travel() const { return qMax(0, q->width() - knobWidth()); }

    int centreOf(int stepIndex) const {
        const int steps = lastIndex();
        return knobWidth() / 2 + (steps > 0 ? qRound(double(stepIndex) * travel() / steps) : 0);
    }
    int centre() const { return centreOf(index()); }

    /// Negative and positive values: the number has a sign, and the track fills from 0.
    bool spansZero() const { return min < 0 && min + lastIndex() > 0; }
    int fillStart() const { return spansZero() ? centreOf(-min) : 0; }

    /// As it is, also outside the range.
    QString number() const {
        const QString digits = QString::number(qAbs(qint64(value)));
        if (value < 0) {
            return QChar(0x2212) + digits;
        }
        return value > 0 && spansZero() ? QLatin1Char('+') + digits : digits;
    }

    int valueAt(int x) const {
        const int way = travel();
        const int fromFirst = x - knobWidth() / 2;
        const int step = way > 0 ? qRound(double(fromFirst) * lastIndex() / way) : 0;
        return min + qBound(0, step, lastIndex());
    }

    QRect knobRect() const {
        QRect rect(QPoint(0, 0), showKnob ? headunit::pictureSize(knob) : QSize(0, 0));
        rect.moveTopLeft(QPoint(centre() - rect.width() / 2, (q->height() - rect.height()) / 2));
        return rect;
    }

    /// The area that a step changes: the knob, and the track from one fill edge to the other.
    QRect stepRect() const { return QRect(centre(), 0, 1, q->height()).united(knobRect()); }

    bool move(int to) {
        if (to == value) {
            return false;
        }
        const QRect before = stepRect();
        value = to;
        q->update(before.united(stepRect()));
        return true;
    }

    void moveByFinger(int x) {
        if (move(valueAt(x))) {
            emit q->valueChanged(index(), value);
        }
    }

    void setPicture(QPixmap &picture, const QString &path) {
        picture = headunit::loadPicture(path);
        trackSize = QSize();
        q->update();
    }

    QPixmap numberedKnob() const;
    static QPixmap stretched(const QPixmap &picture, int width);
    void renderTracks();

    bool eventFilter(QObject *watched, QEvent *event) override {
        // The release of a hidden or disabled slider goes to nobody.
        if (event->type() == QEvent::Hide || (event->type() == QEvent::EnabledChange && !q->isEnabled())) {
            moving = false;
        }
        return QObject::eventFilter(watched, event);
    }

    HorizontalSlider *const q;
    int min = 0;
    int end = 101;
    int value = 0;
    bool showKnob = true;
    bool moving = false;
    QPixmap knob;
    QPixmap addPage;
    QPixmap subPage;
    // The two pages over the whole width of the widget, so that a step only copies pixels.
    QPixmap filledTrack;
    QPixmap emptyTrack;
    QSize trackSize;
};

/// The picture at another width: its ends, half as wide as it is high, are kept, and its middle is stretched.
QPixmap HorizontalSlider::Private::stretched(const QPixmap &picture, int width) {
    const QSize size = headunit::pictureSize(picture);
    if (picture.isNull() || size.width() == width || width <= 0) {
        return picture;
    }
    const qreal ratio = picture.devicePixelRatioF();
    QPixmap result(QSize(width, size.height()) * ratio);
    result.setDevicePixelRatio(ratio);
    result.fill(Qt::transparent);
    const int cap = qMin(size.height() / 2, qMin(size.width(), width) / 2);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const auto slice = [&](int x, int w, int fromX, int fromW) {
        painter.drawPixmap(QRectF(x, 0, w, size.height()), picture,
                           QRectF(fromX * ratio, 0, fromW * ratio, size.height() * ratio));
    };
    slice(0, cap, 0, cap);
    slice(cap, width - 2 * cap, cap, size.width() - 2 * cap);
    slice(width - cap, cap, size.width() - cap, cap);
    return result;
}

/// The knob with its number, once for all sliders that look alike.
QPixmap HorizontalSlider::Private::numberedKnob() const {
    const QString text = number();
    QFont font = q->font();
    font.setPixelSize(numberPixelSize);
    font.setWeight(QFont::Medium);
    const QString key = QStringLiteral("horizontalslider/%1/%2/%3").arg(knob.cacheKey()).arg(text, font.key());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = knob;
        QPainter painter(&picture);
        painter.setFont(font);
        painter.setPen(QColor::fromRgb(numberColour));
        painter.drawText(QRect(QPoint(0, 0), headunit::pictureSize(knob)), Qt::AlignCenter, text);
        painter.end();
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

void HorizontalSlider::Private::renderTracks() {
    if (trackSize != q->size()) {
        trackSize = q->size();
        filledTrack = stretched(addPage, q->width());
        emptyTrack = stretched(subPage, q->width());
    }
}

HorizontalSlider::HorizontalSlider(const QRect &geometry, QWidget *parent) : QWidget(parent), d(new Private(this)) {
    setGeometry(geometry);
}

HorizontalSlider::~HorizontalSlider() {
    delete d;
}

void HorizontalSlider::setFreqRange(int min, int end) {
    d->min = min;
    d->end = end;
    update();
}

void HorizontalSlider::setShowSlider(bool show) {
    d->showKnob = show;
    update();
}

void HorizontalSlider::addSliderImage(const QString &picture) {
    d->setPicture(d->knob, picture);
}

void HorizontalSlider::setAddPage(const QString &picture) {
    d->setPicture(d->addPage, picture);
}

void HorizontalSlider::setSubPage(const QString &picture) {
    d->setPicture(d->subPage, picture);
}

void HorizontalSlider::setValue(int value) {
    if (d->move(value)) {
        emit valueChanged(d->index(), value);
    }
}

void HorizontalSlider::setCurrentLevel(int value) {
    d->move(value);
}

int HorizontalSlider::value() const {
    return d->value;
}

bool HorizontalSlider::getMoveState() const {
    return d->moving;
}

void HorizontalSlider::paintEvent(QPaintEvent *) {
    d->renderTracks();
    QPainter painter(this);
    const int edge = d->centre();
    const auto drawTrack = [&](const QPixmap &track, int from, int to) {
        if (track.isNull() || from >= to) {
            return;
        }
        const qreal ratio = track.devicePixelRatioF();
        const int trackHeight = headunit::pictureSize(track).height();
        const int top = (height() - trackHeight) / 2;  // on a whole pixel
        painter.drawPixmap(QRectF(from, top, to - from, trackHeight), track,
                           QRectF(from * ratio, 0, (to - from) * ratio, trackHeight * ratio));
    };
    // The filled track lies over the empty one, whose ticks are seen at every value.
    const int start = d->fillStart();
    drawTrack(d->emptyTrack, 0, width());
    drawTrack(d->filledTrack, qMin(start, edge), qMax(start, edge));
    if (d->showKnob && !d->knob.isNull()) {
        painter.drawPixmap(d->knobRect().topLeft(), d->numberedKnob());
    }
}

void HorizontalSlider::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        d->moving = true;
        d->moveByFinger(event->x());
    }
}

void HorizontalSlider::mouseMoveEvent(QMouseEvent *event) {
    if (d->moving) {
        d->moveByFinger(event->x());
    }
}

void HorizontalSlider::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && d->moving) {
        const QPointer<HorizontalSlider> self(this);
        d->moveByFinger(event->x());
        if (self) {
            d->moving = false;
        }
    }
}
