// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "eq/sliderbarwidget.h"

#include "tests/tables/factorycurves.h"

#include <QImage>
#include <QList>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <array>

/// The tables that the equaliser's pages must follow, written down a second time.
namespace reference {

constexpr int bands = 13;

struct Curve {
    int type;
    int text;  ///< id of the name, on the panel only
    std::array<int, bands> gains;
};

inline const QList<Curve> &curves() {
    static const QList<Curve> table = [] {
        QList<Curve> list;
        for (const FactoryCurve &curve : factoryCurves) {
            list.append({curve.type, 0, curve.gains});
        }
        return list;
    }();
    return table;
}

inline const QList<Curve> &panelCurves() {
    static const QList<Curve> table{
        {0, 3, {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}}},      {1, 232, {{1, 3, 5, 0, -1, 0, -2, 0, 3, 1, 0, 0, 0}}},
        {2, 233, {{-1, 3, 3, 2, 0, -1, -1, 0, 2, 1, 0, 0, 0}}}, {3, 234, {{0, 4, 4, 0, -1, -1, 0, 3, 6, 4, 0, 0, 0}}},
        {7, 241, {{1, 3, 2, 1, 0, 0, 1, 2, 1, 0, 0, 0, 0}}},    {8, 235, {{0, 4, 5, 2, 0, -1, -2, -1, 0, -1, 0, 0, 0}}},
        {21, 229, {{1, 2, 2, 1, 0, -1, 0, 1, 2, 2, 0, 0, 0}}},
    };
    return table;
}

constexpr int pageCenters[25] = {0,  5,  11, 16, 22, 28,  33,  39,  44,  50,  56,  61, 67,
                                 72, 78, 83, 89, 95, 100, 106, 111, 117, 123, 128, 137};
constexpr int pageBorders[25] = {5,  11, 16, 22, 28,  33,  39,  44,  50,  56,  61,  67, 72,
                                 78, 83, 89, 95, 100, 106, 111, 117, 123, 128, 135, 137};
constexpr int panelCenters[25] = {0,   7,   20,  36,  54,  71,  85,  101, 116, 131, 146, 161, 176,
                                  191, 206, 222, 237, 252, 267, 283, 298, 313, 328, 343, 353};
constexpr int panelBorders[25] = {10,  18,  23,  41,  58,  75,  93,  110, 124, 138, 152, 163, 180,
                                  193, 209, 226, 241, 256, 270, 285, 302, 316, 330, 346, 371};

/// First pixel of a level's touch zone.
inline int touchY(const int (&borders)[25], int level) {
    return level == 0 ? 0 : borders[level - 1];
}

/// The sliders below a widget, from left to right.
inline QList<cm::SliderBarWidget *> sliders(const QWidget &parent) {
    QList<cm::SliderBarWidget *> list = parent.findChildren<cm::SliderBarWidget *>();
    std::sort(list.begin(), list.end(), [](const QWidget *a, const QWidget *b) { return a->x() < b->x(); });
    return list;
}

inline QList<int> levels(const QWidget &parent) {
    QList<int> list;
    for (const cm::SliderBarWidget *slider : sliders(parent)) {
        list << slider->getLevel();
    }
    return list;
}

inline QList<int> levels(const Curve &curve) {
    QList<int> list;
    for (int gain : curve.gains) {
        list << 12 - gain;
    }
    return list;
}

inline QList<int> everywhere(int level) {
    QList<int> list;
    std::fill_n(std::back_inserter(list), bands, level);
    return list;
}

/// The part of a picture that a widget paints by itself.
inline QImage picture(QWidget &widget) {
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// A slider set up by the tables above, to compare a page's with.
inline QImage sliderPicture(const QString &knobFile, const int (&centers)[25], const QSize &size,
                            const QList<int> &texts, int level) {
    QImage knob = QPixmap(knobFile).toImage();
    QImage *image = &knob;
    cm::SliderBarWidget slider(nullptr);
    slider.resize(size);
    slider.setImage(image);
    slider.setBarWidth(16);
    slider.setCenterPoint(centers, 25);
    slider.addFreqLevel(texts);
    slider.setBarLevel(level);
    return picture(slider);
}

}  // namespace reference
