// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCache>
#include <QFont>
#include <QPixmap>
#include <QRect>

class QPainter;

namespace headunit {

/// Texts as pictures: a text that was drawn before is blitted. Shaping and drawing a caption anew costs several
/// times as much, and a screen draws the same captions and numbers again and again.
class TextPictures {
public:
    /// Draws \a text into \a rect as QPainter::drawText() would, with the painter's font.
    void draw(QPainter *painter, const QRect &rect, int flags, const QString &text, const QColor &colour);

private:
    struct Key {
        QString text;
        QFont font;
        QRgb colour;
        QSize size;
        int flags;
        qreal ratio;

        bool operator==(const Key &other) const;
        friend uint qHash(const Key &key, uint seed) {
            return ::qHash(key.text, seed) ^ key.colour ^ (uint(key.size.width()) << 16) ^ uint(key.size.height());
        }
    };
    struct Picture {
        QPoint offset;  ///< from the rectangle's corner
        QPixmap pixmap;
    };

    Picture render(const Key &key) const;

    QCache<Key, Picture> m_pictures{maxBytes};

    static constexpr int maxBytes = 768 * 1024;
};

}  // namespace headunit
