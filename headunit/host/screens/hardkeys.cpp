// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/hardkeys.h"

#include "headunit/host/screens/key.h"
#include "headunit/host/screens/look.h"
#include "keyevent.h"

#include <QPainter>

#include <iterator>

namespace headunit {

namespace {

constexpr int keyHeight = 96;
constexpr int repeatDelay = 500;
constexpr int repeatInterval = 120;

struct HardKeyRow {
    const char *name;
    const char *picture;
    int key;
    bool repeats;
};

constexpr HardKeyRow rows[] = {
    {"hardkey_home", "home", KeyEvent::Home, false},
    {"hardkey_back", "back", KeyEvent::Back, false},
    {"hardkey_volume_up", "volume_up", KeyEvent::VolumeUp, true},
    {"hardkey_volume_down", "volume_down", KeyEvent::VolumeDown, true},
    {"hardkey_mute", "mute", KeyEvent::Mute, false},
};

}  // namespace

HardKeys::HardKeys(const QRect &geometry, QWidget *parent) : QWidget(parent) {
    setGeometry(geometry);
    setAttribute(Qt::WA_OpaquePaintEvent);
    constexpr int count = std::size(rows);
    const int side = (width() - look::keySize) / 2;
    const int space = (height() - count * keyHeight) / (count + 1);
    int y = space;
    for (const HardKeyRow &row : rows) {
        Key *key = new Key(QString::fromLatin1(row.name), QRect(side, y, look::keySize, keyHeight), this);
        key->setPicture(QString::fromLatin1(row.picture));
        key->setAutoRepeat(row.repeats);
        key->setAutoRepeatDelay(repeatDelay);
        key->setAutoRepeatInterval(repeatInterval);
        const int code = row.key;
        connect(key, &Key::pressed, this, [this, code] { Q_EMIT keyPressed(code); });
        connect(key, &Key::released, this, [this, code] { Q_EMIT keyReleased(code); });
        y += keyHeight + space;
    }
}

void HardKeys::paintEvent(QPaintEvent *) {
    QPainter(this).fillRect(rect(), look::bezel);
}

}  // namespace headunit
