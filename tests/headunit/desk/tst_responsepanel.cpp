// SPDX-License-Identifier: Apache-2.0
#include "desktest.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/response/responsepanel.h"
#include "headunit/desk/response/responseplot.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QToolButton>

#include <cmath>

using headunit::Quantity;
using headunit::ResponsePanel;
using headunit::ResponsePlot;
using headunit::SoundModel;

class TestResponsePanel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_unit.reset(); }
    void agreesWithMeasure();
    void followsAFinger();
    void thirtyPicturesASecond();
    void restsWhileNothingChanges();
    void doesNothingWhileHidden();
    void showsAndHidesCurves();
    void pointerReadsValues();
    void keysReadValues();
    void zoomAndBack();
    void aTouchIsNoFrame();
    void phaseAndGroupDelayOnDemand();
    void withoutDelays();
    void heldCopy();
    void whatPlaysJustNowIsNotShown();
    void remark();
    void savesPictures_data();
    void savesPictures();
    void saveSaysWhatFails();
    void followsTheLanguage();

private:
    QWidget *part(const char *name) const { return m_panel->findChild<QWidget *>(name); }
    QAction *action(const char *name) const { return m_panel->findChild<QAction *>(name); }
    QString text(const char *name) const { return m_panel->findChild<QLabel *>(name)->text(); }
    void press(const char *name) { QTest::mouseClick(part(name), Qt::LeftButton); }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        m_plot->canvas()->setFocus();
        QTest::keyClick(m_unit->desk->windowHandle(), Qt::Key(key), modifiers);
        m_unit->pass();
    }
    QPoint at(double hz, double decibels) const {
        return QPoint(qRound(m_plot->transform(QwtPlot::xBottom, hz)),
                      qRound(m_plot->transform(QwtPlot::yLeft, decibels)));
    }
    // The mouse over the diagram, as from the window system.
    void mouse(QTest::MouseAction action, const QPoint &position, Qt::MouseButton button = Qt::LeftButton) {
        const QPoint place = m_plot->canvas()->mapTo(m_unit->desk.data(), position);
        QTest::mouseEvent(action, m_unit->desk->windowHandle(), button, Qt::NoModifier, place, 20);
        m_unit->pass();
    }
    void point(double hz, double decibels) { mouse(QTest::MouseMove, at(hz, decibels), Qt::NoButton); }
    void frame(const QPoint &from, const QPoint &to) {
        mouse(QTest::MousePress, from);
        mouse(QTest::MouseMove, (from + to) / 2);
        mouse(QTest::MouseMove, to);
        mouse(QTest::MouseRelease, to);
    }
    double decibels(size_t curve, double hz) const;

    QScopedPointer<UnitOnTheDesk> m_unit;
    ResponsePanel *m_panel = nullptr;
    ResponsePlot *m_plot = nullptr;
    ResponsePlot *m_below = nullptr;
};

void TestResponsePanel::init() {
    m_unit.reset(new UnitOnTheDesk);
    m_panel = static_cast<ResponsePanel *>(m_unit->openDesk("response")->panel("response"));
    for (QDockWidget *dock : m_unit->desk->findChildren<QDockWidget *>()) {
        dock->setVisible(dock->objectName() == "response");
    }
    m_plot = m_panel->findChild<ResponsePlot *>("response_magnitude");
    m_below = m_panel->findChild<ResponsePlot *>("response_below");
    QVERIFY(m_plot && m_below);
    m_unit->pass(200);
}

/// What is drawn of a curve at the nearest frequency.
double TestResponsePanel::decibels(size_t curve, double hz) const {
    const QPolygonF samples = m_plot->samples(curve);
    const auto nearest = std::min_element(samples.begin(), samples.end(), [hz](const QPointF &a, const QPointF &b) {
        return std::abs(a.x() - hz) < std::abs(b.x() - hz);
    });
    return nearest == samples.end() ? qQNaN() : nearest->y();
}

/// The program's own measurement of the samples, frequency by frequency.
void TestResponsePanel::agreesWithMeasure() {
    for (const char *name : {"key_Subwoofer", "key_subvol_next", "key_subvol_next", "key_Phase_180", "key_crossover",
                             "key_freq_plus", "key_freq_plus", "key_slope_plus", "key_level_minus"}) {
        QVERIFY2(m_unit->tap(name), name);
    }
    m_unit->pass(100);
    QVERIFY(headunit::flushSettings());
    const QString table = m_unit->root.filePath("response.csv");
    QProcess process;
    process.start(HEADUNIT, {"--root", m_unit->root.path(), "--measure", table});
    QVERIFY(process.waitForFinished(120000));
    QCOMPARE(process.exitCode(), 0);
    QFile file(table);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().trimmed().split('\n').mid(1);
    QCOMPARE(size_t(lines.size()), m_panel->points().size());
    for (int i = 0; i < lines.size(); ++i) {
        const QList<QByteArray> fields = lines[i].split(',');
        for (size_t curve = 0; curve < headunit::responseCurves; ++curve) {
            const QPointF shown = m_plot->samples(curve)[i];
            const double measured = fields[1 + 2 * int(curve)].toDouble();
            QVERIFY(std::abs(shown.x() - fields[0].toDouble()) < 0.001);
            QVERIFY2(
                std::abs(shown.y() - measured) <= 0.01,
                qPrintable(
                    QString("curve %1 at %2 Hz: %3, not %4").arg(curve).arg(shown.x()).arg(shown.y()).arg(measured)));
        }
    }
}

/// A drag on an equaliser slider: what it sets is seen within a tenth of a second.
void TestResponsePanel::followsAFinger() {
    QVERIFY(m_unit->tap("key_eq"));
    QPoint from;
    for (QWidget *widget : m_unit->car->findChildren<QWidget *>()) {
        if (widget->isVisible() && QByteArray(widget->metaObject()->className()).contains("SliderBarWidget")) {
            from = widget->mapTo(m_unit->car.get(), widget->rect().center());
            break;
        }
    }
    QVERIFY(!from.isNull());
    int seen = 0;
    const auto check = [this, &seen](const headunit::SoundState &state) {
        if (SoundModel::instance().state() == state) {
            const auto expected = headunit::engine::calculateResponse(headunit::engine::designParameters(state), {63});
            QVERIFY(std::abs(decibels(0, 63) - headunit::engine::toDecibels(std::abs(expected[0].outputs[0]))) < 0.2);
            ++seen;
        }
    };
    QObject watch;
    connect(&SoundModel::instance(), &SoundModel::changed, &watch, [&watch, check] {
        const headunit::SoundState state = SoundModel::instance().state();
        QTimer::singleShot(99, &watch, [check, state] { check(state); });
    });
    m_unit->press(from);
    for (int way = 10; way <= 80; way += 10) {
        m_unit->move(from - QPoint(0, way));
        m_unit->pass(200);
    }
    m_unit->release(from - QPoint(0, 80));
    m_unit->pass(200);
    QVERIFY2(seen >= 4, qPrintable(QString::number(seen)));
}

/// Where something changes all the time, 30 pictures a second are made, and not many more.
void TestResponsePanel::thirtyPicturesASecond() {
    const int before = m_plot->paints();
    for (int change = 0; change < 200; ++change) {
        SoundModel::instance().setBalanceFader(change % 2, change % 15);
        m_unit->pass(5);
    }
    const int paints = m_plot->paints() - before;
    QVERIFY2(paints >= 30 && paints <= 50, qPrintable(QString::number(paints)));
}

void TestResponsePanel::restsWhileNothingChanges() {
    const int paints = m_plot->paints();
    m_unit->pass(5000);
    QCOMPARE(m_plot->paints(), paints);
    // Nor is anything drawn anew for what does not shape the sound.
    SoundModel::instance().setMuted(true);
    SoundModel::instance().setPromptActive(headunit::Prompt::Phone, true);
    m_unit->pass(1000);
    QCOMPARE(m_plot->paints(), paints);
}

void TestResponsePanel::doesNothingWhileHidden() {
    m_unit->desk->findChild<QDockWidget *>("response")->hide();
    m_unit->pass(200);
    const double before = decibels(0, 1000);
    const int paints = m_plot->paints();
    SoundModel::instance().setChannelLevel(0, 40);
    m_unit->pass(1000);
    QCOMPARE(decibels(0, 1000), before);
    QCOMPARE(m_plot->paints(), paints);
    m_unit->openDesk("response");
    QVERIFY(std::abs(decibels(0, 1000)) < 0.01);
}

void TestResponsePanel::showsAndHidesCurves() {
    press("key_response_curve_6");
    QVERIFY(!m_plot->isCurveVisible(6) && !m_below->isCurveVisible(6));
    press("key_response_curve_6");
    QVERIFY(m_plot->isCurveVisible(6));
    key(Qt::Key_1);
    QVERIFY(!m_plot->isCurveVisible(0));
    point(1000, -30);
    QVERIFY2(!text("response_values").contains("FL") && text("response_values").contains("FR"),
             qPrintable(text("response_values")));
}

void TestResponsePanel::pointerReadsValues() {
    QVERIFY(!text("response_values").contains("Hz"));
    SoundModel::instance().setChannelLevel(0, 36);  // -6 dB
    SoundModel::instance().setSubwooferLevel(8);    // -3 dB
    m_unit->pass(100);
    point(1000, -30);
    const QString values = text("response_values");
    QVERIFY2(values.startsWith("1.00 kHz") || values.startsWith("1.01 kHz") || values.startsWith("99"),
             qPrintable(values));
    QVERIFY2(values.contains("FL −6.0 dB") && values.contains("SR −9.0 dB"), qPrintable(values));
    QVERIFY2(values.contains("Sum +8.7 dB"), qPrintable(values));  // 4 x 0.501 + 2 x 0.355
}

void TestResponsePanel::keysReadValues() {
    point(100, -30);
    const QString first = text("response_values");
    key(Qt::Key_Right);
    const QString second = text("response_values");
    QVERIFY(first != second);
    key(Qt::Key_Left);
    QCOMPARE(text("response_values"), first);
    for (int i = 0; i < 60; ++i) {
        key(Qt::Key_Left, Qt::ShiftModifier);
    }
    QVERIFY2(text("response_values").startsWith("20.0 Hz"), qPrintable(text("response_values")));
    for (int i = 0; i < 60; ++i) {
        key(Qt::Key_Right, Qt::ShiftModifier);
    }
    QVERIFY2(text("response_values").startsWith("19.9"), qPrintable(text("response_values")));
}

void TestResponsePanel::zoomAndBack() {
    key(Qt::Key_P);
    const QwtInterval all = m_plot->axisInterval(QwtPlot::xBottom);
    const QwtInterval range = m_plot->axisInterval(QwtPlot::yLeft);
    frame(at(50, range.maxValue() - 10), at(200, range.maxValue() - 30));
    const QwtInterval zoomed = m_plot->axisInterval(QwtPlot::xBottom);
    QVERIFY2(std::abs(zoomed.minValue() - 50) < 2 && std::abs(zoomed.maxValue() - 200) < 5,
             qPrintable(QString::number(zoomed.minValue())));
    QCOMPARE(m_below->axisInterval(QwtPlot::xBottom), zoomed);
    frame(at(80, range.maxValue() - 15), at(120, range.maxValue() - 25));
    QVERIFY(m_plot->axisInterval(QwtPlot::xBottom).minValue() > 70);
    // While zoomed, a change leaves the part that is shown.
    const QwtInterval part = m_plot->axisInterval(QwtPlot::yLeft);
    SoundModel::instance().setChannelLevel(0, 40);
    m_unit->pass(100);
    QCOMPARE(m_plot->axisInterval(QwtPlot::yLeft), part);
    mouse(QTest::MousePress, QPoint(40, 40), Qt::RightButton);
    mouse(QTest::MouseRelease, QPoint(40, 40), Qt::RightButton);
    QCOMPARE(m_plot->axisInterval(QwtPlot::xBottom), zoomed);
    key(Qt::Key_Backspace);
    QCOMPARE(m_plot->axisInterval(QwtPlot::xBottom), all);
    QCOMPARE(m_below->axisInterval(QwtPlot::xBottom), all);
    frame(at(50, -10), at(200, -30));
    frame(at(80, -15), at(120, -25));
    press("key_response_zoom_out");
    QCOMPARE(m_plot->axisInterval(QwtPlot::xBottom), all);
    QVERIFY(!m_plot->isZoomed() && !m_below->isZoomed());
}

void TestResponsePanel::aTouchIsNoFrame() {
    frame(at(100, -30), at(100, -30) + QPoint(3, 3));
    QVERIFY(!m_plot->isZoomed());
}

void TestResponsePanel::phaseAndGroupDelayOnDemand() {
    QVERIFY(!m_below->isVisible());
    SoundModel::instance().setDelays({20, 0, 0, 0, 0, 0});
    press("key_response_phase");
    QVERIFY(m_below->isVisible());
    QCOMPARE(int(m_below->quantity()), int(Quantity::Phase));
    m_unit->pass(100);
    QVERIFY(std::abs(m_below->samples(0).first().y() + 360 * 20 * 0.002) < 0.5);  // 20 Hz, 2 ms late
    press("key_response_group_delay");
    QVERIFY(!action("response_phase")->isChecked());
    QCOMPARE(int(m_below->quantity()), int(Quantity::GroupDelay));
    QVERIFY(std::abs(m_below->samples(0).first().y() - 2) < 0.001);
    QVERIFY(std::abs(m_below->samples(1).first().y()) < 0.001);
    press("key_response_group_delay");
    QVERIFY(!m_below->isVisible());
}

void TestResponsePanel::withoutDelays() {
    SoundModel::instance().setSubwooferLevel(0);
    SoundModel::instance().setDelays({0, 0, 20, 20, 0, 0});
    m_unit->pass(100);
    const double apart = decibels(6, 250);  // half a period apart
    press("key_response_delays");
    QVERIFY2(decibels(6, 250) > apart + 20, qPrintable(QString::number(apart)));
}

void TestResponsePanel::heldCopy() {
    SoundModel::instance().setChannelLevel(0, 40);
    m_unit->pass(100);
    point(1000, -30);
    press("key_response_hold");
    const QImage before = m_plot->grab().toImage();
    SoundModel::instance().setChannelLevel(0, 36);
    m_unit->pass(100);
    QVERIFY2(text("response_values").contains("FL −6.0 dB (held 0.0)"), qPrintable(text("response_values")));
    QVERIFY(m_plot->grab().toImage() != before);
    press("key_response_hold");
    QVERIFY(!text("response_values").contains("held"));
}

void TestResponsePanel::whatPlaysJustNowIsNotShown() {
    const double before = decibels(0, 1000);
    SoundModel::instance().setMuted(true);
    m_unit->pass(100);
    QVERIFY(std::abs(decibels(0, 1000) - before) < 0.01);
}

void TestResponsePanel::remark() {
    QCOMPARE(text("response_remark"), QString());
    SoundModel &sound = SoundModel::instance();
    sound.setFilter(headunit::FilterChannel::Front, {3, 2, 12});
    sound.setFilter(headunit::FilterChannel::Rear, {3, 2, 12});
    sound.setFilter(headunit::FilterChannel::Subwoofer, {3, 2, 12});
    sound.setSubwooferLevel(14);
    m_unit->pass(99);
    QVERIFY2(text("response_remark").contains("Hole") && text("response_remark").contains("phase 180°"),
             qPrintable(text("response_remark")));
    sound.setSubwooferPhase(1);
    m_unit->pass(99);
    QCOMPARE(text("response_remark"), QString());
    sound.setChannelLevel(0, 0);
    m_unit->pass(99);
    QVERIFY(text("response_remark").contains("nothing is heard"));
}

void TestResponsePanel::savesPictures_data() {
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::newRow("PNG") << "Picture (*.png)"
                         << "curves.png";
    QTest::newRow("SVG") << "Drawing (*.svg)"
                         << "curves.svg";
}

void TestResponsePanel::savesPictures() {
    QFETCH(QString, kind);
    QFETCH(QString, name);
    press("key_response_phase");
    key(Qt::Key_S, Qt::ControlModifier);
    auto *const dialog = m_panel->findChild<QFileDialog *>("file_dialog");
    QVERIFY(dialog);
    dialog->selectNameFilter(kind);
    Q_EMIT dialog->filterSelected(kind);
    dialog->setDirectory(m_unit->root.path());
    auto *const edit = dialog->findChild<QLineEdit *>("fileNameEdit");
    edit->clear();
    QTest::keyClicks(edit, "curves");
    QTest::keyClick(edit, Qt::Key_Return);
    m_unit->pass();
    QFile file(m_unit->root.filePath(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVERIFY(name.endsWith("svg") ? bytes.contains("</svg>") : QImage::fromData(bytes).width() == 1280);
    QVERIFY2(text("response_values").contains(name), qPrintable(text("response_values")));
}

void TestResponsePanel::saveSaysWhatFails() {
    QVERIFY(m_panel->saveTo("/dev/null/curves.png").contains("/dev/null/curves.png"));
}

void TestResponsePanel::followsTheLanguage() {
    m_unit->unit->setLanguage("ja");
    m_unit->pass();
    QCOMPARE(static_cast<QToolButton *>(part("key_response_curve_6"))->text(), QString("合成"));
    QCOMPARE(m_plot->canvas()->accessibleName(), QString("振幅"));
}

DESK_TEST_MAIN(TestResponsePanel)
#include "tst_responsepanel.moc"
