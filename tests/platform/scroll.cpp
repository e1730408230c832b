// SPDX-License-Identifier: Apache-2.0
#include "platform/horizontalslider.h"
#include "platform/scrollbar.h"
#include "platform/scrollmanage.h"
#include "tests/platform/recorder_p.h"

#include <QAbstractSlider>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollArea>

#include <cstdlib>

using recording::call;
using recording::Toolkit;

namespace cm {

struct ScrollBar::Private {};

ScrollBar::ScrollBar(QWidget *parent, const QRect &geometry, int style) : QScrollBar(Qt::Vertical, parent), d(nullptr) {
    call(Toolkit, "ScrollBar", style);
    setGeometry(geometry);
}

ScrollBar::~ScrollBar() {}

void ScrollBar::paintEvent(QPaintEvent *) {
    const int content = maximum() - minimum() + pageStep();
    if (content > 0) {
        const int top = (value() - minimum()) * height() / content;
        QPainter(this).fillRect(0, top, width(), pageStep() * height() / content, Qt::gray);
    }
}

bool ScrollBar::event(QEvent *event) {
    return QScrollBar::event(event);
}

namespace {

/// How far a finger goes before it scrolls.
constexpr int threshold = 12;  // px

bool isSlider(const QObject *object) {
    return qobject_cast<const HorizontalSlider *>(object) || qobject_cast<const QAbstractSlider *>(object);
}

}  // namespace

/// Scrolls one to one under the finger; momentum is for people.
struct ScrollManage::Private {
    QPointer<QScrollArea> area;
    bool vertical = false;
    bool horizontal = false;
    bool pressed = false;
    bool scrolling = false;
    QPoint start;
    QPoint origin;
};

ScrollManage::ScrollManage(QScrollArea *area, bool vertical, bool horizontal) : QObject(area), d(new Private) {
    call(Toolkit, "ScrollManage", vertical, horizontal);
    d->area = area;
    d->vertical = vertical;
    d->horizontal = horizontal;
    area->viewport()->installEventFilter(this);
    if (QWidget *content = area->widget()) {
        content->installEventFilter(this);
        const QList<QWidget *> children = content->findChildren<QWidget *>();
        for (QWidget *child : children) {
            if (!isSlider(child)) {
                child->installEventFilter(this);
            }
        }
    }
}

ScrollManage::~ScrollManage() {
    delete d;
}

bool ScrollManage::eventFilter(QObject *watched, QEvent *event) {
    const QEvent::Type type = event->type();
    // Anything else may come from a scroll area that is being destroyed.
    const bool touch =
        type == QEvent::MouseButtonPress || type == QEvent::MouseMove || type == QEvent::MouseButtonRelease;
    if (!touch || !d->area || isSlider(watched)) {
        return false;
    }
    QScrollBar *const down = d->area->verticalScrollBar();
    QScrollBar *const across = d->area->horizontalScrollBar();
    switch (type) {
        case QEvent::MouseButtonPress:
            d->pressed = true;
            d->scrolling = false;
            d->start = static_cast<QMouseEvent *>(event)->globalPos();
            d->origin = QPoint(across->value(), down->value());
            return false;
        case QEvent::MouseMove: {
            const QPoint way = static_cast<QMouseEvent *>(event)->globalPos() - d->start;
            if (d->pressed &&
                ((d->vertical && std::abs(way.y()) > threshold) || (d->horizontal && std::abs(way.x()) > threshold))) {
                d->scrolling = true;
            }
            if (d->scrolling) {
                down->setValue(d->origin.y() - (d->vertical ? way.y() : 0));
                across->setValue(d->origin.x() - (d->horizontal ? way.x() : 0));
            }
            return d->scrolling;
        }
        case QEvent::MouseButtonRelease:
            d->pressed = false;
            return d->scrolling;
        default:
            return false;
    }
}

}  // namespace cm
