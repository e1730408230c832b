// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/deskwindow.h"

#include "headunit/host/app/deskkey.h"
#include "headunit/host/screens/hardkeys.h"
#include "headunit/host/screens/look.h"
#include "headunit/host/screens/texts.h"
#include "keyevent.h"
#include "translator.h"

#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QWindow>

namespace headunit {

namespace {

// Where the parts of the unit stand in it.
constexpr QRect screenPlace(0, 0, look::screenWidth, look::screenHeight);
constexpr QRect hardKeysPlace(look::screenWidth, 0, HardKeys::stripWidth, look::screenHeight);
constexpr QRect deskKeyPlace(look::screenWidth, 566, HardKeys::stripWidth, 30);  // in the space below the last hard key

/// The hard key that a key of the desk's keyboard stands for; 0: none.
int hardKeyOf(int key) {
    switch (key) {
        case Qt::Key_Plus:
        case Qt::Key_VolumeUp:
            return KeyEvent::VolumeUp;
        case Qt::Key_Minus:
        case Qt::Key_VolumeDown:
            return KeyEvent::VolumeDown;
        case Qt::Key_M:
        case Qt::Key_VolumeMute:
            return KeyEvent::Mute;
        case Qt::Key_Escape:
        case Qt::Key_Back:
            return KeyEvent::Back;
        case Qt::Key_Home:
        case Qt::Key_HomePage:
            return KeyEvent::Home;
        default:
            return 0;
    }
}

}  // namespace

DeskWindow::DeskWindow(Size size)
    : m_screen(new QWidget(this)), m_hardKeys(new HardKeys(hardKeysPlace, this)), m_deskKey(new DeskKey(this)) {
    setWindowTitle(QStringLiteral("Head unit"));
    setWindowIcon(QIcon(QStringLiteral(":/headunit/icon.png")));
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (size == Size::Fixed) {
        setFixedSize(unitSize());
    } else {
        resize(unitSize());
    }
    m_screen->setObjectName(QStringLiteral("screen"));
    m_screen->setGeometry(screenPlace);
    m_deskKey->setGeometry(deskKeyPlace);
    m_deskKey->setAccessibleName(Translator::translate(texts::tunersDesk));
    connect(m_deskKey, &QAbstractButton::clicked, this, &DeskWindow::deskWanted);
}

QSize DeskWindow::unitSize() {
    return {look::screenWidth + HardKeys::stripWidth, look::screenHeight};
}

void DeskWindow::resizeEvent(QResizeEvent *) {
    const QSize room = (size() - unitSize()).expandedTo(QSize(0, 0));
    const QPoint origin(room.width() / 2, room.height() / 2);
    m_screen->move(origin + screenPlace.topLeft());
    m_hardKeys->move(origin + hardKeysPlace.topLeft());
    m_deskKey->move(origin + deskKeyPlace.topLeft());
}

void DeskWindow::paintEvent(QPaintEvent *event) {
    QPainter(this).fillRect(event->rect(), look::bezel);
}

void DeskWindow::showEvent(QShowEvent *) {
    // A child that covers the whole window spares it its own paint event, so the first picture is seen at the window
    // below.
    if (!m_exposed) {
        windowHandle()->installEventFilter(this);
    }
}

bool DeskWindow::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Expose) {
        m_exposed = true;
        watched->removeEventFilter(this);
        Q_EMIT exposed();
    }
    return false;
}

void DeskWindow::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_deskKey->setAccessibleName(Translator::translate(texts::tunersDesk));
    }
    QWidget::changeEvent(event);
}

void DeskWindow::closeEvent(QCloseEvent *event) {
    QWidget::closeEvent(event);
    QCoreApplication::quit();  // whatever of the tuner's desk is open
}

void DeskWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_F12) {
        Q_EMIT deskWanted();
    } else if (const int key = hardKeyOf(event->key())) {
        Q_EMIT m_hardKeys->keyPressed(key);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void DeskWindow::keyReleaseEvent(QKeyEvent *event) {
    if (const int key = hardKeyOf(event->key())) {
        Q_EMIT m_hardKeys->keyReleased(key);
    } else {
        QWidget::keyReleaseEvent(event);
    }
}

}  // namespace headunit
