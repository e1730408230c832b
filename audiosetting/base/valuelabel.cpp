// SPDX-License-Identifier: Apache-2.0
#include "valuelabel.h"

#include "background.h"

#include <QPainter>
#include <QStyle>

namespace audiosetting {

void ValueLabel::showEvent(QShowEvent *event) {
    m_background = backgroundBehind(this);
    setAttribute(Qt::WA_OpaquePaintEvent, !m_background.isNull());
    QLabel::showEvent(event);
}

void ValueLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    if (!m_background.isNull()) {
        painter.drawPixmap(0, 0, m_background);
    }
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), text(), foregroundRole());
}

}  // namespace audiosetting
