// SPDX-License-Identifier: Apache-2.0
#include "soundtext.h"

#include "soundtables.h"

#include <QStringList>

namespace headunit {

namespace {

template <typename Table> bool inTable(int index, const Table &table) {
    return index >= 0 && index < static_cast<int>(table.size());
}

QString signedDb(qint64 db) {
    return QStringLiteral("%1%2 dB").arg(db > 0 ? QStringLiteral("+") : QString()).arg(db);
}

template <typename Table> QString frequencyText(int index, const Table &table) {
    if (!inTable(index, table)) {
        return QStringLiteral("frequency index %1 (does not exist)").arg(index);
    }
    return index == 0 ? QStringLiteral("off") : QStringLiteral("%1 Hz").arg(table[static_cast<size_t>(index)]);
}

struct PromptRow {
    const char *name;
    const char *spoken;
    const char *effect;
};

/// By Prompt
constexpr std::array<PromptRow, SoundState::prompts> prompts = {
    {{"ringtone", "ringtone", "what plays falls silent"},
     {"phone", "phone", "what plays falls silent"},
     {"navigation", "navigation", "what plays steps back by 12 dB"},
     {"voice", "voice", "what plays steps back by 12 dB"},
     {"announcement", "announcement", "in place of what plays"},
     {"beep", "key beep", "beside what plays"}}};

QString sideText(int value, const char *negative, const char *positive) {
    if (value == 0) {
        return QStringLiteral("centre");
    }
    return QStringLiteral("%1 %2")
        .arg(qAbs(static_cast<qint64>(value)))
        .arg(QLatin1String(value < 0 ? negative : positive));
}

}  // namespace

QString promptName(Prompt prompt) {
    return QString::fromLatin1(prompts[static_cast<size_t>(prompt)].name);
}

QString promptText(Prompt prompt, bool active) {
    const PromptRow &row = prompts[static_cast<size_t>(prompt)];
    return active ? QStringLiteral("%1 begins, %2").arg(QLatin1String(row.spoken), QLatin1String(row.effect))
                  : QStringLiteral("%1 ends").arg(QLatin1String(row.spoken));
}

QString eqTypeText(int type) {
    switch (type) {
        case 0:
            return QStringLiteral("Flat");
        case 2:
            return QStringLiteral("Pop");
        case 3:
            return QStringLiteral("Rock");
        case 5:
            return QStringLiteral("Electronic");
        case 7:
            return QStringLiteral("Jazz");
        case 8:
            return QStringLiteral("Hip Hop");
        case 16:
            return QStringLiteral("live custom curve");
        default:
            return QStringLiteral("curve %1").arg(type);
    }
}

QString bandText(int band, int value) {
    if (!inTable(band, bandFrequencies)) {
        return QStringLiteral("band %1 (does not exist)").arg(band);
    }
    const int sounding = qBound(0, value, 2 * neutralBandValue);  // what lies below sounds as the lowest gain
    return QStringLiteral("band %1 Hz: %2")
        .arg(bandFrequencies[static_cast<size_t>(band)])
        .arg(signedDb(sounding - neutralBandValue));
}

QString balanceFaderText(int balance, int fader) {
    return QStringLiteral("balance %1, fader %2")
        .arg(sideText(balance, "left", "right"), sideText(fader, "front", "rear"));
}

QString channelText(int channel, int level) {
    static const std::array<QString, SoundState::channels> names = {
        QStringLiteral("main"),  QStringLiteral("ringtone"),  QStringLiteral("phone"), QStringLiteral("navigation"),
        QStringLiteral("voice"), QStringLiteral("channel 5"), QStringLiteral("TA"),    QStringLiteral("channel 7")};
    const QString name = inTable(channel, names) ? names[static_cast<size_t>(channel)]
                                                 : QStringLiteral("channel %1 (does not exist)").arg(channel);
    return QStringLiteral("%1 volume %2 of %3").arg(name).arg(level).arg(ranges::channelLevel.high);
}

QString sourceGainText(int source, int value) {
    static const std::array<QString, SoundState::sources> names = {QStringLiteral("radio"),
                                                                   QStringLiteral("USB"),
                                                                   QStringLiteral("Bluetooth music"),
                                                                   QStringLiteral("Apple CarPlay"),
                                                                   QStringLiteral("Android Auto"),
                                                                   QStringLiteral("SiriusXM"),
                                                                   QStringLiteral("DAB")};
    const QString name = inTable(source, names) ? names[static_cast<size_t>(source)]
                                                : QStringLiteral("source %1 (does not exist)").arg(source);
    return QStringLiteral("%1 gain %2").arg(name, signedDb(static_cast<qint64>(value) - neutralSourceGain));
}

QString subwooferLevelText(int level) {
    if (level == 0) {
        return QStringLiteral("subwoofer silent");
    }
    return QStringLiteral("subwoofer level %1 (%2 dB)")
        .arg(level)
        .arg((static_cast<double>(level) - neutralSubwooferLevel) * decibelsPerLevel, 0, 'f', 1);
}

QString filterText(FilterChannel channel, int freq, int slope, int level) {
    constexpr qint64 decibelsPerOrder = 6;
    const QString name = channel == FilterChannel::Front  ? QStringLiteral("front high-pass")
                         : channel == FilterChannel::Rear ? QStringLiteral("rear high-pass")
                                                          : QStringLiteral("subwoofer low-pass");
    const QString frequency = channel == FilterChannel::Front  ? frequencyText(freq, frontFrequencies)
                              : channel == FilterChannel::Rear ? frequencyText(freq, rearFrequencies)
                                                               : frequencyText(freq, subwooferFrequencies);
    return QStringLiteral("%1 %2, %3 dB/oct, %4 dB")
        .arg(name, frequency)
        .arg(slope * decibelsPerOrder)
        .arg(static_cast<qint64>(level) - neutralFilterLevel);
}

QString delaysText(const int *delays) {
    static const std::array<const char *, SoundState::outputs> names = {"FL", "FR", "RL", "RR", "SL", "SR"};
    constexpr double stepsPerMs = 10.0;
    QStringList texts;
    for (size_t output = 0; output < names.size(); ++output) {
        texts << QStringLiteral("%1 %2").arg(QLatin1String(names[output])).arg(delays[output] / stepsPerMs, 0, 'f', 1);
    }
    return QStringLiteral("delays in ms: ") + texts.join(QStringLiteral(", "));
}

QString subwooferPhaseText(int phase) {
    constexpr qint64 degreesPerStep = 180;
    return QStringLiteral("subwoofer phase %1 degrees").arg(phase * degreesPerStep);
}

QString delaysCall(int enable, const int *delays) {
    QStringList texts;
    for (int output = 0; output < SoundState::outputs; ++output) {
        texts << QString::number(delays[output]);
    }
    return QStringLiteral("setAudioTimerDelay(%1, {%2})").arg(enable).arg(texts.join(QStringLiteral(", ")));
}

}  // namespace headunit
