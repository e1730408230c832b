// SPDX-License-Identifier: Apache-2.0
// Faults of the toolkit, the texts and the application's set-up.

#include "examples/carunit/unit.h"
#include "platform/basewindow.h"
#include "platform/commsystemutils.h"
#include "platform/horizontalslider.h"
#include "platform/labelbutton.h"
#include "platform/pushbutton.h"
#include "platform/scrollbar.h"
#include "platform/scrollmanage.h"
#include "tests/conformance/faults.h"

#include <QApplication>
#include <QEvent>
#include <QMap>
#include <QPushButton>
#include <QTimer>

namespace {

QMap<cm::PushButton *, QPushButton *> s_buttons;

}  // namespace

WRAP(void, holdConstruct, "_ZN2cm10PushButtonC1EP11QPushButtonP7QObject", cm::PushButton *self, QPushButton *button,
     QObject *parent) {
    REAL(holdConstruct);
    real(self, button, parent);
    s_buttons[self] = button;
    if (faulty("hold-1000")) {
        self->setLongPressedInterval(1000);
    }
    if (faulty("hold-2500")) {
        self->setLongPressedInterval(2500);
    }
    if (faulty("every-press-is-long")) {
        QObject::connect(button, &QPushButton::released, self, &cm::PushButton::longPressed);
    }
    if (faulty("repeats-go-on")) {
        QTimer *const timer = new QTimer(self);
        QObject::connect(timer, &QTimer::timeout, self, &cm::PushButton::longPressedRepeat);
        QObject::connect(button, &QPushButton::pressed, self, [timer] { timer->start(150); });
    }
}

WRAP(void, holdInterval, "_ZN2cm10PushButton22setLongPressedIntervalEi", cm::PushButton *self, int ms) {
    REAL(holdInterval);
    real(self, faulty("hold-interval-fixed") ? 1500 : ms);
}

WRAP(void, repeatInterval, "_ZN2cm10PushButton17setRepeatIntervalEi", cm::PushButton *self, int ms) {
    REAL(repeatInterval);
    real(self, faulty("repeats-at-half-rate") ? 2 * ms : faulty("no-repeats") ? 0 : ms);
}

WRAP(void, longPressed, "_ZN2cm10PushButton11longPressedEv", cm::PushButton *self) {
    REAL(longPressed);
    if (faulty("hold-is-mute")) {
        return;
    }
    real(self);
    if (faulty("hold-comes-twice")) {
        real(self);
    }
    if (faulty("hold-swallows-click")) {
        s_buttons[self]->setDown(false);
    }
}

WRAP(void, labelClickedId, "_ZN2cm11LabelButton7clickedEi", cm::LabelButton *self, int id) {
    REAL(labelClickedId);
    if (!faulty("label-without-id")) {
        real(self, id);
    }
}

WRAP(void, labelGroup, "_ZN2cm11LabelButton10setGroupIdEi", cm::LabelButton *self, int id) {
    REAL(labelGroup);
    real(self, faulty("group-is-0") ? 0 : id);
}

WRAP(void, labelRelease, "_ZN2cm11LabelButton17mouseReleaseEventEP11QMouseEvent", cm::LabelButton *self,
     QMouseEvent *event) {
    REAL(labelRelease);
    if (faulty("label-clicks-outside")) {
        emit self->clicked();
    }
    real(self, event);
}

WRAP(void, labelIcon, "_ZN2cm11LabelButton7setIconENS0_11IconStateIDERK4QUrl", cm::LabelButton *self,
     cm::LabelButton::IconStateID state, const QUrl &picture) {
    REAL(labelIcon);
    if ((faulty("label-without-pressed") && state == cm::LabelButton::NormalOn) ||
        (faulty("label-without-disabled") && state == cm::LabelButton::Disabled) ||
        (faulty("label-takes-qrc-only") && picture.scheme() != QLatin1String("qrc"))) {
        return;
    }
    real(self, state, picture);
}

WRAP(void, sliderRange, "_ZN16HorizontalSlider12setFreqRangeEii", HorizontalSlider *self, int min, int end) {
    REAL(sliderRange);
    real(self, min, faulty("slider-end-inclusive") ? end + 1 : end);
}

WRAP(void, sliderSet, "_ZN16HorizontalSlider8setValueEi", HorizontalSlider *self, int value) {
    REAL(sliderSet);
    if (faulty("set-value-is-silent")) {
        self->setCurrentLevel(value);
    } else {
        real(self, value);
    }
}

WRAP(void, sliderLevel, "_ZN16HorizontalSlider15setCurrentLevelEi", HorizontalSlider *self, int value) {
    REAL(sliderLevel);
    real(self, faulty("level-is-clamped") ? qBound(-10, value, 40) : value);
    if (faulty("set-level-emits")) {
        emit self->valueChanged(value, value);
    }
}

WRAP(void, sliderSignal, "_ZN16HorizontalSlider12valueChangedEii", HorizontalSlider *self, int index, int value) {
    REAL(sliderSignal);
    if (faulty("slider-is-mute")) {
        return;
    }
    real(self, faulty("index-is-value") ? value : index, value);
    if (faulty("slider-emits-twice")) {
        real(self, index, value);
    }
}

WRAP(bool, sliderMoving, "_ZNK16HorizontalSlider12getMoveStateEv", const HorizontalSlider *self) {
    REAL(sliderMoving);
    return !faulty("never-moving") && real(self);
}

WRAP(void, sliderPress, "_ZN16HorizontalSlider15mousePressEventEP11QMouseEvent", HorizontalSlider *self,
     QMouseEvent *event) {
    REAL(sliderPress);
    if (!faulty("slider-does-not-jump")) {
        real(self, event);
    }
}

WRAP(void, sliderKnob, "_ZN16HorizontalSlider13setShowSliderEb", HorizontalSlider *self, bool show) {
    REAL(sliderKnob);
    real(self, show || faulty("knob-always-shown"));
}

WRAP(void, sliderFilled, "_ZN16HorizontalSlider10setAddPageERK7QString", HorizontalSlider *self,
     const QString &picture) {
    REAL(sliderFilled);
    if (faulty("track-swapped")) {
        self->setSubPage(picture);
    } else {
        real(self, picture);
    }
}

WRAP(bool, scrollFilter, "_ZN2cm12ScrollManage11eventFilterEP7QObjectP6QEvent", cm::ScrollManage *self,
     QObject *watched, QEvent *event) {
    REAL(scrollFilter);
    if (faulty("does-not-scroll")) {
        return false;
    }
    if (faulty("scroll-swallows-taps") && event->type() == QEvent::MouseButtonPress) {
        return true;
    }
    return real(self, watched, event);
}

WRAP(void, scrollBarConstruct, "_ZN2cm9ScrollBarC1EP7QWidgetRK5QRecti", cm::ScrollBar *self, QWidget *parent,
     const QRect &geometry, int style) {
    REAL(scrollBarConstruct);
    real(self, parent, faulty("bar-elsewhere") ? QRect(0, 0, 10, 10) : geometry, style);
}

WRAP(void, scrollBarPaint, "_ZN2cm9ScrollBar10paintEventEP11QPaintEvent", cm::ScrollBar *self, QPaintEvent *event) {
    REAL(scrollBarPaint);
    if (!faulty("bar-is-empty")) {
        real(self, event);
    }
}

WRAP(int, windowAttribute, "_ZN2cm10BaseWindow9attributeEv", cm::BaseWindow *) {
    return faulty("attribute-7") ? 7 : 0;
}

WRAP(int, windowKey, "_ZN2cm10BaseWindow8keyEventEP8KeyEvent", cm::BaseWindow *, KeyEvent *) {
    return faulty("window-eats-keys") ? 1 : 0;
}

WRAP(int, windowBack, "_ZN2cm10BaseWindow9backEventEv", cm::BaseWindow *) {
    return faulty("window-eats-back") ? 1 : 0;
}

WRAP(void, windowWidget, "_ZN2cm10BaseWindow13setMainWidgetEP7QWidgeti", cm::BaseWindow *self, QWidget *widget,
     int id) {
    REAL(windowWidget);
    if (!faulty("widget-is-lost")) {
        real(self, widget, id);
    }
}

WRAP(void *, displayControl, "_ZN12EventHandler7controlEv", void *self) {
    REAL(displayControl);
    return faulty("no-display-control") ? nullptr : real(self);
}

WRAP(QString, translate, "_ZN10Translator9translateEi", int id) {
    REAL(translate);
    if (faulty("a-text-is-missing") && id == 1084) {
        return QString();
    }
    if (faulty("texts-are-one") && id > 1000) {
        return QStringLiteral("Text");
    }
    const QString text = real(id);
    return faulty("unknown-text-has-one") && text.isEmpty() ? QStringLiteral("?") : text;
}

WRAP(void, fontDefault, "_ZN15CommSystemUtils17sync_default_fontEP7QWidgetRK7QString", void *self, QWidget *parent,
     const QString &prefix) {
    REAL(fontDefault);
    if (faulty("default-font-stays")) {
        return;
    }
    real(self, parent, faulty("font-for-all") ? QString() : prefix);
    for (QWidget *child : parent->findChildren<QWidget *>()) {
        if (faulty("font-changes-size")) {
            child->setFont(QFont(child->font().family(), 10));
        }
    }
}

WRAP(void, fontCustom, "_ZN15CommSystemUtils16sync_custom_fontEP7QWidgetR5QFontRK7QString", void *self, QWidget *parent,
     QFont &font, const QString &prefix) {
    REAL(fontCustom);
    real(self, parent, font, faulty("custom-font-for-all") ? QString() : prefix);
}

WRAP(void, language, "_ZN7carunit11setLanguageERK7QString", const QString &code) {
    REAL(language);
    if (!faulty("language-stays")) {
        real(code);
    }
}

WRAP(void, setUp, "_ZN7carunit16setUpApplicationEv", void) {
    REAL(setUp);
    real();
    if (faulty("wide-font")) {
        QFont font = QApplication::font();
        font.setFamily(QStringLiteral("DejaVu Sans Mono"));
        font.setStretch(300);
        QApplication::setFont(font);
    }
    if (faulty("sheet-blackens-captions")) {
        qApp->setStyleSheet(QStringLiteral("QLabel { color: black; }"));
    }
    if (faulty("sheet-frames-keys")) {
        qApp->setStyleSheet(QStringLiteral("QPushButton { background: white; border: 2px solid red; }"));
    }
}
