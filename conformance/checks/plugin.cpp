// SPDX-License-Identifier: Apache-2.0
// The plug-in on this unit: whether it loads, and whether it looks as it should.

#include "plugin.h"

#include "appplugin.h"
#include "check.h"
#include "windowinterface.h"

#include <QAbstractButton>
#include <QImage>
#include <QJsonObject>
#include <QLabel>
#include <QPainter>

using namespace conformance;

namespace {

const char everything[] = "the application";

QImage picture(QWidget *widget) {
    QImage image(widget->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// How many pixels have that colour.
int count(const QImage &image, QRgb colour) {
    int number = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            number += image.pixel(x, y) == colour;
        }
    }
    return number;
}

/// The key's picture of a mode as it stands on black.
QImage pictureOf(const QAbstractButton *key, QIcon::Mode mode, QIcon::State state) {
    QImage image(key->size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    const QPixmap pixmap = key->icon().pixmap(key->iconSize(), mode, state);
    QRect target(QPoint(), pixmap.size() / pixmap.devicePixelRatio());
    target.moveCenter(key->rect().center());
    QPainter(&image).drawPixmap(target, pixmap);
    return image;
}

}  // namespace

CHECK(pluginRecord, "plugin.record", "The metadata record names \"com.norvale.Qt.audiosettingPlugin\" and a class.",
      everything) {
    Plugin plugin;
    if (plugin.load()) {
        const QJsonObject record = plugin.loader().metaData();
        expect("IID", QStringLiteral("com.norvale.Qt.audiosettingPlugin"),
               record.value(QStringLiteral("IID")).toString());
        expectTrue("className", !record.value(QStringLiteral("className")).toString().isEmpty());
        expect("windows", QList<int>({33}), plugin.root()->windowInterfaceID());
        expectTrue("the window is the same at every call",
                   plugin.root()->requestWindowInterface(33) == plugin.window());
    }
}

CHECK(pluginOpens, "plugin.opens",
      "After onCreate() the window has a widget, which lies in the host's screen and is shown.", everything) {
    Plugin plugin;
    if (plugin.load() && plugin.open()) {
        expectTrue("General is on the screen",
                   plugin.find(QStringLiteral("Audiosetting_right_general_widget")) != nullptr);
        expect("backEvent()", 1, plugin.window()->backEvent());
        plugin.leave();
        expectTrue("it is hidden", !plugin.window()->mainWidget()->isVisible());
        expectTrue("it opens again", plugin.open());
    }
}

CHECK(lookCaptions, "look.captions", "Captions are white on the unit, whatever its style and palette.",
      "every page: captions cannot be read") {
    Plugin plugin;
    if (!plugin.load() || !plugin.open()) {
        return;
    }
    for (const char *name : {"Txt_title", "text_defeat", "text_Advanced"}) {
        QWidget *const caption = plugin.find(QLatin1String(name));
        expectTrue(QStringLiteral("%1 is on the screen").arg(QLatin1String(name)), caption != nullptr);
        if (caption) {
            const QImage image = picture(caption);
            expectTrue(QStringLiteral("%1 has white pixels").arg(QLatin1String(name)), count(image, 0xFFFFFFFF) > 10);
        }
    }
}

CHECK(lookKeys, "look.keys", "A key is its picture and nothing else: no bevel, no frame.",
      "every page: light bevels behind the keys") {
    Plugin plugin;
    if (!plugin.load() || !plugin.open()) {
        return;
    }
    for (const char *name : {"key_advanced", "key_eq", "key_defeat", "key_return"}) {
        const QAbstractButton *const key = qobject_cast<QAbstractButton *>(plugin.find(QLatin1String(name)));
        expectTrue(QStringLiteral("%1 is on the screen").arg(QLatin1String(name)), key != nullptr);
        if (key) {
            expectTrue(QStringLiteral("%1 at rest is its picture").arg(QLatin1String(name)),
                       picture(const_cast<QAbstractButton *>(key)) == pictureOf(key, QIcon::Normal, QIcon::Off));
        }
    }
}

CHECK(lookPressed, "look.pressed", "A pressed key shows its pressed picture at once.",
      "every key: no answer to the finger") {
    Plugin plugin;
    if (!plugin.load() || !plugin.open()) {
        return;
    }
    QAbstractButton *const key = qobject_cast<QAbstractButton *>(plugin.find(QStringLiteral("key_advanced")));
    if (key) {
        Finger finger;
        finger.press(key, key->rect().center());
        expectTrue("key_advanced pressed is its picture", picture(key) == pictureOf(key, QIcon::Selected, QIcon::On));
        finger.move(key, QPoint(-200, -200));
        finger.release(key, QPoint(-200, -200));
    }
}
