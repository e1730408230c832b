// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/host/app/soundlibrary.h"

#include <QString>
#include <QStringList>

namespace headunit {

/// The options of the command line. Every option has a default that works.
struct Options {
    QStringList plugins;         ///< files to load; empty: the one built beside the host
    QString root;                ///< folder that stands for the unit's file system; empty: below the user's data
    double scale = 0;            ///< size of a screen pixel on the desk; 0: the desk's own, or as large as fits
    bool fullscreen = false;     ///< fill the display
    QString language;            ///< language code; empty: the one last chosen
    QString open;                ///< application to open at once; empty: the home screen
    QString script;              ///< script to run
    QString tour;                ///< folder that the tour's pictures go to; empty: no tour
    PlayJob playJob;             ///< what sounds while the unit is shown
    bool sounds = false;         ///< --play or --meters is given: a script is to be heard, too
    SoundJob soundJob;           ///< what to do with the sound instead of showing the unit
    QString exportTo;            ///< file that the set-up goes to
    QString importFrom;          ///< file that a set-up is taken from
    bool remote = false;         ///< let a controller in
    QString control;             ///< command for the unit that runs
    double watchdog = -1;        ///< s that an application may block the unit; negative: as usual
    bool desk = false;           ///< open the tuner's desk at once
    bool trace = false;          ///< print each call across the contract
    bool verbose = false;        ///< print debug lines
    bool exitWhenShown = false;  ///< end once the first screen is painted
    bool help = false;
    bool version = false;

    bool setupJob() const { return !exportTo.isEmpty() || !importFrom.isEmpty(); }
    bool scripted() const { return !script.isEmpty() || !tour.isEmpty(); }
};

/// The options of a command line, or one readable line that says what is wrong with it.
struct ParsedOptions {
    Options options;
    QString error;
};

/// Reads a command line whose first entry is the program's name.
ParsedOptions parseOptions(const QStringList &arguments);

/// The text that --help prints. Needs an application object.
QString optionsHelp();

}  // namespace headunit
