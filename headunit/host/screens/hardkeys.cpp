// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/hardkeys.h"

#include "headunit/host/screens/key.h"
#include "headunit/host/screens/look.h"
#include "headunit/host/screens/texts.h"
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
    int nameTextId;
    const char *action;
};

constexpr HardKeyRow rows[] = {
    {"hardkey_home", "home", KeyEvent::Home, false, texts::hardHome, ""},
    {"hardkey_back", "back", KeyEvent::Back, false, texts::hardBack, ""},
    {"hardkey_volume_up", "volume_up", KeyEvent::VolumeUp, true, texts::hardVolume, "+"},
    {"hardkey_volume_down", "volume_down", KeyEvent::VolumeDown, true, texts::hardVolume, u8"\u2212"},
    {"hardkey_mute", "mute", KeyEvent::Mute, false, texts::hardMute, ""},
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
        key->setNameTextId(row.nameTextId, QString::fromUtf8(row.action));
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
