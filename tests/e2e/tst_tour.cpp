// SPDX-License-Identifier: Apache-2.0
#include "difference.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

// Every picture of the tour beside the one that was looked at and found good (tests/e2e/references).

namespace {

constexpr int patience = 240000;  // ms

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
    const QImage actual(m_folder.filePath(name));
    const QImage expected(QDir(REFERENCES).filePath(name));
    const Difference found = difference(expected, actual);
    const QString shown = QDir::current().filePath(QStringLiteral("differs_") + name);
    QFile::remove(shown);  // of an earlier run
    if (found.tooMuch()) {
        sideBySide(expected, actual).save(shown);
        QFAIL(qPrintable(
            QStringLiteral("%1 pixels differ, within %2, %3, %4 x %5; %6 of them within the %7 pixels from %8, "
                           "%9 on. Reference, picture and what differs stand side by side in ")
                .arg(found.pixels)
                .arg(found.within.x())
                .arg(found.within.y())
                .arg(found.within.width())
                .arg(found.within.height())
                .arg(found.mostInTile)
                .arg(tileSize)
                .arg(found.tile.x())
                .arg(found.tile.y()) +
            shown));
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
