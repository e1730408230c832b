// SPDX-License-Identifier: Apache-2.0
#include "navigation/audiorootpagtsettings.h"
#include "tests/audiosetting/crossover/crossoverscreen.h"
#include "tests/audiosetting/timing/timingscreen.h"
#include "tests/platform/seeds.h"
#include "tests/platform/testmain.h"

#include <QRandomGenerator>

#include <functional>
#include <memory>

using crossovertest::All;
using crossovertest::Values;
using timingtest::Delays;

namespace {

constexpr int steps = 2000;  // of each seed
enum { general, crossoverPage = 2, timingPage = 3 };
const char *const tabs[] = {"key_general", "key_eq", "key_crossover", "key_timing", "key_factoryeq"};

bool soundsAs(const Values &a, const Values &b) {
    return a.freq == b.freq && a.level == b.level && a.slope == b.slope;
}

}  // namespace

/// Random driving of the Crossover and the Timing page. After each step screen, services and store tell the same.
///
/// The seed is printed and can be given: AUDIOSETTING_SEED=17 tst_crossovertimingwalk.
class tst_CrossoverTimingWalk : public PageTest {
    Q_OBJECT

    /// The walk's own knowledge, from its actions alone.
    struct Model {
        int page = general;
        bool defeat = false;

        All filters;
        int type = 0;
        bool filterSaved[2] = {false, false};
        All filterPreset[2];
        int filterChecked = -1;  ///< preset key, -1 for none
        bool filtersSent = false;

        Delays delays{};
        int unit = 0;
        bool delaySaved[2] = {false, false};
        Delays delayPreset[2] = {};
        int delayChecked = -1;
        Delays delaysSent{{-1, -1, -1, -1, -1, -1}};

        int matchingFilters() const {
            for (int n : {0, 1}) {
                bool same = filterSaved[n];
                for (int i = 0; i < crossovertest::channels; ++i) {
                    same = same && soundsAs(filterPreset[n][i], filters[i]);
                }
                if (same) {
                    return n;
                }
            }
            return -1;
        }
        int matchingDelays() const {
            for (int n : {0, 1}) {
                if (delaySaved[n] && delayPreset[n] == delays) {
                    return n;
                }
            }
            return -1;
        }
        Values &filter() { return filters[type]; }
    };

    std::unique_ptr<AudioRootPagtSettings> root;
    Model model;
    QStringList trail;

    QPushButton *key(const QString &name) {
        // Both pages have preset keys: the one on the screen is meant.
        for (QPushButton *found : root->findChildren<QPushButton *>(name)) {
            if (found->isVisible()) {
                return found;
            }
        }
        return root->findChild<QPushButton *>(name);
    }
    QString text(const QString &name) { return root->findChild<QLabel *>(name)->text(); }
    void tap(const char *name) { finger::tap(key(QLatin1String(name))); }

    void start() {
        root = std::make_unique<AudioRootPagtSettings>(nullptr);
        show(root.get());
        // The painting is tested elsewhere; here it would only take time.
        root->setUpdatesEnabled(false);
        model.page = general;
    }

    // Actions ---------------------------------------------------------------------------------------------------------

    void shown() {
        if (model.page == crossoverPage) {
            model.filtersSent = true;
            model.filterChecked = model.matchingFilters();
        } else if (model.page == timingPage) {
            model.delayChecked = model.matchingDelays();
        }
    }

    void openPage(int page) {
        tap(tabs[page]);
        advance(200);
        if (page == general || !model.defeat) {
            model.page = page;
            shown();
        }
    }

    void restart() {
        root.reset();
        start();
    }

    void toggleDefeat() {
        if (model.page != general) {
            openPage(general);
        }
        tap("key_defeat");
        model.defeat = !model.defeat;
    }

    void flat() {
        tap("Key_update");
        if (model.page == crossoverPage) {
            model.filters = All();
            model.filterChecked = model.matchingFilters();
        } else {
            model.delays = Delays();
            model.delayChecked = model.matchingDelays();
        }
    }

    void chooseChannel(int index) {
        finger::tap(key(crossovertest::channel(index).key));
        model.type = index;
        model.filterChecked = model.matchingFilters();
    }

    void stepFilter(int which) {
        static const char *const keys[] = {"key_slope_minus", "key_slope_plus",  "key_freq_minus",
                                           "key_freq_plus",   "key_level_minus", "key_level_plus"};
        tap(keys[which]);
        Values &v = model.filter();
        const int frequencies = crossovertest::channel(model.type).frequencies.size();
        switch (which) {
            case 0:
                v.slope = (v.slope + 1) % 3 + 1;
                break;
            case 1:
                v.slope = v.slope % 3 + 1;
                break;
            case 2:
                v.freq = (v.freq + frequencies - 1) % frequencies;
                break;
            case 3:
                v.freq = (v.freq + 1) % frequencies;
                break;
            case 4:
                v = v.level > 0 ? Values{v.freq, v.y + 21, v.level - 1, v.slope, v.heigh - 21}
                                : Values{v.freq, 0, 12, v.slope, 256};
                break;
            default:
                v = v.level < 12 ? Values{v.freq, v.y - 21, v.level + 1, v.slope,
                                          v.heigh + crossovertest::channel(model.type).growth}
                                 : Values{v.freq, 250, 0, v.slope, 256};
                break;
        }
        model.filterChecked = model.matchingFilters();
    }

    void stepDelay(int output, bool plus, int heldFor) {
        QPushButton *const pressed =
            key(QStringLiteral("key_%1_%2").arg(timingtest::names[output], QLatin1String(plus ? "plus" : "minus")));
        int &delay = model.delays[output];
        const bool canStep = plus ? delay < 99 : delay > 0;
        finger::hold(pressed, heldFor);
        if (!canStep) {
            return;
        }
        const int repeats = heldFor < 1000 ? 0 : 1 + (heldFor - 1000) / 200;
        // The release is a click, unless the repeat has reached the end and disabled the key.
        for (int i = 0; i <= repeats; ++i) {
            delay = qBound(0, delay + (plus ? 1 : -1), 99);
        }
        model.delaysSent = model.delays;
        model.delayChecked = model.matchingDelays();
    }

    void chooseUnit(int unit) {
        tap(unit == 0 ? "key_msec" : "key_inches");
        model.unit = unit;
        model.delayChecked = model.matchingDelays();
    }

    void recallOrSave(int number, bool save, bool beside) {
        QPushButton *const pressed = key(QLatin1String(number == 0 ? "key_preset_1" : "key_preset_2"));
        const QPoint center = pressed->rect().center();
        finger::press(pressed, center);
        advance(save ? 1600 : 100);
        if (beside) {
            const QPoint off(center.x(), -40);
            finger::move(pressed, off);
            finger::release(pressed, off);
            if (!save) {
                return;
            }
        } else {
            finger::release(pressed, center);
        }
        if (model.page == crossoverPage) {
            if (save) {
                model.filterPreset[number] = model.filters;
                model.filterSaved[number] = true;
            } else if (model.filterSaved[number]) {
                model.filters = model.filterPreset[number];
            }
            model.filterChecked = model.filterSaved[number] ? number : model.matchingFilters();
        } else {
            if (save) {
                model.delayPreset[number] = model.delays;
                model.delaySaved[number] = true;
            } else if (model.delaySaved[number]) {
                model.delays = model.delayPreset[number];
                model.delaysSent = model.delays;
            }
            model.delayChecked = model.delaySaved[number] ? number : model.matchingDelays();
        }
    }

    QString act(QRandomGenerator &random) {
        const int kind = random.bounded(100);
        if (kind == 0) {
            restart();
            return QStringLiteral("restart");
        }
        if (kind == 1) {
            toggleDefeat();
            return QStringLiteral("Defeat");
        }
        const bool elsewhere = model.page != crossoverPage && model.page != timingPage;
        if (kind < 8 || elsewhere) {
            if (model.defeat && kind % 2 == 0) {
                toggleDefeat();
                return QStringLiteral("Defeat");
            }
            const int page = kind % 3 == 0 ? random.bounded(5) : crossoverPage + random.bounded(2);
            openPage(page);
            return QStringLiteral("page %1").arg(page);
        }
        if (kind < 10) {
            flat();
            return QStringLiteral("Flat");
        }
        if (kind < 25) {
            const int number = random.bounded(2);
            const bool save = random.bounded(3) == 0;
            const bool beside = random.bounded(4) == 0;
            recallOrSave(number, save, beside);
            return QStringLiteral("%1 %2%3")
                .arg(QLatin1String(save ? "save" : "recall"))
                .arg(number + 1)
                .arg(QLatin1String(beside ? ", lifted beside" : ""));
        }
        if (model.page == crossoverPage) {
            if (kind < 40) {
                const int index = random.bounded(3);
                chooseChannel(index);
                return QStringLiteral("channel %1").arg(index);
            }
            const int which = random.bounded(6);
            stepFilter(which);
            return QStringLiteral("filter key %1").arg(which);
        }
        if (kind < 35) {
            const int unit = random.bounded(2);
            chooseUnit(unit);
            return QStringLiteral("unit %1").arg(unit);
        }
        const int output = random.bounded(6);
        const bool plus = random.bounded(5) > 1;
        // Now and then over the whole range. The times keep off the very moment of a repeat.
        const int held = random.bounded(6) == 0 ? 50 + 100 * random.bounded(220) : 50;
        stepDelay(output, plus, held);
        return QStringLiteral("delay %1 %2 for %3 ms")
            .arg(output)
            .arg(QLatin1String(plus ? "plus" : "minus"))
            .arg(held);
    }

    // Checks ----------------------------------------------------------------------------------------------------------

    static int stored(const QString &storeKey, int defaultValue) {
        const QVariant value = recording::stored(storeKey);
        return value.isValid() ? value.toInt() : defaultValue;
    }

    /// Compares everything; an empty text where all agree.
    QString disagreement() {
        QStringList wrong;
        const auto same = [&wrong](const QString &what, const QString &is, const QString &expected) {
            if (is != expected) {
                wrong << QStringLiteral("%1 is %2, not %3").arg(what, is, expected);
            }
        };
        const auto number = [&same](const QString &what, int is, int expected) {
            same(what, QString::number(is), QString::number(expected));
        };
        const recording::State &service = recording::state();
        const std::array<int, 3> *const sent[] = {&service.frontFilter, &service.rearFilter, &service.lowPass};

        number("stored channel", stored("crossover/type", 0), model.type);
        for (int i = 0; i < crossovertest::channels; ++i) {
            const Values &v = model.filters[i];
            const QString name = crossovertest::channel(i).name;
            number(name + " stored frequency", stored(crossovertest::currentKey(i, "freq"), 0), v.freq);
            number(name + " stored y", stored(crossovertest::currentKey(i, "y"), 0), v.y);
            number(name + " stored level", stored(crossovertest::currentKey(i, "level"), 12), v.level);
            number(name + " stored slope", stored(crossovertest::currentKey(i, "slope"), 1), v.slope);
            number(name + " stored height", stored(crossovertest::currentKey(i, "heigh"), 506), v.heigh);
            if (model.filtersSent) {
                number(name + " sent frequency", (*sent[i])[0], v.freq);
                number(name + " sent slope", (*sent[i])[1], v.slope);
                number(name + " sent level", (*sent[i])[2], v.level);
            }
        }
        number("stored unit", stored("timing/type", 0), model.unit);
        for (int i = 0; i < timingtest::outputs; ++i) {
            number(QStringLiteral("stored delay %1").arg(i), stored(QStringLiteral("timing/DATA_TYPE%1").arg(i), 0),
                   model.delays[i]);
            number(QStringLiteral("sent delay %1").arg(i), service.delays[i], model.delaysSent[i]);
        }
        const char *const tabs[] = {"key_general", "key_eq", "key_crossover", "key_timing", "key_factoryeq"};
        for (int page = 0; page < 5; ++page) {
            number(QStringLiteral("tab %1").arg(page), key(tabs[page])->isChecked(), page == model.page);
        }
        number("timing tab enabled", key("key_timing")->isEnabled(), !model.defeat);

        if (model.page == crossoverPage) {
            const Values &v = model.filters[model.type];
            const crossovertest::Channel &channel = crossovertest::channel(model.type);
            same("slope shown", text("txt_slope_value"), QStringLiteral("%1 db").arg(6 * v.slope));
            same("frequency shown", text("txt_freq_value"), channel.frequencies[v.freq].label);
            same("level shown", text("txt_level_value"), QString::number(v.level - 12));
            for (int i = 0; i < crossovertest::channels; ++i) {
                const Values &w = model.filters[i];
                const crossovertest::Channel &c = crossovertest::channel(i);
                const int place = c.frequencies[w.freq].place;
                const QRect expected =
                    i == crossovertest::subwoofer ? QRect(0, w.y, place, w.heigh) : QRect(place, w.y, 1050, w.heigh);
                if (root->findChild<QLabel *>(c.curve)->geometry() != expected) {
                    wrong << c.name + " curve is elsewhere";
                }
                number(c.name + " key", key(c.key)->isChecked(), i == model.type);
            }
            number("preset key 1", key("key_preset_1")->isChecked(), model.filterChecked == 0);
            number("preset key 2", key("key_preset_2")->isChecked(), model.filterChecked == 1);
        } else if (model.page == timingPage) {
            for (int i = 0; i < timingtest::outputs; ++i) {
                const QString name = QLatin1String(timingtest::names[i]);
                const int delay = model.delays[i];
                const QString ms = delay % 10 == 0 ? QString::number(delay / 10)
                                                   : QStringLiteral("%1.%2").arg(delay / 10).arg(delay % 10);
                const QString inches = QString::number((delay * 1339 + 500) / 1000);
                same(name + " shown", text(QStringLiteral("txt_%1_value").arg(name)), model.unit == 1 ? inches : ms);
                number(name + " minus", key(QStringLiteral("key_%1_minus").arg(name))->isEnabled(), delay > 0);
                number(name + " plus", key(QStringLiteral("key_%1_plus").arg(name))->isEnabled(), delay < 99);
            }
            number("ms key", key("key_msec")->isChecked(), model.unit == 0);
            number("inches key", key("key_inches")->isChecked(), model.unit == 1);
            number("preset key 1", key("key_preset_1")->isChecked(), model.delayChecked == 0);
            number("preset key 2", key("key_preset_2")->isChecked(), model.delayChecked == 1);
        }
        return wrong.join(QLatin1String("; "));
    }

private slots:
    void screenServicesAndStoreAgree_data() { addSeedRows(3); }
    void screenServicesAndStoreAgree() {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        model = Model();
        trail.clear();
        start();
        for (int step = 0; step < steps; ++step) {
            trail << act(random);
            recording::clear();
            const QString wrong = disagreement();
            if (!wrong.isEmpty()) {
                const QStringList last = trail.mid(qMax(0, trail.size() - 12));
                QFAIL(qPrintable(QStringLiteral("seed %1, step %2: %3\nafter %4")
                                     .arg(seed)
                                     .arg(step)
                                     .arg(wrong, last.join(QLatin1String(", ")))));
            }
        }
        root.reset();
    }
};

PAGE_TEST_MAIN(tst_CrossoverTimingWalk)
#include "tst_crossovertimingwalk.moc"
