// SPDX-License-Identifier: Apache-2.0
#include "labelbutton.h"

#include "headunit/toolkit/picture.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace cm {

namespace {

const int stateCount = LabelButton::Disabled + 1;

/// Applications come in binary form, so any number may be meant to be a state.
bool exists(int state) {
    return state >= 0 && state < stateCount;
}

}  // namespace

struct LabelButton::Private : public QObject {
    explicit Private(LabelButton *button) : q(button) { q->installEventFilter(this); }

    struct Picture {
        QUrl url;
        QPixmap pixmap;
        bool loaded = false;
    };

    /// Pictures are read when they are first seen: a page is built without reading those of other states.
    const QPixmap &pixmap(IconStateID state) {
        Picture &picture = pictures[state];
        if (!picture.loaded) {
            picture.pixmap = headunit::loadPicture(headunit::picturePath(picture.url));
            picture.loaded = true;
        }
        return picture.pixmap;
    }

    const QPixmap &currentPixmap() {
        const IconStateID state = !q->isEnabled() ? Disabled : pressed ? NormalOn : NormalOff;
        const QPixmap &own = pixmap(state);
        return own.isNull() ? pixmap(NormalOff) : own;
    }

    void setPressed(bool on) {
        if (pressed != on) {
            pressed = on;
            q->update();
        }
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Hide) {
            setPressed(false);
        }
        return QObject::eventFilter(watched, event);
    }

    LabelButton *const q;
    Picture pictures[stateCount];
    int groupId = 0;
    bool pressed = false;
};

LabelButton::LabelButton(QWidget *parent) : QLabel(parent), d(new Private(this)) {}

LabelButton::~LabelButton() {
    delete d;
}

void LabelButton::setIcon(IconStateID state, const QUrl &picture) {
    if (!exists(state) || d->pictures[state].url == picture) {
        return;
    }
    d->pictures[state] = Private::Picture{picture, QPixmap(), false};
    update();
}

QUrl LabelButton::icon(IconStateID state) const {
    return exists(state) ? d->pictures[state].url : QUrl();
}

void LabelButton::setGroupId(int id) {
    d->groupId = id;
}

void LabelButton::paintEvent(QPaintEvent *event) {
    const QPixmap &pixmap = d->currentPixmap();
    if (!pixmap.isNull()) {
        QRect target(QPoint(0, 0), headunit::pictureSize(pixmap));
        target.moveCenter(rect().center());
        QPainter(this).drawPixmap(target, pixmap);
    }
    if (!text().isEmpty()) {
        QLabel::paintEvent(event);
    }
}

void LabelButton::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        d->setPressed(true);
    }
}

void LabelButton::mouseMoveEvent(QMouseEvent *event) {
    if (!rect().contains(event->pos())) {
        d->setPressed(false);
    }
}

void LabelButton::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton || !d->pressed) {
        return;
    }
    d->setPressed(false);
    if (!rect().contains(event->pos())) {
        return;
    }
    const QPointer<LabelButton> self(this);
    emit clicked();
    if (self) {
        emit clicked(d->groupId);
    }
}

void LabelButton::changeEvent(QEvent *event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        d->setPressed(false);
    }
    QLabel::changeEvent(event);
}

}  // namespace cm
