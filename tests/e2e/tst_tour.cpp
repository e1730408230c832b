#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// The tour's pictures beside the ones that were looked at and found good (tests/e2e/references).
class TestTour : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void looksTheSame_data();
    void looksTheSame();

private:
    QTemporaryDir m_folder;
};

namespace {

constexpr int patience = 240000;  // ms

// Versions of the font renderer differ a little at the edges of letters.
constexpr int channelTolerance = 24;
constexpr double differingShare = 0.001;

bool differs(QRgb a, QRgb b) {
    return qAbs(qRed(a) - qRed(b)) > channelTolerance || qAbs(qGreen(a) - qGreen(b)) > channelTolerance ||
           qAbs(qBlue(a) - qBlue(b)) > channelTolerance;
}

}  // namespace

void TestTour::initTestCase() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_FONT_DPI", "144");  // the desk's, which the unit leaves alone
    QProcess tour;
    tour.setProcessEnvironment(environment);
    tour.start(HEADUNIT, {"--tour", m_folder.path()});
    QVERIFY(tour.waitForFinished(patience));
    QVERIFY2(tour.exitCode() == 0, tour.readAllStandardError());
}

void TestTour::looksTheSame_data() {
    QTest::addColumn<QString>("name");
    const QStringList names = QDir(REFERENCES).entryList({"*.png"}, QDir::Files);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestTour::looksTheSame() {
    QFETCH(QString, name);
    const QImage actual = QImage(m_folder.filePath(name)).convertToFormat(QImage::Format_RGB32);
    const QImage expected = QImage(QDir(REFERENCES).filePath(name)).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(actual.size(), expected.size());
    int count = 0;
    QRect where;
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            if (differs(actual.pixel(x, y), expected.pixel(x, y))) {
                ++count;
                where |= QRect(x, y, 1, 1);
            }
        }
    }
    if (count > actual.width() * actual.height() * differingShare) {
        const QString kept = QDir::current().filePath(QStringLiteral("differs_") + name);
        actual.save(kept);
        QFAIL(qPrintable(QStringLiteral("%1 pixels differ, within %2, %3, %4 x %5; see %6")
                             .arg(count)
                             .arg(where.x())
                             .arg(where.y())
                             .arg(where.width())
                             .arg(where.height())
                             .arg(kept)));
    }
}

QTEST_GUILESS_MAIN(TestTour)
#include "tst_tour.moc"
