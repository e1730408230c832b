// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/clock.h"
#include "headunit/desk/frame/desk.h"
#include "headunit/desk/frame/deskhost.h"
#include "headunit/host/app/deskwindow.h"
#include "headunit/host/app/plugincatalog.h"
#include "headunit/host/app/unit.h"
#include "headunit/host/screens/hardkeys.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/unitapplication.h"
#include "headunit/virtualtime/virtualtime.h"

#include <QDockWidget>
#include <QLoggingCategory>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// A unit with Audio Settings in front and the tuner's desk above it, in virtual time.
class UnitOnTheDesk : public headunit::DeskHost {
public:
    enum Start { InAudioSettings, AtHome };

    explicit UnitOnTheDesk(Start start = InAudioSettings) {
        headunit::setDeskClock([] { return headunit::VirtualTime::instance()->now(); });
        headunit::setUnitRoot(root.path());
        headunit::openSettings();
        catalog = std::make_unique<headunit::PluginCatalog>();
        catalog->load(QStringLiteral(AUDIOSETTING_PLUGIN));
        car = std::make_unique<headunit::DeskWindow>();
        unit = std::make_unique<headunit::Unit>(*catalog, car->screen(), [] { return QStringLiteral("10:08"); });
        QObject::connect(car->hardKeys(), &headunit::HardKeys::keyPressed, unit.get(), &headunit::Unit::pressHardKey);
        QObject::connect(car->hardKeys(), &headunit::HardKeys::keyReleased, unit.get(),
                         &headunit::Unit::releaseHardKey);
        if (start == AtHome) {
            unit->showHome();
        } else {
            unit->openApplication(QStringLiteral("audiosetting"), headunit::Unit::Home);
        }
        car->show();
        pass();
    }
    ~UnitOnTheDesk() override {
        closeDesk();
        unit.reset();
        car.reset();
        catalog.reset();
        headunit::closeSettings();
        headunit::Language::set(QStringLiteral("en"));
    }

    QWidget *window() override { return car.get(); }
    QWidget *screen() override { return car->screen(); }
    void refreshFront() override { unit->refreshFront(); }
    void restart() override { unit->restart(); }
    headunit::SoundMonitor *sound() override { return monitor; }

    headunit::Desk *openDesk(const QString &panel = QString()) {
        if (!desk) {
            desk = new headunit::Desk(*this);
        }
        desk->open(panel);
        pass();
        return desk;
    }
    void closeDesk() {
        if (desk) {
            desk->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    /// Lets virtual time pass.
    void pass(int ms = 0) { headunit::VirtualTime::instance()->advance(ms); }

    // A finger on the unit: events of its window, as from the window system. Places are centres of what has a name.
    QPoint place(const char *name) const {
        QWidget *found = nullptr;
        for (QWidget *widget : car->findChildren<QWidget *>(QString::fromLatin1(name))) {
            found = widget->isVisible() ? widget : found;
        }
        return found ? found->mapTo(car.get(), found->rect().center()) : QPoint(-1, -1);
    }
    void press(const QPoint &position) { mouse(QTest::MousePress, position); }
    void move(const QPoint &position) { mouse(QTest::MouseMove, position); }
    void release(const QPoint &position) { mouse(QTest::MouseRelease, position); }
    bool tap(const char *name) {
        const QPoint position = place(name);
        if (position.x() < 0) {
            return false;
        }
        press(position);
        release(position);
        pass(200);  // the tab bar ignores a second click that comes earlier
        return true;
    }

    QTemporaryDir root;
    std::unique_ptr<headunit::PluginCatalog> catalog;
    std::unique_ptr<headunit::DeskWindow> car;
    std::unique_ptr<headunit::Unit> unit;
    QPointer<headunit::Desk> desk;
    headunit::SoundMonitor *monitor = nullptr;  ///< of what plays, where a test plays something

private:
    void mouse(QTest::MouseAction action, const QPoint &position) {
        QTest::mouseEvent(action, car->windowHandle(), Qt::LeftButton, Qt::NoModifier, position, 20);
        pass();
    }
};

#define DESK_TEST_MAIN(Class)                                               \
    int main(int argc, char **argv) {                                       \
        headunit::prepareUnitApplication();                                 \
        new headunit::VirtualTime; /* Qt's from here on */                  \
        QApplication application(argc, argv);                               \
        headunit::setUpUnitApplication();                                   \
        QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, false); \
        Class test;                                                         \
        return QTest::qExec(&test, argc, argv);                             \
    }
