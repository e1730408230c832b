// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace headunit {

/// Ids of the texts that the host's own screens show; their rows are in headunit/translations/headunit_*.ts.
namespace texts {

constexpr int audioSettings = 20001;
constexpr int car = 20002;
constexpr int source = 20003;
constexpr int channel = 20004;
constexpr int level = 20005;
constexpr int language = 20006;
constexpr int volumeSettings = 20007;
constexpr int startCall = 20008;
constexpr int endCall = 20009;
constexpr int callInProgress = 20010;
constexpr int bandAdjust = 20018;
constexpr int tunersDesk = 20019;

// Names of the hard keys, which show pictures
constexpr int hardHome = 20039;
constexpr int hardBack = 20040;
constexpr int hardVolume = 20041;
constexpr int hardMute = 20042;

struct Channel {
    int type;  ///< as the audio service counts
    int textId;
};
/// The volume channels that have a name.
constexpr Channel channels[] = {{0, 20011}, {1, 20012}, {2, 20013}, {3, 20014}, {4, 20015}, {6, 20016}};

/// Names of the prompts, in the order of headunit::Prompt; short enough for a row of keys.
constexpr int prompts[] = {20012, 20013, 20014, 20031, 20032, 20033};

// Places in channels.
constexpr int mainChannel = 0;
constexpr int phoneChannel = 2;

/// Names of the audio sources, in the order of their numbers.
constexpr int sources[] = {361, 16, 1084, 14, 15, 427, 20017};

// Why nothing is heard
constexpr int muted = 20034;
constexpr int noSoundServer = 20035;
constexpr int noSoundDevice = 20036;
constexpr int nothingToPlay = 20037;
constexpr int noSoundLibrary = 20038;

}  // namespace texts

}  // namespace headunit
