// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "eq/audiosetting_right_eq_widget.h"
#include "platform/labelbutton.h"
#include "tests/audiosetting/eq/eqreference.h"
#include "tests/platform/pagetest.h"

#include <QLabel>
#include <QPushButton>

/// The common parts of the tests of the EQ page.
namespace eqpage {

inline QString highlight(int preset) {
    return QStringLiteral("setValue(\"HIGHLIGHT_PRESET_ID\", -1, %1, true)").arg(preset);
}

inline QString lastPreset(int preset) {
    return QStringLiteral("setValue(\"custom_eq_type_id\", 0, %1, true)").arg(preset);
}

inline QString presetKey(int preset, int band) {
    return QStringLiteral("customeq%1_%2").arg(preset + 1).arg(band);
}

inline QString savedKey(int preset) {
    return QStringLiteral("EqPresetSwitch%1").arg(preset);
}

inline QString send(int value, int band) {
    return QStringLiteral("setCustomEq(%1, %2, true)").arg(value).arg(band);
}

inline QString type(int number) {
    return QStringLiteral("setEQType(%1, true)").arg(number);
}

/// The lines of a curve that goes out whole, as service values.
inline QStringList sendAll(const QList<int> &levels) {
    QStringList lines;
    for (int band = 0; band < levels.size(); ++band) {
        lines << send(24 - levels[band], band);
    }
    return lines;
}

/// The service plays that custom curve, and has kept it.
inline void setLive(const QList<int> &levels) {
    recording::state().eqType = 16;
    for (int band = 0; band < levels.size(); ++band) {
        recording::state().customEq[band] = 24 - levels[band];
        recording::setStored(QStringLiteral("eq%1").arg(band), 24 - levels[band]);
    }
}

inline void savePreset(int preset, const QList<int> &levels) {
    recording::setStored(savedKey(preset), true);
    for (int band = 0; band < levels.size(); ++band) {
        recording::setStored(presetKey(preset, band), levels[band]);
    }
}

/// A curve unlike any preset, other for each seed.
inline QList<int> curve(int seed) {
    QList<int> levels;
    for (int band = 0; band < reference::bands; ++band) {
        levels << (7 * band + 5 * seed + 3) % 25;
    }
    return levels;
}

/// The step keys of one row, from left to right.
inline QList<cm::LabelButton *> stepKeys(const QWidget &page, int y) {
    QList<cm::LabelButton *> keys;
    for (cm::LabelButton *key : page.findChildren<cm::LabelButton *>()) {
        if (key->y() == y) {
            keys << key;
        }
    }
    std::sort(keys.begin(), keys.end(), [](const QWidget *a, const QWidget *b) { return a->x() < b->x(); });
    return keys;
}

inline QList<cm::LabelButton *> upKeys(const QWidget &page) {
    return stepKeys(page, 0);
}

inline QList<cm::LabelButton *> downKeys(const QWidget &page) {
    return stepKeys(page, 260);
}

inline QPushButton *customKey(const QWidget &page, int preset) {
    return page.findChild<QPushButton *>(QStringLiteral("key_custom%1").arg(preset + 1));
}

/// The preset shown as selected, or -1; -2 for more than one.
inline int selected(const QWidget &page) {
    int found = -1;
    for (int preset = 0; preset < 5; ++preset) {
        if (customKey(page, preset)->isChecked()) {
            found = found == -1 ? preset : -2;
        }
    }
    return found;
}

/// Where a finger sets a slider to that level.
inline QPoint at(int level) {
    return QPoint(18, reference::touchY(reference::pageBorders, level));
}

}  // namespace eqpage
