// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace headunit {

struct Options;

/// The display that the program starts on. Platform and scale are chosen before there is an application object, by
/// variables that Qt reads once; where the display turns out to be another one, the program starts itself anew.

/// Has Qt take the platform that needs no display.
void useNoDisplay();
/// Whether the platform that needs no display was chosen.
bool usesNoDisplay();
/// Without a display, and without a platform that needs none, the unit can only be looked at in pictures.
void fallBackToTour(Options *options);
/// Sets the scale that the command line names. Whether it names none and the display is to be measured.
bool setScale(const Options &options);

/// Whether the display that the environment names did not answer and Qt took the second choice.
bool displayFailed();
/// The scale that the display, now known, needs; 0 where the program has it by itself.
double missingScale(const Options &options);
/// Starts this program anew at that scale. Returns only if that fails, with the reason.
QString restartScaled(double scale, int argc, char **argv);
/// Starts this program anew as on a machine without a display. Returns only if that fails, with the reason.
QString restartWithoutDisplay(char **argv);

/// Provides the folder for the running session that Qt wants when it starts, and warns of where nobody set one, as in a
/// container. Taken back when this ends: the sound server would be looked for in it, and in no other place.
class RuntimeFolder {
public:
    RuntimeFolder();
    ~RuntimeFolder();
    RuntimeFolder(const RuntimeFolder &) = delete;
    RuntimeFolder &operator=(const RuntimeFolder &) = delete;

private:
    bool m_provided;
};

}  // namespace headunit
