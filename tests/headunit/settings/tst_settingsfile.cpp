// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/settingsfile.h"

#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <csignal>
#include <random>

using namespace headunit;

namespace {

const Snapshot older{{{"a", 1}, {"b", true}}, 10};
const Snapshot newer{{{"a", 2}, {"b", false}, {"crossover/frontfreq", 11}, {"text", "\u00e9 \"x\"\n"}, {"half", 0.5}},
                     20};
const Snapshot newest{{{"a", 99}}, 30};

void put(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray get(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// QVariant's comparison converts types; this one does not.
bool same(const Snapshot &left, const Snapshot &right) {
    const SettingsMap &a = left.values;
    const SettingsMap &b = right.values;
    bool same = left.number == right.number && a.size() == b.size();
    for (auto it = a.cbegin(); same && it != a.cend(); ++it) {
        same = b.contains(it.key()) && sameValue(it.value(), b.value(it.key()));
    }
    return same;
}

/// A disk that takes no more than a few bytes of any file, while it lives.
class FullDisk {
public:
    FullDisk() {
        constexpr rlim_t room = 16;
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = room;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

}  // namespace

class tst_SettingsFile : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void roundTrip();
    void readable();
    void editedByHand();
    void badText_data();
    void badText();
    void nothingThere();
    void keepsLastGoodCopy();
    void truncatedAnywhere();
    void flippedAnywhere();
    void bothDamaged();
    void cutBetweenRenames();
    void folderInPlaceOfTheFile();
    void missingFolder();
    void hugeFile();
    void pipeInPlaceOfTheFile();
    void fullDisk();
    void damagedFileThatCannotBeSetAside();
    void newestDamagedFilesStay();
    void whatStandsInTheWay_data();
    void whatStandsInTheWay();
    void tooMuchIsNotWritten();
    void oddKeys();
    void checksumOfOlderUnits();
    void quickCopy_data();
    void quickCopy();
    void peekTouchesNothing();

private:
    QString path() const { return m_folder->filePath("settings.json"); }
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }
    /// Writes older, then newer, as two saves.
    void saveTwice();

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_SettingsFile::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_SettingsFile::saveTwice() {
    SettingsFile file(path());
    QString problem;
    QVERIFY2(file.save(older, &problem), qPrintable(problem));
    QVERIFY2(file.save(newer, &problem), qPrintable(problem));
}

void tst_SettingsFile::roundTrip() {
    const quint32 seed = std::random_device{}();
    qDebug("seed %u", seed);
    std::mt19937 random(seed);
    const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const auto text = [&below] {
        QString result;
        for (int length = below(8); length > 0; --length) {
            result.append(QChar(below(0xd800)));  // up to the surrogates, controls and zero included
        }
        return result;
    };
    for (int round = 0; round < 300; ++round) {
        SettingsMap values;
        for (int count = below(12); count > 0; --count) {
            const int number = static_cast<int>(random());
            const QVariant kinds[] = {number, number % 2 == 0, text(), number / 7.0 + 0.01,
                                      Q_INT64_C(5000000000) + number};
            values.insert(text(), storableValue(kinds[below(5)]));
        }
        Snapshot read;
        QString problem;
        const qint64 number = below(1000000) * Q_INT64_C(1000000);
        QVERIFY2(settingsFromText(settingsToText({values, number}), &read, &problem), qPrintable(problem));
        QCOMPARE(read.number, number);
        for (auto it = values.cbegin(); it != values.cend(); ++it) {
            if (it.value().type() == QVariant::Double) {
                QCOMPARE(read.values.value(it.key()).toDouble(), it.value().toDouble());
            } else {
                QVERIFY2(sameValue(read.values.value(it.key()), it.value()), qPrintable(it.value().toString()));
            }
        }
        QCOMPARE(read.values.size(), values.size());
    }
    Snapshot read;
    QString problem;
    const QString zero = QString("a") + QChar(0) + "b";
    QVERIFY(settingsFromText(settingsToText({{{zero, zero}}, 0}), &read, &problem));
    QVERIFY(same(read, {{{zero, zero}}, 0}));
    const QString halfPair(QChar(0xd800));
    QVERIFY(settingsFromText(settingsToText({{{halfPair, halfPair}}, 0}), &read, &problem));
    QCOMPARE(read.values.size(), 1);
}

void tst_SettingsFile::readable() {
    const QByteArray text = settingsToText({{{"b", true}, {"a", 3}, {"c", "x"}}, 5});
    QVERIFY(text.contains("\"a\": 3,\n"));
    QVERIFY(text.indexOf("\"a\": 3") < text.indexOf("\"b\": true"));
    QVERIFY(text.indexOf("\"b\": true") < text.indexOf("\"c\": \"x\""));
}

void tst_SettingsFile::editedByHand() {
    Snapshot read;
    QString problem;
    QByteArray text = settingsToText({{{"a", 3}}, 5});
    text.replace("\"a\": 3", "\"a\": 4");
    QVERIFY(!settingsFromText(text, &read, &problem));
    QCOMPARE(problem, QStringLiteral("wrong checksum"));
    text.replace(text.indexOf("    \"sha256\""),
                 text.indexOf('\n', text.indexOf("\"sha256\"")) - text.indexOf("    \"sha256\""), "");
    QVERIFY(!settingsFromText(text, &read, &problem));
    QCOMPARE(problem, QStringLiteral("no checksum"));
    QVERIFY(read.values.isEmpty());
}

void tst_SettingsFile::badText_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("binary") << QByteArray("\x00\xff\x80\x7f{}", 6);
    QTest::newRow("other text") << QByteArray("[General]\na=1\n");
    QTest::newRow("array") << QByteArray("[1]");
    QTest::newRow("no values") << QByteArray("{\"settings-format\": 1}");
    QTest::newRow("values are none") << QByteArray("{\"settings-format\": 1, \"values\": 3}");
    QTest::newRow("newer format") << QByteArray("{\"settings-format\": 2, \"values\": {}}");
    QTest::newRow("nested value") << QByteArray("{\"settings-format\": 1, \"values\": {\"a\": {}}}");
    QTest::newRow("null") << QByteArray("{\"settings-format\": 1, \"values\": {\"a\": null}}");
    QTest::newRow("deeply nested") << QByteArray(100000, '[');
}

void tst_SettingsFile::badText() {
    QFETCH(QByteArray, text);
    Snapshot state = older;
    QString problem;
    QVERIFY(!settingsFromText(text, &state, &problem));
    QVERIFY(!problem.isEmpty());
    QVERIFY(same(state, older));
}

void tst_SettingsFile::nothingThere() {
    Snapshot state = older;
    QString problem;
    QVERIFY(!SettingsFile(path()).load(&state, &problem));
    QCOMPARE(problem, QString());
    QVERIFY(same(state, older));
    QCOMPARE(files(), QStringList());
}

void tst_SettingsFile::keepsLastGoodCopy() {
    saveTwice();
    QCOMPARE(files(), QStringList({"settings.json", "settings.json.bak"}));
    QCOMPARE(get(path()), settingsToText(newer));
    QCOMPARE(get(path() + ".bak"), settingsToText(older));
    Snapshot state;
    QString problem;
    QVERIFY(SettingsFile(path()).load(&state, &problem));
    QCOMPARE(problem, QString());
    QVERIFY(same(state, newer));
}

void tst_SettingsFile::truncatedAnywhere() {
    const QByteArray whole = settingsToText(newer);
    for (int size = 0; size < whole.size() - 1; ++size) {  // the last byte is a line end, which nobody misses
        init();
        put(path(), whole.left(size));
        put(path() + ".bak", settingsToText(older));
        Snapshot state;
        QString problem;
        SettingsFile file(path());
        QVERIFY2(file.load(&state, &problem), qPrintable(QString::number(size)));
        QVERIFY(same(state, older));
        QVERIFY2(problem.contains(path()) && !problem.contains('\n'), qPrintable(problem));
        QCOMPARE(get(path() + ".damaged-1"), whole.left(size));
        // The next save keeps the good copy.
        QVERIFY(file.save(newer, &problem));
        QCOMPARE(get(path()), whole);
        QCOMPARE(get(path() + ".bak"), settingsToText(older));
    }
}

void tst_SettingsFile::flippedAnywhere() {
    const QByteArray whole = settingsToText(newer);
    int setAside = 0;
    for (int at = 0; at < whole.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
            Snapshot state;
            QString problem;
            if (settingsFromText(damaged, &state, &problem)) {
                QVERIFY2(same(state, newer), damaged.constData());  // a space that became another one
            } else {
                ++setAside;
                QVERIFY(state.values.isEmpty());
            }
        }
    }
    QVERIFY(setAside > whole.size());
}

void tst_SettingsFile::bothDamaged() {
    put(path(), "x");
    put(path() + ".bak", "y");
    Snapshot state = older;
    QString problem;
    SettingsFile file(path());
    QVERIFY(!file.load(&state, &problem));
    QVERIFY(same(state, older));
    QVERIFY2(problem.contains(path()) && problem.contains(path() + ".bak") && problem.contains("factory state"),
             qPrintable(problem));
    QVERIFY(file.save(newer, &problem));
    QVERIFY(file.save(newer, &problem));
    QCOMPARE(get(path() + ".damaged-1"), QByteArray("x"));
    QCOMPARE(get(path() + ".bak.damaged-1"), QByteArray("y"));
}

void tst_SettingsFile::cutBetweenRenames() {
    saveTwice();
    // The files after a save that was cut after its first rename.
    QVERIFY(QFile::remove(path() + ".bak"));
    QVERIFY(QFile::rename(path(), path() + ".bak"));
    put(path() + ".new", settingsToText({{{"a", 3}}, 5}));
    Snapshot state;
    QString problem;
    SettingsFile file(path());
    QVERIFY(file.load(&state, &problem));
    QCOMPARE(problem, QString());
    QVERIFY(same(state, newer));
    QVERIFY(file.save(older, &problem));
    QCOMPARE(files(), QStringList({"settings.json", "settings.json.bak"}));
    QCOMPARE(get(path()), settingsToText(older));
    QCOMPARE(get(path() + ".bak"), settingsToText(newer));
}

void tst_SettingsFile::folderInPlaceOfTheFile() {
    QVERIFY(QDir().mkpath(path() + "/inside"));
    Snapshot state;
    QString problem;
    SettingsFile file(path());
    QVERIFY(!file.load(&state, &problem));
    QVERIFY2(problem.contains(path()), qPrintable(problem));
    QVERIFY(QFileInfo(path() + ".damaged-1/inside").isDir());
    QVERIFY(file.save(newer, &problem));
    QCOMPARE(get(path()), settingsToText(newer));
}

void tst_SettingsFile::missingFolder() {
    Snapshot state;
    QString problem;
    SettingsFile file(m_folder->filePath("no/settings.json"));
    QVERIFY(!file.load(&state, &problem));
    QCOMPARE(problem, QString());
    QVERIFY(!file.save(newer, &problem));
    QVERIFY2(problem.contains(file.path()), qPrintable(problem));
}

void tst_SettingsFile::hugeFile() {
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(Q_INT64_C(1) << 33));  // 8 GiB without a byte on the disk
    file.close();
    Snapshot state;
    QString problem;
    QVERIFY(!SettingsFile(path()).load(&state, &problem));
    QVERIFY2(problem.contains(path()) && problem.contains("Larger"), qPrintable(problem));
    QVERIFY(QFileInfo::exists(path() + ".damaged-1"));
}

void tst_SettingsFile::pipeInPlaceOfTheFile() {
    QCOMPARE(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    Snapshot state;
    QString problem;
    QVERIFY(!SettingsFile(path()).load(&state, &problem));  // and does not wait for a writer
    QVERIFY2(problem.contains(path()), qPrintable(problem));
}

void tst_SettingsFile::fullDisk() {
    saveTwice();
    SettingsFile file(path());
    Snapshot state;
    QString problem;
    QVERIFY(file.load(&state, &problem));
    bool saved = true;
    {
        const FullDisk full;
        saved = file.save(newest, &problem);
    }
    QVERIFY(!saved);
    QVERIFY2(problem.contains(path()), qPrintable(problem));
    QCOMPARE(files(), QStringList({"settings.json", "settings.json.bak"}));
    QCOMPARE(get(path()), settingsToText(newer));
    QCOMPARE(get(path() + ".bak"), settingsToText(older));
    QVERIFY(file.save(newest, &problem));
    QCOMPARE(get(path()), settingsToText(newest));
    QCOMPARE(get(path() + ".bak"), settingsToText(newer));
}

void tst_SettingsFile::damagedFileThatCannotBeSetAside() {
    // A name that leaves no room for a longer one stands in for a disk that takes no rename.
    const QString name = m_folder->filePath(QString(250, 'n'));
    put(name, "x");
    Snapshot state;
    QString problem;
    SettingsFile file(name);
    QVERIFY(!file.load(&state, &problem));
    QVERIFY2(problem.contains(name) && problem.contains("cannot be set aside"), qPrintable(problem));
    QVERIFY(!file.save(newer, &problem));
    QCOMPARE(get(name), QByteArray("x"));
    QVERIFY(QFile::remove(name));
    QVERIFY(file.save(newer, &problem));
    QCOMPARE(get(name), settingsToText(newer));
}

void tst_SettingsFile::newestDamagedFilesStay() {
    put(path() + ".damaged-99999999999999999999", "no number of ours");
    for (int number = 1; number <= 6; ++number) {
        put(path(), QByteArray("x") + QByteArray::number(number));
        Snapshot state;
        QString problem;
        QVERIFY(!SettingsFile(path()).load(&state, &problem));
        QVERIFY2(problem.contains(QString("damaged-%1;").arg(number)), qPrintable(problem));
    }
    QCOMPARE(files(), QStringList({"settings.json.damaged-4", "settings.json.damaged-5", "settings.json.damaged-6",
                                   "settings.json.damaged-99999999999999999999"}));
    QCOMPARE(get(path() + ".damaged-6"), QByteArray("x6"));
}

void tst_SettingsFile::whatStandsInTheWay_data() {
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("link");
    for (const char *end : {".new", ".bak"}) {
        QTest::addRow("folder %s", end) << end << false;
        QTest::addRow("link %s", end) << end << true;
    }
}

void tst_SettingsFile::whatStandsInTheWay() {
    QFETCH(QString, end);
    QFETCH(bool, link);
    put(path(), settingsToText(older));
    put(m_folder->filePath("other"), "somebody's");
    QVERIFY(link ? QFile::link(m_folder->filePath("other"), path() + end) : QDir().mkpath(path() + end + "/inside"));
    Snapshot state;
    QString problem;
    SettingsFile file(path());
    QVERIFY(file.load(&state, &problem));
    QVERIFY2(file.save(newer, &problem), qPrintable(problem));
    QCOMPARE(get(path()), settingsToText(newer));
    QCOMPARE(get(path() + ".bak"), settingsToText(older));
    QCOMPARE(get(m_folder->filePath("other")), QByteArray("somebody's"));
    QVERIFY(QFileInfo::exists(path() + end + ".damaged-1"));
}

/// A state that could not be read again must not replace one that can.
void tst_SettingsFile::tooMuchIsNotWritten() {
    QString problem;
    SettingsFile file(path());
    QVERIFY(file.save(older, &problem));
    Snapshot much = newer;
    for (int i = 0; i < 70; ++i) {
        much.values.insert(QString::number(i), QString(64 * 1024, 'x'));
    }
    QVERIFY(!file.save(much, &problem));
    QVERIFY2(problem.contains(path()) && problem.contains("4194304"), qPrintable(problem));
    QCOMPARE(get(path()), settingsToText(older));
}

/// In memory and as UTF-8 their order differs.
void tst_SettingsFile::oddKeys() {
    Snapshot odd;
    odd.values = {{QString::fromUtf8("\xF0\x9F\x98\x80"), 1}, {QString(QChar(0xE123)), 2}, {QString(QChar(0xFFFD)), 3}};
    Snapshot state;
    QString problem;
    QVERIFY2(settingsFromText(settingsToText(odd), &state, &problem), qPrintable(problem));
    QCOMPARE(state.values, odd.values);
}

void tst_SettingsFile::checksumOfOlderUnits() {
    const QByteArray text = "{\"change\":7,\"settings-format\":1,\"values\":{\"a\":1}}";
    const QByteArray sum = QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
    Snapshot state;
    QString problem;
    QVERIFY(settingsFromText(QByteArray(text).insert(1, "\"sha256\":\"" + sum + "\","), &state, &problem));
    QCOMPARE(state.values.value("a").toInt(), 1);
}

void tst_SettingsFile::quickCopy_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("quick");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("behind");
    const QByteArray old = settingsToText(older);
    const QByteArray recent = settingsToText(newer);
    QTest::newRow("quick copy is newer") << old << recent << 20 << true;
    QTest::newRow("quick copy is as old") << recent << recent << 20 << false;
    QTest::newRow("quick copy is older") << recent << old << 20 << false;
    QTest::newRow("quick copy is cut") << old << recent.left(40) << 10 << false;
    QTest::newRow("quick copy alone") << QByteArray() << recent << 20 << true;
}

void tst_SettingsFile::quickCopy() {
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, quick);
    if (!file.isEmpty()) {
        put(path(), file);
    }
    put(path() + ".quick-0", quick);
    put(path() + ".quick-1", settingsToText({{}, 1}));
    Snapshot state;
    QString problem;
    SettingsFile settings(path());
    QVERIFY(settings.load(&state, &problem));
    QCOMPARE(problem, QString());
    QTEST(int(state.number), "number");
    QTEST(settings.isBehind(), "behind");
    // Saves take both slots in turn; longer text leaves nothing behind a shorter one.
    QVERIFY(settings.saveQuickly(newer));
    QVERIFY(settings.saveQuickly(newest));
    QVERIFY(settings.saveQuickly(older));
    QCOMPARE(get(path() + ".quick-1"), settingsToText(older));
    QCOMPARE(get(path() + ".quick-0"), settingsToText(newest));
    settings.dropQuickCopies();
    QVERIFY(!QFile::exists(path() + ".quick-0"));
    QVERIFY(!QFile::exists(path() + ".quick-1"));
}

void tst_SettingsFile::peekTouchesNothing() {
    Snapshot state = older;
    QVERIFY(!SettingsFile(path()).peek(&state));
    put(path(), "x");
    QVERIFY(!SettingsFile(path()).peek(&state));
    QVERIFY(same(state, older));
    put(path() + ".bak", settingsToText(newer));
    QVERIFY(SettingsFile(path()).peek(&state));
    QVERIFY(same(state, newer));
    QCOMPARE(files(), QStringList({"settings.json", "settings.json.bak"}));
}

QTEST_GUILESS_MAIN(tst_SettingsFile)
#include "tst_settingsfile.moc"
