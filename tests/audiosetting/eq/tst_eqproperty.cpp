// SPDX-License-Identifier: Apache-2.0
// Random use of the equaliser: whatever the driver does, sliders, service, store and keys agree.

#include "navigation/audiorootpagtsettings.h"
#include "tests/audiosetting/eq/eqpagetest.h"
#include "tests/platform/testmain.h"

#include <QRandomGenerator>

using namespace eqpage;

namespace {

const int steps = 5000;
const int settleTime = 200;  // ms; longer than the guard of the tabs and the commit timer

QList<int> presetLevels(int type) {
    for (const reference::Curve &preset : reference::curves()) {
        if (preset.type == type) {
            return reference::levels(preset);
        }
    }
    return reference::everywhere(12);
}

}  // namespace

class tst_EqProperty : public PageTest {
    Q_OBJECT

    quint32 m_seed = 0;
    QRandomGenerator m_random;
    AudioRootPagtSettings *m_root = nullptr;
    Audiosetting_right_eq_widget *m_page = nullptr;

    int random(int end) { return int(m_random.bounded(end)); }

    void tapKey(const char *name) {
        QPushButton *const key = m_root->findChild<QPushButton *>(QLatin1String(name));
        if (key->isVisible()) {
            finger::tap(key);
        }
    }

    void drag() {
        cm::SliderBarWidget *const slider = reference::sliders(*m_page)[random(13)];
        finger::press(slider, QPoint(random(36), random(164)));
        for (int i = random(6); i > 0; --i) {
            advance(random(60));
            finger::move(slider, QPoint(random(36), random(164)));
        }
        finger::release(slider, QPoint(random(36), random(164)));
    }

    void pressSlot(int ms) {
        QPushButton *const key = customKey(*m_page, random(5));
        finger::press(key, QPoint(20, 20));
        advance(ms);
        const bool away = random(8) == 0;
        const QPoint end = away ? QPoint(20, -40) : QPoint(20, 20);
        if (away) {
            finger::move(key, end);
        }
        finger::release(key, end);
    }

    /// One thing that a driver may do on the page in front; its name, for the report of a failure.
    QString act() {
        if (!m_page || !m_page->isVisible()) {
            const char *const keys[] = {"key_eq",     "key_eq",   "key_eq",  "key_factoryeq", "key_general",
                                        "key_defeat", "key_Rock", "key_pop", "key_flat",      "key_jazz"};
            const char *const key = keys[random(10)];
            // "key_flat" exists on two pages: only the one in front is meant.
            for (QPushButton *candidate : m_root->findChildren<QPushButton *>(QLatin1String(key))) {
                if (candidate->isVisible()) {
                    finger::tap(candidate);
                    break;
                }
            }
            m_page = m_root->findChild<Audiosetting_right_eq_widget *>();
            return QLatin1String(key);
        }
        switch (random(10)) {
            case 0:
            case 1:
            case 2:
                drag();
                return QStringLiteral("drag");
            case 3:
                finger::tap(upKeys(*m_page)[random(13)]);
                return QStringLiteral("up");
            case 4:
                finger::tap(downKeys(*m_page)[random(13)]);
                return QStringLiteral("down");
            case 5:
                pressSlot(1500 + random(300));
                return QStringLiteral("long press");
            case 6:
            case 7:
                pressSlot(random(1500));
                return QStringLiteral("short press");
            case 8:
                finger::tap(m_page->findChild<QPushButton *>("key_flat"));
                return QStringLiteral("flat");
            default:
                tapKey(random(2) ? "key_factoryeq" : "key_general");
                return QStringLiteral("other page");
        }
    }

    /// The invariants when nothing is pending.
    QString broken() const {
        const auto sliders = reference::sliders(*m_page);
        for (int band = 0; band < 13; ++band) {
            const int level = sliders[band]->getLevel();
            if (upKeys(*m_page)[band]->isEnabled() != (level > 0) ||
                downKeys(*m_page)[band]->isEnabled() != (level < 24)) {
                return QStringLiteral("step keys of band %1 at level %2").arg(band).arg(level);
            }
        }
        const QList<int> levels = reference::levels(*m_page);
        const int type = recording::state().eqType;
        if (type < 16) {
            if (levels != presetLevels(type)) {
                return QStringLiteral("the sliders do not show preset %1").arg(type);
            }
        } else {
            for (int band = 0; band < 13; ++band) {
                const int value = 24 - levels[band];
                if (recording::state().customEq[band] != value ||
                    recording::stored(QStringLiteral("eq%1").arg(band)).toInt() != value) {
                    return QStringLiteral("band %1: shown %2, in the service %3")
                        .arg(band)
                        .arg(value)
                        .arg(recording::state().customEq[band]);
                }
            }
        }
        return brokenSelection(levels);
    }

    QString brokenSelection(const QList<int> &levels) const {
        int expected = -1;
        const int highlighted =
            recording::stored("HIGHLIGHT_PRESET_ID").isValid() ? recording::stored("HIGHLIGHT_PRESET_ID").toInt() : -1;
        for (int preset = 4; preset >= 0; --preset) {
            bool equal = recording::stored(savedKey(preset)).toBool();
            for (int band = 0; equal && highlighted == -1 && band < 13; ++band) {
                equal = recording::stored(presetKey(preset, band)).toInt() == levels[band];
            }
            if (equal) {
                expected = highlighted == -1 ? preset : highlighted;
            }
        }
        return selected(*m_page) == expected
                   ? QString()
                   : QStringLiteral("preset %1 is selected, not %2").arg(selected(*m_page)).arg(expected);
    }

private slots:
    void everythingAgreesAfterEveryStep() {
        m_seed = qEnvironmentVariableIsSet("EQ_SEED") ? qEnvironmentVariableIntValue("EQ_SEED")
                                                      : QRandomGenerator::global()->generate() >> 1;
        m_random.seed(m_seed);
        qInfo("EQ_SEED=%u", m_seed);
        AudioRootPagtSettings root(nullptr);
        m_root = &root;
        m_page = nullptr;
        show(&root);
        QHash<QString, int> done;
        for (int step = 0; step < steps; ++step) {
            const QString action = act();
            ++done[action];
            advance(random(3) ? settleTime : random(settleTime));
            if (m_page && m_page->isVisible() && random(2)) {
                advance(settleTime);
                const QString what = broken();
                QVERIFY2(
                    what.isEmpty(),
                    qPrintable(
                        QStringLiteral("EQ_SEED=%1, step %2, after %3: %4").arg(m_seed).arg(step).arg(action, what)));
            }
            recording::clear();
        }
        for (const char *action : {"drag", "up", "down", "long press", "short press", "flat", "other page",
                                   "key_factoryeq", "key_Rock", "key_defeat"}) {
            QVERIFY2(done.value(QLatin1String(action)) > 20, action);
        }
    }
};

PAGE_TEST_MAIN(tst_EqProperty)
#include "tst_eqproperty.moc"
