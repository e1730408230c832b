// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/files/soundreader.h"

#include "soundfiletest.h"
#include "tests/headunit/audio/engine/rendering.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>

#include <sndfile.h>
#include <sys/stat.h>

using headunit::SoundReader;
using soundfiletest::SoundFile;

Q_DECLARE_METATYPE(std::vector<int>)

class TestSoundReader : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sameRateIsExact();
    void oneChannelGoesToBothSides();
    void manyChannelsAreFoldedDown_data();
    void manyChannelsAreFoldedDown();
    void otherRates_data();
    void otherRates();
    void damagedSamplesAreSilent();
    void endsInTheMiddle();
    void refuses_data();
    void refuses();
    void refusesWhatIsNoFile();
    void refusesWhatItCannotConvert();

private:
    std::string path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)).toStdString(); }
    /// Everything that the reader gives, in pieces.
    std::vector<float> readAll(const std::string &file);

    QTemporaryDir m_folder;
};

std::vector<float> TestSoundReader::readAll(const std::string &file) {
    SoundReader reader;
    std::string error;
    if (!reader.open(file, &error)) {
        qWarning("%s", error.c_str());
        return {};
    }
    std::vector<float> all;
    for (;;) {
        std::vector<float> piece(2 * 1500);
        const size_t got = reader.read(piece.data(), 1500);
        all.insert(all.end(), piece.begin(), piece.begin() + static_cast<long>(got * 2));
        if (got < 1500) {
            return all;
        }
    }
}

void TestSoundReader::sameRateIsExact() {
    SoundFile file;
    file.sampleRate = 48000;
    file.channels = 2;
    file.samples = rendering::noise(10000);
    soundfiletest::write(path("exact.wav"), file);
    QVERIFY(readAll(path("exact.wav")) == file.samples);
}

void TestSoundReader::oneChannelGoesToBothSides() {
    const SoundFile file = soundfiletest::tone(48000, 1, 300, 0.1);
    soundfiletest::write(path("mono.wav"), file);
    const std::vector<float> samples = readAll(path("mono.wav"));
    QCOMPARE(samples.size(), 2 * file.samples.size());
    for (size_t i = 0; i < samples.size(); ++i) {
        QVERIFY(samples[i] == file.samples[i / 2]);
    }
}

void TestSoundReader::manyChannelsAreFoldedDown_data() {
    QTest::addColumn<QByteArray>("places");  // left or right in front, l or r elsewhere, c to both, - to none
    QTest::addColumn<std::vector<int>>("map");
    const auto usual = [](const char *places) { QTest::newRow(places) << QByteArray(places) << std::vector<int>(); };
    usual("LR");
    usual("LRc");
    usual("LRlr");
    usual("LRclr");
    usual("LRc-lr");
    usual("LRc-clr");
    usual("LRc-lrlr");
    usual("LRc-lrlrlr");
    usual("LRc-lrlrl");
    QTest::newRow("front and back centre") << QByteArray("LRcc")
                                           << std::vector<int>{SF_CHANNEL_MAP_LEFT, SF_CHANNEL_MAP_RIGHT,
                                                               SF_CHANNEL_MAP_CENTER, SF_CHANNEL_MAP_REAR_CENTER};
    QTest::newRow("2.1") << QByteArray("LR-")
                         << std::vector<int>{SF_CHANNEL_MAP_LEFT, SF_CHANNEL_MAP_RIGHT, SF_CHANNEL_MAP_LFE};
    QTest::newRow("a place above") << QByteArray("LRc")
                                   << std::vector<int>{SF_CHANNEL_MAP_LEFT, SF_CHANNEL_MAP_RIGHT,
                                                       SF_CHANNEL_MAP_TOP_CENTER};
    QTest::newRow("more on the left") << QByteArray("LRl")
                                      << std::vector<int>{SF_CHANNEL_MAP_LEFT, SF_CHANNEL_MAP_RIGHT,
                                                          SF_CHANNEL_MAP_SIDE_LEFT};
    QTest::newRow("more on the right") << QByteArray("LRr")
                                       << std::vector<int>{SF_CHANNEL_MAP_LEFT, SF_CHANNEL_MAP_RIGHT,
                                                           SF_CHANNEL_MAP_SIDE_RIGHT};
    QTest::newRow("sides only") << QByteArray("-lr")
                                << std::vector<int>{SF_CHANNEL_MAP_LFE, SF_CHANNEL_MAP_SIDE_LEFT,
                                                    SF_CHANNEL_MAP_SIDE_RIGHT};
}

void TestSoundReader::manyChannelsAreFoldedDown() {
    QFETCH(QByteArray, places);
    QFETCH(std::vector<int>, map);
    constexpr double beside = 0.7071068;
    const auto share = [&places](int channel, bool left) {
        const char place = places[channel];
        return place == (left ? 'L' : 'R') ? 1 : place == (left ? 'l' : 'r') || place == 'c' ? beside : 0;
    };
    double sums[2] = {};
    for (int channel = 0; channel < places.size(); ++channel) {
        sums[0] += share(channel, true);
        sums[1] += share(channel, false);
    }
    // Full scale on all channels is full scale on the louder side.
    const double whole = std::max(sums[0], sums[1]);
    SoundFile file;
    file.sampleRate = 48000;
    file.channels = places.size();
    file.channelMap = map;
    // One channel after the other
    file.samples.assign(static_cast<size_t>(places.size() * places.size()), 0);
    for (int channel = 0; channel < places.size(); ++channel) {
        file.samples[static_cast<size_t>(channel * places.size() + channel)] = 1;
    }
    soundfiletest::write(path("many.wav"), file);
    const std::vector<float> samples = readAll(path("many.wav"));
    QCOMPARE(samples.size(), static_cast<size_t>(2 * places.size()));
    for (int channel = 0; channel < places.size(); ++channel) {
        for (int side = 0; side < 2; ++side) {
            const double is = static_cast<double>(samples[static_cast<size_t>(2 * channel + side)]);
            const double expected = share(channel, side == 0) / whole;
            QVERIFY2(
                std::abs(is - expected) < 1e-6,
                qPrintable(
                    QStringLiteral("channel %1, side %2: %3, not %4").arg(channel).arg(side).arg(is).arg(expected)));
        }
    }
}

void TestSoundReader::otherRates_data() {
    QTest::addColumn<int>("rate");
    for (const int rate : {8000, 22050, 44100, 96000, 192000}) {
        QTest::newRow(qPrintable(QString::number(rate))) << rate;
    }
}

void TestSoundReader::otherRates() {
    QFETCH(int, rate);
    constexpr double seconds = 1;
    soundfiletest::write(path("rate.wav"), soundfiletest::tone(rate, 2, 1000, seconds));
    const std::vector<float> samples = readAll(path("rate.wav"));
    QVERIFY(std::abs(static_cast<double>(samples.size() / 2) - seconds * 48000) <= 2);
    std::vector<float> left;
    for (size_t i = 0; i < samples.size(); i += 2) {
        left.push_back(samples[i]);
    }
    const double amplitude = std::abs(rendering::component(left, 1000, 12000, 24000));
    QVERIFY2(std::abs(amplitude - 0.5) < 0.0005, qPrintable(QString::number(amplitude)));
}

void TestSoundReader::damagedSamplesAreSilent() {
    // At another rate, too, they leave nothing but what silent ones would.
    for (const int rate : {48000, 44100}) {
        SoundFile file = soundfiletest::tone(rate, 2, 300, 0.2);
        file.samples[500] = file.samples[900] = file.samples[901] = 0;
        soundfiletest::write(path("silent.wav"), file);
        file.samples[500] = std::numeric_limits<float>::quiet_NaN();
        file.samples[900] = std::numeric_limits<float>::infinity();
        file.samples[901] = -std::numeric_limits<float>::infinity();
        soundfiletest::write(path("damaged.wav"), file);
        const std::vector<float> samples = readAll(path("damaged.wav"));
        QVERIFY(!samples.empty());
        QVERIFY(samples == readAll(path("silent.wav")));
    }
}

void TestSoundReader::endsInTheMiddle() {
    const SoundFile file = soundfiletest::tone(48000, 2, 300, 1);
    soundfiletest::write(path("cut.wav"), file);
    QFile cut(m_folder.filePath("cut.wav"));
    QVERIFY(cut.resize(cut.size() / 3));
    const std::vector<float> samples = readAll(path("cut.wav"));
    QVERIFY(samples.size() > file.samples.size() / 4 && samples.size() < file.samples.size() / 2);
    QVERIFY(std::equal(samples.begin(), samples.end(), file.samples.begin()));
}

void TestSoundReader::refuses_data() {
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no sound at all\n");
    QTest::newRow("a header and nothing else") << QByteArray("RIFF\x24\0\0\0WAVEfmt ", 16);
    QTest::newRow("no samples") << QByteArray(
        "RIFF\x24\0\0\0WAVEfmt \x10\0\0\0\1\0\2\0\x80\xbb\0\0\0\xee\2\0\4\0\x10\0"
        "data\0\0\0\0",
        44);
}

void TestSoundReader::refuses() {
    QFETCH(QByteArray, contents);
    QFile file(m_folder.filePath("bad.wav"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
    file.close();
    for (const std::string &name : {path("bad.wav"), path("missing.wav"), m_folder.path().toStdString()}) {
        SoundReader reader;
        std::string error;
        QVERIFY(!reader.open(name, &error));
        QVERIFY2(error.find(name + ": ") == 0 && error.size() > name.size() + 5, error.c_str());
        QVERIFY(error.find('\n') == std::string::npos);
    }
}

/// Without waiting for somebody who writes into it
void TestSoundReader::refusesWhatIsNoFile() {
    const std::string pipe = path("pipe");
    QCOMPARE(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    for (const std::string &name : {pipe, m_folder.path().toStdString(), std::string("/dev/null")}) {
        SoundReader reader;
        std::string error;
        QVERIFY(!reader.open(name, &error));
        QCOMPARE(error, name + ": this is no file that could be played");
    }
}

void TestSoundReader::refusesWhatItCannotConvert() {
    for (const auto &[rate, channels] : {std::pair(100, 1), std::pair(20000000, 2), std::pair(48000, 65)}) {
        soundfiletest::write(path("strange.wav"), soundfiletest::tone(rate, channels, 10, 20.0 / rate));
        SoundReader reader;
        std::string error;
        QVERIFY(!reader.open(path("strange.wav"), &error));
        QCOMPARE(error, path("strange.wav") + ": a file of " + std::to_string(channels) + " channels at " +
                            std::to_string(rate) + " Hz cannot be played");
    }
}

QTEST_APPLESS_MAIN(TestSoundReader)
#include "tst_soundreader.moc"
