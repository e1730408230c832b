#include "settingsfile.h"

#include "diskio.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace headunit {

namespace {

constexpr qint64 sizeLimit = 4 * 1024 * 1024;
constexpr int formatVersion = 1;
constexpr int asideLimit = 1000;

const QString versionMember = QStringLiteral("settings-format");
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

QString checksum(const QJsonObject &values) {
    const QByteArray text = QJsonDocument(values).toJson(QJsonDocument::Compact);
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex());
}

}  // namespace

QByteArray settingsToText(const SettingsMap &values) {
    QJsonObject members;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const bool isText = it.value().userType() == QMetaType::QString;
        members.insert(portableText(it.key()),
                       isText ? QJsonValue(portableText(it.value().toString())) : QJsonValue::fromVariant(it.value()));
    }
    const QJsonObject root{
        {versionMember, formatVersion}, {valuesMember, members}, {checksumMember, checksum(members)}};
    return QJsonDocument(root).toJson();
}

bool settingsFromText(const QByteArray &text, SettingsMap *values, QString *problem) {
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
    const QJsonObject members = root.value(valuesMember).toObject();
    if (root.contains(checksumMember) && root.value(checksumMember).toString() != checksum(members)) {
        *problem = QStringLiteral("wrong checksum");
        return false;
    }
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
    *values = result;
    return true;
}

SettingsFile::SettingsFile(const QString &path) : m_path(path) {}

SettingsFile::Presence SettingsFile::read(const QString &path, SettingsMap *values, QString *reason) {
    QByteArray text;
    const DiskResult result = readFile(path, sizeLimit, &text);
    if (!result.ok()) {
        *reason = result.error;
        return result.missing ? Presence::Missing : Presence::Bad;
    }
    return settingsFromText(text, values, reason) ? Presence::Good : Presence::Bad;
}

bool SettingsFile::load(SettingsMap *values, QString *problem) {
    m_present = readOrSetAside(m_path, values, problem);
    if (m_present == Presence::Good) {
        return true;
    }
    // No file but a copy is no damage: the last save was cut between its two renames.
    m_copyPresent = readOrSetAside(backupPath(), values, problem);
    if (!problem->isEmpty()) {
        *problem += m_copyPresent == Presence::Good ? QStringLiteral("; the last good copy is used")
                                                    : QStringLiteral("; the factory state is used");
    }
    return m_copyPresent == Presence::Good;
}

bool SettingsFile::peek(SettingsMap *values) const {
    QString reason;
    return read(m_path, values, &reason) == Presence::Good || read(backupPath(), values, &reason) == Presence::Good;
}

SettingsFile::Presence SettingsFile::readOrSetAside(const QString &path, SettingsMap *values, QString *problem) {
    QString reason;
    const Presence presence = read(path, values, &reason);
    if (presence != Presence::Bad) {
        return presence;
    }
    *problem +=
        (problem->isEmpty() ? QStringLiteral("settings file %1: %2") : QStringLiteral("; %1: %2")).arg(path, reason);
    QString newName;
    if (!setAside(path, &newName, &reason)) {
        *problem += QStringLiteral("; cannot be set aside: %1").arg(reason);
        return Presence::Bad;
    }
    *problem += QStringLiteral("; set aside as %1").arg(newName);
    return Presence::Missing;
}

bool SettingsFile::setAside(const QString &path, QString *newName, QString *reason) {
    for (int number = 1; number <= asideLimit; ++number) {
        *newName = QStringLiteral("%1.damaged-%2").arg(path).arg(number);
        if (!pathExists(*newName)) {
            const DiskResult result = renameFile(path, *newName);
            *reason = result.error;
            return result.ok() || result.missing;
        }
    }
    *reason = QStringLiteral("too many damaged files beside it");
    return false;
}

bool SettingsFile::save(const SettingsMap &values, QString *problem) {
    const auto failed = [this, problem](const QString &reason) {
        *problem = QStringLiteral("settings file %1 cannot be written: %2").arg(m_path, reason);
        return false;
    };
    for (Presence *presence : {&m_present, &m_copyPresent}) {  // what could not be set aside when it was read
        QString newName;
        QString reason;
        if (*presence == Presence::Bad) {
            if (!setAside(presence == &m_present ? m_path : backupPath(), &newName, &reason)) {
                return failed(reason);
            }
            *presence = Presence::Missing;
        }
    }
    const QString newPath = m_path + QStringLiteral(".new");
    DiskResult result = writeFileDurably(newPath, settingsToText(values));
    if (!result.ok()) {
        return failed(result.error);
    }
    if (m_present == Presence::Good) {
        result = renameFile(m_path, backupPath());
        if (!result.ok() && !result.missing) {
            return failed(result.error);
        }
        m_present = Presence::Missing;
    }
    result = renameFile(newPath, m_path);
    if (!result.ok()) {
        return failed(result.error);
    }
    m_present = Presence::Good;
    result = syncFolder(QFileInfo(m_path).path());
    return result.ok() || failed(result.error);
}

}  // namespace headunit
