// SPDX-License-Identifier: Apache-2.0
#include "loudspeakerlight.h"

#include "base/picture.h"

#include <QAbstractButton>

namespace audiosetting {

namespace {

const int lightTime = 1000;  // ms after the last touch

}  // namespace

LoudspeakerLight::LoudspeakerLight(QWidget *parent) : QLabel(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(lightTime);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(timeIsOver()));
}

void LoudspeakerLight::follow(QAbstractButton *key, const QPoint &place) {
    m_places.insert(key, place);
    connect(key, SIGNAL(pressed()), this, SLOT(touched()));
    connect(key, SIGNAL(released()), this, SLOT(touched()));
}

void LoudspeakerLight::touched() {
    if (!m_places.contains(sender())) {
        return;
    }
    m_key = static_cast<QAbstractButton *>(sender());
    if (!pixmap()) {
        // Most who open the page touch no delay.
        const QPixmap light = audiosetting::picture("timing_light");
        setPixmap(light);
        resize(light.size() / light.devicePixelRatio());
    }
    QRect place = geometry();
    place.moveCenter(m_places.value(m_key));
    setGeometry(place);
    show();
    m_timer.start();
}

void LoudspeakerLight::timeIsOver() {
    if (m_key->isDown()) {
        m_timer.start();
    } else {
        hide();
    }
}

void LoudspeakerLight::hideEvent(QHideEvent *event) {
    // Nor does it light when the page is shown again.
    m_timer.stop();
    QLabel::hideEvent(event);
    hide();
}

}  // namespace audiosetting
