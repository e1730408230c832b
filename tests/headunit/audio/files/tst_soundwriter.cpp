// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/files/soundwriter.h"

#include "soundfiletest.h"
#include "tests/headunit/audio/engine/rendering.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <cstdarg>

#include <fcntl.h>
#include <sndfile.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using headunit::SoundWriter;

namespace {

/// Stands for a file system on which every file has a name.
bool onlyNamedFiles = false;

}  // namespace

extern "C" int open(const char *path, int flags, ...) {
    if (onlyNamedFiles && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = flags & O_CREAT || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

class TestSoundWriter : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void sixNamedChannels();
    void nothingStandsThereBeforeTheEnd_data() { fileSystems(); }
    void nothingStandsThereBeforeTheEnd();
    void unfinishedLeavesNothing_data() { fileSystems(); }
    void unfinishedLeavesNothing();
    void othersFilesStay_data() { fileSystems(); }
    void othersFilesStay();
    void twoAtATime_data() { fileSystems(); }
    void twoAtATime();
    void replaces();
    void writesWhereALinkLeads();
    void whatIsNoFileStays_data();
    void whatIsNoFileStays();
    void noSuchFolder();
    void nameThatWasTakenMeanwhile();
    void diskFull_data();
    void diskFull();

private:
    void fileSystems();
    QString file() const { return m_folder->filePath("out.wav"); }
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files); }

    std::vector<float> m_samples = rendering::noise(30000);  // six channels of 10000 frames
    std::unique_ptr<QTemporaryDir> m_folder;
    std::string m_error;
};

void TestSoundWriter::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    m_error.clear();
    onlyNamedFiles = false;
}

void TestSoundWriter::fileSystems() {
    QTest::addColumn<bool>("named");
    QTest::newRow("file without a name") << false;
    QTest::newRow("file with a name") << true;
}

void TestSoundWriter::sixNamedChannels() {
    SoundWriter writer;
    QVERIFY(writer.open(file().toStdString(), &m_error));
    QVERIFY(writer.write(m_samples.data(), 4000, &m_error));
    QVERIFY(writer.write(m_samples.data() + 4000 * 6, 6000, &m_error));
    QVERIFY(writer.finish(&m_error));
    const soundfiletest::SoundFile read = soundfiletest::read(file().toStdString());
    QCOMPARE(read.sampleRate, 48000);
    QVERIFY(read.samples == m_samples);
    const std::vector<int> map = {SF_CHANNEL_MAP_LEFT,       SF_CHANNEL_MAP_RIGHT,     SF_CHANNEL_MAP_REAR_LEFT,
                                  SF_CHANNEL_MAP_REAR_RIGHT, SF_CHANNEL_MAP_SIDE_LEFT, SF_CHANNEL_MAP_SIDE_RIGHT};
    QVERIFY(read.channelMap == map);
    QFile raw(file());
    QVERIFY(raw.open(QIODevice::ReadOnly));
    const QByteArray head = raw.read(300);
    QVERIFY(head.startsWith("RIFF"));               // what every player knows, as long as it fits
    QCOMPARE(head.mid(12, 4), QByteArray("JUNK"));  // room for the sizes of a file that has grown beyond 4 GiB
    QVERIFY(!head.contains("PEAK"));                // no time of day
}

void TestSoundWriter::nothingStandsThereBeforeTheEnd() {
    QFETCH(bool, named);
    onlyNamedFiles = named;
    SoundWriter writer;
    QVERIFY(writer.open(file().toStdString(), &m_error));
    QVERIFY(writer.write(m_samples.data(), 10000, &m_error));
    QCOMPARE(files(), named ? QStringList{"out.wav.0.part"} : QStringList());
    QVERIFY(writer.finish(&m_error));
    QCOMPARE(files(), QStringList{"out.wav"});
    const mode_t mask = umask(0);
    umask(mask);
    struct stat made = {};
    QCOMPARE(stat(qPrintable(file()), &made), 0);
    QCOMPARE(made.st_mode & 0777, 0666 & ~mask);
}

void TestSoundWriter::unfinishedLeavesNothing() {
    QFETCH(bool, named);
    onlyNamedFiles = named;
    {
        SoundWriter writer;
        QVERIFY(writer.open(file().toStdString(), &m_error));
        QVERIFY(writer.write(m_samples.data(), 10000, &m_error));
    }
    QCOMPARE(files(), QStringList());
}

void TestSoundWriter::othersFilesStay() {
    QFETCH(bool, named);
    onlyNamedFiles = named;
    const QStringList others = {"out.wav.0.part", "out.wav.1.part", "out.wav.part"};
    for (const QString &other : others) {
        QFile theirs(m_folder->filePath(other));
        QVERIFY(theirs.open(QIODevice::WriteOnly) && theirs.write("theirs") == 6);
    }
    SoundWriter writer;
    QVERIFY(writer.open(file().toStdString(), &m_error));
    QVERIFY(writer.write(m_samples.data(), 10000, &m_error));
    QVERIFY(writer.finish(&m_error));
    QCOMPARE(files(), QStringList{"out.wav"} + others);
    for (const QString &other : others) {
        QFile theirs(m_folder->filePath(other));
        QVERIFY(theirs.open(QIODevice::ReadOnly));
        QCOMPARE(theirs.readAll(), QByteArray("theirs"));
    }
}

/// Each of them whole; the one that ends last stays.
void TestSoundWriter::twoAtATime() {
    QFETCH(bool, named);
    onlyNamedFiles = named;
    SoundWriter one;
    SoundWriter other;
    for (SoundWriter *writer : {&one, &other}) {
        QVERIFY(writer->open(file().toStdString(), &m_error));
        QVERIFY(writer->write(m_samples.data(), 5000, &m_error));
    }
    QVERIFY(one.finish(&m_error));
    QCOMPARE(soundfiletest::read(file().toStdString()).samples.size(), size_t(30000));
    QVERIFY(other.write(m_samples.data() + 30000, 5000, &m_error));
    QCOMPARE(soundfiletest::read(file().toStdString()).samples.size(), size_t(30000));
    QVERIFY(other.finish(&m_error));
    QVERIFY(soundfiletest::read(file().toStdString()).samples == m_samples);
    QCOMPARE(files(), QStringList{"out.wav"});
}

void TestSoundWriter::replaces() {
    for (const size_t frames : {5000, 10000, 100}) {
        SoundWriter writer;
        QVERIFY(writer.open(file().toStdString(), &m_error));
        QVERIFY(writer.write(m_samples.data(), frames, &m_error));
        QVERIFY(writer.finish(&m_error));
        QCOMPARE(soundfiletest::read(file().toStdString()).samples.size(), frames * 6);
    }
}

void TestSoundWriter::writesWhereALinkLeads() {
    const QString link = m_folder->filePath("link.wav");
    QFile before(file());
    QVERIFY(before.open(QIODevice::WriteOnly));
    before.close();
    QVERIFY(QFile::link(file(), link));
    SoundWriter writer;
    QVERIFY(writer.open(link.toStdString(), &m_error));
    QVERIFY(writer.write(m_samples.data(), 100, &m_error));
    QVERIFY(writer.finish(&m_error));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(soundfiletest::read(file().toStdString()).samples.size(), size_t(600));
}

void TestSoundWriter::whatIsNoFileStays_data() {
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("folder") << true;
    QTest::newRow("pipe") << false;
}

void TestSoundWriter::whatIsNoFileStays() {
    QFETCH(bool, isFolder);
    const std::string path = file().toStdString();
    QCOMPARE(isFolder ? mkdir(path.c_str(), S_IRWXU) : mkfifo(path.c_str(), S_IRWXU), 0);
    SoundWriter writer;
    QVERIFY(!writer.open(path, &m_error));
    QVERIFY(m_error.find(path + ": ") == 0);
    QCOMPARE(QFileInfo(file()).isDir(), isFolder);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
             QStringList{"out.wav"});
}

void TestSoundWriter::noSuchFolder() {
    SoundWriter writer;
    const std::string path = file().toStdString() + "/below/a/file.wav";
    QVERIFY(!writer.open(path, &m_error));
    QVERIFY(m_error.find(path + ": ") == 0);
}

/// Which shows only at the very end
void TestSoundWriter::nameThatWasTakenMeanwhile() {
    SoundWriter writer;
    QVERIFY(writer.open(file().toStdString(), &m_error) && writer.write(m_samples.data(), 10000, &m_error));
    QVERIFY(QDir().mkdir(file()));
    QVERIFY(!writer.finish(&m_error));
    QVERIFY(m_error.find(file().toStdString() + ": ") == 0);
    QCOMPARE(files(), QStringList());
}

void TestSoundWriter::diskFull_data() {
    QTest::addColumn<int>("bytes");
    QTest::newRow("at once") << 0;
    QTest::newRow("in the header") << 40;
    QTest::newRow("in the samples") << 100000;
    QTest::newRow("a byte before the end") << 240000;
}

void TestSoundWriter::diskFull() {
    QFETCH(int, bytes);
    QFile before(file());
    QVERIFY(before.open(QIODevice::WriteOnly));
    before.write("what was there");
    before.close();
    // A limit on the size of files stands for the full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit small = {static_cast<rlim_t>(bytes), usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    bool good = false;
    {
        SoundWriter writer;
        good = writer.open(file().toStdString(), &m_error) && writer.write(m_samples.data(), 10000, &m_error) &&
               writer.finish(&m_error);
    }
    setrlimit(RLIMIT_FSIZE, &usual);
    QVERIFY(!good);
    QVERIFY(m_error.find(file().toStdString() + ": ") == 0);
    QCOMPARE(files(), QStringList{"out.wav"});
    QVERIFY(before.open(QIODevice::ReadOnly));
    QCOMPARE(before.readAll(), QByteArray("what was there"));
}

QTEST_APPLESS_MAIN(TestSoundWriter)
#include "tst_soundwriter.moc"
