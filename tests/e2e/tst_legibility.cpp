// SPDX-License-Identifier: Apache-2.0
#include "appplugin.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "headunit/toolkit/headunitstyle.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/unitapplication.h"
#include "headunit/virtualtime/virtualtime.h"
#include "tests/platform/finger.h"
#include "windowinterface.h"

#include <QApplication>
#include <QButtonGroup>
#include <QLabel>
#include <QLoggingCategory>
#include <QPluginLoader>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <functional>

// Every page as it is composed, in its states and in every language: text and what lies behind it are taken from the
// rendered screen.

namespace {

const double leastForText = 4.5;
const double leastForShapes = 3;
const double leastForDisabledState = 1.5;
const QRgb disabledText = qRgb(0x57, 0x57, 0x5f);
const char *const languages[] = {"en", "de", "fr", "es", "ja"};

// As in WCAG: relative luminance and contrast.
double linear(int channel) {
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb colour) {
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(double a, double b) {
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

double contrast(QRgb a, QRgb b) {
    return contrast(luminance(a), luminance(b));
}

int distance(QRgb a, QRgb b) {
    return qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b));
}

/// The unit's style, which leaves texts out while it is told to.
class TextlessStyle : public QProxyStyle {
public:
    TextlessStyle() : QProxyStyle(new headunit::HeadUnitStyle) {}

    bool textless = false;

    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole role) const override {
        if (!textless) {
            QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
        }
    }
};

/// A label's or a key's text.
QString textOf(const QWidget *widget) {
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return label->text();
    }
    const auto *key = qobject_cast<const QAbstractButton *>(widget);
    return key ? key->text() : QString();
}

}  // namespace

class TestLegibility : public QObject {
    Q_OBJECT

public:
    explicit TestLegibility(TextlessStyle *style) : m_style(style) {}

private slots:
    void initTestCase();
    void init();
    void texts_data() { rows(); }
    void texts();
    void keysStandOut_data() { rows("en"); }
    void keysStandOut();
    void keysTellTheirState_data() { rows("en"); }
    void keysTellTheirState();
    void figuresOfTheCrossover_data();
    void figuresOfTheCrossover();

private:
    void noTextIsCut();

    struct State {
        const char *name;
        std::function<void(TestLegibility &)> enter;
    };
    static const QVector<State> &states();

    void rows(const char *only = nullptr);
    void enter(const QString &state, const QString &language);
    QWidget *child(const char *name) const;
    void tap(const char *name) { finger::tap(child(name)); }
    void hold(const char *name) { finger::hold(child(name), 1600); }
    void openPage(const char *slot, int tab = -1);
    void scrollToEnd();

    QImage shown(bool withTexts = true) const;
    QRect seen(const QWidget *widget) const;
    QVector<QWidget *> shownWidgets() const;

    TextlessStyle *const m_style;
    QPluginLoader m_loader;
    QWidget *m_window = nullptr;
    QWidget *m_container = nullptr;
};

void TestLegibility::initTestCase() {
    m_loader.setFileName(QStringLiteral(PLUGIN));
    auto *plugin = qobject_cast<AppPlugin *>(m_loader.instance());
    QVERIFY2(plugin, qPrintable(m_loader.errorString()));
    WindowInterface *window = plugin->requestWindowInterface(33);
    window->onCreate();
    window->onShow();
    m_window = window->mainWidget();
    m_window->setFixedSize(1024, 600);
    m_window->show();
    m_container = m_window->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

void TestLegibility::init() {
    // From the factory state, whatever the test before has set.
    openPage("onShowResetAudiosettings");
    QMetaObject::invokeMethod(child("Audiosettingsreset"), "onAcceptClicked");
    headunit::VirtualTime::instance()->advance(2500);
}

QWidget *TestLegibility::child(const char *name) const {
    for (QWidget *widget : m_window->findChildren<QWidget *>(QString::fromLatin1(name))) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    qFatal("nothing of that name is shown: %s", name);
}

void TestLegibility::openPage(const char *slot, int tab) {
    if (tab >= 0) {
        QMetaObject::invokeMethod(m_container, slot, Q_ARG(int, tab));
    } else {
        QMetaObject::invokeMethod(m_container, slot);
    }
    headunit::VirtualTime::instance()->advance(500);
}

void TestLegibility::scrollToEnd() {
    for (QScrollArea *area : m_window->findChildren<QScrollArea *>()) {
        if (area->isVisible()) {
            area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
        }
    }
}

const QVector<TestLegibility::State> &TestLegibility::states() {
    static const QVector<State> all = {
        {"general", [](TestLegibility &t) { t.openPage("onPageChanged", 0); }},
        {"general with subwoofer",
         [](TestLegibility &t) {
             t.openPage("onPageChanged", 0);
             t.tap("key_Subwoofer");
             t.tap("key_Phase_180");
         }},
        {"general with Defeat",
         [](TestLegibility &t) {
             t.openPage("onPageChanged", 0);
             t.tap("key_defeat");
         }},
        {"eq", [](TestLegibility &t) { t.openPage("onPageChanged", 1); }},
        {"eq with a stored curve",
         [](TestLegibility &t) {
             t.openPage("onPageChanged", 1);
             t.hold("key_custom1");
         }},
        {"crossover", [](TestLegibility &t) { t.openPage("onPageChanged", 2); }},
        {"crossover, rear",
         [](TestLegibility &t) {
             t.openPage("onPageChanged", 2);
             t.tap("key_rear");
         }},
        {"crossover, subwoofer, a preset",
         [](TestLegibility &t) {
             t.openPage("onPageChanged", 2);
             t.tap("key_sub");
             t.tap("key_freq_plus");
             t.tap("key_level_minus");
             t.tap("key_slope_plus");
             t.hold("key_preset_1");
         }},
        {"timing", [](TestLegibility &t) { t.openPage("onPageChanged", 3); }},
        {"timing in inches",
         [](TestLegibility &t) {
             t.openPage("onPageChanged", 3);
             t.tap("key_inches");
             t.tap("key_fl_plus");
             t.hold("key_preset_2");
         }},
        {"factory eq", [](TestLegibility &t) { t.openPage("onPageChanged", 4); }},
        {"factory eq, Jazz",
         [](TestLegibility &t) {
             t.openPage("onPageChanged", 4);
             t.tap("key_jazz");
         }},
        {"settings", [](TestLegibility &t) { t.openPage("onAdvancedChanged"); }},
        {"settings with Loudness",
         [](TestLegibility &t) {
             t.openPage("onAdvancedChanged");
             t.tap("Key_001_loudness");
         }},
        {"volume", [](TestLegibility &t) { t.openPage("onShowAudioSettings"); }},
        {"volume, end",
         [](TestLegibility &t) {
             t.openPage("onShowAudioSettings");
             t.scrollToEnd();
         }},
        {"source gain", [](TestLegibility &t) { t.openPage("onShowSourceGain"); }},
        {"source gain, end",
         [](TestLegibility &t) {
             t.openPage("onShowSourceGain");
             t.scrollToEnd();
         }},
        {"reset", [](TestLegibility &t) { t.openPage("onShowResetAudiosettings"); }},
    };
    return all;
}

void TestLegibility::rows(const char *only) {
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("language");
    for (const char *language : languages) {
        for (const State &state : states()) {
            if (!only || qstrcmp(only, language) == 0) {
                QTest::addRow("%s, %s", state.name, language) << QString::fromLatin1(state.name) << QString(language);
            }
        }
    }
}

void TestLegibility::enter(const QString &state, const QString &language) {
    QVERIFY(headunit::Language::set(language));
    // Pages show what is stored when they are shown.
    openPage("onAdvancedChanged");
    for (const State &each : states()) {
        if (state == QLatin1String(each.name)) {
            each.enter(*this);
        }
    }
    headunit::VirtualTime::instance()->advance(2000);
}

QImage TestLegibility::shown(bool withTexts) const {
    m_style->textless = !withTexts;
    const QImage image = m_window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    m_style->textless = false;
    return image;
}

/// The visible part of a widget, in the window; empty where another one is scrolled out of a list or covered by a page.
QRect TestLegibility::seen(const QWidget *widget) const {
    QRect rect = widget->rect();
    for (const QWidget *each = widget; each != m_window; each = each->parentWidget()) {
        rect = rect.translated(each->pos()) & each->parentWidget()->rect();
    }
    return rect;
}

QVector<QWidget *> TestLegibility::shownWidgets() const {
    QVector<QWidget *> all;
    const auto *dialog = m_window->findChild<QWidget *>(QStringLiteral("Audiosettingsreset"));
    const QRect covered = dialog && dialog->isVisible() ? seen(dialog) : QRect();
    for (QWidget *widget : m_window->findChildren<QWidget *>()) {
        const bool behind = seen(widget).intersects(covered) && !dialog->isAncestorOf(widget);
        if (widget->isVisible() && !behind && seen(widget).size() == widget->size()) {
            all << widget;
        }
    }
    return all;
}

void TestLegibility::texts() {
    QFETCH(QString, state);
    QFETCH(QString, language);
    enter(state, language);
    const QImage with = shown();
    const QImage without = shown(false);
    int measured = 0;
    for (const QWidget *widget : shownWidgets()) {
        if (textOf(widget).isEmpty()) {
            continue;
        }
        const QRect rect = seen(widget);
        int most = 0;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                most = qMax(most, distance(with.pixel(x, y), without.pixel(x, y)));
            }
        }
        const QByteArray what = widget->objectName().toUtf8() + " \"" + textOf(widget).toUtf8() + '"';
        QVERIFY2(most > 100, what + " is not seen");
        // The middle of the strokes, where the text has its full colour.
        QVector<double> ratios;
        bool disabled = false;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                if (distance(with.pixel(x, y), without.pixel(x, y)) >= 0.9 * most) {
                    ratios << contrast(with.pixel(x, y), without.pixel(x, y));
                    disabled = disabled || distance(with.pixel(x, y), disabledText) < 12;
                }
            }
        }
        std::sort(ratios.begin(), ratios.end());
        const double ratio = ratios.at(ratios.size() / 20);
        QVERIFY2(ratio >= leastForText || disabled, what + ": " + QByteArray::number(ratio));
        ++measured;
    }
    QVERIFY2(measured >= 1, "no texts");
    noTextIsCut();
}

void TestLegibility::noTextIsCut() {
    for (const QWidget *widget : shownWidgets()) {
        const QString text = textOf(widget);
        if (text.isEmpty()) {
            continue;
        }
        const auto *label = qobject_cast<const QLabel *>(widget);
        const QRect room = label ? label->contentsRect() : widget->rect();
        const int flags =
            label ? int(label->alignment()) | (label->wordWrap() ? Qt::TextWordWrap : 0) : int(Qt::AlignCenter);
        const QRect taken = widget->fontMetrics().boundingRect(QRect(0, 0, room.width(), 10000), flags, text);
        const QByteArray what = widget->objectName().toUtf8() + " \"" + text.toUtf8() + '"';
        QVERIFY2(taken.width() <= room.width(),
                 what + ": " + QByteArray::number(taken.width()) + " of " + QByteArray::number(room.width()));
        // From the top of the capitals to the foot of the descenders.
        const QFontMetrics metrics = widget->fontMetrics();
        const int height = taken.height() - metrics.height() + metrics.tightBoundingRect(text).height();
        QVERIFY2(height <= room.height(),
                 what + ": " + QByteArray::number(height) + " of " + QByteArray::number(room.height()));
        QVERIFY2(!text.contains(QChar(0x2026)) && !text.endsWith(QLatin1String("...")), what + " is shortened");
    }
}

void TestLegibility::keysStandOut() {
    QFETCH(QString, state);
    QFETCH(QString, language);
    enter(state, language);
    const QImage image = shown();
    int measured = 0;
    for (const QWidget *widget : shownWidgets()) {
        const auto *key = qobject_cast<const QPushButton *>(widget);
        if (!key || !key->isEnabled() || key->icon().isNull()) {
            continue;
        }
        const QRect rect = seen(key);
        // Outside its round corners.
        const double background = luminance(image.pixel(rect.topLeft()));
        int found = 0;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                found += contrast(luminance(image.pixel(x, y)), background) >= leastForShapes;
            }
        }
        // An outline of a pixel, at least.
        QVERIFY2(found >= key->iconSize().width() + key->iconSize().height(),
                 key->objectName().toUtf8() + ": " + QByteArray::number(found));
        ++measured;
    }
    QVERIFY(measured >= 1);
}

void TestLegibility::keysTellTheirState() {
    QFETCH(QString, state);
    QFETCH(QString, language);
    enter(state, language);
    for (QWidget *widget : shownWidgets()) {
        auto *key = qobject_cast<QPushButton *>(widget);
        // An empty slot has nothing to be selected for; the switch of the settings has one picture while it is
        // disabled; a tab is disabled under Defeat only, when no tab but General's can be in front.
        if (!key || !key->isCheckable() || key->icon().isNull() ||
            (!key->isEnabled() && (key->objectName() == QLatin1String("Key_001_loudness") ||
                                   key->parentWidget()->objectName() == QLatin1String("AudiosettingsTab"))) ||
            key->objectName().contains(QLatin1String("preset")) ||
            key->objectName().contains(QLatin1String("custom"))) {
            continue;
        }
        const QSignalBlocker quiet(key);
        const bool checked = key->isChecked();
        QButtonGroup *const group = key->group();
        const bool exclusive = group && group->exclusive();
        if (group) {
            group->setExclusive(false);
        }
        QImage images[2];
        for (bool on : {false, true}) {
            key->setChecked(on);
            images[on] = shown().copy(seen(key));
        }
        key->setChecked(checked);
        if (group) {
            group->setExclusive(exclusive);
        }
        const double least = key->isEnabled() ? leastForShapes : leastForDisabledState;
        int found = 0;
        for (int y = 0; y < images[0].height(); ++y) {
            for (int x = 0; x < images[0].width(); ++x) {
                found += contrast(images[0].pixel(x, y), images[1].pixel(x, y)) >= least;
            }
        }
        QVERIFY2(found >= 100, key->objectName().toUtf8() + ": " + QByteArray::number(found));
    }
}

void TestLegibility::figuresOfTheCrossover_data() {
    QTest::addColumn<QString>("state");
    for (const State &state : states()) {
        if (QByteArray(state.name).startsWith("crossover")) {
            QTest::newRow(state.name) << QString::fromLatin1(state.name);
        }
    }
}

// They are part of a picture, which curves and their fills cross.
void TestLegibility::figuresOfTheCrossover() {
    QFETCH(QString, state);
    enter(state, QStringLiteral("en"));
    const QImage image = shown();
    const QPoint graph = child("frame_3")->mapTo(m_window, QPoint(0, 0));
    // Where the digits stand, a little below the lines of 0, -3, -6 and -9 dB or on them; no pass band is there.
    for (int line : {8, 71, 134, 197}) {
        QVector<double> lightness;
        for (int y = line + 3; y < line + 24; ++y) {
            for (int x = 662; x < 674; ++x) {
                lightness << luminance(image.pixel(graph + QPoint(x, y)));
            }
        }
        std::sort(lightness.begin(), lightness.end());
        const double background = lightness.at(lightness.size() / 2);
        const double figure = lightness.at(lightness.size() - 8);
        const double ratio = contrast(figure, background);
        QVERIFY2(ratio >= 5, qPrintable(QStringLiteral("%1:1 at line %2").arg(ratio).arg(line)));
    }
}

int main(int argc, char **argv) {
    QTemporaryDir root;
    headunit::setUnitRoot(root.path());
    headunit::prepareUnitApplication();
    new headunit::VirtualTime;  // Qt's from here on
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    headunit::openSettings();
    headunit::setUpUnitApplication();
    auto *style = new TextlessStyle;
    QApplication::setStyle(style);
    TestLegibility test(style);
    const int result = QTest::qExec(&test, argc, argv);
    headunit::closeSettings();
    return result;
}

#include "tst_legibility.moc"
