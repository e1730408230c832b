// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QRect>

/// How far a picture is from its reference.
struct Difference {
    int pixels = 0;      ///< that differ, in the whole picture
    QRect within;        ///< around all of them
    int mostInTile = 0;  ///< of a square of tileSize pixels
    QRect tile;          ///< that square
    bool sizes = false;  ///< the pictures are not of one size: too much, whatever they show
    bool tooMuch() const;
};

/// Side of the squares in which differing pixels are counted, so that a large picture hides no small loss. They overlap
/// by half: a text of half that size lies in one of them whole.
constexpr int tileSize = 64;

/// More differing pixels than this in one square are too many.
constexpr int tileLimit = 40;

/// Whether two colours are further apart than references keep them.
bool differs(QRgb a, QRgb b);

Difference difference(const QImage &expected, const QImage &actual);

/// The picture as a reference keeps it: colours in steps, with a table of them where they are few enough.
QImage reference(const QImage &picture);

/// Both pictures side by side, and right of them the new one with every pixel that differs marked.
QImage sideBySide(const QImage &expected, const QImage &actual);
