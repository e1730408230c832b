// SPDX-License-Identifier: Apache-2.0
#include "platform/horizontalslider.h"
#include "tests/platform/recorder_p.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using recording::call;
using recording::Toolkit;

struct HorizontalSlider::Private {
    int min = 0;
    int end = 1;
    int value = 0;
    bool moving = false;
    bool knob = true;
    QString knobPicture;
    QString filled;
    QString empty;

    int last() const { return std::max(min, end - 1); }
    int index() const { return std::clamp(value, min, last()) - min; }
    /// The value under a position of a widget that is \a width wide: the steps share the width evenly.
    int valueAt(int x, int width) const {
        const int steps = last() - min;
        const int span = std::max(1, width - 1);
        return min + (std::clamp(x, 0, span) * steps + span / 2) / span;
    }
    int positionOf(int width) const {
        const int steps = std::max(1, last() - min);
        return (std::clamp(value, min, last()) - min) * (width - 1) / steps;
    }
};

HorizontalSlider::HorizontalSlider(const QRect &geometry, QWidget *parent) : QWidget(parent), d(new Private) {
    setGeometry(geometry);
}

HorizontalSlider::~HorizontalSlider() {
    delete d;
}

void HorizontalSlider::setFreqRange(int min, int end) {
    call(Toolkit, "HorizontalSlider::setFreqRange", min, end);
    d->min = min;
    d->end = end;
    update();
}

void HorizontalSlider::setShowSlider(bool show) {
    call(Toolkit, "HorizontalSlider::setShowSlider", show);
    d->knob = show;
    update();
}

void HorizontalSlider::addSliderImage(const QString &picture) {
    call(Toolkit, "HorizontalSlider::addSliderImage", picture);
    d->knobPicture = picture;
    update();
}

void HorizontalSlider::setAddPage(const QString &picture) {
    call(Toolkit, "HorizontalSlider::setAddPage", picture);
    d->filled = picture;
    update();
}

void HorizontalSlider::setSubPage(const QString &picture) {
    call(Toolkit, "HorizontalSlider::setSubPage", picture);
    d->empty = picture;
    update();
}

void HorizontalSlider::setValue(int value) {
    call(Toolkit, "HorizontalSlider::setValue", value);
    if (d->value != value) {
        d->value = value;
        update();
        emit valueChanged(d->index(), value);
    }
}

void HorizontalSlider::setCurrentLevel(int value) {
    call(Toolkit, "HorizontalSlider::setCurrentLevel", value);
    d->value = value;
    update();
}

int HorizontalSlider::value() const {
    return d->value;
}

bool HorizontalSlider::getMoveState() const {
    return d->moving;
}

void HorizontalSlider::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const int x = d->positionOf(width());
    painter.drawPixmap(rect(), QPixmap(d->empty));
    painter.drawPixmap(QRect(0, 0, x, height()), QPixmap(d->filled));
    if (d->knob) {
        const QPixmap knob(d->knobPicture);
        painter.drawPixmap(x - knob.width() / 2, (height() - knob.height()) / 2, knob);
    }
}

void HorizontalSlider::mousePressEvent(QMouseEvent *event) {
    d->moving = true;
    mouseMoveEvent(event);
}

void HorizontalSlider::mouseMoveEvent(QMouseEvent *event) {
    const int value = d->valueAt(event->pos().x(), width());
    if (d->moving && d->value != value) {
        d->value = value;
        update();
        emit valueChanged(d->index(), value);
    }
}

void HorizontalSlider::mouseReleaseEvent(QMouseEvent *event) {
    mouseMoveEvent(event);
    d->moving = false;
}
