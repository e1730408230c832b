// SPDX-License-Identifier: Apache-2.0
#include "scrollbar.h"

#include "headunit/toolkit/unitapplication.h"

#include <QMouseEvent>
#include <QPainter>

namespace cm {

namespace {

const int grooveWidth = 4;
const int handleWidth = 8;
const int shortestHandle = 48;

}  // namespace

struct ScrollBar::Private {
    struct Pill {
        QPixmap pixmap;
        QRgb fill = 0;
    };

    explicit Private(ScrollBar *bar) : q(bar) {}

    int range() const { return q->maximum() - q->minimum(); }

    int handleLength() const {
        const int whole = range() + q->pageStep();
        const int length = whole > 0 ? q->height() * q->pageStep() / whole : q->height();
        return qMin(q->height(), qMax(shortestHandle, length));
    }

    int way() const { return q->height() - handleLength(); }

    int handleTop() const { return range() > 0 ? qRound(double(q->value() - q->minimum()) * way() / range()) : 0; }

    void moveHandle(int top) {
        if (way() > 0) {
            q->setValue(q->minimum() + qRound(double(qBound(0, top, way())) * range() / way()));
        }
    }

    void press(int y) {
        const int inHandle = y - handleTop();
        const bool hit = inHandle >= 0 && inHandle < handleLength();
        grip = hit ? inHandle : handleLength() / 2;
        q->setSliderDown(true);
        moveHandle(y - grip);
        q->update();
    }

    void release() {
        q->setSliderDown(false);
        q->update();
    }

    /// A pill of that size, rendered once: a scroll step only copies pixels.
    const QPixmap &render(Pill &pill, const QSize &size, const QColor &fill) const {
        const qreal ratio = q->devicePixelRatioF();
        if (pill.pixmap.size() != size * ratio || pill.fill != fill.rgba()) {
            pill.pixmap = QPixmap(size * ratio);
            pill.pixmap.setDevicePixelRatio(ratio);
            pill.pixmap.fill(Qt::transparent);
            pill.fill = fill.rgba();
            QPainter painter(&pill.pixmap);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(fill);
            const qreal radius = size.width() / 2.0;
            painter.drawRoundedRect(QRectF(QPointF(), size), radius, radius);
        }
        return pill.pixmap;
    }

    ScrollBar *const q;
    QRect geometry;
    Pill groove;
    Pill handle;
    int grip = 0;  // where in the handle the finger holds it
};

ScrollBar::ScrollBar(QWidget *parent, const QRect &geometry, int style)
    : QScrollBar(Qt::Vertical, parent), d(new Private(this)) {
    Q_UNUSED(style);
    d->geometry = geometry;
    setGeometry(geometry);
}

ScrollBar::~ScrollBar() {
    delete d;
}

void ScrollBar::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.drawPixmap((width() - grooveWidth) / 2, 0,
                       d->render(d->groove, QSize(grooveWidth, height()), headunit::colour::raised));
    if (d->range() > 0) {
        const QColor &fill = isSliderDown() ? headunit::colour::accent : headunit::colour::handle;
        painter.drawPixmap((width() - handleWidth) / 2, d->handleTop(),
                           d->render(d->handle, QSize(handleWidth, d->handleLength()), fill));
    }
}

bool ScrollBar::event(QEvent *event) {
    switch (event->type()) {
        case QEvent::ParentChange:
            // A scroll area lays its bar out; outside of one the bar stands where it was put.
            setGeometry(d->geometry);
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
                d->press(static_cast<QMouseEvent *>(event)->y());
            }
            return true;
        case QEvent::MouseMove:
            if (isSliderDown()) {
                d->moveHandle(static_cast<QMouseEvent *>(event)->y() - d->grip);
            }
            return true;
        case QEvent::MouseButtonRelease:
            if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
                d->release();
            }
            return true;
        case QEvent::Hide:
            setSliderDown(false);
            break;
        default:
            break;
    }
    return QScrollBar::event(event);
}

}  // namespace cm
