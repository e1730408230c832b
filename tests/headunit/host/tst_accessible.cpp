// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/hostapplication.h"
#include "headunit/host/app/plugincatalog.h"
#include "headunit/host/app/unit.h"
#include "headunit/host/screens/hardkeys.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/unitapplication.h"
#include "headunit/virtualtime/virtualtime.h"
#include "horizontalslider.h"
#include "labelbutton.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QTest>

using headunit::Unit;

// Every screen of the unit and of the application, as a screen reader walks it: no key and no slider is without a name
// and a role, whatever the language.
class TestAccessible : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void everyControlHasNameAndRole_data();
    void everyControlHasNameAndRole();
    void namesFollowTheLanguage();
    void keysArePressed();
    void slidersTellTheirValue();
    void keysOfTheCar();

private:
    struct Control {
        QString object;
        QString name;
        QAccessible::Role role;
    };

    void open(const QString &screen);
    QAccessibleInterface *shown(const char *objectName);
    QString nameOf(const char *objectName) { return shown(objectName)->text(QAccessible::Name); }
    /// The controls below an interface that are shown, found by walking its children.
    static void walk(QAccessibleInterface *at, QVector<Control> &controls, QSet<QObject *> &seen);

    headunit::PluginCatalog m_catalog;
    QScopedPointer<QWidget> m_screen;
    QScopedPointer<headunit::HardKeys> m_hardKeys;
    QScopedPointer<Unit> m_unit;
};

namespace {

/// A screen's name, and the slot of the application's container that opens it.
const struct Page {
    const char *name;
    const char *slot;
    int page;
    int controls;  ///< keys, sliders and pads of the page with its bars
} pages[] = {
    {"general", "onPageChanged", 0, 20},           {"eq", "onPageChanged", 1, 52},
    {"crossover", "onPageChanged", 2, 19},         {"timing", "onPageChanged", 3, 24},
    {"factory eq", "onPageChanged", 4, 13},        {"settings", "onAdvancedChanged", -1, 11},
    {"volume", "onShowAudioSettings", -1, 20},     {"source gain", "onShowSourceGain", -1, 20},
    {"reset", "onShowResetAudiosettings", -1, 13},
};

void press(QAccessibleInterface *control) {
    QAccessibleActionInterface *const actions = control->actionInterface();
    if (!actions) {
        qFatal("%s cannot be pressed", qPrintable(control->text(QAccessible::Name)));
    }
    actions->doAction(QAccessibleActionInterface::pressAction());
}

bool isControl(const QObject *object) {
    return object->inherits("QAbstractButton") || object->inherits("cm::LabelButton") ||
           object->inherits("HorizontalSlider") || object->inherits("cm::SliderBarWidget") ||
           object->inherits("settings::balanceFaderControl");
}

}  // namespace

void TestAccessible::initTestCase() {
    m_catalog.load(QStringLiteral(PLUGIN));
    QCOMPARE(m_catalog.failures(), QStringList());
    m_screen.reset(new QWidget);
    m_screen->resize(1024, 600);
    m_unit.reset(new Unit(m_catalog, m_screen.data(), [] { return QStringLiteral("10:08"); }));
    m_hardKeys.reset(new headunit::HardKeys(QRect(0, 0, headunit::HardKeys::stripWidth, 600), nullptr));
    m_screen->show();
    m_hardKeys->show();
}

void TestAccessible::open(const QString &screen) {
    if (screen == QLatin1String("home")) {
        m_unit->showHome();
    } else if (screen == QLatin1String("car")) {
        m_unit->showCar();
    } else if (screen == QLatin1String("call")) {
        m_unit->startCall();
    } else if (screen == QLatin1String("band adjust")) {
        m_unit->showBandAdjust();
    }
    for (const Page &page : pages) {
        if (screen == QLatin1String(page.name)) {
            m_unit->openApplication(QStringLiteral("audiosetting"), Unit::Home);
            QObject *container = nullptr;
            for (QWidget *widget : m_screen->findChildren<QWidget *>()) {
                container = widget->inherits("AudioRootPagtSettings") ? widget : container;
            }
            QVERIFY(container);
            // The reset's question lies over the settings.
            QVERIFY(QMetaObject::invokeMethod(container, "onAdvancedChanged"));
            if (page.page >= 0) {
                QVERIFY(QMetaObject::invokeMethod(container, page.slot, Q_ARG(int, page.page)));
            } else {
                QVERIFY(QMetaObject::invokeMethod(container, page.slot));
            }
        }
    }
    headunit::VirtualTime::instance()->advance(500);
}

void TestAccessible::walk(QAccessibleInterface *at, QVector<Control> &controls, QSet<QObject *> &seen) {
    if (at->object() && seen.contains(at->object())) {
        controls << Control{QStringLiteral("met twice: %1").arg(at->object()->metaObject()->className()), QString(),
                            at->role()};
        return;
    }
    seen << at->object();
    const auto *const widget = qobject_cast<QWidget *>(at->object());
    if (widget && widget->isVisible() && isControl(widget)) {
        controls << Control{widget->objectName(), at->text(QAccessible::Name), at->role()};
    }
    for (int i = 0; i < at->childCount(); ++i) {
        walk(at->child(i), controls, seen);
    }
}

QAccessibleInterface *TestAccessible::shown(const char *objectName) {
    for (QWidget *widget : m_screen->findChildren<QWidget *>(QString::fromLatin1(objectName))) {
        if (widget->isVisible()) {
            return QAccessible::queryAccessibleInterface(widget);
        }
    }
    qFatal("nothing of that name is shown: %s", objectName);
}

void TestAccessible::everyControlHasNameAndRole_data() {
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("count");
    for (const char *language : {"en", "de", "fr", "es", "ja"}) {
        const auto row = [language](const char *screen, int count) {
            QTest::addRow("%s, %s", screen, language) << QString(screen) << QString(language) << count;
        };
        row("home", 3);
        row("car", 19);
        row("call", 1);
        row("band adjust", 17);
        for (const Page &page : pages) {
            row(page.name, page.controls);
        }
        row("hard keys", 5);
    }
}

void TestAccessible::everyControlHasNameAndRole() {
    QFETCH(QString, screen);
    QFETCH(QString, language);
    QVERIFY(m_unit->setLanguage(language));
    open(screen);
    QWidget *const root = screen == QLatin1String("hard keys") ? m_hardKeys.data() : m_screen.data();
    QVector<Control> controls;
    QSet<QObject *> seen;
    walk(QAccessible::queryAccessibleInterface(root), controls, seen);
    if (screen == QLatin1String("call")) {
        m_unit->endCall();
    }
    const QSet<QAccessible::Role> roles = {QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton,
                                           QAccessible::Slider, QAccessible::StaticText};
    QSet<QString> names;
    for (const Control &control : controls) {
        QVERIFY2(!control.name.trimmed().isEmpty(), qPrintable("a control without a name: " + control.object));
        QVERIFY2(roles.contains(control.role), qPrintable(control.object + " has no role of a control"));
        QVERIFY2(!names.contains(control.name), qPrintable("two are called " + control.name));
        names << control.name;
    }
    QTEST(controls.size(), "count");
}

void TestAccessible::namesFollowTheLanguage() {
    QVERIFY(m_unit->setLanguage(QStringLiteral("en")));
    open(QStringLiteral("timing"));
    QCOMPARE(nameOf("key_fl_minus"), QStringLiteral("Front Left 1 \u2212"));
    QCOMPARE(nameOf("key_timing"), QStringLiteral("Timing"));
    QCOMPARE(nameOf("Key_close"), QStringLiteral("Close"));
    QVERIFY(m_unit->setLanguage(QStringLiteral("de")));
    headunit::VirtualTime::instance()->advance(0);
    QCOMPARE(nameOf("key_fl_minus"), QStringLiteral("Vorne links \u2212"));
    QCOMPARE(nameOf("key_return"), QStringLiteral("Zur\u00fcck"));
    QCOMPARE(nameOf("key_timing"), QStringLiteral("Laufzeitkorrektur"));
    QCOMPARE(QAccessible::queryAccessibleInterface(m_hardKeys->findChild<QWidget *>("hardkey_volume_down"))
                 ->text(QAccessible::Name),
             QStringLiteral("Lautst\u00e4rke \u2212"));
    QVERIFY(m_unit->setLanguage(QStringLiteral("en")));
}

void TestAccessible::keysArePressed() {
    open(QStringLiteral("volume"));
    const auto *const slider = m_screen->findChild<HorizontalSlider *>();
    QVERIFY(slider);
    const int before = slider->value();
    QCOMPARE(shown("key_main_plus")->role(), QAccessible::Button);
    press(shown("key_main_plus"));
    QCOMPARE(slider->value(), before + 1);
    press(shown("key_main_minus"));
    QCOMPARE(slider->value(), before);
}

void TestAccessible::slidersTellTheirValue() {
    open(QStringLiteral("volume"));
    auto *const slider = m_screen->findChild<HorizontalSlider *>();
    QAccessibleValueInterface *const value = QAccessible::queryAccessibleInterface(slider)->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toInt(), 0);
    QCOMPARE(value->maximumValue().toInt(), 40);
    QCOMPARE(value->currentValue().toInt(), slider->value());
    value->setCurrentValue(99);
    QCOMPARE(slider->value(), 40);
    value->setCurrentValue(16);
    QCOMPARE(slider->value(), 16);

    open(QStringLiteral("eq"));
    QWidget *band = nullptr;
    for (QWidget *each : m_screen->findChildren<QWidget *>()) {
        if (!band && each->inherits("cm::SliderBarWidget") && each->isVisible()) {
            band = each;
        }
    }
    QVERIFY(band);
    QAccessibleInterface *const access = QAccessible::queryAccessibleInterface(band);
    QCOMPARE(access->role(), QAccessible::Slider);
    QCOMPARE(access->valueInterface()->maximumValue().toInt(), 24);
    QTest::mouseClick(band, Qt::LeftButton, Qt::NoModifier, QPoint(band->width() / 2, 0));
    QCOMPARE(access->valueInterface()->currentValue().toInt(), 24);
}

void TestAccessible::keysOfTheCar() {
    QVERIFY(m_unit->setLanguage(QStringLiteral("en")));
    open(QStringLiteral("car"));
    QCOMPARE(nameOf("car_level_plus"), QStringLiteral("Level +"));
    QAccessibleInterface *const german = shown("car_language_de");
    QVERIFY(german->state().checkable);
    QVERIFY(!german->state().checked);
    press(german);
    QVERIFY(german->state().checked);
    QCOMPARE(headunit::Language::current(), QStringLiteral("de"));
}

int main(int argc, char **argv) {
    headunit::prepareUnitApplication();
    new headunit::VirtualTime;  // Qt's from here on
    headunit::HostApplication application(argc, argv);
    headunit::setUpUnitApplication();
    TestAccessible test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_accessible.moc"
