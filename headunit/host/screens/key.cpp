// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/key.h"

#include "audioservice.h"
#include "headunit/host/screens/keyaccess.h"
#include "headunit/host/screens/look.h"
#include "translator.h"

#include <QMouseEvent>
#include <QPainter>

namespace headunit {

namespace {
constexpr int barWidth = 48;
constexpr int barHeight = 4;
constexpr int barInset = 8;
constexpr int textInset = 2;             ///< the edge's own width: a longer caption is cut
constexpr int captionBelowPicture = 64;  ///< height at the foot of a key for the text below its picture
}  // namespace

Key::Key(const QString &name, const QRect &geometry, QWidget *parent) : QAbstractButton(parent) {
    static const bool roleIsKnown = (QAccessible::installFactory(makeKeyAccess), true);
    Q_UNUSED(roleIsKnown)
    setObjectName(name);
    setGeometry(geometry);
    setFocusPolicy(Qt::NoFocus);
    setFont(look::font(look::captionPixels));
}

void Key::setTextId(int id) {
    m_textId = id;
    update();
}

void Key::setPicture(const QString &name) {
    m_picture = name;
    update();
}

void Key::setNameTextId(int id, const QString &action) {
    m_nameTextId = id;
    m_nameAction = action;
}

QString Key::name() const {
    if (!m_nameTextId) {
        return caption();
    }
    const QString text = Translator::translate(m_nameTextId);
    return m_nameAction.isEmpty() ? text : text + QLatin1Char(' ') + m_nameAction;
}

void Key::setWarns(bool warns) {
    m_warns = warns;
    update();
}

QString Key::caption() const {
    return m_textId ? Translator::translate(m_textId) : text();
}

void Key::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        qvaudio::AudioService::instance()->doBeep(0);
    }
    QAbstractButton::mousePressEvent(event);
}

void Key::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const bool lit = isDown() && !m_picture.isEmpty();
    look::paintKey(painter, rect(),
                   !isEnabled()  ? look::KeyState::Disabled
                   : lit         ? look::KeyState::Pressed
                   : isDown()    ? look::KeyState::PressedText
                   : isChecked() ? look::KeyState::Checked
                                 : look::KeyState::Normal,
                   m_warns);
    if (isChecked()) {
        painter.fillRect((width() - barWidth) / 2, height() - barInset - barHeight, barWidth, barHeight,
                         lit        ? look::litText
                         : isDown() ? colour::text
                                    : colour::accent);
    }
    QRect textArea = rect().adjusted(textInset, 0, -textInset, 0);
    if (!m_picture.isEmpty()) {
        QRect area = rect();
        if (!caption().isEmpty()) {
            area.setHeight(height() - captionBelowPicture);
            textArea.setTop(area.bottom());
            textArea.setHeight(captionBelowPicture - barInset);
        }
        look::paintPicture(painter, area, m_picture + (lit ? QLatin1String("_p") : QLatin1String("_n")));
    }
    painter.setPen(!isEnabled() ? colour::disabledText : lit ? look::litText : colour::text);
    painter.drawText(textArea, Qt::AlignCenter, caption());
}

void Key::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        update();
    }
    QAbstractButton::changeEvent(event);
}

}  // namespace headunit
