// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/comparison.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/setups/changehistory.h"
#include "headunit/desk/setups/programlevel.h"

namespace headunit {

namespace {

constexpr double trimsPerDecibel = 10;
constexpr int toggleId = -2;  // toggles that follow each other are one step

}  // namespace

Comparison::Comparison(ChangeHistory &history) : m_history(history) {
    connect(&history, &ChangeHistory::stepped, this, &Comparison::updateTrim);
    connect(&history.stack(), &QUndoStack::indexChanged, this, &Comparison::updateTrim);
}

Comparison::~Comparison() {
    setMatched(false);
}

void Comparison::setMatched(bool matched) {
    m_matched = matched;
    updateTrim();
}

double Comparison::trim() const {
    return SoundModel::instance().state().trim / trimsPerDecibel;
}

void Comparison::updateTrim() {
    SoundModel &model = SoundModel::instance();
    const size_t other = m_b ? 0 : 1;
    int trim = 0;
    if (m_matched && m_there[other]) {
        SoundState here = model.state();
        SoundState there = m_states[other].sound;
        // Where two are heard in turn, source and mute are the same.
        there.activeSource = here.activeSource;
        here.muted = there.muted = false;
        here.trim = there.trim = 0;
        trim = qMin(0, qRound((programLevel(there) - programLevel(here)) * trimsPerDecibel));
    }
    model.setTrim(qMax(trim, ranges::trim.low));
    Q_EMIT toggled();
}

void Comparison::toggle() {
    m_history.commit();
    const size_t left = m_b ? 1 : 0;
    const size_t entered = 1 - left;
    m_states[left] = currentState();
    m_there[left] = true;
    if (!m_there[entered]) {
        copyToOther();
    }
    const UnitState &next = m_states[entered];
    SettingsMap keys = next.keys;
    for (auto it = m_states[left].keys.cbegin(); it != m_states[left].keys.cend(); ++it) {
        if (!keys.contains(it.key())) {
            keys.insert(it.key(), QVariant());  // it was not set there
        }
    }
    m_b = entered == 1;
    m_history.change(DESK_TEXT("A/B"), toggleId, keys, &next.sound);
    updateTrim();
}

void Comparison::copyToOther() {
    const size_t other = m_b ? 0 : 1;
    m_states[other] = currentState();
    m_there[other] = true;
    updateTrim();
}

}  // namespace headunit
