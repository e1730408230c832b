// SPDX-License-Identifier: Apache-2.0
#include "tests/platform/recorder_p.h"

#include "platform/audioservice.h"
#include "platform/settingscache.h"
#include "platform/touchevent.h"

#include <QCoreApplication>

#include <dlfcn.h>

namespace recording {

namespace {

struct Recorder {
    QStringList log;
    int kinds = 0;
    State state;
    QHash<QString, QVariant> stored;
    QHash<QString, QVariant> shared;
    QHash<QString, QVariant> factory;
};

Recorder &recorder() {
    static Recorder instance;
    return instance;
}

}  // namespace

QString text(int value) {
    return QString::number(value);
}

QString text(bool value) {
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString text(const QString &value) {
    return QLatin1Char('"') + value + QLatin1Char('"');
}

QString text(const QVariant &value) {
    switch (static_cast<QMetaType::Type>(value.type())) {
        case QMetaType::Bool:
            return text(value.toBool());
        case QMetaType::QString:
            return text(value.toString());
        default:
            return value.isValid() ? value.toString() : QStringLiteral("QVariant()");
    }
}

bool isLogged(Kind kind) {
    return recorder().kinds & kind;
}

QHash<QString, QVariant> &storedValues() {
    return recorder().stored;
}

QHash<QString, QVariant> &sharedValues() {
    return recorder().shared;
}

QHash<QString, QVariant> &factoryValues() {
    return recorder().factory;
}

QStringList log() {
    return recorder().log;
}

QStringList take() {
    QStringList lines;
    lines.swap(recorder().log);
    return lines;
}

void clear() {
    recorder().log.clear();
}

void note(const QString &line) {
    recorder().log << line;
}

void setLogged(int kinds) {
    recorder().kinds = kinds;
}

void reset() {
    recorder() = Recorder();
}

void setStored(const QString &key, const QVariant &value) {
    storedValues().insert(key, value);
}

QVariant stored(const QString &key) {
    return storedValues().value(key);
}

void setFactory(const QHash<QString, QVariant> &values) {
    factoryValues() = values;
}

void setShared(const QString &key, const QVariant &value) {
    sharedValues().insert(key, value);
}

QVariant shared(const QString &key) {
    return sharedValues().value(key);
}

State &state() {
    return recorder().state;
}

void announceSetting(const QString &key) {
    emit mem::SettingsCache::instance()->SettingsCacheSig(key);
}

void announceVolume(int mute, int vol, int type) {
    emit qvaudio::AudioService::instance()->audioVolumeChanged(mute, vol, type);
}

}  // namespace recording

// This library comes before Qt's in the order of linking, so its definition is the one that a test's process calls: the
// only way to see an event, and its priority, at the moment when it is posted.
PLATFORM_API void QCoreApplication::postEvent(QObject *receiver, QEvent *event, int priority) {
    typedef void (*PostEvent)(QObject *, QEvent *, int);
    static const auto post =
        reinterpret_cast<PostEvent>(dlsym(RTLD_NEXT, "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi"));
    if (receiver == instance() && event->type() == TouchEvent::eventType()) {
        const auto touch = static_cast<const TouchEvent *>(event);
        recording::call("postTouch", int(touch->code()), touch->x(), touch->y(), priority);
    }
    post(receiver, event, priority);
}
