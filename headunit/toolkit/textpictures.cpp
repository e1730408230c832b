// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/textpictures.h"

#include <QPainter>

namespace headunit {

namespace {

const int overhang = 4;  // px by which glyphs may stand out of the rectangle that the text takes

}  // namespace

bool TextPictures::Key::operator==(const Key &other) const {
    return text == other.text && colour == other.colour && size == other.size && flags == other.flags &&
           qFuzzyCompare(ratio, other.ratio) && font == other.font;
}

void TextPictures::draw(QPainter *painter, const QRect &rect, int flags, const QString &text, const QColor &colour) {
    if (text.isEmpty() || rect.isEmpty()) {
        return;
    }
    const Key key{text, painter->font(), colour.rgba(), rect.size(), flags, painter->device()->devicePixelRatioF()};
    if (const Picture *const known = m_pictures.object(key)) {
        painter->drawPixmap(rect.topLeft() + known->offset, known->pixmap);
        return;
    }
    const Picture rendered = render(key);
    painter->drawPixmap(rect.topLeft() + rendered.offset, rendered.pixmap);
    const QSize size = rendered.pixmap.size();
    const int bytes = size.width() * size.height() * 4;
    if (bytes > 0 && bytes <= maxBytes) {
        m_pictures.insert(key, new Picture(rendered), bytes);
    }
}

TextPictures::Picture TextPictures::render(const Key &key) const {
    const QRect whole(QPoint(), key.size);
    QPixmap pixmap(key.size * key.ratio);
    pixmap.setDevicePixelRatio(key.ratio);
    pixmap.fill(Qt::transparent);
    QRect taken;
    {
        QPainter painter(&pixmap);
        painter.setFont(key.font);
        painter.setPen(QColor::fromRgba(key.colour));
        painter.drawText(whole, key.flags, key.text, &taken);
    }
    const QRect kept = taken.adjusted(-overhang, -overhang, overhang, overhang) & whole;
    const QRect pixels((QPointF(kept.topLeft()) * key.ratio).toPoint(), (QSizeF(kept.size()) * key.ratio).toSize());
    return {kept.topLeft(), pixmap.copy(pixels)};
}

}  // namespace headunit
