// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace conformance {

/// The facts that the kit cannot know of a unit. A member that is null is left out, and so are the checks that need it.
struct Unit {
    /// Before the application object is made: attributes and environment, as in the unit's own main function.
    void (*prepare)();
    /// Once the application object is there: style, fonts, texts, and whatever else the unit does before it shows an
    /// application.
    void (*setUp)();
    /// Names the folder that stands for the unit's file system. Called before prepare(), with an empty folder.
    void (*setRoot)(const char *folder);
    /// Waits until what was set is where it survives a power cut. Called before a process ends.
    void (*flush)();
    /// Switches the language of the running unit: "en", or a language that the unit has beside English.
    void (*setLanguage)(const char *code);
    /// A language beside English.
    const char *otherLanguage;
    /// Lets time pass. Null for time on the wall.
    void (*advance)(int ms);
};

}  // namespace conformance

/// The unit under test. Every unit brings a file that defines it; see unitdefault.cpp for one that brings nothing.
const conformance::Unit *conformanceUnit();
