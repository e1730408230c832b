// SPDX-License-Identifier: Apache-2.0
// Makes the pictures of docs/tuning.md: desk_pictures FOLDER LANGUAGE. Every panel at rest and after a few touches.

#include "desktest.h"
#include "playermonitor.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/desk/setups/setupfile.h"

#include <QAction>
#include <QDir>
#include <QDoubleSpinBox>
#include <QListWidget>
#include <QMouseEvent>

namespace {

constexpr QSize size(1180, 640);

bool shoot(UnitOnTheDesk &unit, PlayerMonitor &sound, const QDir &folder, const QString &state) {
    bool saved = true;
    for (const headunit::PanelRow *row = headunit::panelsBegin(); row != headunit::panelsEnd(); ++row) {
        headunit::Desk *const desk = unit.openDesk(QLatin1String(row->name));
        for (QDockWidget *dock : desk->findChildren<QDockWidget *>()) {
            dock->setVisible(dock->objectName() == QLatin1String(row->name));
        }
        unit.pass();  // what was docked beside it needs no room any more
        desk->resize(size);
        for (int frame = 0; unit.monitor && frame < 60; ++frame) {
            sound.play(30);
            unit.pass(33);
        }
        unit.pass(unit.monitor ? 0 : 500);
        saved = desk->grab().save(folder.filePath(QStringLiteral("desk_%1_%2.png").arg(row->name, state))) && saved;
    }
    return saved;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        qCritical("usage: desk_pictures FOLDER LANGUAGE");
        return 2;
    }
    headunit::prepareUnitApplication();
    new headunit::VirtualTime;
    QApplication application(argc, argv);
    headunit::setUpUnitApplication();
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false);
    UnitOnTheDesk unit;
    unit.unit->setLanguage(QString::fromLocal8Bit(argv[2]));
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    PlayerMonitor sound("noise");
    bool saved = shoot(unit, sound, folder, QStringLiteral("rest"));
    const QString setups = unit.root.filePath(QStringLiteral("desk/setups"));
    QDir().mkpath(setups);
    headunit::writeSetup(setups + QStringLiteral("/flat.txt"), headunit::audioStore().values());
    unit.closeDesk();
    auto *const names = unit.openDesk()->panel(QStringLiteral("setups"))->findChild<QListWidget *>();
    names->setCurrentRow(0);
    unit.desk->panel(QStringLiteral("console"));
    const char *const distances[] = {"92", "128", "105.5", "134", "171", "176"};
    for (int i = 0; i < 6; ++i) {
        auto *const spin =
            unit.desk->panel(QStringLiteral("tape"))->findChild<QDoubleSpinBox *>(QStringLiteral("tape_cm%1").arg(i));
        spin->setValue(QString::fromLatin1(distances[i]).toDouble());
    }
    QFile list(unit.root.filePath(QStringLiteral("living room.txt")));
    if (list.open(QIODevice::WriteOnly)) {
        list.write(
            "Preamp: -4 dB\nFilter 1: ON PK Fc 71 Hz Gain -5.5 dB Q 2.2\nFilter 2: ON PK Fc 1200 Hz Gain 2.4 dB Q 0.9\n"
            "Filter 3: ON HS Fc 6000 Hz Gain -3 dB\n");
        list.close();
    }
    QMetaObject::invokeMethod(unit.desk->panel(QStringLiteral("curves")), "open", Q_ARG(QString, list.fileName()));
    headunit::Panel *const response = unit.desk->panel(QStringLiteral("response"));
    for (const char *name : {"response_phase", "response_hold"}) {
        response->findChild<QAction *>(QLatin1String(name))->trigger();
    }
    unit.desk->panel(QStringLiteral("recording"))->findChild<QAction *>(QStringLiteral("recording_record"))->trigger();
    unit.pass(500);
    unit.tap("tile_audiosetting");
    for (const char *name : {"key_Subwoofer", "key_subvol_next", "key_subvol_next", "key_crossover", "key_freq_plus",
                             "key_freq_plus", "key_slope_plus", "key_level_minus", "key_timing", "key_general"}) {
        unit.tap(name);
    }
    // A hole where front and subwoofers meet.
    headunit::SoundModel &model = headunit::SoundModel::instance();
    model.setFilter(headunit::FilterChannel::Front, {6, 2, 12});
    model.setFilter(headunit::FilterChannel::Rear, {4, 2, 12});
    model.setFilter(headunit::FilterChannel::Subwoofer, {4, 2, 12});
    model.setSubwooferLevel(13);
    model.setChannelLevel(0, 40);
    model.setSourceGain(0, 20);
    model.setSubwooferLevel(15);
    unit.monitor = &sound;
    unit.pass(100);
    const auto *const canvas = response->findChild<QWidget *>(QStringLiteral("response_magnitude_canvas"));
    QMouseEvent pointed(QEvent::MouseMove, QPointF(0.27 * canvas->width(), 40), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(const_cast<QWidget *>(canvas), &pointed);
    saved = shoot(unit, sound, folder, QStringLiteral("busy")) && saved;
    return saved ? 0 : 1;
}
