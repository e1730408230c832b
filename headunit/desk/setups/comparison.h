// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/setups/unitstate.h"

#include <QObject>

#include <array>

namespace headunit {

class ChangeHistory;

/// Two set-ups to listen to in turn, A and B. Changes go to the one in force; each comes back as it was left.
class Comparison : public QObject {
    Q_OBJECT
public:
    explicit Comparison(ChangeHistory &history);
    ~Comparison() override;

    bool inForceIsB() const { return m_b; }
    /// Whether the other one holds a set-up yet; if not, it begins as a copy.
    bool otherIsThere() const { return m_there[m_b ? 0 : 1]; }
    /// Puts the other one in force.
    void toggle();
    /// Makes the louder one as quiet as the other, or ends that.
    void setMatched(bool matched);
    /// By how many dB the one in force is made quieter for that; 0 or less.
    double trim() const;
    /// Makes the other one a copy of the one in force.
    void copyToOther();

Q_SIGNALS:
    void toggled();

private:
    void updateTrim();

    ChangeHistory &m_history;
    bool m_b = false;
    std::array<UnitState, 2> m_states;
    std::array<bool, 2> m_there{};
    bool m_matched = false;
};

}  // namespace headunit
