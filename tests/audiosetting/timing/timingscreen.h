// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tests/platform/pagetest.h"
#include "timing/audiosetting_right_timing_widget.h"

#include <QLabel>
#include <QPushButton>

#include <array>

/// The tests' own knowledge of the Timing page, written down apart from its own tables.
namespace timingtest {

constexpr int outputs = 6;
const char *const names[outputs] = {"fl", "fr", "rl", "rr", "sl", "sr"};

using Delays = std::array<int, outputs>;

inline QString send(const Delays &delays) {
    QStringList values;
    for (int delay : delays) {
        values << QString::number(delay);
    }
    return QStringLiteral("setAudioTimerDelay(1, {%1})").arg(values.join(QStringLiteral(", ")));
}
inline QString write(int output, int delay) {
    return QStringLiteral("setValue(\"timing/DATA_TYPE%1\", 0, %2, true)").arg(output).arg(delay);
}
inline QString writePreset(int preset, int output, int delay) {
    return QStringLiteral("setValue(\"timing/PRESETS%1_DATA%2\", 0, %3, true)").arg(preset).arg(output).arg(delay);
}

inline void store(const Delays &delays) {
    for (int output = 0; output < outputs; ++output) {
        recording::setStored(QStringLiteral("timing/DATA_TYPE%1").arg(output), delays[output]);
    }
}
inline void storePreset(int preset, const Delays &delays) {
    for (int output = 0; output < outputs; ++output) {
        recording::setStored(QStringLiteral("timing/PRESETS%1_DATA%2").arg(preset).arg(output), delays[output]);
    }
    recording::setStored(QStringLiteral("timing/PRESET_ENABLE%1").arg(preset), true);
}

/// The page on the screen.
struct Screen {
    Audiosetting_right_timing_widget page{nullptr};

    QPushButton *key(const QString &name) { return page.findChild<QPushButton *>(name); }
    QPushButton *minus(int output) { return key(QStringLiteral("key_%1_minus").arg(names[output])); }
    QPushButton *plus(int output) { return key(QStringLiteral("key_%1_plus").arg(names[output])); }
    QLabel *value(int output) { return page.findChild<QLabel *>(QStringLiteral("txt_%1_value").arg(names[output])); }
    void tap(const char *name) { finger::tap(key(QLatin1String(name))); }
    void hold(const char *name, int ms) { finger::hold(key(QLatin1String(name)), ms); }
    void showAgain() {
        page.hide();
        page.show();
    }

    /// The six values as they are shown.
    QStringList shown() {
        QStringList texts;
        for (int output = 0; output < outputs; ++output) {
            texts << value(output)->text();
        }
        return texts;
    }
    /// Each output's keys: minus and plus, enabled or disabled.
    QStringList enabled() {
        QStringList letters;
        for (int output = 0; output < outputs; ++output) {
            letters << QLatin1String(minus(output)->isEnabled() ? "e" : "d") +
                           QLatin1String(plus(output)->isEnabled() ? "e" : "d");
        }
        return letters;
    }
    QString presets() {
        return QLatin1String(key("key_preset_1")->isChecked() ? "1" : "-") +
               QLatin1String(key("key_preset_2")->isChecked() ? "2" : "-");
    }
    QString unit() {
        return QLatin1String(key("key_msec")->isChecked() ? "m" : "-") +
               QLatin1String(key("key_inches")->isChecked() ? "i" : "-");
    }
};

}  // namespace timingtest
