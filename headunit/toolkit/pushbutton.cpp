// SPDX-License-Identifier: Apache-2.0
#include "pushbutton.h"

#include "headunit/toolkit/holdbar.h"

#include <QEvent>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace cm {

namespace {

const int defaultLongPressInterval = 1500;  // ms

}  // namespace

struct PushButton::Private : public QObject {
    Private(PushButton *wrapper, QPushButton *target) : q(wrapper), button(target) {
        timer.setTimerType(Qt::PreciseTimer);
        timer.setSingleShot(true);
        connect(&timer, &QTimer::timeout, this, [this] { held(); });
        if (button) {
            connect(button, &QPushButton::pressed, this, [this] { start(); });
            connect(button, &QPushButton::released, this, [this] { stop(); });
            connect(button, &QObject::destroyed, this, [this] { timer.stop(); });
            button->installEventFilter(this);
        }
    }

    void start() {
        repeating = false;
        timer.start(longPressInterval);
        // A key that repeats shows what it does by what it changes.
        if (repeatInterval <= 0 && q->isSignalConnected(QMetaMethod::fromSignal(&PushButton::longPressed))) {
            if (!bar) {
                bar = new headunit::HoldBar(button);
            }
            bar->begin(longPressInterval);
        }
    }

    /// The press has ended, or can't last any longer.
    void stop() {
        timer.stop();
        if (bar && !repeating) {
            bar->cancel();
        }
    }

    /// The button may lose its press without a released(), for instance when setDown(false) takes it away.
    bool isHeld() const {
        const QPushButton *target = button;
        return target && target->isDown() && target->isEnabled();
    }

    void held() {
        if (!isHeld()) {
            stop();
            return;
        }
        // A slot may delete the wrapper or the button, or end the press.
        const QPointer<Private> self(this);
        if (!repeating) {
            repeating = true;
            if (bar) {
                bar->complete();
            }
            emit q->longPressed();
            if (!self || !isHeld()) {
                return;
            }
        }
        if (repeatInterval > 0) {
            timer.start(repeatInterval);
            emit q->longPressedRepeat();
        }
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() != QEvent::EnabledChange && event->type() != QEvent::Hide) {
            return false;
        }
        // None while the button is being destroyed, when it still sends events but is no push button any more.
        auto *target = qobject_cast<QPushButton *>(watched);
        if (target && event->type() == QEvent::Hide) {
            // The release of a hidden button goes to nobody; without this it would come back pressed.
            stop();
            target->setDown(false);
        } else if (target && !target->isEnabled()) {
            stop();
        }
        return false;
    }

    PushButton *const q;
    const QPointer<QPushButton> button;
    QPointer<headunit::HoldBar> bar;  ///< the button's, made at its first press
    QTimer timer;
    int longPressInterval = defaultLongPressInterval;
    int repeatInterval = 0;
    bool repeating = false;
};

PushButton::PushButton(QPushButton *button, QObject *parent) : QObject(parent), d(new Private(this, button)) {}

PushButton::~PushButton() {
    delete d;
}

void PushButton::setLongPressedInterval(int ms) {
    d->longPressInterval = qMax(0, ms);
}

void PushButton::setRepeatInterval(int ms) {
    d->repeatInterval = qMax(0, ms);
}

}  // namespace cm
