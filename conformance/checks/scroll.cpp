// SPDX-License-Identifier: Apache-2.0
// Scrolling of the toolkit.

#include "check.h"
#include "finger.h"
#include "horizontalslider.h"
#include "scrollbar.h"
#include "scrollmanage.h"

#include <QImage>
#include <QPushButton>
#include <QScrollArea>

using namespace conformance;

namespace {

const char pages[] = "Volume Settings, Source Gain";

/// A scroll area as the pages have it: a key and a slider on a content of twice its height.
struct Area {
    QWidget screen;
    QScrollArea area{&screen};
    QWidget *content = new QWidget;
    QPushButton *key = new QPushButton(content);
    cm::ScrollManage *manage = nullptr;
    HorizontalSlider *slider = nullptr;
    Finger finger;
    int clicks = 0;

    Area() {
        screen.resize(420, 220);
        area.setGeometry(10, 10, 400, 200);
        area.setFrameShape(QFrame::NoFrame);
        area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        content->resize(380, 800);
        key->setGeometry(20, 100, 80, 60);
        area.setWidget(content);
        manage = new cm::ScrollManage(&area, true, false);
        // The pages make their sliders after the scrolling.
        slider = new HorizontalSlider(QRect(150, 100, 200, 60), content);
        slider->setFreqRange(0, 41);
        QObject::connect(key, &QPushButton::clicked, &screen, [this] { ++clicks; });
        show(&screen);
    }
    int position() const { return area.verticalScrollBar()->value(); }
    /// Draws a finger from one position of the content to another, step by step.
    void draw(const QPoint &from, const QPoint &to) {
        const QPoint start = content->mapTo(&screen, from);
        const QPoint end = content->mapTo(&screen, to);
        finger.press(&screen, start);
        for (int step = 1; step <= 10; ++step) {
            finger.move(&screen, start + (end - start) * step / 10);
        }
        finger.release(&screen, end);
    }
};

}  // namespace

CHECK(scrollFinger, "scroll.finger", "A finger that is drawn over the content scrolls it.", pages) {
    Area area;
    area.draw(QPoint(130, 180), QPoint(130, 60));
    expectTrue(
        QStringLiteral("drawn up by 120 px, the content has moved up by more than 60 (by %1)").arg(area.position()),
        area.position() > 60);
}

CHECK(scrollTap, "scroll.tap", "A tap stays a tap: the key below gets it, and nothing scrolls.", pages) {
    Area area;
    area.finger.tap(area.key);
    pass(600);
    expect("clicks", 1, area.clicks);
    expect("position", 0, area.position());
    area.finger.tap(area.key);
    pass(600);
    expect("clicks after a second tap", 2, area.clicks);
}

CHECK(scrollNoClick, "scroll.no-click", "A finger that starts on a key and scrolls does not click the key.", pages) {
    Area area;
    area.draw(QPoint(60, 150), QPoint(60, 20));
    pass(600);
    expect("clicks", 0, area.clicks);
    expectTrue("the content has moved", area.position() > 0);
}

CHECK(scrollSlider, "scroll.slider", "A finger that starts on a slider moves the slider, and nothing scrolls.", pages) {
    Area area;
    area.draw(QPoint(170, 130), QPoint(330, 60));
    pass(600);
    expectTrue(QStringLiteral("the slider has moved (to %1)").arg(area.slider->value()), area.slider->value() > 25);
    expect("position", 0, area.position());
}

CHECK(scrollEnds, "scroll.ends", "Scrolling ends at the ends of the content.", pages) {
    Area area;
    for (int times = 0; times < 3; ++times) {
        area.draw(QPoint(130, area.position() + 20), QPoint(130, area.position() + 190));
        pass(2000);
    }
    expect("at the upper end", 0, area.position());
    for (int times = 0; times < 12; ++times) {
        area.draw(QPoint(130, area.position() + 190), QPoint(130, area.position() + 20));
        pass(2000);
    }
    expect("at the lower end", area.area.verticalScrollBar()->maximum(), area.position());
}

CHECK(scrollBarPlace, "scrollbar.place", "A ScrollBar is vertical, and stands where it was put.", pages) {
    QWidget page;
    const QRect place(56, 0, 24, 432);
    cm::ScrollBar bar(&page, place, 0);
    expect("geometry", place, bar.geometry());
    expect("orientation", int(Qt::Vertical), int(bar.orientation()));
}

CHECK(scrollBarShows, "scrollbar.shows", "A ScrollBar shows where the content stands.", pages) {
    QWidget page;
    page.resize(100, 450);
    cm::ScrollBar bar(&page, QRect(56, 0, 24, 432), 0);
    bar.setRange(0, 400);
    bar.setPageStep(400);
    show(&page);
    const auto picture = [&] {
        QImage image(bar.size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        bar.render(&image);
        return image;
    };
    const QImage top = picture();
    bar.setValue(400);
    expectTrue("its picture at the end differs from the one at the start", picture() != top);
}
