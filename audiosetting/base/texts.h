// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace audiosetting {

/// Ids, in the unit's table of texts (Translator), of the texts that code shows. Texts that a form shows by itself have
/// none.
namespace texts {

// Titles. The ids of Crossover and Factory EQ run the other way than their page ids. Required: they name rows of the
// unit's text table.
const int titleGeneral = 1065;
const int titleEq = 1066;
const int titleFactoryEq = 1067;
const int titleCrossover = 1068;
const int titleTiming = 1069;
const int titleSettingsRoot = 1070;
const int titleVolume = 1071;
const int titleSourceGain = 1072;

// Entries of the settings root.
const int loudness = 439;
const int sourceGain = 1081;
const int volumeSettings = 1082;
const int resetAudio = 1083;

// The key that makes the curve flat, on the EQ page and on the panel.
const int flat = 1073;

// Names of the panel's curves.
const int curveFlat = 3;
const int curvePop = 233;
const int curveRock = 234;
const int curveDynamic = 232;
const int curveHipHop = 235;
const int curveJazz = 241;
const int curveClassic = 229;
const int curveCustom = 681;

// Crossover.
const int off = 1074;
const int front = 1076;
const int rear = 262;
const int subwoofer = 231;
const int slope = 1077;
const int frequency = 1078;
const int level = 1079;

// Sources.
const int radio = 361;
const int usb = 16;
const int bluetoothMusic = 1084;
const int carPlay = 14;
const int androidAuto = 15;
const int siriusXm = 427;

// The reset's question and its answer.
const int resetAlert = 972;
const int resetWarning = 969;
const int resetQuestion = 970;
const int resetYes = 971;
const int resetDone = 973;

}  // namespace texts

}  // namespace audiosetting
