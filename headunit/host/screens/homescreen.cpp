// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/homescreen.h"

#include "headunit/host/screens/key.h"
#include "headunit/host/screens/look.h"
#include "headunit/host/screens/statusbar.h"
#include "headunit/host/screens/texts.h"
#include "translator.h"

#include <QEvent>
#include <QPainter>

namespace headunit {

namespace {

constexpr int largestTileWidth = 272;
constexpr int tileHeight = 288;
constexpr int failureLineHeight = 40;
constexpr int failureLines = 3;  ///< as many as fit below the tiles
constexpr int footHeight = 24;   ///< free below the last line

}  // namespace

HomeScreen::HomeScreen(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("home"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setGeometry(0, 0, look::screenWidth, look::screenHeight);
    setFont(look::font(look::captionPixels));
}

void HomeScreen::setApplications(const QStringList &applications, const QStringList &failures) {
    for (Key *const tile : findChildren<Key *>()) {
        tile->setObjectName(QString());
        tile->hide();
        tile->deleteLater();  // it may have been what was tapped
    }
    m_failures = failures;
    addTiles(applications);
    update();
}

void HomeScreen::addTiles(const QStringList &applications) {
    const int count = applications.size() + 2;
    const int room = width() - (count + 1) * look::margin;
    const int tileWidth = qMin(largestTileWidth, room / count);
    // In the middle of what the status bar and the failures leave free.
    const int failuresTop = height() - qMin(m_failures.size(), failureLines) * failureLineHeight - footHeight;
    const int y = (StatusBar::barHeight + failuresTop - tileHeight) / 2;
    int x = (width() - count * tileWidth - (count - 1) * look::margin) / 2;
    const auto addTile = [&](const QString &name, const char *picture) {
        Key *tile = new Key(name, QRect(x, y, tileWidth, tileHeight), this);
        tile->setPicture(QString::fromLatin1(picture));
        tile->setVisible(true);
        x += tileWidth + look::margin;
        return tile;
    };
    for (const QString &id : applications) {
        const bool isAudio = id == QLatin1String("audiosetting");
        Key *tile = addTile(QStringLiteral("tile_") + id, isAudio ? "tile_audiosetting" : "tile_application");
        tile->setText(id);
        tile->setTextId(isAudio ? texts::audioSettings : 0);
        connect(tile, &Key::clicked, this, [this, id] { Q_EMIT applicationChosen(id); });
    }
    Key *bandAdjust = addTile(QStringLiteral("tile_bandadjust"), "tile_bandadjust");
    bandAdjust->setTextId(texts::bandAdjust);
    connect(bandAdjust, &Key::clicked, this, &HomeScreen::bandAdjustChosen);
    Key *car = addTile(QStringLiteral("tile_car"), "tile_car");
    car->setTextId(texts::car);
    connect(car, &Key::clicked, this, &HomeScreen::carChosen);
}

void HomeScreen::setSilence(int textId, bool fault) {
    if (textId != m_silenceTextId || fault != m_silenceIsFault) {
        m_silenceTextId = textId;
        m_silenceIsFault = fault;
        update();
    }
}

QString HomeScreen::silence() const {
    return m_silenceTextId ? Translator::translate(m_silenceTextId) : QString();
}

void HomeScreen::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        update();
    }
    QWidget::changeEvent(event);
}

void HomeScreen::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    look::paintBackground(painter, rect());
    // The last failures are the ones that fit; all of them are on standard error.
    const QStringList shown = m_failures.mid(qMax(0, m_failures.size() - failureLines));
    QRect line(look::margin, height() - footHeight - shown.size() * failureLineHeight, width() - 2 * look::margin,
               failureLineHeight);
    painter.setPen(m_silenceIsFault ? look::warning : look::softText);
    painter.drawText(line.translated(0, -failureLineHeight), Qt::AlignCenter, silence());
    painter.setPen(look::warning);
    for (const QString &failure : shown) {
        painter.drawText(line, Qt::AlignCenter,
                         painter.fontMetrics().elidedText(failure, Qt::ElideMiddle, line.width()));
        line.translate(0, failureLineHeight);
    }
}

}  // namespace headunit
