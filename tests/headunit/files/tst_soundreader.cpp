#include "headunit/audio/files/soundreader.h"

#include "soundfiletest.h"
#include "tests/headunit/engine/rendering.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <limits>

#include <sys/stat.h>

using headunit::SoundReader;
using soundfiletest::SoundFile;

class TestSoundReader : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sameRateIsExact();
    void oneChannelGoesToBothSides();
    void manyChannelsAreFoldedDown();
    void otherRates_data();
    void otherRates();
    void damagedSamplesAreSilent();
    void endsInTheMiddle();
    void refuses_data();
    void refuses();
    void refusesAPipe();

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
        QCOMPARE(samples[i], file.samples[i / 2]);
    }
}

void TestSoundReader::manyChannelsAreFoldedDown() {
    constexpr size_t channels = 8;
    for (size_t channel = 0; channel < channels; ++channel) {
        SoundFile file;
        file.sampleRate = 48000;
        file.channels = channels;
        file.samples.assign(100 * channels, 0);
        for (size_t i = channel; i < file.samples.size(); i += channels) {
            file.samples[i] = 1;
        }
        soundfiletest::write(path("eight.wav"), file);
        const std::vector<float> samples = readAll(path("eight.wav"));
        const bool both = channel == 2;
        const bool none = channel == 3;
        QCOMPARE(samples[0] > 0, both || (!none && channel % 2 == 0));
        QCOMPARE(samples[1] > 0, both || (!none && channel % 2 == 1));
    }
    const SoundFile loud = soundfiletest::tone(48000, channels, 300, 0.1, 1);
    soundfiletest::write(path("loud.wav"), loud);
    for (const float sample : readAll(path("loud.wav"))) {
        QVERIFY(std::abs(sample) <= 1.000001F);
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
    SoundFile file = soundfiletest::tone(44100, 2, 300, 0.2);
    file.samples[500] = std::numeric_limits<float>::quiet_NaN();
    file.samples[900] = std::numeric_limits<float>::infinity();
    soundfiletest::write(path("nan.wav"), file);
    for (const float sample : readAll(path("nan.wav"))) {
        QVERIFY(std::isfinite(sample));
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
void TestSoundReader::refusesAPipe() {
    const std::string pipe = path("pipe");
    QCOMPARE(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    SoundReader reader;
    std::string error;
    QVERIFY(!reader.open(pipe, &error));
    QCOMPARE(error, pipe + ": a pipe cannot be played");
}

QTEST_APPLESS_MAIN(TestSoundReader)
#include "tst_soundreader.moc"
