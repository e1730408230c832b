// SPDX-License-Identifier: Apache-2.0
// Keys of the toolkit.

#include "check.h"
#include "finger.h"
#include "labelbutton.h"
#include "pushbutton.h"

#include <QImage>
#include <QPushButton>
#include <QTimer>

using namespace conformance;

namespace {

const char holds[] = "keys that save by a hold (EQ, Crossover, Timing), keys that repeat (Timing)";
const char labels[] = "up and down keys of EQ, keys of Volume Settings";

/// The events of a key, in order, with marks of the check's own between.
struct HeldKey {
    QWidget screen;
    QPushButton button{&screen};
    cm::PushButton hold{&button, &screen};
    Finger finger;
    QStringList log;

    HeldKey() {
        screen.resize(200, 100);
        button.setGeometry(20, 20, 100, 60);
        note(&button, &QPushButton::pressed, "pressed");
        note(&button, &QPushButton::released, "released");
        note(&button, &QPushButton::clicked, "clicked");
        note(&hold, &cm::PushButton::longPressed, "longPressed");
        show(&screen);
    }
    template <typename Object, typename Signal> void note(Object *object, Signal signal, const char *name) {
        QObject::connect(object, signal, &screen, [this, name] { log << QLatin1String(name); });
    }
    void countRepeats() { note(&hold, &cm::PushButton::longPressedRepeat, "repeat"); }
    /// A mark in the log, in so many milliseconds. Both timers run in one event loop, so that their order holds on a
    /// busy machine, too.
    void markIn(int ms) {
        QTimer *const timer = new QTimer(&screen);
        timer->setTimerType(Qt::PreciseTimer);
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, &screen, [this, ms] { log << QString::number(ms); });
        timer->start(ms);
    }
    void press() { finger.press(&button, button.rect().center()); }
    void release() { finger.release(&button, button.rect().center()); }
};

struct Label {
    QWidget screen;
    cm::LabelButton key{&screen};
    Finger finger;
    QStringList log;

    Label() {
        screen.resize(200, 100);
        key.setGeometry(20, 20, 40, 40);
        QObject::connect(&key, static_cast<void (cm::LabelButton::*)()>(&cm::LabelButton::clicked), &screen,
                         [this] { log << QStringLiteral("clicked()"); });
        QObject::connect(&key, static_cast<void (cm::LabelButton::*)(int)>(&cm::LabelButton::clicked), &screen,
                         [this](int id) { log << QStringLiteral("clicked(%1)").arg(id); });
    }
    QString colour() {
        QImage image(key.size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        key.render(&image);
        return QColor(image.pixel(20, 20)).name();
    }
};

QUrl picture(const char *name) {
    return QUrl(QStringLiteral("qrc:/conformance/%1.png").arg(QLatin1String(name)));
}

const char red[] = "#ff0000";
const char green[] = "#00ff00";
const char blue[] = "#0000ff";

void expectColour(const char *what, const char *wanted, const QString &got) {
    expect(QLatin1String(what), QString(QLatin1String(wanted)), got);
}

}  // namespace

CHECK(holdDefault, "hold.default-1500", "longPressed() comes 1500 ms after the press, unless set otherwise.", holds) {
    HeldKey key;
    key.markIn(1400);
    key.markIn(1600);
    key.press();
    pass(1700);
    expect("order", QStringList({"pressed", "1400", "longPressed", "1600"}), key.log);
}

CHECK(holdInterval, "hold.interval", "setLongPressedInterval() sets the time from the press to longPressed().", holds) {
    HeldKey key;
    key.hold.setLongPressedInterval(600);
    key.markIn(500);
    key.markIn(700);
    key.press();
    pass(800);
    expect("order", QStringList({"pressed", "500", "longPressed", "700"}), key.log);
}

CHECK(holdOnce, "hold.once", "longPressed() comes once per press, however long it lasts.", holds) {
    HeldKey key;
    key.hold.setLongPressedInterval(200);
    key.press();
    pass(1500);
    expect("longPressed()", 1, key.log.count(QStringLiteral("longPressed")));
}

CHECK(holdShort, "hold.short-press", "A press that ends before the interval is no long press.", holds) {
    HeldKey key;
    key.hold.setLongPressedInterval(400);
    key.press();
    pass(100);
    key.release();
    pass(800);
    expect("order", QStringList({"pressed", "released", "clicked"}), key.log);
}

CHECK(holdClick, "hold.keeps-click", "The button emits released() and clicked() after a long press, too.", holds) {
    HeldKey key;
    key.hold.setLongPressedInterval(200);
    key.press();
    pass(400);
    key.release();
    expect("order", QStringList({"pressed", "longPressed", "released", "clicked"}), key.log);
}

CHECK(holdAgain, "hold.again", "Every press counts anew.", holds) {
    HeldKey key;
    key.hold.setLongPressedInterval(200);
    for (int press = 0; press < 3; ++press) {
        key.press();
        pass(400);
        key.release();
    }
    expect("longPressed()", 3, key.log.count(QStringLiteral("longPressed")));
}

CHECK(holdBeside, "hold.beside-key", "A finger that has left the key holds nothing.", holds) {
    HeldKey key;
    key.hold.setLongPressedInterval(300);
    key.press();
    key.finger.move(&key.screen, QPoint(190, 90));
    pass(600);
    expect("longPressed()", 0, key.log.count(QStringLiteral("longPressed")));
}

CHECK(repeatRate, "repeat.rate", "longPressedRepeat() comes with the long press, and then at every repeat interval.",
      "Timing: keys held down") {
    HeldKey key;
    key.countRepeats();
    key.hold.setLongPressedInterval(1000);
    key.hold.setRepeatInterval(200);
    key.markIn(900);
    key.markIn(1100);
    key.markIn(1300);
    key.markIn(1500);
    key.press();
    pass(1550);
    key.log.removeAll(QStringLiteral("longPressed"));
    expect("order", QStringList({"pressed", "900", "repeat", "1100", "repeat", "1300", "repeat", "1500"}), key.log);
}

CHECK(repeatEnds, "repeat.ends", "Repeats end with the press.", "Timing: a delay would run away") {
    HeldKey key;
    key.countRepeats();
    key.hold.setLongPressedInterval(200);
    key.hold.setRepeatInterval(100);
    key.press();
    pass(350);
    key.release();
    const int before = key.log.count(QStringLiteral("repeat"));
    pass(1000);
    expect("repeats after the release", 0, key.log.count(QStringLiteral("repeat")) - before);
    expectTrue("there were repeats before", before > 0);
}

CHECK(repeatDisabled, "repeat.ends-when-disabled", "Repeats end when the key is disabled under the finger.",
      "Timing: a key at the end of its range") {
    HeldKey key;
    key.countRepeats();
    key.hold.setLongPressedInterval(200);
    key.hold.setRepeatInterval(100);
    key.press();
    pass(350);
    key.button.setEnabled(false);
    const int before = key.log.count(QStringLiteral("repeat"));
    pass(1000);
    expect("repeats after it was disabled", 0, key.log.count(QStringLiteral("repeat")) - before);
}

CHECK(holdOutlives, "hold.outlives-button", "cm::PushButton may outlive its button.", "the end of the application") {
    QPushButton *const button = new QPushButton;
    QObject parent;
    cm::PushButton hold(button, &parent);
    hold.setLongPressedInterval(100);
    hold.setRepeatInterval(50);
    show(button);
    button->setDown(true);
    QMetaObject::invokeMethod(button, "pressed");
    delete button;
    pass(300);
}

CHECK(labelClick, "label.click",
      "A press and a release on a LabelButton are clicked(), then clicked(int) with its group id.", labels) {
    Label label;
    label.key.setGroupId(7);
    show(&label.screen);
    label.finger.tap(&label.key);
    label.finger.tap(&label.key);
    expect("signals", QStringList({"clicked()", "clicked(7)", "clicked()", "clicked(7)"}), label.log);
}

CHECK(labelNoId, "label.id-is-0", "The group id is 0 unless set.", labels) {
    Label label;
    show(&label.screen);
    label.finger.tap(&label.key);
    expect("signals", QStringList({"clicked()", "clicked(0)"}), label.log);
}

CHECK(labelLeave, "label.leave-is-no-click", "A press that leaves the LabelButton before its release is no click.",
      labels) {
    Label label;
    show(&label.screen);
    label.finger.press(&label.key, QPoint(20, 20));
    label.finger.move(&label.key, QPoint(100, 20));
    label.finger.release(&label.key, QPoint(100, 20));
    expect("released outside", QStringList(), label.log);
    label.finger.press(&label.key, QPoint(20, 20));
    label.finger.move(&label.key, QPoint(100, 20));
    label.finger.move(&label.key, QPoint(20, 20));
    label.finger.release(&label.key, QPoint(20, 20));
    expect("left and back again", QStringList(), label.log);
}

CHECK(labelDisabled, "label.disabled", "A disabled LabelButton is not clicked.", labels) {
    Label label;
    label.key.setEnabled(false);
    show(&label.screen);
    label.finger.tap(&label.key);
    expect("signals", QStringList(), label.log);
}

CHECK(labelPictures, "label.pictures",
      "A LabelButton shows NormalOff at rest, NormalOn while pressed, Disabled when disabled.", labels) {
    Label label;
    label.key.setIcon(cm::LabelButton::NormalOff, picture("red"));
    label.key.setIcon(cm::LabelButton::NormalOn, picture("green"));
    label.key.setIcon(cm::LabelButton::Disabled, picture("blue"));
    show(&label.screen);
    expectColour("at rest", red, label.colour());
    label.finger.press(&label.key, QPoint(20, 20));
    expectColour("pressed", green, label.colour());
    label.finger.release(&label.key, QPoint(20, 20));
    expectColour("at rest again", red, label.colour());
    label.key.setEnabled(false);
    expectColour("disabled", blue, label.colour());
    label.key.setEnabled(true);
    expectColour("enabled again", red, label.colour());
}

CHECK(labelMissing, "label.missing-picture", "A state without a picture shows that of NormalOff.", labels) {
    Label label;
    label.key.setIcon(cm::LabelButton::NormalOff, picture("red"));
    show(&label.screen);
    label.finger.press(&label.key, QPoint(20, 20));
    expectColour("pressed", red, label.colour());
    label.finger.release(&label.key, QPoint(20, 20));
    label.key.setEnabled(false);
    expectColour("disabled", red, label.colour());
}

CHECK(labelPaths, "label.paths", "A LabelButton takes \"qrc:/...\" and \":/...\", by setIcon() and as Qt properties.",
      labels) {
    Label label;
    show(&label.screen);
    label.key.setIcon(cm::LabelButton::NormalOff, QUrl(QStringLiteral(":/conformance/green.png")));
    expectColour(":/...", green, label.colour());
    label.key.setIcon(cm::LabelButton::NormalOff, picture("blue"));
    expectColour("qrc:/...", blue, label.colour());
    label.key.setProperty("bgPathNormalOff", picture("red"));
    expectColour("property bgPathNormalOff", red, label.colour());
    expect("icon()", picture("red"), label.key.icon(cm::LabelButton::NormalOff));
    label.key.setProperty("bgPathNormalOn", picture("green"));
    label.key.setProperty("bgPathDisable", picture("blue"));
    expect("icon(NormalOn)", picture("green"), label.key.icon(cm::LabelButton::NormalOn));
    expect("icon(Disabled)", picture("blue"), label.key.icon(cm::LabelButton::Disabled));
}
