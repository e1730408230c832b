// SPDX-License-Identifier: Apache-2.0
// Keys of the toolkit.

#include "labelbutton.h"
#include "pushbutton.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace cm {

struct PushButton::Private {
    QPointer<QPushButton> key;
    QTimer timer;
    int holdTime = 1500;  // ms
    int repeatTime = 0;   // ms; 0 for no repeats
    bool held = false;
};

PushButton::PushButton(QPushButton *button, QObject *parent) : QObject(parent), d(new Private) {
    d->key = button;
    d->timer.setSingleShot(true);
    d->timer.setTimerType(Qt::PreciseTimer);
    connect(button, &QPushButton::pressed, this, [this] {
        d->held = false;
        d->timer.start(d->holdTime);
    });
    connect(button, &QPushButton::released, &d->timer, &QTimer::stop);
    connect(&d->timer, &QTimer::timeout, this, [this] {
        // A press may end without released(): a key that is hidden or disabled under the finger.
        const QPushButton *const key = d->key.data();
        if (!key || !key->isDown() || !key->isEnabled() || !key->isVisible()) { return; }
        if (d->repeatTime > 0) { d->timer.start(d->repeatTime); }
        const bool first = !d->held;
        d->held = true;
        const QPointer<PushButton> self(this);
        if (first) { emit longPressed(); }
        if (self && d->repeatTime > 0 && d->key && d->key->isDown()) { emit longPressedRepeat(); }
    });
}

PushButton::~PushButton() { delete d; }

void PushButton::setLongPressedInterval(int ms) { d->holdTime = ms; }

void PushButton::setRepeatInterval(int ms) { d->repeatTime = ms; }

struct LabelButton::Private {
    QUrl urls[Disabled + 1];
    QPixmap pictures[Disabled + 1];
    int groupId = 0;
    bool down = false;
};

LabelButton::LabelButton(QWidget *parent) : QLabel(parent), d(new Private) {}

LabelButton::~LabelButton() { delete d; }

void LabelButton::setIcon(IconStateID state, const QUrl &picture) {
    d->urls[state] = picture;
    d->pictures[state].load(QLatin1Char(':') + picture.path().remove(QLatin1Char(':')));
    update();
}

QUrl LabelButton::icon(IconStateID state) const { return d->urls[state]; }

void LabelButton::setGroupId(int id) { d->groupId = id; }

void LabelButton::paintEvent(QPaintEvent *event) {
    const QPixmap &own = d->pictures[!isEnabled() ? Disabled : d->down ? NormalOn : NormalOff];
    const QPixmap &picture = own.isNull() ? d->pictures[NormalOff] : own;
    QPainter(this).drawPixmap((width() - picture.width()) / 2, (height() - picture.height()) / 2, picture);
    if (!text().isEmpty()) { QLabel::paintEvent(event); }
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
    const QPointer<LabelButton> self(this);
    if (click) { emit clicked(); }
    if (click && self) { emit clicked(d->groupId); }
}

void LabelButton::changeEvent(QEvent *event) {
    d->down = d->down && isEnabled();
    QLabel::changeEvent(event);
}

}  // namespace cm
