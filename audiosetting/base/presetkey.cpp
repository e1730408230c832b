// SPDX-License-Identifier: Apache-2.0
#include "presetkey.h"

#include "pushbutton.h"

#include <QAbstractButton>
#include <QIcon>
#include <QMouseEvent>
#include <QPushButton>
#include <QVariant>

namespace audiosetting {

namespace {

const char longClickProperty[] = "long_click";
const char savedProperty[] = "preset_saved";  // whether the key's pictures are those of a saved preset

QIcon presetIcon(int preset, bool saved) {
    QIcon icon;
    if (!saved) {
        const QString pressed = QStringLiteral(":/corvina_icon/key_preset_click_p.png");
        icon.addFile(QStringLiteral(":/corvina_icon/key_preset_click_n.png"), QSize(), QIcon::Normal, QIcon::Off);
        icon.addFile(pressed, QSize(), QIcon::Selected, QIcon::Off);
        icon.addFile(pressed, QSize(), QIcon::Selected, QIcon::On);
        return icon;
    }
    const QString file = QStringLiteral(":/corvina_icon/key_timing_preset_%1_%2.png").arg(preset + 1);
    icon.addFile(file.arg(QStringLiteral("n")), QSize(), QIcon::Normal, QIcon::Off);
    icon.addFile(file.arg(QStringLiteral("s")), QSize(), QIcon::Active, QIcon::On);
    icon.addFile(file.arg(QStringLiteral("p")), QSize(), QIcon::Selected, QIcon::Off);
    icon.addFile(file.arg(QStringLiteral("s")), QSize(), QIcon::Selected, QIcon::On);
    return icon;
}

class LiftBesideKey : public QObject {
public:
    explicit LiftBesideKey(QAbstractButton *key) : QObject(key), m_key(key) { key->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::MouseButtonRelease) {
            // As the button decides it: outside, the release is no click.
            if (!m_key->rect().contains(static_cast<QMouseEvent *>(event)->pos())) {
                setLongClick(m_key, false);
            }
        }
        return false;
    }

private:
    QAbstractButton *const m_key;
};

}  // namespace

void saveOnHold(QPushButton *key, QObject *page, const char *slot) {
    cm::PushButton *hold = new cm::PushButton(key, page);
    hold->setLongPressedInterval(presetHold);
    QObject::connect(hold, SIGNAL(longPressed()), page, slot);
}

void showPreset(QAbstractButton *key, int preset, bool saved) {
    const QVariant shown = key->property(savedProperty);
    if (!shown.isValid() || shown.toBool() != saved) {
        key->setProperty(savedProperty, saved);
        key->setIcon(presetIcon(preset, saved));
    }
}

void setLongClick(QAbstractButton *key, bool on) {
    key->setProperty(longClickProperty, on);
}

bool longClick(const QAbstractButton *key) {
    return key->property(longClickProperty).toBool();
}

void endLongClickBesideKey(QAbstractButton *key) {
    new LiftBesideKey(key);
}

}  // namespace audiosetting
