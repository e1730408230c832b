// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/platformapi.h"

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <array>

/// The test side of the recording platform: what crossed the contract, and what the platform answers.
namespace recording {

/// Calls that a test may leave out of the log. All others are always in it.
enum Kind {
    Reads = 1,  ///< getValue(), getBalanceFader(), getCurrEQType(), getCustomEq(), getSourceVolByType(), currentDspl(),
                ///< translate()
    Toolkit = 2,  ///< what a page does to its own toolkit widgets, and the fonts
};

/// The log, a line per call with its arguments as written in code, in the order of the calls:
/// setValue("subwooferLevel", 3, 4, true). Signals of the platform are lines as well, and so is
/// a touch posted to the application object, when it is posted, with its priority: postTouch(15, -1, -1, 0).
PLATFORM_API QStringList log();
/// The log, which is empty afterwards.
PLATFORM_API QStringList take();
/// Empties the log.
PLATFORM_API void clear();
/// Adds a line of the test's own.
PLATFORM_API void note(const QString &line);
/// Logs the kinds given (Reads | Toolkit) as well. None after reset().
PLATFORM_API void setLogged(int kinds);

/// A new platform: nothing stored, services in their first state, empty log. Call it before each test function.
PLATFORM_API void reset();

/// The audio settings store.
PLATFORM_API void setStored(const QString &key, const QVariant &value);
PLATFORM_API QVariant stored(const QString &key);  ///< an invalid value where nothing is stored
/// The values that AudioSettingsUtils::clear() restores; none at first.
PLATFORM_API void setFactory(const QHash<QString, QVariant> &values);

/// The general settings store.
PLATFORM_API void setShared(const QString &key, const QVariant &value);
PLATFORM_API QVariant shared(const QString &key);

/// Everything else, as plain values: what the services were told, and what they and the host answer.
struct State {
    int balance = 0;
    int fader = 0;  ///< as the service counts it: negative is front
    int eqType = 0;
    std::array<int, 13> customEq{};
    QHash<int, int> volume;  ///< level by channel type
    int loudness = -1;       ///< as last sent, -1 for never; so are those below
    int subwooferLevel = -1;
    int subwooferPhase = -1;
    std::array<int, 3> frontFilter{{-1, -1, -1}};  ///< frequency, slope, level
    std::array<int, 3> rearFilter{{-1, -1, -1}};
    std::array<int, 3> lowPass{{-1, -1, -1}};
    std::array<int, 6> delays{{-1, -1, -1, -1, -1, -1}};
    QHash<int, int> inputGain;  ///< by source
    bool statusBarHidden = false;
    int display = 0;            ///< current source display
    int keyEventResult = 0;     ///< of the window base
    QHash<int, QString> texts;  ///< of the translator; an id without an entry is "#<id>"
};
PLATFORM_API State &state();

/// Raises the signals as another application would.
PLATFORM_API void announceSetting(const QString &key);
PLATFORM_API void announceVolume(int mute, int vol, int type);

}  // namespace recording
