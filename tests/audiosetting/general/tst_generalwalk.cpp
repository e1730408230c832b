// SPDX-License-Identifier: Apache-2.0
#include "general/audiosetting_right_general_widget.h"
#include "general/balancefadercontrol.h"
#include "navigation/audiorootpagtsettings.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/seeds.h"
#include "tests/platform/testmain.h"

#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>

#include <functional>

/// Random driving of the General page. After each step and its 100 ms, screen, services and store tell the same.
///
/// The seed is printed and can be given: AUDIOSETTING_SEED=17 tst_generalwalk.
class tst_GeneralWalk : public PageTest {
    Q_OBJECT

    /// The walk's own knowledge, from its actions alone.
    struct Model {
        bool defeat = false;
        bool subwoofer = false;
        int level = 3;
        int phase = 0;
        int balance = 0;
        int fader = 0;  // positive is front
        int eqType = 0;
        int eqKept = 2;
        int sentLevel = -1;
        int sentPhase = -1;
    };

    QWidget *window = nullptr;
    AudioRootPagtSettings *root = nullptr;
    Model model;
    QStringList trail;

    QPushButton *key(const char *name) { return root->findChild<QPushButton *>(QLatin1String(name)); }
    QString text(const char *name) { return root->findChild<QLabel *>(QLatin1String(name))->text(); }
    settings::balanceFaderControl *pad() { return root->findChild<settings::balanceFaderControl *>(); }

    static int stored(const char *key, int defaultValue) {
        const QVariant value = recording::stored(QLatin1String(key));
        return value.isValid() ? value.toInt() : defaultValue;
    }

    void touchPad(QRandomGenerator &random) {
        const QPoint origin(pad()->width() / 2 + 2, pad()->height() / 2);
        const auto anywhere = [&] { return QPoint(random.bounded(pad()->width()), random.bounded(pad()->height())); };
        QPoint last = anywhere();
        finger::press(pad(), last);
        for (int moves = random.bounded(6); moves > 0; --moves) {
            last = anywhere();
            finger::move(pad(), last);
            advance(random.bounded(70));
        }
        finger::release(pad(), last);
        if (!model.defeat) {
            const auto steps = [](int d) { return (d < 0 ? -1 : 1) * qMin((qAbs(d) + 2) / 6, 15); };
            model.balance = steps(last.x() - origin.x());
            model.fader = steps(origin.y() - last.y());
        }
    }

    void stepBalance(int balance, int fader) {
        if (!model.defeat) {
            model.balance = qBound(-15, model.balance + balance, 15);
            model.fader = qBound(-15, model.fader + fader, 15);
        }
    }

    void stepLevel(int step) {
        if (!model.defeat && model.subwoofer && model.level + step >= 0 && model.level + step <= 15) {
            model.level += step;
            model.sentLevel = model.level;
        }
    }

    void toggleDefeat() {
        model.defeat = !model.defeat;
        if (model.defeat) {
            model.eqKept = model.eqType;
        } else {
            model.eqType = model.eqKept;
        }
    }

    /// Compares everything; an empty text where all agree.
    QString disagreement() {
        QStringList wrong;
        const auto same = [&wrong](const char *what, const QString &is, const QString &expected) {
            if (is != expected) {
                wrong << QStringLiteral("%1 is %2, not %3").arg(QLatin1String(what), is, expected);
            }
        };
        const auto number = [&same](const char *what, int is, int expected) {
            same(what, QString::number(is), QString::number(expected));
        };
        const recording::State &service = recording::state();

        number("stored defeat", stored("ADV_AUDIO_SETTINGS", 0), model.defeat);
        number("stored subwoofer", stored("Setup_Sub", 0), model.subwoofer);
        number("stored level", stored("subwooferLevel", 3), model.level);
        number("stored phase", stored("subwooferphase", 0), model.phase);
        number("stored balance", stored("SoundFieldBalance", 0), model.balance);
        number("stored fader", stored("SoundFieldFader", 0), -model.fader);
        number("service's balance", service.balance, model.balance);
        number("service's fader", service.fader, -model.fader);
        number("service's level", service.subwooferLevel, model.sentLevel);
        number("service's phase", service.subwooferPhase, model.sentPhase);
        number("service's curve", service.eqType, model.eqType);

        number("Defeat key", key("key_defeat")->isChecked(), model.defeat);
        number("Subwoofer key", key("key_Subwoofer")->isChecked(), model.subwoofer);
        number("0 degrees key", key("key_Phase_0")->isChecked(), model.phase == 0);
        number("180 degrees key", key("key_Phase_180")->isChecked(), model.phase == 1);
        same("shown level", text("txt_vol_level"), QString::number(model.level));
        const int balance = model.defeat ? 0 : model.balance;
        const int fader = model.defeat ? 0 : model.fader;
        same("shown balance", text("txt_bal_val"), QString::number(balance));
        same("shown fader", text("txt_fad_val"), QString::number(fader));
        number("pad's balance", pad()->getValueX(), balance);
        number("pad's fader", pad()->getValueY(), fader);
        number("pad enabled", pad()->isEnabled(), !model.defeat);

        const bool levelKeys = !model.defeat && model.subwoofer;
        number("previous enabled", key("key_subvol_prev")->isEnabled(), levelKeys && model.level > 0);
        number("next enabled", key("key_subvol_next")->isEnabled(), levelKeys && model.level < 15);
        number("left enabled", key("Key_balance_left")->isEnabled(), !model.defeat && model.balance > -15);
        number("right enabled", key("Key_balance_right")->isEnabled(), !model.defeat && model.balance < 15);
        number("front enabled", key("Key_fade_front")->isEnabled(), !model.defeat && model.fader < 15);
        number("rear enabled", key("Key_fade_rear")->isEnabled(), !model.defeat && model.fader > -15);
        number("centre enabled", key("Key_update")->isEnabled(), !model.defeat);
        number("EQ tab enabled", key("key_eq")->isEnabled(), !model.defeat);
        return wrong.join(QLatin1String("; "));
    }

private slots:
    void screenServicesAndStoreAgree_data() { addSeedRows(5); }

    void screenServicesAndStoreAgree() {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        model = Model();
        trail.clear();
        QWidget screen;
        screen.resize(1024, 600);
        window = &screen;
        root = new AudioRootPagtSettings(window);
        show(window);

        using Step = QPair<const char *, std::function<void()>>;
        const auto tap = [this](const char *name) { finger::tap(key(name)); };
        const QList<Step> steps{
            {"pad", [&] { touchPad(random); }},
            {"left", [&] { tap("Key_balance_left"), stepBalance(-1, 0); }},
            {"right", [&] { tap("Key_balance_right"), stepBalance(1, 0); }},
            {"front", [&] { tap("Key_fade_front"), stepBalance(0, 1); }},
            {"rear", [&] { tap("Key_fade_rear"), stepBalance(0, -1); }},
            {"centre", [&] { tap("Key_update"), stepBalance(-model.balance, -model.fader); }},
            {"previous", [&] { tap("key_subvol_prev"), stepLevel(-1); }},
            {"next", [&] { tap("key_subvol_next"), stepLevel(1); }},
            {"next", [&] { tap("key_subvol_next"), stepLevel(1); }},
            {"subwoofer",
             [&] {
                 tap("key_Subwoofer");
                 if (!model.defeat) {
                     model.subwoofer = !model.subwoofer;
                     model.sentLevel = model.subwoofer ? model.level : 0;
                 }
             }},
            {"0 degrees",
             [&] {
                 tap("key_Phase_0");
                 if (!model.defeat) {
                     model.phase = model.sentPhase = 0;
                 }
             }},
            {"180 degrees",
             [&] {
                 tap("key_Phase_180");
                 if (!model.defeat) {
                     model.phase = model.sentPhase = 1;
                 }
             }},
            {"defeat", [&] { tap("key_defeat"), toggleDefeat(); }},
            {"settings root and back",
             [&] {
                 tap("key_advanced");
                 tap("key_return");
             }},
            {"EQ tab and back",
             [&] {
                 tap("key_eq");
                 advance(150);
                 tap("key_general");
             }},
            {"another curve",
             [&] {
                 model.eqType = random.bounded(21);
                 recording::state().eqType = model.eqType;
             }},
            {"window again",
             [&] {
                 window->hide();
                 window->show();
                 advance(0);
             }},
        };
        for (int i = 0; i < 600; ++i) {
            const Step &step = steps.at(random.bounded(steps.size()));
            trail << QLatin1String(step.first);
            step.second();
            advance(151);
            const QString wrong = disagreement();
            QVERIFY2(wrong.isEmpty(),
                     qPrintable(QStringLiteral("seed %1, step %2 (%3): %4")
                                    .arg(seed)
                                    .arg(i)
                                    .arg(trail.mid(qMax(0, trail.size() - 8)).join(QLatin1String(", ")), wrong)));
        }
    }
};

PAGE_TEST_MAIN(tst_GeneralWalk)
#include "tst_generalwalk.moc"
