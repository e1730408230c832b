// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/service/soundtext.h"

#include <QtTest>

#include <limits>

using namespace headunit;

class tst_SoundText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void texts_data();
    void texts();
};

void tst_SoundText::texts_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const QString &text, const char *expected) {
        QTest::newRow(expected) << text << QString(expected);
    };
    constexpr int far = std::numeric_limits<int>::max();
    constexpr int near = std::numeric_limits<int>::min();
    row(eqTypeText(0), "Flat");
    row(eqTypeText(2), "Pop");
    row(eqTypeText(3), "Rock");
    row(eqTypeText(5), "Electronic");
    row(eqTypeText(7), "Jazz");
    row(eqTypeText(8), "Hip Hop");
    row(eqTypeText(16), "live custom curve");
    row(eqTypeText(4), "curve 4");
    row(bandText(0, 15), "band 63 Hz: +3 dB");
    row(bandText(12, 0), "band 16000 Hz: -12 dB");
    row(bandText(6, 12), "band 1000 Hz: 0 dB");
    row(bandText(6, -5), "band 1000 Hz: -12 dB");
    row(bandText(13, 0), "band 13 (does not exist)");
    row(promptName(Prompt::Announcement), "announcement");
    row(promptText(Prompt::Ringtone, true), "ringtone begins, what plays falls silent");
    row(promptText(Prompt::Phone, true), "phone begins, what plays falls silent");
    row(promptText(Prompt::Voice, true), "voice begins, what plays steps back by 12 dB");
    row(promptText(Prompt::Announcement, true), "announcement begins, in place of what plays");
    row(promptText(Prompt::Beep, true), "key beep begins, beside what plays");
    row(promptText(Prompt::Beep, false), "key beep ends");
    row(balanceFaderText(3, -2), "balance 3 right, fader 2 front");
    row(balanceFaderText(-15, 15), "balance 15 left, fader 15 rear");
    row(balanceFaderText(0, 0), "balance centre, fader centre");
    row(balanceFaderText(near, far), "balance 2147483648 left, fader 2147483647 rear");
    row(channelText(0, 1), "main volume 1 of 40");
    row(channelText(1, 12), "ringtone volume 12 of 40");
    row(channelText(2, 12), "phone volume 12 of 40");
    row(channelText(3, 12), "navigation volume 12 of 40");
    row(channelText(4, 12), "voice volume 12 of 40");
    row(channelText(5, 12), "channel 5 volume 12 of 40");
    row(channelText(6, 40), "TA volume 40 of 40");
    row(channelText(7, 0), "channel 7 volume 0 of 40");
    row(channelText(8, 12), "channel 8 (does not exist) volume 12 of 40");
    row(sourceGainText(0, 10), "radio gain 0 dB");
    row(sourceGainText(1, 13), "USB gain +3 dB");
    row(sourceGainText(2, 9), "Bluetooth music gain -1 dB");
    row(sourceGainText(3, 20), "Apple CarPlay gain +10 dB");
    row(sourceGainText(4, 0), "Android Auto gain -10 dB");
    row(sourceGainText(5, 11), "SiriusXM gain +1 dB");
    row(sourceGainText(6, 10), "DAB gain 0 dB");
    row(sourceGainText(7, 10), "source 7 (does not exist) gain 0 dB");
    row(sourceGainText(-1, near), "source -1 (does not exist) gain -2147483658 dB");
    row(subwooferLevelText(4), "subwoofer level 4 (-9.0 dB)");
    row(subwooferLevelText(15), "subwoofer level 15 (7.5 dB)");
    row(subwooferLevelText(0), "subwoofer silent");
    row(subwooferPhaseText(0), "subwoofer phase 0 degrees");
    row(subwooferPhaseText(1), "subwoofer phase 180 degrees");
    row(filterText(FilterChannel::Front, 3, 2, 10), "front high-pass 63 Hz, 12 dB/oct, -2 dB");
    row(filterText(FilterChannel::Front, 11, 3, 12), "front high-pass 5000 Hz, 18 dB/oct, 0 dB");
    row(filterText(FilterChannel::Rear, 4, 1, 0), "rear high-pass 100 Hz, 6 dB/oct, -12 dB");
    row(filterText(FilterChannel::Subwoofer, 0, 1, 12), "subwoofer low-pass off, 6 dB/oct, 0 dB");
    row(filterText(FilterChannel::Rear, 6, far, near),
        "rear high-pass frequency index 6 (does not exist), 12884901882 dB/oct, -2147483660 dB");
    const int delays[] = {5, 0, 99, 0, 10, 1};
    row(delaysText(delays), "delays in ms: FL 0.5, FR 0.0, RL 9.9, RR 0.0, SL 1.0, SR 0.1");
    row(delaysCall(1, delays), "setAudioTimerDelay(1, {5, 0, 99, 0, 10, 1})");
}

void tst_SoundText::texts() {
    QFETCH(QString, text);
    QTEST(text, "expected");
}

QTEST_GUILESS_MAIN(tst_SoundText)
#include "tst_soundtext.moc"
