// SPDX-License-Identifier: Apache-2.0
#include "scrollmanage.h"

#include "headunit/toolkit/kineticaxis.h"
#include "horizontalslider.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace cm {

namespace {

const int tickInterval = 16;    // ms
const int scrollDistance = 12;  // px that a finger may slip while it taps
const int outsideAnything = -(1 << 14);

}  // namespace

struct ScrollManage::Private {
    enum Phase {
        Idle,       // no finger, or one that is none of ours
        Touched,    // a finger is down that may tap or scroll
        Caught,     // a finger stopped the moving content; it may scroll on, and is no tap
        Swallowed,  // as before, but on a slider: it does nothing more
        Scrolling,
    };

    struct Axis {
        bool enabled = false;
        headunit::KineticAxis motion;
    };

    /// False also while the area is being destroyed, when its children still send events but it is none any more.
    bool exists() {
        area = qobject_cast<QScrollArea *>(areaObject);
        return area;
    }

    QScrollBar *bar(Qt::Orientation o) const {
        return o == Qt::Vertical ? area->verticalScrollBar() : area->horizontalScrollBar();
    }

    Axis &axis(Qt::Orientation o) { return o == Qt::Vertical ? vertical : horizontal; }

    static int along(Qt::Orientation o, const QPoint &p) { return o == Qt::Vertical ? p.y() : p.x(); }

    bool canScroll(Qt::Orientation o) { return axis(o).enabled && bar(o)->maximum() > bar(o)->minimum(); }

    bool moving() const { return vertical.motion.moving() || horizontal.motion.moving(); }

    void watch(QObject *object, ScrollManage *filter) {
        if (!object->isWidgetType()) {
            return;
        }
        object->installEventFilter(filter);
        for (QObject *child : object->children()) {
            watch(child, filter);
        }
    }

    bool onSlider(QObject *object) const {
        for (; object && object != area->viewport(); object = object->parent()) {
            if (qobject_cast<HorizontalSlider *>(object)) {
                return true;
            }
        }
        return false;
    }

    /// A press that its receiver does not take comes once more to each widget around it.
    bool isSameTouch(QObject *watched, const QPoint &at) const {
        const auto *widget = qobject_cast<QWidget *>(watched);
        return phase != Idle && target && widget && widget->isAncestorOf(target) && at == touchedAt;
    }

    bool press(QObject *watched, const QMouseEvent &event);
    bool move(const QMouseEvent &event);
    bool release(const QMouseEvent &event);
    void beginScroll(const QPoint &at);
    void sendOutside(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons);
    void apply();
    void tick();
    void stop();

    QScrollArea *area = nullptr;  // valid after exists()
    QPointer<QObject> areaObject;
    Axis vertical;
    Axis horizontal;
    QTimer ticker;
    Phase phase = Idle;
    QPointer<QWidget> target;  // what the finger touched
    bool targetPressed = false;
    bool sending = false;
    QPoint touchedAt;  // screen position
    QPoint grabbedAt;
};

bool ScrollManage::Private::press(QObject *watched, const QMouseEvent &event) {
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    if (isSameTouch(watched, event.globalPos())) {
        return phase != Touched;
    }
    target = qobject_cast<QWidget *>(watched);
    touchedAt = event.globalPos();
    const bool slider = onSlider(watched);
    if (moving()) {
        stop();
        phase = slider ? Swallowed : Caught;
        return true;
    }
    phase = slider ? Idle : Touched;
    targetPressed = phase == Touched;
    return false;
}

bool ScrollManage::Private::move(const QMouseEvent &event) {
    if (phase == Touched || phase == Caught) {
        const QPoint way = event.globalPos() - touchedAt;
        for (Qt::Orientation o : {Qt::Vertical, Qt::Horizontal}) {
            if (canScroll(o) && qAbs(along(o, way)) >= scrollDistance) {
                beginScroll(event.globalPos());
                break;
            }
        }
    }
    if (phase == Scrolling) {
        for (Qt::Orientation o : {Qt::Vertical, Qt::Horizontal}) {
            if (canScroll(o)) {
                axis(o).motion.drag(along(o, event.globalPos() - grabbedAt));
            }
        }
        apply();
    }
    return phase != Idle && phase != Touched;
}

bool ScrollManage::Private::release(const QMouseEvent &event) {
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    const Phase last = phase;
    phase = Idle;
    if (last == Scrolling) {
        vertical.motion.release();
        horizontal.motion.release();
        if (!moving()) {
            ticker.stop();
        }
        if (targetPressed) {
            sendOutside(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        }
    }
    targetPressed = false;
    return last != Idle && last != Touched;
}

void ScrollManage::Private::beginScroll(const QPoint &at) {
    phase = Scrolling;
    // The content does not jump by the distance that told the scroll from a tap.
    grabbedAt = at;
    for (Qt::Orientation o : {Qt::Vertical, Qt::Horizontal}) {
        if (canScroll(o)) {
            axis(o).motion.setMax(bar(o)->maximum());
            axis(o).motion.grab(bar(o)->value());
        }
    }
    ticker.start();
    if (targetPressed) {
        sendOutside(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
    }
}

/// Tells the touched widget that the finger has left it, so that a pressed key comes up without a click.
void ScrollManage::Private::sendOutside(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons) {
    if (!target) {
        return;
    }
    const QPoint outside(outsideAnything, outsideAnything);
    QMouseEvent event(type, outside, outside, outside, button, buttons, Qt::NoModifier);
    sending = true;
    QCoreApplication::sendEvent(target, &event);
    sending = false;
}

void ScrollManage::Private::apply() {
    int beyond[2] = {0, 0};
    for (Qt::Orientation o : {Qt::Vertical, Qt::Horizontal}) {
        if (canScroll(o)) {
            bar(o)->setValue(qRound(axis(o).motion.position()));
            beyond[o == Qt::Vertical] = qRound(axis(o).motion.overshoot());
        }
    }
    if (QWidget *content = area->widget()) {
        content->move(-bar(Qt::Horizontal)->value() - beyond[0], -bar(Qt::Vertical)->value() - beyond[1]);
    }
}

void ScrollManage::Private::tick() {
    if (!exists()) {
        ticker.stop();
        return;
    }
    vertical.motion.tick();
    horizontal.motion.tick();
    if (phase == Scrolling) {
        return;
    }
    apply();
    if (!moving()) {
        ticker.stop();
    }
}

void ScrollManage::Private::stop() {
    ticker.stop();
    vertical.motion.stop();
    horizontal.motion.stop();
    apply();
}

ScrollManage::ScrollManage(QScrollArea *area, bool vertical, bool horizontal) : QObject(area), d(new Private) {
    d->areaObject = area;
    d->vertical.enabled = vertical;
    d->horizontal.enabled = horizontal;
    d->ticker.setTimerType(Qt::PreciseTimer);
    d->ticker.setInterval(tickInterval);
    connect(&d->ticker, &QTimer::timeout, this, [this] { d->tick(); });
    if (area) {
        d->watch(area->viewport(), this);
    }
}

ScrollManage::~ScrollManage() {
    delete d;
}

bool ScrollManage::eventFilter(QObject *watched, QEvent *event) {
    if (d->sending || !d->exists()) {
        return false;
    }
    switch (event->type()) {
        case QEvent::ChildAdded:
            d->watch(static_cast<QChildEvent *>(event)->child(), this);
            return false;
        case QEvent::Hide:
            if (watched == d->area->viewport()) {
                d->stop();
                d->phase = Private::Idle;
            }
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return d->press(watched, *static_cast<QMouseEvent *>(event));
        case QEvent::MouseMove:
            return d->move(*static_cast<QMouseEvent *>(event));
        case QEvent::MouseButtonRelease:
            return d->release(*static_cast<QMouseEvent *>(event));
        default:
            return false;
    }
}

}  // namespace cm
