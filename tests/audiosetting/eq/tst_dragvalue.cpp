// SPDX-License-Identifier: Apache-2.0
#include "eq/audiosetting_right_eq_widget.h"
#include "eq/bandscale.h"
#include "eq/dragvalue.h"
#include "eq/eqwidget.h"
#include "eq/sliderbarwidget.h"
#include "tests/audiosetting/eq/eqreference.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

using audiosetting::BandScale;
using audiosetting::DragValue;
using audiosetting::EQWidget;
using cm::SliderBarWidget;

class tst_DragValue : public PageTest {
    Q_OBJECT

    static SliderBarWidget *band(QWidget *page, int number) {
        return page->findChildren<SliderBarWidget *>().at(number);
    }
    static QPoint onPage(int level) { return QPoint(18, reference::touchY(reference::pageBorders, level)); }
    static QPoint onPanel(int level) { return QPoint(30, reference::touchY(reference::panelBorders, level)); }

private slots:
    void tellsTheGainWithItsUnitWhileAFingerDrags() {
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        DragValue *const value = (&page)->findChild<DragValue *>();
        QVERIFY(!value->isVisible());
        finger::press(band(&page, 4), onPage(12));
        QVERIFY(value->isVisible());
        QCOMPARE(value->text(), QStringLiteral("0 dB"));
        finger::move(band(&page, 4), onPage(4));
        QCOMPARE(value->text(), QStringLiteral("+8 dB"));
        finger::move(band(&page, 4), onPage(24));
        QCOMPARE(value->text(), QStringLiteral("-12 dB"));
        QVERIFY(value->isVisible());
        finger::release(band(&page, 4), onPage(24));
        QVERIFY(!value->isVisible());
    }

    void standsAboveItsBandWithinThePage() {
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        DragValue *const value = (&page)->findChild<DragValue *>();
        for (int number = 0; number < 13; ++number) {
            SliderBarWidget *const slider = band(&page, number);
            finger::press(slider, onPage(12));
            const QRect place = value->geometry();
            const QRect column(slider->mapTo(&page, QPoint()), slider->size());
            QVERIFY(place.bottom() < column.top());
            QVERIFY(place.top() > column.top() - 28);  // clear of the up key
            QVERIFY(page.rect().contains(place));
            // Above the finger; the last one as far as the screen allows.
            const int off = place.center().x() - column.center().x();
            QVERIFY2(number < 12 ? qAbs(off) <= 1 : off <= 0 && place.right() == page.rect().right(),
                     qPrintable(QStringLiteral("band %1: %2").arg(number).arg(off)));
            QVERIFY(place.left() <= column.left() && place.right() >= column.right());
            QVERIFY(value->testAttribute(Qt::WA_TransparentForMouseEvents));
            finger::release(slider, onPage(12));
        }
    }

    void stepKeysShowNone() {
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        DragValue *const value = (&page)->findChild<DragValue *>();
        finger::press(band(&page, 4), QPoint(18, -10));  // the up key
        QVERIFY(!value->isVisible());
        finger::release(band(&page, 4), QPoint(18, -10));
    }

    void goesWithThePage() {
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        DragValue *const value = (&page)->findChild<DragValue *>();
        finger::press(band(&page, 4), onPage(4));
        page.hide();
        page.show();
        QVERIFY(!value->isVisible());
        finger::release(band(&page, 4), onPage(4));
    }

    void panelShowsItOnlyWhereItsOwnNumberIsCovered() {
        EQWidget panel;
        show(&panel);
        DragValue *const value = (&panel)->findChild<DragValue *>();
        finger::press(band(&panel, 2), onPanel(12));
        QVERIFY(!value->isVisible());
        finger::move(band(&panel, 2), onPanel(4));
        QVERIFY(!value->isVisible());
        finger::move(band(&panel, 2), onPanel(0));
        QVERIFY(value->isVisible());
        QCOMPARE(value->text(), QStringLiteral("+12 dB"));
        QVERIFY(value->geometry().bottom() < 82 + 14);  // above the number
        finger::move(band(&panel, 2), onPanel(3));
        QVERIFY(value->isVisible());
        finger::move(band(&panel, 2), onPanel(4));
        QVERIFY(!value->isVisible());
        finger::release(band(&panel, 2), onPanel(4));
        finger::press(band(&panel, 2), onPanel(0));
        finger::release(band(&panel, 2), onPanel(0));
        QVERIFY(!value->isVisible());
    }

    void linesStandAtTheKnobsMiddle() {
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        BandScale *const scale = (&page)->findChild<BandScale *>();
        const QImage image = scale->grab().toImage();
        SliderBarWidget *const slider = band(&page, 0);
        const int between = 50;  // no band is there
        for (int level : {0, 12, 24}) {
            const int middle = slider->y() + slider->level2Point(level) + 13;
            int lit = 0;
            for (int y = middle - 2; y <= middle + 2; ++y) {
                lit += image.pixel(between, y) != image.pixel(between, middle + 6);
            }
            QCOMPARE(lit, 2);
        }
        QVERIFY(qGray(image.pixel(between, 149)) > qGray(image.pixel(between, 82)) + 10);
        QCOMPARE(image.pixel(between, 82), image.pixel(between, 219));
    }
};

PAGE_TEST_MAIN(tst_DragValue)
#include "tst_dragvalue.moc"
