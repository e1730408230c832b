// SPDX-License-Identifier: Apache-2.0
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

// The unit is killed while it is used: the settings on the disk are those before or after a change.
class TestKilled : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void settingsStayConsistent();

private:
    void start(QProcess *process, const QString &script);
    QString write(const QString &name, const QByteArray &content);

    QTemporaryDir m_folder;
};

namespace {

constexpr int rounds = 20;
constexpr int timeLimit = 240000;  // ms

// Taps a key that changes a level from 3 to 4 and back, and counts the taps in the store. Never ends.
const char useScript[] = R"(
    open("audiosetting");
    wait(200);
    if (!get("key_Subwoofer", "checked")) {
        tap("key_Subwoofer");
    }
    if (get("txt_vol_level", "text") === "4") {
        tap("key_subvol_prev");
    }
    for (var i = 1; ; ++i) {
        tap(i % 2 ? "key_subvol_next" : "key_subvol_prev");
        setStore("taps", i);
        log(i);
    }
)";

const char lookScript[] = R"(
    log(store("taps"));
    log(sound().subwooferLevel);
)";

}  // namespace

QString TestKilled::write(const QString &name, const QByteArray &content) {
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName();
}

void TestKilled::start(QProcess *process, const QString &script) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.remove("XDG_RUNTIME_DIR");
    process->setProcessEnvironment(environment);
    process->start(HEADUNIT, {"--root", m_folder.filePath("root"), "--script", script});
}

void TestKilled::settingsStayConsistent() {
    const quint32 seed = QRandomGenerator::global()->generate();
    qDebug("seed %u", seed);
    QRandomGenerator random(seed);
    const QString use = write("use.js", useScript);
    const QString look = write("look.js", lookScript);
    const QString settings = m_folder.filePath("root/media/flash/nvm/settings/audiosettings.json");
    for (int round = 0; round < rounds; ++round) {
        QProcess unit;
        start(&unit, use);
        int taps = 0;
        const int wanted = random.bounded(1, 2000);
        // From the first round on there are settings that must not be lost.
        while ((taps < wanted || !QFile::exists(settings)) &&
               (unit.canReadLine() || unit.waitForReadyRead(timeLimit))) {
            while (unit.canReadLine()) {
                taps = unit.readLine().toInt();
            }
        }
        QVERIFY2(taps >= wanted && QFile::exists(settings), unit.readAllStandardError());
        unit.kill();
        QVERIFY(unit.waitForFinished(timeLimit));
        while (unit.canReadLine()) {
            taps = unit.readLine().toInt();
        }

        QProcess next;
        start(&next, look);
        QVERIFY(next.waitForFinished(timeLimit));
        QCOMPARE(next.exitCode(), 0);
        QByteArray said = next.readAllStandardError();
        said.replace("settings file " + QFile::encodeName(settings) + ": the disk does not answer\n",
                     "");  // a slow one
        QCOMPARE(said, QByteArray());
        const QList<QByteArray> lines = next.readAllStandardOutput().split('\n');
        QVERIFY(lines.size() >= 2);
        const int onDisk = lines.at(0).toInt();
        const int level = lines.at(1).toInt();
        // A tap writes the level before it is counted, so the level may be one tap ahead of the count, and the count
        // one ahead of what was printed. A round's settings may also be those of an earlier round.
        QVERIFY2(level == 3 || level == 4, lines.at(1));
        QVERIFY2(onDisk >= 1, lines.at(0));
        if (round == 0) {
            QVERIFY2(onDisk <= taps + 1, lines.at(0));
        }
    }
}

QTEST_GUILESS_MAIN(TestKilled)
#include "tst_killed.moc"
