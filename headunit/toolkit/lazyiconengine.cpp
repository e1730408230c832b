// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/lazyiconengine.h"

#include "headunit/toolkit/picture.h"

#include <QPainter>
#include <QtPlugin>

#include <array>

namespace headunit {

namespace {

struct Key {
    QIcon::Mode mode;
    QIcon::State state;
};

/// The states whose picture serves (mode, state), the nearest first.
std::array<Key, 8> candidates(QIcon::Mode mode, QIcon::State state) {
    const QIcon::State other = state == QIcon::On ? QIcon::Off : QIcon::On;
    if (mode == QIcon::Disabled || mode == QIcon::Selected) {
        const QIcon::Mode opposite = mode == QIcon::Disabled ? QIcon::Selected : QIcon::Disabled;
        return {{{mode, state},
                 {QIcon::Normal, state},
                 {QIcon::Active, state},
                 {mode, other},
                 {QIcon::Normal, other},
                 {QIcon::Active, other},
                 {opposite, state},
                 {opposite, other}}};
    }
    const QIcon::Mode opposite = mode == QIcon::Normal ? QIcon::Active : QIcon::Normal;
    return {{{mode, state},
             {opposite, state},
             {mode, other},
             {opposite, other},
             {QIcon::Disabled, state},
             {QIcon::Selected, state},
             {QIcon::Disabled, other},
             {QIcon::Selected, other}}};
}

}  // namespace

void LazyIconEngine::addFile(const QString &fileName, const QSize &, QIcon::Mode mode, QIcon::State state) {
    add({mode, state, fileName, QPixmap()});
}

void LazyIconEngine::addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state) {
    add({mode, state, QString(), pixmap});
}

void LazyIconEngine::add(const Entry &entry) {
    for (Entry &present : m_entries) {
        if (present.mode == entry.mode && present.state == entry.state) {
            present = entry;
            return;
        }
    }
    m_entries.append(entry);
}

const QPixmap *LazyIconEngine::picture(QIcon::Mode mode, QIcon::State state) const {
    for (const Key &key : candidates(mode, state)) {
        for (Entry &entry : m_entries) {
            if (entry.mode != key.mode || entry.state != key.state) {
                continue;
            }
            if (entry.pixmap.isNull() && !entry.fileName.isEmpty()) {
                entry.pixmap = loadPicture(entry.fileName);
            }
            if (!entry.pixmap.isNull()) {
                return &entry.pixmap;
            }
        }
    }
    return nullptr;
}

QPixmap LazyIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) {
    const QPixmap *found = picture(mode, state);
    if (!found) {
        return QPixmap();
    }
    // As with Qt's engine, a picture is made smaller to fit and never larger.
    const QSize target = actualSize(size, mode, state);
    return target == found->size() ? *found : found->scaled(target, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

void LazyIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) {
    const qreal ratio = painter->device()->devicePixelRatioF();
    QPixmap drawn = pixmap(rect.size() * ratio, mode, state);
    drawn.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, drawn);
}

QSize LazyIconEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) {
    const QPixmap *found = picture(mode, state);
    if (!found) {
        return QSize();
    }
    const QSize own = found->size();
    return own.width() > size.width() || own.height() > size.height() ? own.scaled(size, Qt::KeepAspectRatio) : own;
}

QList<QSize> LazyIconEngine::availableSizes(QIcon::Mode mode, QIcon::State state) const {
    for (const Entry &entry : qAsConst(m_entries)) {
        if (entry.mode == mode && entry.state == state) {
            return {picture(mode, state)->size()};
        }
    }
    return {};
}

QIconEngine *LazyIconEngine::clone() const {
    return new LazyIconEngine(*this);
}

QString LazyIconEngine::key() const {
    return QStringLiteral("LazyIconEngine");
}

QIconEngine *LazyIconEnginePlugin::create(const QString &) {
    // The icon adds the file itself, with its mode and state.
    return new LazyIconEngine;
}

}  // namespace headunit

using headunit::LazyIconEnginePlugin;  // NOLINT(misc-unused-using-decls): the macro names it
Q_IMPORT_PLUGIN(LazyIconEnginePlugin)
