// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/factoryfile.h"

#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <csignal>

using namespace headunit;

class tst_FactoryFile : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void values();
    void faults_data();
    void faults();
    void unreadable_data();
    void unreadable();
    void shipped();
    void installedWholeOrNotAtAll();
};

void tst_FactoryFile::values() {
    const FactoryState state = parseFactoryText(
        "; comment\n# another\n\nplain = 3\r\nyes=true\nno=false\ntext = two words ; kept\nnegative=-5\nempty=\n"
        "spread/key=7\n[crossover]\nfrontfreq=4\n[]\nlast=1");
    QCOMPARE(state.problem, QString());
    QCOMPARE(state.values.size(), 9);
    QVERIFY(sameValue(state.values.value("plain"), 3));
    QVERIFY(sameValue(state.values.value("yes"), true));
    QVERIFY(sameValue(state.values.value("no"), false));
    QVERIFY(sameValue(state.values.value("text"), "two words ; kept"));
    QVERIFY(sameValue(state.values.value("negative"), -5));
    QVERIFY(sameValue(state.values.value("empty"), ""));
    QVERIFY(sameValue(state.values.value("spread/key"), 7));
    QVERIFY(sameValue(state.values.value("crossover/frontfreq"), 4));
    QVERIFY(sameValue(state.values.value("last"), 1));
}

void tst_FactoryFile::faults_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    QTest::newRow("no value") << QByteArray("a=1\nb\n") << "line 2: no key=value";
    QTest::newRow("no key") << QByteArray("=1") << "line 1: no key=value";
    QTest::newRow("open group") << QByteArray("\n[a\n") << "line 2: no ] after [";
    QTest::newRow("control character") << QByteArray("a=\x01z") << "line 1: not text";
    QTest::newRow("no UTF-8") << QByteArray("a=\xff") << "line 1: not text";
    QTest::newRow("zero") << QByteArray("a=1\nb=\0", 7) << "line 2: not text";
}

void tst_FactoryFile::faults() {
    QFETCH(QByteArray, text);
    const FactoryState state = parseFactoryText(text);
    QTEST(state.problem, "problem");
    QVERIFY(state.values.isEmpty());
}

void tst_FactoryFile::unreadable_data() {
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"missing", "folder", "pipe", "huge", "binary", "empty", "blank"}) {
        QTest::newRow(kind) << QString(kind);
    }
}

void tst_FactoryFile::unreadable() {
    QFETCH(QString, kind);
    QTemporaryDir folder;
    const QString path = folder.filePath("factory.ini");
    QFile file(path);
    if (kind == "folder") {
        QVERIFY(QDir().mkpath(path));
    } else if (kind == "pipe") {
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    } else if (kind == "huge") {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(Q_INT64_C(1) << 33));
    } else if (kind == "binary") {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(1000, '\x02')) == 1000);
    } else if (kind == "empty") {
        QVERIFY(file.open(QIODevice::WriteOnly));
    } else if (kind == "blank") {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("\n \n") == 3);
    }
    file.close();
    const FactoryState state = readFactoryFile(path);
    QCOMPARE(state.values, shippedFactoryValues());
    QCOMPARE(state.values.value("eq3").toInt(), 12);
    QCOMPARE(state.missing, kind == "missing");
    QVERIFY2(state.problem.contains(path) && !state.problem.contains('\n'), qPrintable(state.problem));
}

void tst_FactoryFile::shipped() {
    QTemporaryDir folder;
    const QString path = folder.filePath("deep/factory.ini");
    QCOMPARE(installFactoryFile(path), QString());
    QCOMPARE(QFileInfo(path).dir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"factory.ini"});
    const FactoryState state = readFactoryFile(path);
    QCOMPARE(state.problem, QString());
    QCOMPARE(state.values.size(), 14);
    QVERIFY(sameValue(state.values.value("powerup/mainlimit"), 30));
    for (int band = 0; band < 13; ++band) {
        QVERIFY(sameValue(state.values.value(QString("eq%1").arg(band)), 12));
    }
}

/// A write that is cut short never stands under the final name.
void tst_FactoryFile::installedWholeOrNotAtAll() {
    QTemporaryDir folder;
    const QString path = folder.filePath("factory.ini");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("eq0=3\n") == 6);
    file.close();
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small = {100, before.rlim_max};
    const auto handler = signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString problem = installFactoryFile(path);
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, handler);
    QVERIFY2(problem.contains(path) && !problem.contains('\n'), qPrintable(problem));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("eq0=3\n"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"factory.ini"});
}

QTEST_GUILESS_MAIN(tst_FactoryFile)
#include "tst_factoryfile.moc"
