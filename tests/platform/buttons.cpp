// SPDX-License-Identifier: Apache-2.0
#include "platform/labelbutton.h"
#include "platform/pushbutton.h"
#include "tests/platform/recorder_p.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

using recording::call;
using recording::Toolkit;

namespace cm {

namespace {

constexpr int defaultLongPress = 1500;  // ms

}  // namespace

struct PushButton::Private {
    QPointer<QPushButton> button;
    QTimer hold;
    QTimer repeat;
    int longPress = defaultLongPress;
    int repeatInterval = 0;

    bool isHeld() const {
        const QPushButton *const held = button.data();
        return held && held->isDown() && held->isEnabled();
    }
};

PushButton::PushButton(QPushButton *button, QObject *parent) : QObject(parent), d(new Private) {
    d->button = button;
    d->hold.setSingleShot(true);
    for (QTimer *timer : {&d->hold, &d->repeat}) {
        timer->setTimerType(Qt::PreciseTimer);
    }
    connect(button, &QPushButton::pressed, this, [this] {
        d->repeat.stop();
        d->hold.start(d->longPress);
    });
    connect(button, &QPushButton::released, this, [this] {
        d->hold.stop();
        d->repeat.stop();
    });
    connect(&d->hold, &QTimer::timeout, this, [this] {
        if (!d->isHeld()) {
            return;
        }
        if (d->repeatInterval > 0) {
            d->repeat.start(d->repeatInterval);
        }
        emit longPressed();
        emit longPressedRepeat();
    });
    connect(&d->repeat, &QTimer::timeout, this, [this] {
        if (!d->isHeld()) {
            d->repeat.stop();
            return;
        }
        emit longPressedRepeat();
    });
}

PushButton::~PushButton() {
    delete d;
}

void PushButton::setLongPressedInterval(int ms) {
    call(Toolkit, "PushButton::setLongPressedInterval", ms);
    d->longPress = ms;
}

void PushButton::setRepeatInterval(int ms) {
    call(Toolkit, "PushButton::setRepeatInterval", ms);
    d->repeatInterval = ms;
}

struct LabelButton::Private {
    QUrl icons[Disabled + 1];
    int groupId = 0;
    bool down = false;
};

LabelButton::LabelButton(QWidget *parent) : QLabel(parent), d(new Private) {}

LabelButton::~LabelButton() {
    delete d;
}

void LabelButton::setIcon(IconStateID state, const QUrl &picture) {
    call(Toolkit, "LabelButton::setIcon", int(state), picture.toString());
    d->icons[state] = picture;
    update();
}

QUrl LabelButton::icon(IconStateID state) const {
    return d->icons[state];
}

void LabelButton::setGroupId(int id) {
    call(Toolkit, "LabelButton::setGroupId", id);
    d->groupId = id;
}

void LabelButton::paintEvent(QPaintEvent *event) {
    const QUrl &own = d->icons[!isEnabled() ? Disabled : d->down ? NormalOn : NormalOff];
    QString path = (own.isEmpty() ? d->icons[NormalOff] : own).path();
    if (!path.startsWith(QLatin1Char(':'))) {
        path.prepend(QLatin1Char(':'));
    }
    QPainter(this).drawPixmap(rect(), QPixmap(path));
    QLabel::paintEvent(event);
}

void LabelButton::mousePressEvent(QMouseEvent *event) {
    d->down = event->button() == Qt::LeftButton;
    update();
}

void LabelButton::mouseMoveEvent(QMouseEvent *event) {
    d->down = d->down && rect().contains(event->pos());
    update();
}

void LabelButton::mouseReleaseEvent(QMouseEvent *event) {
    const bool click = d->down && rect().contains(event->pos());
    d->down = false;
    update();
    if (click) {
        emit clicked();
        emit clicked(d->groupId);
    }
}

void LabelButton::changeEvent(QEvent *event) {
    if (event->type() == QEvent::EnabledChange) {
        d->down = false;
        update();
    }
    QLabel::changeEvent(event);
}

}  // namespace cm
