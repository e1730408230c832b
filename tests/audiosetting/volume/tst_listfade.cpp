// SPDX-License-Identifier: Apache-2.0
#include "volume/listfade.h"

#include "base/background.h"
#include "tests/audiosetting/volume/sliderpage.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"
#include "volume/audiovolumsettings.h"

using audiosetting::ListFade;

class tst_ListFade : public PageTest {
    Q_OBJECT

    /// As in the plug-in: the background lies behind the page, beside it.
    struct Page {
        QWidget screen;
        audiosetting::Background background{&screen};
        QWidget holder{&screen};
        Audiovolumsettings page{&holder};
        QScrollBar *bar = sliderpage::scrollBar(&page);

        Page() {
            for (QWidget *widget : {&screen, static_cast<QWidget *>(&background), &holder}) {
                widget->resize(1024, 600);
            }
            show(&screen);
            advance(1000);
        }
        /// Made in this order.
        ListFade &fade(bool top) { return *page.findChildren<ListFade *>().at(top ? 0 : 1); }
        QString shown() {
            return QString(fade(true).isVisible() ? "top " : "") + (fade(false).isVisible() ? "bottom" : "");
        }
        QImage seen() { return screen.grab().toImage().convertToFormat(QImage::Format_RGB32); }
    };

private slots:
    void isWhereThereIsMore() {
        Page list;
        QCOMPARE(list.shown(), QStringLiteral("bottom"));
        list.bar->setValue(list.bar->maximum() / 2);
        advance(1000);
        QCOMPARE(list.shown(), QStringLiteral("top bottom"));
        list.bar->setValue(list.bar->maximum());
        advance(1000);
        QCOMPARE(list.shown(), QStringLiteral("top "));
    }

    void isNotThereWhileTheListMoves() {
        Page list;
        for (int step = 1; step < 10; ++step) {
            list.bar->setValue(step * 10);
            QCOMPARE(list.shown(), QString());
            advance(100);
            QCOMPARE(list.shown(), QString());
        }
        advance(20);
        QCOMPARE(list.shown(), QString());
        advance(60);
        QCOMPARE(list.shown(), QStringLiteral("top bottom"));
    }

    void rowsFadeIntoTheBackground() {
        Page list;
        list.bar->setValue(list.bar->maximum() / 2);
        advance(1000);
        const QImage with = list.seen();
        const QRect area(list.fade(true).mapTo(&list.screen, QPoint()), list.fade(true).size());
        list.fade(true).hide();
        const QImage without = list.seen();
        QImage empty;
        {
            audiosetting::Background background;
            background.resize(1024, 600);
            empty = background.grab().toImage().convertToFormat(QImage::Format_RGB32);
        }
        QVERIFY(without.copy(area) != empty.copy(area));
        // Row by row nearer to the rows: nothing of them at the end, almost all of them at the list's side.
        const auto difference = [&](const QImage &a, const QImage &b, int y) {
            int sum = 0;
            for (int x = area.left(); x <= area.right(); ++x) {
                sum += qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
            }
            return sum;
        };
        QVERIFY(difference(with, empty, area.top()) * 10 <= difference(without, empty, area.top()));
        QVERIFY(difference(with, without, area.bottom()) * 10 <= difference(without, empty, area.bottom()));
        QVERIFY(with.copy(0, area.bottom() + 1, 1024, 100) == without.copy(0, area.bottom() + 1, 1024, 100));
    }

    void touchesGoThroughIt() {
        Page list;
        for (const ListFade *fade : list.page.findChildren<ListFade *>()) {
            QVERIFY(fade->testAttribute(Qt::WA_TransparentForMouseEvents));
            QVERIFY(fade->x() >= 80);  // beside the scroll bar
        }
    }
};

PAGE_TEST_MAIN(tst_ListFade)
#include "tst_listfade.moc"
