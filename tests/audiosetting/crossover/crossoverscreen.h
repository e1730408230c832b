// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "crossover/audiosetting_right_crossover_widget.h"
#include "tests/platform/pagetest.h"

#include <QLabel>
#include <QPushButton>

#include <array>

/// The tests' own knowledge of the Crossover page, written down apart from its own tables.
namespace crossovertest {

enum { front, rear, subwoofer, channels };

struct Frequency {
    QString label;
    int place;  ///< x of the high-pass curves, width of the low-pass ones
};

struct Channel {
    QString name;   ///< in the keys of the current settings
    QString key;    ///< object name
    QString curve;  ///< object name
    QString operation;
    QString picture;                ///< "%1" is the slope
    std::array<QString, 5> preset;  ///< keys of frequency, y, level, slope, height
    QVector<Frequency> frequencies;
    int growth;  ///< px that a level step up adds to the height
};

inline const Channel &channel(int index) {
    static const QString off = QStringLiteral("#1074");
    static const Channel table[channels] = {
        {"front",
         "key_front",
         "label_yellow",
         "setCrossoverFrontFreq",
         ":/corvina_icon/left_yellow_%1.png",
         {"crossover/PRESET_FRONT_FREQ%1", "crossover/PRESET_FRONT_Y%1", "crossover/PRESET_FRONT_LEVEL%1",
          "crossover/PRESET_FRONT_SLOPE%1", "crossover/PRESET_FRONT_HEIGH%1"},
         {{off, -360},
          {"25 Hz", -330},
          {"40 Hz", -270},
          {"63 Hz", -215},
          {"80 Hz", -150},
          {"100 Hz", -85},
          {"160 Hz", -15},
          {"250 Hz", 40},
          {"500 Hz", 110},
          {"1000 Hz", 175},
          {"3500 Hz", 230},
          {"5000 Hz", 295}},
         21},
        {"rear",
         "key_rear",
         "label_green",
         "setCrossoverRearFreq",
         ":/corvina_icon/left_green_%1.png",
         {"crossover/PRESET_REARFREQ%1", "crossover/PRESET_REARY%1", "crossover/PRESET_REARLEVEL%1",
          "crossover/PRESET_REATSLOPE%1", "crossover/PRESET_REARHEIGH%1"},
         {{off, -360}, {"25 Hz", -330}, {"40 Hz", -270}, {"63 Hz", -215}, {"100 Hz", -85}, {"250 Hz", 40}},
         21},
        {"subwoofer",
         "key_sub",
         "label_red",
         "setLPFValue",
         ":/corvina_icon/right_red_%1.png",
         {"crossover/PRESET_SUBWOOFERFREQ%1", "crossover/PRESET_SUBWOOFERY%1", "crossover/PRESET_SUBWOOFERLEVEL%1",
          "crossover/PRESET_SUBWOOFERSLOPE%1", "crossover/PRESET_SUBWOOFERHEIGH%1"},
         {{off, 1050}, {"25 Hz", 390}, {"40 Hz", 450}, {"63 Hz", 510}, {"100 Hz", 630}, {"250 Hz", 760}},
         25},
    };
    return table[index];
}

/// One channel's settings.
struct Values {
    int freq = 0;
    int y = 0;
    int level = 12;
    int slope = 1;
    int heigh = 506;
};
using All = std::array<Values, channels>;

inline QString write(const QString &key, int defaultValue, int value) {
    return QStringLiteral("setValue(\"%1\", %2, %3, true)").arg(key).arg(defaultValue).arg(value);
}

inline QString currentKey(int index, const char *field) {
    return QStringLiteral("crossover/") + channel(index).name + QLatin1String(field);
}

/// Lines of the log: what each step of a channel writes and sends.
inline QString send(int index, const Values &v) {
    return QStringLiteral("%1(%2, %3, %4)").arg(channel(index).operation).arg(v.freq).arg(v.slope).arg(v.level);
}
inline QStringList slopeStep(int index, const Values &v) {
    return {write(currentKey(index, "slope"), 1, v.slope), send(index, v)};
}
inline QStringList curveStep(int index, const Values &v) {
    return {write(currentKey(index, "freq"), 0, v.freq), send(index, v)};
}
inline QStringList dataStep(int index, const Values &v) {
    return {write(currentKey(index, "level"), 12, v.level), write(currentKey(index, "y"), 0, v.y),
            write(currentKey(index, "heigh"), 506, v.heigh)};
}
inline QStringList refresh(int index, const Values &v) {
    return slopeStep(index, v) + curveStep(index, v);
}
/// Showing the page, Flat, and the end of a recall.
inline QStringList refreshAll(const All &all, int type) {
    QStringList lines = refresh(rear, all[rear]) + refresh(subwoofer, all[subwoofer]) + refresh(front, all[front]);
    if (type >= 0 && type < channels) {
        lines += refresh(type, all[type]);
    }
    return lines;
}

inline void store(int index, const Values &v) {
    recording::setStored(currentKey(index, "freq"), v.freq);
    recording::setStored(currentKey(index, "y"), v.y);
    recording::setStored(currentKey(index, "level"), v.level);
    recording::setStored(currentKey(index, "slope"), v.slope);
    recording::setStored(currentKey(index, "heigh"), v.heigh);
}

inline void storePreset(int number, const All &all) {
    for (int index = 0; index < channels; ++index) {
        const std::array<QString, 5> &keys = channel(index).preset;
        const Values &v = all[index];
        const int values[] = {v.freq, v.y, v.level, v.slope, v.heigh};
        for (int field = 0; field < 5; ++field) {
            recording::setStored(keys[field].arg(number), values[field]);
        }
    }
    recording::setStored(QStringLiteral("crossover/PRESET_SWITCH%1").arg(number), true);
}

/// The page on the screen.
struct Screen {
    Audiosetting_right_crossover_widget page{nullptr};

    QPushButton *key(const QString &name) { return page.findChild<QPushButton *>(name); }
    QLabel *label(const QString &name) { return page.findChild<QLabel *>(name); }
    QString text(const char *name) { return label(QLatin1String(name))->text(); }
    QLabel *curve(int index) { return label(channel(index).curve); }
    void tap(const char *name) { finger::tap(key(QLatin1String(name))); }
    void hold(const char *name, int ms) { finger::hold(key(QLatin1String(name)), ms); }
    void choose(int index) { finger::tap(key(channel(index).key)); }

    /// Slope, frequency and level as they are shown.
    QString shown() {
        return QStringLiteral("%1, %2, %3")
            .arg(text("txt_slope_value"), text("txt_freq_value"), text("txt_level_value"));
    }
    /// One letter a preset key: checked or not.
    QString presets() {
        return QLatin1String(key("key_preset_1")->isChecked() ? "1" : "-") +
               QLatin1String(key("key_preset_2")->isChecked() ? "2" : "-");
    }
    bool showsSlope(int index, const char *slope) {
        const QPixmap expected(channel(index).picture.arg(QLatin1String(slope)));
        return !expected.isNull() && curve(index)->pixmap(Qt::ReturnByValue).toImage() == expected.toImage();
    }
    bool isUppermost(int index) { return curve(index)->parentWidget()->children().last() == curve(index); }
};

}  // namespace crossovertest
