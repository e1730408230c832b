// SPDX-License-Identifier: Apache-2.0
#include "crossoverfilters.h"

#include "base/debuglog.h"
#include "mcuservice.h"

namespace audiosetting {
namespace crossover {

namespace {

int stepAround(int value, int step, int first, int last) {
    if (step > 0) {
        return value >= last ? first : value + 1;
    }
    return value <= first ? last : value - 1;
}

}  // namespace

CrossoverFilters::CrossoverFilters() {
    for (auto &channel : m_values) {
        for (int field = 0; field < fieldCount; ++field) {
            channel[field] = defaultOf(field);
        }
    }
}

void CrossoverFilters::load() {
    for (int channel = 0; channel < channelCount; ++channel) {
        for (int field = 0; field < fieldCount; ++field) {
            m_values[channel][field] = current(channel, field).value();
        }
    }
}

void CrossoverFilters::loadPreset(int number) {
    for (int channel = 0; channel < channelCount; ++channel) {
        for (int field = 0; field < fieldCount; ++field) {
            m_values[channel][field] = preset(channel, field, number).value();
        }
    }
}

void CrossoverFilters::savePreset(int number) const {
    for (int channel = 0; channel < channelCount; ++channel) {
        for (int field = 0; field < fieldCount; ++field) {
            preset(channel, field, number).write(m_values[channel][field]);
        }
    }
}

void CrossoverFilters::storeAll() const {
    for (int channel = 0; channel < channelCount; ++channel) {
        for (int field = 0; field < fieldCount; ++field) {
            store(channel, field);
        }
    }
}

void CrossoverFilters::send(int channel) const {
    const int freq = m_values[channel][Freq];
    const int slope = m_values[channel][Slope];
    const int level = m_values[channel][Level];
    AUDIO_LOG << "send mcu:" << channel << freq << slope << level;
    mcu::McuService *service = mcu::McuService::instance();
    switch (channel) {
        case Front:
            service->setCrossoverFrontFreq(freq, slope, level);
            break;
        case Rear:
            service->setCrossoverRearFreq(freq, slope, level);
            break;
        default:
            service->setLPFValue(freq, slope, level);
            break;
    }
}

void CrossoverFilters::stepSlope(int channel, int step) {
    m_values[channel][Slope] = stepAround(m_values[channel][Slope], step, minSlope, maxSlope);
}

void CrossoverFilters::stepFrequency(int channel, int step) {
    m_values[channel][Freq] = stepAround(m_values[channel][Freq], step, 0, frequencyCount(channel) - 1);
}

bool CrossoverFilters::matchesPreset(int number) {
    struct Compared {
        Channel channel;
        Field field;
    };
    // The order is required: a unit's store sees the reads, and a preset that differs is read no further.
    static const Compared order[] = {
        {Front, Freq}, {Front, Level},     {Front, Slope},    {Rear, Freq},       {Rear, Level},
        {Rear, Slope}, {Subwoofer, Level}, {Subwoofer, Freq}, {Subwoofer, Slope},
    };
    if (!presetSaved(number).flag()) {
        return false;
    }
    for (const Compared &row : order) {
        if (current(row.channel, row.field).value() != preset(row.channel, row.field, number).value()) {
            return false;
        }
    }
    return true;
}

}  // namespace crossover
}  // namespace audiosetting
