// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"
#include "headunit/host/screens/statusbar.h"

#include <QObject>

class WindowInterface;

namespace headunit {

class PluginCatalog;
class Stage;
class UnitScreens;

/// The head unit in operation: which of its screens or applications is in front, and what its keys do.
class Unit : public QObject {
    Q_OBJECT
public:
    /// Where the unit can be.
    enum Place { Nowhere, Home, Car, Call, BandAdjust, InApplication };

    /// Shows everything in \a screen; \a clock gives the status bar its time. The place is Nowhere at first.
    Unit(PluginCatalog &catalog, QWidget *screen, StatusBar::Clock clock);
    ~Unit() override;

    Place place() const { return m_place; }

    void showHome();
    void showCar();
    /// Shows the equaliser panel that Audio Settings exports, below the status bar. Stays where it is if there is none.
    void showBandAdjust();
    /// Opens an application, which returns to \a origin when it is left by Back. False if there is none of that
    /// name, or it has nothing to show.
    bool openApplication(const QString &id, Place origin);
    /// Asks Audio Settings for its Volume Settings page on behalf of another application.
    bool requestVolumeSettings();

    /// Has what is in front read its settings again, as when it is opened.
    void refreshFront();

    void startCall();
    void endCall();
    /// False if there is no such source.
    bool setSource(int source);
    /// False if there is no such language.
    bool setLanguage(const QString &code);
    /// Changes the language and keeps the choice for the next start.
    void chooseLanguage(const QString &code);
    /// Begins or ends a prompt.
    void togglePrompt(Prompt prompt);
    void setMuted(bool muted);
    /// Takes the language that was chosen last.
    void restoreLanguage();

    void pressHardKey(int key);
    void releaseHardKey(int key);
    /// Does what an application asks for with a touch event.
    void touch(int code);

    /// Ends the applications and makes them anew, and shows the home screen, as after power-up; what is set and what
    /// plays stay.
    void restart();
    /// Ends the applications and deletes them. The unit shows nothing afterwards.
    void shutDown();

private:
    void connectScreens();
    void show(Place place);
    void show(Place place, QWidget *widget);
    /// Has everything that lies above what is in front lie there.
    void arrange();
    void leaveApplication();
    void closeBandAdjust();
    void stepVolume(int by);
    void setCallActive(bool active);
    /// Goes home from an application that no longer works, and takes its tile away.
    void leaveFailed();

    PluginCatalog &m_catalog;
    QWidget *const m_screen;
    Stage *const m_stage;
    UnitScreens *const m_screens;
    Place m_place = Nowhere;
    Place m_origin = Home;                          ///< where the application in front returns to
    Place m_beforeCall = Home;                      ///< what the call took the screen from ...
    WindowInterface *m_windowBeforeCall = nullptr;  ///< ... and its window, if it was an application
    bool m_callActive = false;

    QWidget *m_shown = nullptr;       ///< the host's own screen that is in front
    QWidget *m_bandAdjust = nullptr;  ///< only while it is in front: it shows what it found when it was made
};

}  // namespace headunit
