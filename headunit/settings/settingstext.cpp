// SPDX-License-Identifier: Apache-2.0
#include "settingstext.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace headunit {

namespace {

constexpr int formatVersion = 1;

const QString versionMember = QStringLiteral("settings-format");
const QString numberMember = QStringLiteral("change");
const QString valuesMember = QStringLiteral("values");
const QString checksumMember = QStringLiteral("sha256");

/// Text as UTF-8 can carry it, so that it reads back as the very same text.
QString portableText(const QString &text) {
    const QByteArray bytes = text.toUtf8();
    return QString::fromUtf8(bytes.constData(), bytes.size());  // with its size, as text may hold a zero
}

QVariant fromMember(const QJsonValue &member) {
    constexpr double exactLimit = 9007199254740992.0;  // 2^53: whole numbers up to here are exact
    switch (member.type()) {
        case QJsonValue::Bool:
        case QJsonValue::String:
            return member.toVariant();
        case QJsonValue::Double:
            return std::abs(member.toDouble()) < exactLimit && std::trunc(member.toDouble()) == member.toDouble()
                       ? storableValue(static_cast<qlonglong>(member.toDouble()))
                       : QVariant(member.toDouble());
        default:
            return QVariant();
    }
}

QByteArray hash(const QByteArray &text) {
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex();
}

/// The text in the checksum's place while it is taken over the bytes as they are written.
QByteArray blank() {
    return QByteArray(64, '0');
}

/// As units took it before: over everything but itself in another spelling, which an odd key may not survive.
QByteArray olderChecksum(QJsonObject root) {
    root.remove(checksumMember);
    return hash(QJsonDocument(root).toJson(QJsonDocument::Compact));
}

bool checksumIsRight(QByteArray text, const QJsonObject &root) {
    const QByteArray said = root.value(checksumMember).toString().toLatin1();
    if (said.size() != blank().size()) {
        return false;
    }
    text.replace(text.indexOf(said), said.size(), blank());  // the first: values come after it
    return said == hash(text) || said == olderChecksum(root);
}

}  // namespace

QByteArray settingsToText(const Snapshot &snapshot) {
    QJsonObject members;
    for (auto it = snapshot.values.cbegin(); it != snapshot.values.cend(); ++it) {
        const bool isText = it.value().userType() == QMetaType::QString;
        members.insert(portableText(it.key()),
                       isText ? QJsonValue(portableText(it.value().toString())) : QJsonValue::fromVariant(it.value()));
    }
    QJsonObject root{{versionMember, formatVersion}, {numberMember, snapshot.number}, {valuesMember, members}};
    root.insert(checksumMember, QString::fromLatin1(blank()));
    QByteArray text = QJsonDocument(root).toJson();
    return text.replace(text.indexOf(blank()), blank().size(), hash(text));
}

bool settingsFromText(const QByteArray &text, Snapshot *snapshot, QString *problem) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        *problem = QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset);
        return false;
    }
    const QJsonObject root = document.object();
    if (root.value(versionMember).toInt() != formatVersion || !root.value(valuesMember).isObject()) {
        *problem = QStringLiteral("not a settings file of format %1").arg(formatVersion);
        return false;
    }
    if (!checksumIsRight(text, root)) {
        *problem = root.contains(checksumMember) ? QStringLiteral("wrong checksum") : QStringLiteral("no checksum");
        return false;
    }
    const QJsonObject members = root.value(valuesMember).toObject();
    SettingsMap result;
    result.reserve(members.size());
    for (auto it = members.begin(); it != members.end(); ++it) {
        const QVariant value = fromMember(it.value());
        if (!value.isValid()) {
            *problem = QStringLiteral("%1 holds no simple value").arg(it.key());
            return false;
        }
        result.insert(it.key(), value);
    }
    snapshot->values = result;
    snapshot->number = static_cast<qint64>(root.value(numberMember).toDouble());
    return true;
}

}  // namespace headunit
