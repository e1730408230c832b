// SPDX-License-Identifier: Apache-2.0
// The level slider of the toolkit.

#include "check.h"
#include "finger.h"
#include "horizontalslider.h"

#include <QImage>

using namespace conformance;

namespace {

const char pages[] = "Volume Settings, Source Gain";

struct Slider {
    QWidget screen;
    HorizontalSlider slider{QRect(10, 10, 400, 40), &screen};
    Finger finger;
    QStringList log;

    Slider(int min, int end) {
        screen.resize(420, 60);
        slider.setFreqRange(min, end);
        slider.setShowSlider(true);
        slider.addSliderImage(QStringLiteral(":/conformance/red.png"));
        slider.setAddPage(QStringLiteral(":/conformance/yellow.png"));
        slider.setSubPage(QStringLiteral(":/conformance/cyan.png"));
        QObject::connect(&slider, &HorizontalSlider::valueChanged, &screen,
                         [this](int index, int value) { log << QStringLiteral("%1, %2").arg(index).arg(value); });
        show(&screen);
    }
    int y() const { return slider.height() / 2; }
    QImage picture() {
        QImage image(slider.size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        slider.render(&image);
        return image;
    }
    QString colourAt(int x) { return QColor(picture().pixel(x, y())).name(); }
    /// The first and the last column that the knob reaches; its number may lie over its middle.
    QPair<int, int> knobColumns() {
        const QImage seen = picture();
        QPair<int, int> columns(seen.width(), -1);
        for (int x = 0; x < seen.width(); ++x) {
            for (int row = 0; row < seen.height(); ++row) {
                if (seen.pixel(x, row) == qRgb(255, 0, 0)) {
                    columns.first = qMin(columns.first, x);
                    columns.second = x;
                }
            }
        }
        return columns;
    }
};

}  // namespace

CHECK(sliderSet, "slider.set-value", "setValue() moves the knob and emits valueChanged() once, if the value differs.",
      pages) {
    Slider slider(0, 41);
    slider.slider.setValue(16);
    expect("after setValue(16)", QStringList(QStringLiteral("16, 16")), slider.log);
    slider.slider.setValue(16);
    expect("after setValue(16) again", QStringList(QStringLiteral("16, 16")), slider.log);
    expect("value()", 16, slider.slider.value());
}

CHECK(sliderSilent, "slider.set-level", "setCurrentLevel() moves the knob and emits nothing.", pages) {
    Slider slider(0, 41);
    slider.slider.setCurrentLevel(30);
    expect("signals", QStringList(), slider.log);
    expect("value()", 30, slider.slider.value());
}

CHECK(sliderIndex, "slider.index", "valueChanged(index, value): the index counts the steps from the left end.", pages) {
    Slider slider(-10, 11);
    slider.slider.setValue(-4);
    expect("signals", QStringList(QStringLiteral("6, -4")), slider.log);
}

CHECK(sliderEnds, "slider.range", "setFreqRange(min, end): values min to end - 1, from end to end of the widget.",
      pages) {
    for (const QPair<int, int> &range : {qMakePair(0, 41), qMakePair(-10, 11)}) {
        Slider slider(range.first, range.second);
        slider.slider.setCurrentLevel(range.first + 5);
        slider.finger.press(&slider.slider, QPoint(399, slider.y()));
        expect("at the right end", range.second - 1, slider.slider.value());
        slider.finger.move(&slider.slider, QPoint(0, slider.y()));
        expect("at the left end", range.first, slider.slider.value());
        slider.finger.move(&slider.slider, QPoint(-300, slider.y()));
        expect("beyond the left end", range.first, slider.slider.value());
        slider.finger.release(&slider.slider, QPoint(-300, slider.y()));
    }
}

CHECK(sliderJump, "slider.jumps", "The knob jumps to the finger, anywhere on the widget, when it touches.", pages) {
    Slider slider(0, 41);
    slider.finger.press(&slider.slider, QPoint(200, slider.y()));
    const int middle = slider.slider.value();
    expectTrue(QStringLiteral("a touch in the middle gives 19 to 21 of 40 (it gives %1)").arg(middle),
               middle >= 19 && middle <= 21);
    slider.finger.release(&slider.slider, QPoint(200, slider.y()));
    expect("after the release", middle, slider.slider.value());
    expect("signals", QStringList(QStringLiteral("%1, %1").arg(middle)), slider.log);
}

CHECK(sliderDrag, "slider.drag", "While a finger moves the slider, each change of value is one valueChanged().",
      pages) {
    Slider slider(0, 41);
    slider.finger.press(&slider.slider, QPoint(0, slider.y()));
    QVector<int> values = {slider.slider.value()};
    for (int x = 0; x < 400; ++x) {
        slider.finger.move(&slider.slider, QPoint(x, slider.y()));
        if (slider.slider.value() != values.last()) {
            values << slider.slider.value();
        }
    }
    slider.finger.release(&slider.slider, QPoint(399, slider.y()));
    QVector<int> wanted;
    QStringList lines;
    for (int value = 0; value <= 40; ++value) {
        wanted << value;
        if (value > 0) {
            lines << QStringLiteral("%1, %1").arg(value);
        }
    }
    expect("values", wanted, values);
    expect("signals", lines, slider.log);
}

CHECK(sliderMoving, "slider.move-state", "getMoveState() is true while a finger moves the slider, and in its signals.",
      pages) {
    Slider slider(0, 41);
    bool during = false;
    QObject::connect(&slider.slider, &HorizontalSlider::valueChanged, &slider.screen,
                     [&] { during = slider.slider.getMoveState(); });
    expect("before", false, slider.slider.getMoveState());
    slider.finger.press(&slider.slider, QPoint(100, slider.y()));
    expect("in the signal", true, during);
    expect("while it is held", true, slider.slider.getMoveState());
    slider.finger.release(&slider.slider, QPoint(100, slider.y()));
    expect("after", false, slider.slider.getMoveState());
    slider.slider.setValue(3);
    expect("in the signal of setValue()", false, during);
}

CHECK(sliderBeyond, "slider.out-of-range", "A value outside the range is kept as it is, and drawn at the nearer end.",
      "Source Gain: Radio's plus key goes beyond the slider") {
    Slider slider(-10, 11);
    slider.slider.setCurrentLevel(10);
    const QPair<int, int> end = slider.knobColumns();
    slider.slider.setCurrentLevel(20);
    expect("value()", 20, slider.slider.value());
    expectTrue("its knob is drawn where the end's is", end.first < end.second && slider.knobColumns() == end);
    for (int value : {2147483647, -2147483647 - 1}) {
        slider.slider.setCurrentLevel(value);
        slider.picture();
        expect("value()", value, slider.slider.value());
    }
}

CHECK(sliderPictures, "slider.pictures", "The knob stands at the value, between the filled part and the empty part.",
      pages) {
    Slider slider(0, 41);
    slider.slider.setCurrentLevel(20);
    expect("the knob in the middle", QStringLiteral("#ff0000"), slider.colourAt(200));
    expect("left of it, filled", QStringLiteral("#ffff00"), slider.colourAt(60));
    expect("right of it, empty", QStringLiteral("#00ffff"), slider.colourAt(340));
    slider.slider.setCurrentLevel(40);
    expect("the knob at the right end", QStringLiteral("#ff0000"), slider.colourAt(385));
    slider.slider.setShowSlider(false);
    expectTrue("setShowSlider(false) hides the knob", slider.colourAt(385) != QStringLiteral("#ff0000"));
}
