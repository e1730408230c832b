// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdio>

// Every picture of the tour beside the one that was looked at and found good (tests/e2e/references).

namespace {

constexpr int patience = 240000;  // ms

// A picture differs if more than this share of its pixels differ, and a pixel if a colour channel is further off. That
// covers how versions of the font renderer differ at the edges of letters, and the steps in which references keep
// their colours.
constexpr double differingShare = 0.001;
constexpr int channelTolerance = 24;

/// A channel's values are kept in these steps: gradients then take a quarter of the bytes.
constexpr int channelStep = 16;

constexpr QRgb marked = 0xFFFF00FF;

int kept(int channel) {
    return std::min(255, (channel + channelStep / 2) / channelStep * channelStep);
}

/// The picture as a reference keeps it, with a table of its colours where they are few enough.
QImage reference(const QImage &picture) {
    QImage image = picture.convertToFormat(QImage::Format_RGB32);
    QVector<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        const auto line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            line[x] = qRgb(kept(qRed(line[x])), kept(qGreen(line[x])), kept(qBlue(line[x])));
            const auto place = std::lower_bound(colours.begin(), colours.end(), line[x]);
            if (place == colours.end() || *place != line[x]) {
                colours.insert(place, line[x]);
            }
        }
    }
    return colours.size() > 256 ? image : image.convertToFormat(QImage::Format_Indexed8, colours, Qt::ThresholdDither);
}

bool differs(QRgb a, QRgb b) {
    return qAbs(qRed(a) - qRed(b)) > channelTolerance || qAbs(qGreen(a) - qGreen(b)) > channelTolerance ||
           qAbs(qBlue(a) - qBlue(b)) > channelTolerance;
}

/// Both pictures side by side, and right of them the new one with every pixel that differs marked.
QImage sideBySide(const QImage &expected, const QImage &actual) {
    const QSize size = expected.size().expandedTo(actual.size());
    QImage marks = actual.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < marks.height(); ++y) {
        for (int x = 0; x < marks.width(); ++x) {
            if (!expected.valid(x, y) || differs(expected.pixel(x, y), actual.pixel(x, y))) {
                marks.setPixel(x, y, marked);
            }
        }
    }
    constexpr int gap = 8;
    QImage all(3 * size.width() + 2 * gap, size.height(), QImage::Format_RGB32);
    all.fill(Qt::white);
    QPainter painter(&all);
    painter.drawImage(0, 0, expected);
    painter.drawImage(size.width() + gap, 0, actual);
    painter.drawImage(2 * (size.width() + gap), 0, marks);
    return all;
}

/// Takes the tour's pictures into \a folder; what went wrong, or nothing.
QString takeTour(const QString &folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_FONT_DPI", "144");  // the desk's, which the unit leaves alone
    QProcess tour;
    tour.setProcessEnvironment(environment);
    tour.start(HEADUNIT, {"--tour", folder});
    if (!tour.waitForFinished(patience)) {
        return QStringLiteral("The tour does not end: ") + tour.errorString();
    }
    return tour.exitCode() == 0 ? QString() : QString::fromLocal8Bit(tour.readAllStandardError());
}

QStringList pictures(const QString &folder) {
    return QDir(folder).entryList({"*.png"}, QDir::Files, QDir::Name);
}

}  // namespace

class TestTour : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void everyPictureHasItsReference();
    void looksTheSame_data();
    void looksTheSame();

private:
    QTemporaryDir m_folder;
};

void TestTour::initTestCase() {
    const QString problem = takeTour(m_folder.path());
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestTour::everyPictureHasItsReference() {
    QCOMPARE(pictures(m_folder.path()), pictures(REFERENCES));
    QVERIFY(pictures(REFERENCES).size() > 50);
}

void TestTour::looksTheSame_data() {
    QTest::addColumn<QString>("name");
    for (const QString &name : pictures(REFERENCES)) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestTour::looksTheSame() {
    QFETCH(QString, name);
    const QImage actual = QImage(m_folder.filePath(name)).convertToFormat(QImage::Format_RGB32);
    const QImage expected = QImage(QDir(REFERENCES).filePath(name)).convertToFormat(QImage::Format_RGB32);
    int count = 0;
    QRect where;
    const QRect both = actual.rect() & expected.rect();
    for (int y = 0; y < both.height(); ++y) {
        const auto now = reinterpret_cast<const QRgb *>(actual.constScanLine(y));
        const auto then = reinterpret_cast<const QRgb *>(expected.constScanLine(y));
        for (int x = 0; x < both.width(); ++x) {
            if (differs(now[x], then[x])) {
                ++count;
                where |= QRect(x, y, 1, 1);
            }
        }
    }
    if (actual.size() != expected.size() || count > actual.width() * actual.height() * differingShare) {
        const QString shown = QDir::current().filePath(QStringLiteral("differs_") + name);
        sideBySide(expected, actual).save(shown);
        QFAIL(qPrintable(QStringLiteral("%1 pixels differ, within %2, %3, %4 x %5. Reference, picture and what differs "
                                        "stand side by side in %6")
                             .arg(count)
                             .arg(where.x())
                             .arg(where.y())
                             .arg(where.width())
                             .arg(where.height())
                             .arg(shown)));
    }
}

/// Renews the references, all of them or those named. Those of pictures that the tour no longer takes go.
static int takeReferences(const QStringList &named) {
    const QTemporaryDir folder;
    const QString problem = takeTour(folder.path());
    if (!problem.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        return 1;
    }
    const QDir references(REFERENCES);
    const QStringList taken = pictures(folder.path());
    for (const QString &name : pictures(REFERENCES)) {
        if (!taken.contains(name)) {
            QFile::remove(references.filePath(name));
        }
    }
    for (const QString &name : named.isEmpty() ? taken : named) {
        const QImage picture(folder.filePath(name));
        constexpr int smallest = 0;  // Qt packs as far as it can
        if (picture.isNull() || !reference(picture).save(references.filePath(name), "PNG", smallest)) {
            std::fprintf(stderr, "No such picture in the tour, or it cannot be kept: %s\n", qPrintable(name));
            return 1;
        }
    }
    return 0;
}

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "--take") == 0) {
        return takeReferences(application.arguments().mid(2));
    }
    TestTour test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_tour.moc"
