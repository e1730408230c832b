// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/fileloop.h"

#include "tests/headunit/audio/engine/rendering.h"
#include "tests/headunit/audio/files/soundfiletest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <thread>

using headunit::FileLoop;

namespace {

/// The next frames that are there; the file's own samples are never exactly zero.
std::vector<float> take(FileLoop &loop, size_t frames) {
    std::vector<float> all;
    while (all.size() < 2 * frames) {
        std::vector<float> piece(2 * 100);
        loop.fill(piece.data(), 100);
        const auto end = std::find(piece.begin(), piece.end(), 0.0F);
        all.insert(all.end(), piece.begin(), end);
        if (end != piece.end()) {
            std::this_thread::yield();
        }
    }
    return all;
}

int threads() {
    return QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

/// Calls \a hear with all that still comes of a file whose reading comes to an end by itself.
template <typename Hear> void hearTheRest(FileLoop &loop, int threadsWithoutReading, const Hear &hear) {
    std::vector<float> piece(200);
    for (bool reads = true, sounds = true; reads || sounds;) {
        reads = threads() > threadsWithoutReading;  // asked before: what comes now may be the last
        loop.fill(piece.data(), 100);
        sounds = piece.front() != 0;
        hear(piece);
        if (QTest::currentTestFailed()) {
            return;
        }
        if (!sounds) {
            std::this_thread::yield();
        }
    }
}

}  // namespace

class TestFileLoop : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { m_threads = threads(); }
    void repeatsWithoutAGap();
    void missingFile();
    void shortFileIsKept();
    void fileThatGoesAway();
    void fileThatIsCutShortAtOnce();
    void fileThatIsCutShort();

private:
    std::string write(size_t frames, int sampleRate = 48000) {
        soundfiletest::SoundFile file;
        file.sampleRate = sampleRate;
        file.channels = 2;
        for (size_t i = 0; i < 2 * frames; ++i) {
            file.samples.push_back(static_cast<float>(i + 1) / 1e6F);
        }
        m_samples = file.samples;
        const std::string path = m_folder.filePath("loop.wav").toStdString();
        soundfiletest::write(path, file);
        return path;
    }

    QTemporaryDir m_folder;
    std::vector<float> m_samples;
    std::string m_error;
    int m_threads = 0;  ///< while no file is read
};

void TestFileLoop::repeatsWithoutAGap() {
    // Short ones are kept, long ones are read ahead; the ring that decides holds 65536.
    for (const size_t frames : {1, 1000, 4096, 65535, 65536, 65537, 200000}) {
        FileLoop loop;
        QVERIFY(loop.open(write(frames), &m_error));
        const std::vector<float> heard = take(loop, 2 * frames + 50);
        for (size_t i = 0; i < heard.size(); ++i) {
            QVERIFY(heard[i] == m_samples[i % m_samples.size()]);
        }
    }
}

void TestFileLoop::missingFile() {
    FileLoop loop;
    QVERIFY(!loop.open(m_folder.filePath("gone.wav").toStdString(), &m_error));
    QVERIFY(m_error.find("gone.wav") != std::string::npos);
    std::vector<float> piece(200, 1);
    loop.fill(piece.data(), 100);
    QVERIFY(std::all_of(piece.begin(), piece.end(), [](float sample) { return sample == 0; }));
}

/// A file that the ring holds is not opened again.
void TestFileLoop::shortFileIsKept() {
    for (const size_t frames : {10, 10000, 65536}) {
        FileLoop loop;
        const std::string path = write(frames);
        QVERIFY(loop.open(path, &m_error));
        QVERIFY(QFile::remove(QString::fromStdString(path)));
        const std::vector<float> heard = take(loop, 3 * frames + 50);
        for (size_t i = 0; i < heard.size(); ++i) {
            QVERIFY(heard[i] == m_samples[i % m_samples.size()]);
        }
    }
}

/// The readable part of a damaged file is not taken for all of it.
void TestFileLoop::fileThatIsCutShortAtOnce() {
    FileLoop loop;
    const std::string path = write(200000, 44100);
    QVERIFY(loop.open(path, &m_error));
    QVERIFY(QFile::resize(QString::fromStdString(path), 1000));
    size_t heard = 0;
    hearTheRest(loop, m_threads, [&](const std::vector<float> &piece) {
        heard += piece.front() != 0 ? 100 : 0;
        QVERIFY(heard < 150000);  // the ring holds less; a fragment that is repeated would never end
    });
    QVERIFY(heard > 0);
}

void TestFileLoop::fileThatIsCutShort() {
    std::vector<std::string> lines;
    FileLoop loop;
    loop.setLossListener([&lines](const std::string &line) { lines.push_back(line); });
    const std::string path = write(200000);
    QVERIFY(loop.open(path, &m_error));
    take(loop, 200000);
    QVERIFY(QFile::resize(QString::fromStdString(path), 1000));
    // Once it has come to the new end, what little there is sounds a last time.
    std::ptrdiff_t starts = 0;
    hearTheRest(loop, m_threads, [&](const std::vector<float> &piece) {
        starts += std::count(piece.begin(), piece.end(), m_samples.front());
        QVERIFY(starts <= 2);
    });
    QVERIFY(starts >= 1);
    QCOMPARE(int(lines.size()), 1);
    QVERIFY2(lines[0].find(path + ": ") == 0, lines[0].c_str());
    FileLoop other;
    QVERIFY(QFile::resize(QString::fromStdString(path), 0));
    QVERIFY(!other.open(path, &m_error));
    QVERIFY(m_error.find(path + ": ") == 0);
}

void TestFileLoop::fileThatGoesAway() {
    std::vector<std::string> lines;
    FileLoop loop;
    loop.setLossListener([&lines](const std::string &line) { lines.push_back(line); });
    const std::string path = write(200000);
    QVERIFY(loop.open(path, &m_error));
    QVERIFY(QFile::remove(QString::fromStdString(path)));
    take(loop, 200000);
    hearTheRest(loop, m_threads, [](const std::vector<float> &) {});
    std::vector<float> piece(200, 1);
    loop.fill(piece.data(), 100);
    QVERIFY(std::all_of(piece.begin(), piece.end(), [](float sample) { return sample == 0; }));
    QCOMPARE(int(lines.size()), 1);
    QVERIFY2(lines[0].find(path + ": ") == 0, lines[0].c_str());
}

QTEST_APPLESS_MAIN(TestFileLoop)
#include "tst_fileloop.moc"
