// SPDX-License-Identifier: Apache-2.0
#include "tests/audiosetting/timing/timingscreen.h"
#include "tests/platform/testmain.h"

#include "timing/loudspeakerlight.h"

#include <QLabel>
#include <QPushButton>

using audiosetting::LoudspeakerLight;
using namespace timingtest;

namespace {

struct Place {
    const char *keys;  ///< "fl" of key_fl_minus
    QPoint middle;     ///< of the loudspeaker in the cabin's picture
};
const Place places[] = {{"fl", {25, 84}},   {"fr", {156, 84}}, {"rl", {25, 161}},
                        {"rr", {156, 161}}, {"sl", {66, 227}}, {"sr", {115, 227}}};

}  // namespace

class tst_LoudspeakerLight : public PageTest {
    Q_OBJECT

    struct Page {
        Audiosetting_right_timing_widget widget{nullptr};
        LoudspeakerLight *light;
        QLabel *cabin;

        Page() {
            show(&widget);
            light = widget.findChild<LoudspeakerLight *>();
            cabin = widget.findChild<QLabel *>("label_bg");
        }
        QPushButton *key(const char *output, const char *way) {
            return widget.findChild<QPushButton *>(QStringLiteral("key_%1_%2").arg(output, way));
        }
        QPoint middle() const { return light->geometry().center() - cabin->pos(); }
    };

private slots:
    void lightsTheLoudspeakerOfTheTouchedKey() {
        store({{50, 50, 50, 50, 50, 50}});
        Page page;
        for (const Place &place : places) {
            for (const char *way : {"minus", "plus"}) {
                finger::press(page.key(place.keys, way), QPoint(20, 20));
                QVERIFY2(page.light->isVisible(), place.keys);
                const QPoint off = page.middle() - place.middle;
                QVERIFY2(off.manhattanLength() <= 2, place.keys);
                finger::release(page.key(place.keys, way), QPoint(20, 20));
            }
        }
    }

    void loudspeakersAreWhereThePictureShowsThem() {
        const QImage cabin(":/corvina_icon/timing_cabin.png");
        const QRgb ring = qRgb(0x8c, 0x9a, 0xab);
        for (const Place &place : places) {
            int found = 0;
            for (int x = -9; x <= 9; ++x) {
                for (int y = -9; y <= 9; ++y) {
                    found += (cabin.pixel(place.middle + QPoint(x, y)) | 0xff000000) == ring;
                }
            }
            QVERIFY2(found > 20, place.keys);
        }
    }

    void staysForASecond() {
        Page page;
        QVERIFY(!page.light->isVisible());
        finger::tap(page.key("rl", "plus"));
        advance(999);
        QVERIFY(page.light->isVisible());
        advance(1);
        QVERIFY(!page.light->isVisible());
        finger::tap(page.key("rl", "plus"));
        advance(600);
        finger::tap(page.key("rl", "plus"));
        advance(999);
        QVERIFY(page.light->isVisible());
        advance(1);
        QVERIFY(!page.light->isVisible());
    }

    void staysUnderTheFinger() {
        Page page;
        finger::press(page.key("sr", "plus"), QPoint(20, 20));
        for (int i = 0; i < 10; ++i) {
            advance(700);
            QVERIFY(page.light->isVisible());
        }
        finger::release(page.key("sr", "plus"), QPoint(20, 20));
        advance(999);
        QVERIFY(page.light->isVisible());
        advance(1);
        QVERIFY(!page.light->isVisible());
    }

    void goesWithThePage() {
        Page page;
        finger::tap(page.key("fr", "plus"));
        page.widget.hide();
        page.widget.show();
        QVERIFY(!page.light->isVisible());
        finger::tap(page.key("fr", "plus"));
        QVERIFY(page.light->isVisible());
    }

    void takesNoTouchAndNoCallOfTheUnit() {
        Page page;
        recording::take();
        finger::press(page.key("fl", "plus"), QPoint(20, 20));
        QCOMPARE(recording::take(), QStringList());
        QVERIFY(page.light->testAttribute(Qt::WA_TransparentForMouseEvents));
        finger::release(page.key("fl", "plus"), QPoint(20, 20));
    }
};

PAGE_TEST_MAIN(tst_LoudspeakerLight)
#include "tst_loudspeakerlight.moc"
