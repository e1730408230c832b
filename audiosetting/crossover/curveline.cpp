// SPDX-License-Identifier: Apache-2.0
#include "curveline.h"

#include <algorithm>
#include <cmath>

namespace audiosetting {
namespace crossover {

namespace {

// The drawing's constants; tests hold lines and pictures equal.
const double passBand = 4;  // y of 0 dB
const double range = 24;    // dB from there to the lower edge
const double margin = 4;    // px that a line runs on beyond the picture, so that no end is seen

struct Family {
    double corner;     // x of the -3 dB point
    double perOctave;  // px; the sign says on which side the pass band lies
};
const Family highPassFamily = {335, 18};
const Family lowPassFamily = {756, -36};

// Between them the line bends: beyond, it is straight to a hundredth of a pixel or below the picture. In octaves
// inside the pass band of a filter of first order; one of order n bends n times as fast.
const double bendBegins = -4.4;
const double bendEnds = 6;
const int bendChords = 24;  // no chord leaves the line by more than 0.1 px

const QRgb yellow = qRgb(0xff, 0xd2, 0x3f);
const QRgb green = qRgb(0x3f, 0xd9, 0x7f);
const QRgb red = qRgb(0xff, 0x64, 0x64);
const QRgb dimYellow = qRgb(0x80, 0x6a, 0x24);
const QRgb dimGreen = qRgb(0x27, 0x78, 0x4a);
const QRgb dimRed = qRgb(0xa6, 0x44, 0x44);

const CurveLine lines[] = {
    {"left_yellow_6db", 1, true, yellow, dimYellow},  {"left_yellow_12db", 2, true, yellow, dimYellow},
    {"left_yellow_18db", 3, true, yellow, dimYellow}, {"left_green_6db", 1, true, green, dimGreen},
    {"left_green_12db", 2, true, green, dimGreen},    {"left_green_18db", 3, true, green, dimGreen},
    {"right_red_6db", 1, false, red, dimRed},         {"right_red_12db", 2, false, red, dimRed},
    {"right_red_18db", 3, false, red, dimRed},
};

double yOf(double decibel) {
    return passBand + decibel * (curvePictureHeight - passBand) / range;
}

double attenuation(int order, double octavesInside) {
    return 10 * std::log10(1 + std::exp2(-2 * order * octavesInside));
}

}  // namespace

QPolygonF CurveLine::points() const {
    const Family &family = highPass ? highPassFamily : lowPassFamily;
    // The nearer to the corner, the more it bends: places that are even in the angle are uneven in octaves, and each
    // chord leaves the line by as much as the next.
    const double ln2 = std::log(2);
    const double first = std::atan(std::sinh(bendBegins * ln2));
    const double last = std::atan(std::sinh(bendEnds * ln2));
    QPolygonF bend;
    for (int i = 0; i <= bendChords; ++i) {
        const double octaves = std::asinh(std::tan(first + (last - first) * i / bendChords)) / ln2 / order;
        bend << QPointF(family.corner + octaves * family.perOctave, yOf(attenuation(order, octaves)));
    }
    bend.last().setY(passBand);
    bend << QPointF(highPass ? curvePictureWidth + margin : -margin, passBand);
    if (!highPass) {
        std::reverse(bend.begin(), bend.end());
    }
    return bend;
}

QPointF CurveLine::corner() const {
    return QPointF(highPass ? highPassFamily.corner : lowPassFamily.corner, yOf(attenuation(order, 0)));
}

const CurveLine *curveLine(const QByteArray &picture) {
    for (const CurveLine &line : lines) {
        if (picture == line.picture) {
            return &line;
        }
    }
    return nullptr;
}

}  // namespace crossover
}  // namespace audiosetting
