// SPDX-License-Identifier: Apache-2.0
// Slider, scroll bar and scrolling of the toolkit.

#include "horizontalslider.h"
#include "scrollbar.h"
#include "scrollmanage.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>
#include <QScrollArea>

struct HorizontalSlider::Private {
    int min = 0, end = 101, value = 0;
    bool moving = false, showKnob = true;
    QPixmap knob, filled, empty;
};

HorizontalSlider::HorizontalSlider(const QRect &geometry, QWidget *parent) : QWidget(parent), d(new Private) {
    setGeometry(geometry);
}

HorizontalSlider::~HorizontalSlider() { delete d; }

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
    d->knob.load(picture);
    update();
}

void HorizontalSlider::setAddPage(const QString &picture) {
    d->filled.load(picture);
    update();
}

void HorizontalSlider::setSubPage(const QString &picture) {
    d->empty.load(picture);
    update();
}

void HorizontalSlider::setValue(int value) {
    if (value != d->value) {
        setCurrentLevel(value);
        emit valueChanged(qBound(d->min, value, d->end - 1) - d->min, value);
    }
}

void HorizontalSlider::setCurrentLevel(int value) {
    d->value = value;
    update();
}

int HorizontalSlider::value() const { return d->value; }

bool HorizontalSlider::getMoveState() const { return d->moving; }

void HorizontalSlider::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const int steps = qMax(1, d->end - 1 - d->min);
    // Half a knob is kept free at either end.
    const auto place = [&](int value) {
        const int index = qBound(d->min, value, d->end - 1) - d->min;
        return d->knob.width() / 2 + qRound(double(index) * (width() - d->knob.width()) / steps);
    };
    const int centre = place(d->value);
    const bool spansZero = d->min < 0 && d->end > 1;
    const int from = spansZero ? place(0) : 0;
    const int top = (height() - d->empty.height()) / 2;
    painter.drawPixmap(QRect(0, top, width(), d->empty.height()), d->empty);
    painter.setClipRect(qMin(from, centre), 0, qAbs(centre - from), height());
    painter.drawPixmap(QRect(0, top, width(), d->filled.height()), d->filled);
    painter.setClipping(false);
    if (!d->showKnob) { return; }
    const QRect knob(QPoint(centre - d->knob.width() / 2, (height() - d->knob.height()) / 2), d->knob.size());
    painter.drawPixmap(knob.topLeft(), d->knob);
    QFont number = font();
    number.setPixelSize(20);
    painter.setFont(number);
    painter.setPen(QColor(0x11, 0x11, 0x11));
    painter.drawText(knob, Qt::AlignCenter,
                     (spansZero && d->value > 0 ? QStringLiteral("+") : QString()) + QString::number(d->value));
}

void HorizontalSlider::mousePressEvent(QMouseEvent *event) {
    d->moving = true;
    mouseMoveEvent(event);
}

void HorizontalSlider::mouseMoveEvent(QMouseEvent *event) {
    if (d->moving) {
        const int steps = d->end - 1 - d->min;
        const int way = qMax(1, width() - d->knob.width());
        setValue(d->min + qBound(0, qRound(double(event->x() - d->knob.width() / 2) * steps / way), steps));
    }
}

void HorizontalSlider::mouseReleaseEvent(QMouseEvent *event) {
    mouseMoveEvent(event);
    d->moving = false;
}

namespace cm {

struct ScrollBar::Private {
    QRect geometry;
};

ScrollBar::ScrollBar(QWidget *parent, const QRect &geometry, int) : QScrollBar(Qt::Vertical, parent), d(new Private) {
    d->geometry = geometry;
    setGeometry(geometry);
}

ScrollBar::~ScrollBar() { delete d; }

void ScrollBar::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect((width() - 4) / 2, 0, 4, height(), QColor(0x2C, 0x36, 0x43));
    if (maximum() > minimum()) {
        const int length = height() * pageStep() / (maximum() - minimum() + pageStep());
        const int top = (value() - minimum()) * (height() - length) / (maximum() - minimum());
        painter.fillRect((width() - 8) / 2, top, 8, length, QColor(0xA9, 0xB4, 0xC0));
    }
}

bool ScrollBar::event(QEvent *event) {
    if (event->type() == QEvent::ParentChange) {
        setGeometry(d->geometry);  // the scroll area has laid it out at its own edge
    }
    return QScrollBar::event(event);
}

struct ScrollManage::Private {
    QPointer<QScrollArea> area;
    bool across = false, pressed = false, scrolling = false;
    QPoint start, last, speed;
    QPointer<QPropertyAnimation> momentum;
    QScrollBar *bar() const { return across ? area->horizontalScrollBar() : area->verticalScrollBar(); }
    int along(const QPoint &point) const { return across ? point.x() : point.y(); }
};

ScrollManage::ScrollManage(QScrollArea *area, bool, bool horizontal) : QObject(area), d(new Private) {
    d->area = area;
    d->across = horizontal;
    // The sliders are made later, and keep their fingers.
    area->viewport()->installEventFilter(this);
    for (QWidget *widget : area->viewport()->findChildren<QWidget *>()) { widget->installEventFilter(this); }
}

ScrollManage::~ScrollManage() { delete d; }

bool ScrollManage::eventFilter(QObject *watched, QEvent *event) {
    // Children come and go as well, and have no position.
    const bool touch = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove ||
                       event->type() == QEvent::MouseButtonRelease;
    if (!touch || !d->area) { return false; }
    QMouseEvent *const mouse = static_cast<QMouseEvent *>(event);
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            delete d->momentum.data();
            d->pressed = !qobject_cast<HorizontalSlider *>(watched);
            d->start = d->last = mouse->globalPos();
            return false;
        case QEvent::MouseMove:
            if (d->pressed && qAbs(d->along(mouse->globalPos() - d->start)) > 12) {
                d->pressed = false;
                // The key under the finger is let go beside itself, which is no click.
                QMouseEvent away(QEvent::MouseMove, QPoint(-1, -1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
                QMouseEvent up(QEvent::MouseButtonRelease, QPoint(-1, -1), Qt::LeftButton, Qt::NoButton,
                               Qt::NoModifier);
                watched->event(&away);
                watched->event(&up);
                d->scrolling = true;
            }
            if (d->scrolling) {
                d->speed = mouse->globalPos() - d->last;
                d->last = mouse->globalPos();
                d->bar()->setValue(d->bar()->value() - d->along(d->speed));
            }
            return d->scrolling;
        case QEvent::MouseButtonRelease: {
            const bool scrolled = d->scrolling;
            d->pressed = d->scrolling = false;
            if (scrolled) {
                d->momentum = new QPropertyAnimation(d->bar(), "value", this);
                d->momentum->setEasingCurve(QEasingCurve::OutCubic);
                d->momentum->setDuration(600);
                d->momentum->setEndValue(
                    qBound(d->bar()->minimum(), d->bar()->value() - 10 * d->along(d->speed), d->bar()->maximum()));
                d->momentum->start(QAbstractAnimation::DeleteWhenStopped);
            }
            return scrolled;
        }
        default:
            return false;
    }
}

}  // namespace cm
