// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/kineticaxis.h"

#include <algorithm>
#include <cmath>

namespace headunit {

namespace {

const double friction = 0.95;        // of the velocity that is left after a tick
const double minVelocity = 0.5;      // px per tick; slower content is at rest
const double maxVelocity = 60.0;     // px per tick; a faster flick cannot be followed by the eye
const double newSampleWeight = 0.6;  // of the last tick in the finger's velocity
const double softEndFriction = 0.5;  // of the velocity that is left after a tick beyond the end
const double softEndReturn = 0.75;   // of the overshoot that is left after a tick on the way back
const double softEndGive = 0.35;     // px that the content follows per px of the finger beyond the end
const double maxOvershoot = 48.0;    // px
const double restingDistance = 0.5;  // px; nearer content has arrived

}  // namespace

void KineticAxis::setMax(double max) {
    m_max = std::max(0.0, max);
}

double KineticAxis::position() const {
    return std::clamp(m_position, 0.0, m_max);
}

void KineticAxis::grab(double position) {
    m_position = m_grabbed = m_lastTicked = position;
    m_velocity = 0;
    m_held = true;
    m_moving = false;
}

void KineticAxis::drag(double distance) {
    const double wanted = m_grabbed - distance;
    const double inside = std::clamp(wanted, 0.0, m_max);
    m_position = inside + std::clamp((wanted - inside) * softEndGive, -maxOvershoot, maxOvershoot);
}

void KineticAxis::release() {
    m_held = false;
    m_velocity = overshoot() != 0 ? 0 : std::clamp(m_velocity, -maxVelocity, maxVelocity);
    m_moving = overshoot() != 0 || std::abs(m_velocity) >= minVelocity;
}

void KineticAxis::stop() {
    m_position = position();
    m_velocity = 0;
    m_held = m_moving = false;
}

void KineticAxis::tick() {
    if (m_held) {
        m_velocity += (m_position - m_lastTicked - m_velocity) * newSampleWeight;
        m_lastTicked = m_position;
        return;
    }
    if (!m_moving) {
        return;
    }
    m_position = std::clamp(m_position + m_velocity, -maxOvershoot, m_max + maxOvershoot);
    const bool beyond = overshoot() != 0;
    m_velocity *= beyond ? softEndFriction : friction;
    if (std::abs(m_velocity) >= minVelocity) {
        return;
    }
    m_velocity = 0;
    if (!beyond) {
        m_moving = false;
        return;
    }
    m_position = position() + overshoot() * softEndReturn;
    if (std::abs(overshoot()) < restingDistance) {
        stop();
    }
}

}  // namespace headunit
