// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"
#include "headunit/host/screens/statusbar.h"

#include <QObject>

namespace headunit {

class CallScreen;
class CarScreen;
class HomeScreen;
class LevelOverlay;
class PluginCatalog;

/// The host's own screens and status bar, each made when it is first shown, and what they say of the unit.
///
/// The widgets belong to the screen that they lie on.
class UnitScreens : public QObject {
    Q_OBJECT
public:
    /// Makes everything in \a screen; \a clock gives the status bar its time. \a catalog must outlive it.
    UnitScreens(const PluginCatalog &catalog, QWidget *screen, StatusBar::Clock clock, QObject *parent);

    QWidget *home();
    QWidget *car();
    QWidget *call();

    /// Shows the applications that work, and why others do not.
    void showApplications();
    /// \a source is an index into texts::sources.
    void setSource(int source);
    void setLanguage(const QString &code);
    void setCallActive(bool active);
    /// Shows mute, prompts and faults of the sound as they now are.
    void showSound();
    /// Shows the status bar unless an application hides it, above what came to the front.
    void updateStatusBar();
    /// Has the level, while it is shown, lie above everything.
    void raiseLevel();
    /// Shows the level of a volume channel (index into texts::channels) for a moment.
    void showLevel(int number);

Q_SIGNALS:
    void applicationChosen(const QString &id);
    void bandAdjustChosen();
    void carChosen();
    void volumeSettingsRequested();
    void sourceChosen(int source);
    void languageChosen(const QString &code);
    void promptToggled(headunit::Prompt prompt);
    void callToggled();
    void callEnded();

private:
    StatusBar *statusBar();

    const PluginCatalog &m_catalog;
    QWidget *const m_screen;
    const StatusBar::Clock m_clock;
    int m_source = 0;
    bool m_callActive = false;
    HomeScreen *m_home = nullptr;
    CarScreen *m_car = nullptr;
    CallScreen *m_call = nullptr;
    StatusBar *m_statusBar = nullptr;
    LevelOverlay *m_levelOverlay = nullptr;
};

}  // namespace headunit
