// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QMap>
#include <QRegularExpression>
#include <QResource>
#include <QtEndian>
#include <QtTest>

#include <cmath>

namespace {

struct Picture {
    QString name;    ///< prefix and name, without ".png"
    QString source;  ///< family
    QString state;
    QSize size;

    QString file() const { return QStringLiteral(":/") + name + QStringLiteral(".png"); }
    QString denseFile() const { return QStringLiteral(":/") + name + QStringLiteral("@2x.png"); }
};

// The lightest and the darkest point of the background that the keys lie on.
const QRgb backgroundTop = qRgb(0x16, 0x1d, 0x27);
const QRgb backgroundBottom = qRgb(0x0a, 0x0d, 0x12);
const QRgb white = qRgb(255, 255, 255);
const int leastShrinking = 16;
const int leastPixels = 60;  ///< of a sign that can be seen

// As in WCAG: relative luminance and contrast.
double linear(int channel) {
    const double value = channel / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb colour) {
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb a, QRgb b) {
    const double first = luminance(a);
    const double second = luminance(b);
    return (qMax(first, second) + 0.05) / (qMin(first, second) + 0.05);
}

QRgb over(QRgb picture, QRgb background) {
    const auto mix = [alpha = qAlpha(picture)](int top, int below) {
        return (top * alpha + below * (255 - alpha)) / 255;
    };
    return qRgb(mix(qRed(picture), qRed(background)), mix(qGreen(picture), qGreen(background)),
                mix(qBlue(picture), qBlue(background)));
}

QImage on(const QString &file, QRgb background) {
    QImage image = QImage(file).convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, over(image.pixel(x, y), background));
        }
    }
    return image;
}

/// Number of pixels for which \a matches(x, y).
template <typename Match> int count(const QImage &image, Match matches) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            found += matches(x, y);
        }
    }
    return found;
}

int differingPixels(const QImage &a, const QImage &b, double leastContrast) {
    return count(a, [&](int x, int y) { return contrast(a.pixel(x, y), b.pixel(x, y)) >= leastContrast; });
}

QStringList keyStates() {
    return {QStringLiteral("n"), QStringLiteral("p"),    QStringLiteral("s"),
            QStringLiteral("d"), QStringLiteral("p+on"), QStringLiteral("d+on")};
}

QByteArray bytes(const QString &file) {
    QFile picture(file);
    return picture.open(QIODevice::ReadOnly) ? picture.readAll() : QByteArray();
}

}  // namespace

class PicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tableAndResourceNameTheSame();
    void picture_data() { rows(); }
    void picture();
    void densePicture_data() { rows(); }
    void densePicture();
    void decodesCheaply_data() { rows(); }
    void decodesCheaply();
    void statesDiffer_data() { families(); }
    void statesDiffer();
    void selectedStandsOut_data() { families(QStringLiteral("s")); }
    void selectedStandsOut();
    void shapeStandsOut_data() { keys(); }
    void shapeStandsOut();
    void keyEdgeStandsOut_data();
    void keyEdgeStandsOut();
    void textOnKeyIsLegible_data();
    void textOnKeyIsLegible();
    void backgroundHasNoBands();
    void padsCarHoldsTheMarkersWay();

private:
    void rows();
    void keys();
    void families(const QString &withState = QString());
    Picture row(const QString &name) const;

    QVector<Picture> m_pictures;
};

void PicturesTest::initTestCase() {
    QFile table(QStringLiteral(PICTURE_TABLE));
    QVERIFY2(table.open(QIODevice::ReadOnly | QIODevice::Text), PICTURE_TABLE);
    while (!table.atEnd()) {
        const QString line = QString::fromUtf8(table.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')) || line.startsWith(QLatin1Char('['))) {
            continue;
        }
        const QStringList cells = line.split(QRegularExpression(QStringLiteral(" +")));
        QCOMPARE(cells.size(), 5);
        m_pictures << Picture{cells[0], cells[1], cells[2], QSize(cells[3].toInt(), cells[4].toInt())};
    }
    QVERIFY(!m_pictures.isEmpty());
    // The display of this test is not dense, so the dense pictures are not there yet.
    QVERIFY(!QFile::exists(m_pictures.first().denseFile()));
    QVERIFY(QResource::registerResource(QStringLiteral(PICTURE_DENSE)));
}

void PicturesTest::rows() {
    QTest::addColumn<QString>("name");
    for (const Picture &picture : qAsConst(m_pictures)) {
        QTest::newRow(qPrintable(picture.name)) << picture.name;
    }
}

// Everything that reacts to a finger: what has another state than the normal one.
void PicturesTest::keys() {
    QTest::addColumn<QString>("name");
    for (const Picture &picture : qAsConst(m_pictures)) {
        const auto otherState = [&](const Picture &other) {
            return other.source == picture.source && other.state != picture.state;
        };
        if (picture.state == QLatin1String("n") && std::any_of(m_pictures.cbegin(), m_pictures.cend(), otherState)) {
            QTest::newRow(qPrintable(picture.name)) << picture.name;
        }
    }
}

void PicturesTest::families(const QString &withState) {
    QTest::addColumn<QString>("source");
    QMap<QString, QStringList> states;
    for (const Picture &picture : qAsConst(m_pictures)) {
        if (keyStates().contains(picture.state) && !states[picture.source].contains(picture.state)) {
            states[picture.source] << picture.state;
        }
    }
    for (auto family = states.cbegin(); family != states.cend(); ++family) {
        if (family->size() > 1 && (withState.isEmpty() || family->contains(withState))) {
            QTest::newRow(qPrintable(family.key())) << family.key();
        }
    }
}

Picture PicturesTest::row(const QString &name) const {
    for (const Picture &picture : m_pictures) {
        if (picture.name == name) {
            return picture;
        }
    }
    return Picture();
}

void PicturesTest::tableAndResourceNameTheSame() {
    QStringList named;
    QStringList prefixes;
    for (const Picture &picture : qAsConst(m_pictures)) {
        named << picture.file() << picture.denseFile();
        const QString prefix = picture.name.section(QLatin1Char('/'), 0, 0);
        if (!prefixes.contains(prefix)) {
            prefixes << prefix;
        }
    }
    QStringList found;
    for (const QString &prefix : qAsConst(prefixes)) {
        const QDir folder(QStringLiteral(":/") + prefix);
        for (const QString &file : folder.entryList(QDir::Files)) {
            found << folder.filePath(file);
        }
    }
    named.sort();
    found.sort();
    QCOMPARE(found, named);
}

void PicturesTest::picture() {
    QFETCH(QString, name);
    const Picture expected = row(name);
    const QImage image(expected.file());
    QCOMPARE(image.size(), expected.size);
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    const int visible = count(argb, [&](int x, int y) { return qAlpha(argb.pixel(x, y)) > 0; });
    QVERIFY2(visible >= leastPixels, qPrintable(QStringLiteral("only %1 pixels are drawn").arg(visible)));
    const bool opaque = count(argb, [&](int x, int y) { return qAlpha(argb.pixel(x, y)) < 255; }) == 0;
    QCOMPARE(image.hasAlphaChannel(), !opaque);
}

void PicturesTest::densePicture() {
    QFETCH(QString, name);
    const Picture expected = row(name);
    const QImage dense(expected.denseFile());
    QCOMPARE(dense.size(), expected.size * 2);
    QCOMPARE(dense.devicePixelRatio(), 2.0);

    // The same drawing: halved it is the picture, but for what antialiasing makes of its edges.
    const QImage image = on(expected.file(), backgroundTop);
    const QImage half =
        on(expected.denseFile(), backgroundTop).scaled(expected.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    double difference = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            difference += qAbs(qGray(image.pixel(x, y)) - qGray(half.pixel(x, y)));
        }
    }
    const double mean = difference / (image.width() * image.height());
    QVERIFY2(mean < 2.0, qPrintable(QStringLiteral("mean difference %1 of 255").arg(mean)));
}

void PicturesTest::decodesCheaply() {
    QFETCH(QString, name);
    const Picture expected = row(name);
    const QByteArray png = bytes(expected.file());
    const int dataChunk = png.indexOf("IDAT");
    QVERIFY(dataChunk > 0);
    const int length = qFromBigEndian<qint32>(png.constData() + dataChunk - 4);
    const QImage image(expected.file());
    const int bits = image.format() == QImage::Format_Mono       ? 1
                     : image.format() == QImage::Format_Indexed8 ? 8
                     : image.hasAlphaChannel()                   ? 32
                                                                 : 24;
    const int line = 1 + (expected.size.width() * bits + 7) / 8;
    const int raw = line * expected.size.height();
    // Stored, or else so small that inflating it is cheaper.
    QVERIFY2(length > raw || length * leastShrinking <= raw,
             qPrintable(QStringLiteral("%1 of %2").arg(length).arg(raw)));
    QByteArray zipped(4, '\0');
    qToBigEndian(raw, zipped.data());
    const QByteArray lines = qUncompress(zipped + png.mid(dataChunk + 4, length));
    QCOMPARE(lines.size(), raw);
    for (int y = 0; y < expected.size.height(); ++y) {
        QCOMPARE(int(lines.at(y * line)), 0);  // no filter
    }
}

void PicturesTest::statesDiffer() {
    QFETCH(QString, source);
    QVector<Picture> family;
    for (const Picture &picture : qAsConst(m_pictures)) {
        // Other palettes tell channels apart, not states.
        if (!keyStates().contains(picture.state)) {
            continue;
        }
        const auto same = [&](const Picture &other) { return other.state == picture.state; };
        if (picture.source == source && std::none_of(family.cbegin(), family.cend(), same)) {
            family << picture;
        }
    }
    for (int i = 0; i < family.size(); ++i) {
        for (int j = i + 1; j < family.size(); ++j) {
            const QImage a = on(family[i].file(), backgroundTop);
            const QImage b = on(family[j].file(), backgroundTop);
            // Seen at a glance: a share of the picture changes its lightness, not only its hue.
            const int least = a.width() * a.height() / 40;
            const int found = differingPixels(a, b, 1.5);
            QVERIFY2(found >= least, qPrintable(QStringLiteral("%1 and %2 differ in %3 pixels of %4")
                                                    .arg(family[i].name, family[j].name)
                                                    .arg(found)
                                                    .arg(a.width() * a.height())));
        }
    }
}

void PicturesTest::selectedStandsOut() {
    QFETCH(QString, source);
    Picture normal;
    Picture selected;
    for (const Picture &picture : qAsConst(m_pictures)) {
        if (picture.source == source && picture.state == QLatin1String("n")) {
            normal = picture;
        } else if (picture.source == source && picture.state == QLatin1String("s")) {
            selected = picture;
        }
    }
    QVERIFY(!normal.name.isEmpty());
    for (QRgb background : {backgroundTop, backgroundBottom}) {
        // A bar, a ring or a fill of 3:1 in lightness: seen also by who sees no colours.
        const int found = differingPixels(on(normal.file(), background), on(selected.file(), background), 3.0);
        QVERIFY2(found >= 150, qPrintable(QStringLiteral("%1 pixels").arg(found)));
    }
}

void PicturesTest::shapeStandsOut() {
    QFETCH(QString, name);
    const Picture expected = row(name);
    for (QRgb background : {backgroundTop, backgroundBottom}) {
        const QImage image = on(expected.file(), background);
        const int found = count(image, [&](int x, int y) { return contrast(image.pixel(x, y), background) >= 3.0; });
        QVERIFY2(found >= leastPixels, qPrintable(QStringLiteral("%1 pixels").arg(found)));
    }
}

void PicturesTest::keyEdgeStandsOut_data() {
    QTest::addColumn<QString>("name");
    for (const char *key : {"key_vol_prev_n", "key_vol_next_n", "key_vol_front_n", "key_vol_rear_n", "key_phase_0_n",
                            "key_phase_180_n", "key_balance_center_n", "key_eq_custom_n", "key_advanced_n",
                            "key_next_n", "settings_icn_back_n", "settings_icn_close_n"}) {
        QTest::newRow(key) << QStringLiteral("corvina_icon/") + QLatin1String(key);
    }
}

void PicturesTest::keyEdgeStandsOut() {
    QFETCH(QString, name);
    const QImage image = on(row(name).file(), backgroundTop);
    QVERIFY(!image.isNull());
    // From each side inwards the edge comes before the fill, and stands out from the lightest background.
    const int w = image.width();
    const int h = image.height();
    const int edge = 2;  // px from the outside: where the line's full colour is
    for (const QPoint &p :
         {QPoint(edge, h / 2), QPoint(w - 1 - edge, h / 2), QPoint(w / 2, edge), QPoint(w / 2, h - 1 - edge)}) {
        const double ratio = contrast(image.pixel(p), backgroundTop);
        QVERIFY2(ratio >= 3.0, qPrintable(QStringLiteral("%1:1 at %2, %3").arg(ratio).arg(p.x()).arg(p.y())));
    }
}

void PicturesTest::textOnKeyIsLegible_data() {
    QTest::addColumn<QString>("name");
    for (const char *key :
         {"key_next_n", "key_next_p", "key_advanced_n", "key_advanced_p", "key_eq_custom_n", "key_eq_custom_p"}) {
        QTest::newRow(key) << QStringLiteral("corvina_icon/") + QLatin1String(key);
    }
}

void PicturesTest::textOnKeyIsLegible() {
    QFETCH(QString, name);
    const QImage image = on(row(name).file(), backgroundTop);
    QVERIFY(!image.isNull());
    for (int y = 16; y < image.height() - 16; ++y) {
        const double ratio = contrast(image.pixel(image.width() / 2, y), white);
        QVERIFY2(ratio >= 4.5, qPrintable(QStringLiteral("%1:1 in line %2").arg(ratio).arg(y)));
    }
}

void PicturesTest::backgroundHasNoBands() {
    const QImage image = QImage(QStringLiteral(":/corvina_icon/audiosettings_bg.png"));
    QVERIFY(!image.isNull());
    const auto meanOfLine = [&](int y) {
        double sum = 0;
        for (int x = 0; x < image.width(); ++x) {
            sum += qRed(image.pixel(x, y)) + qGreen(image.pixel(x, y)) + qBlue(image.pixel(x, y));
        }
        return sum / image.width();
    };
    for (int y = 1; y < image.height(); ++y) {
        const double step = qAbs(meanOfLine(y) - meanOfLine(y - 1));
        QVERIFY2(step < 1.0, qPrintable(QStringLiteral("a step of %1 levels at line %2").arg(step).arg(y)));
    }
    for (int x = 0; x < image.width(); ++x) {
        QVERIFY(contrast(image.pixel(x, 0), white) >= 4.5);
        QVERIFY(contrast(image.pixel(x, 0), backgroundTop) < 1.05);
        QVERIFY(contrast(image.pixel(x, image.height() - 1), backgroundBottom) < 1.05);
    }
}

// The marker goes 100 px from the pad's zero point to each side.
void PicturesTest::padsCarHoldsTheMarkersWay() {
    const QImage pad = on(QStringLiteral(":/corvina_icon/balancefader_bg.png"), backgroundTop);
    const QPoint zero(132, 130);
    const int way = 100;
    const QRgb line = qRgb(0x6d, 0x7a, 0x8a);
    const auto isLine = [&](int x, int y) { return contrast(pad.pixel(x, y), line) < 1.15; };
    const auto crosses = [&](QPoint from, QPoint step) {
        for (; pad.rect().contains(from); from += step) {
            if (isLine(from.x(), from.y())) {
                return true;
            }
        }
        return false;
    };
    for (int along = -way; along <= way; ++along) {
        // The body's outline is met outwards of every place that the marker reaches.
        QVERIFY2(crosses(zero + QPoint(along, -way), QPoint(0, -1)), qPrintable(QString::number(along)));
        QVERIFY2(crosses(zero + QPoint(along, way), QPoint(0, 1)), qPrintable(QString::number(along)));
        QVERIFY2(crosses(zero + QPoint(-way, along), QPoint(-1, 0)), qPrintable(QString::number(along)));
        QVERIFY2(crosses(zero + QPoint(way, along), QPoint(1, 0)), qPrintable(QString::number(along)));
    }
    QVERIFY(contrast(line, pad.pixel(12, 60)) >= 3);
}

QTEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
