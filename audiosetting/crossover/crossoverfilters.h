// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "crossoversettings.h"

namespace audiosetting {
namespace crossover {

/// The filters of the three channels as the page holds them, a mirror of the store.
///
/// Values are kept as they are read: they may lie outside their range.
class CrossoverFilters {
public:
    CrossoverFilters();

    int value(int channel, int field) const { return m_values[channel][field]; }
    void setValue(int channel, int field, int value) { m_values[channel][field] = value; }

    /// Reads the settings in force.
    void load();
    void loadPreset(int number);
    void savePreset(int number) const;

    /// Stores one field, or everything, as the settings in force.
    void store(int channel, int field) const { current(channel, field).write(m_values[channel][field]); }
    void storeAll() const;
    /// Sends a channel to the microcontroller.
    void send(int channel) const;

    /// One step up (\a step above 0) or down, around at either end.
    void stepSlope(int channel, int step);
    void stepFrequency(int channel, int step);

    /// Whether the stored settings in force sound as preset \a number does: where the curves lie does not count.
    static bool matchesPreset(int number);

private:
    int m_values[channelCount][fieldCount];
};

}  // namespace crossover
}  // namespace audiosetting
