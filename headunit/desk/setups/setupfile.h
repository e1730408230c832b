// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/settings/settingsmap.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace headunit {

/// A set-up as it was read from a file.
struct SetupFile {
    SettingsMap values;   ///< by key of the store; empty where there is a problem
    QStringList remarks;  ///< what of it could not be taken as it stands, a line each
    QString problem;      ///< why nothing of it can be used: one line with its place
};

/// A difference between two set-ups.
struct SetupChange {
    QString name;
    QString before;
    QString after;
};

/// The file of the set-up in \a settings: see docs/setups.md.
QByteArray setupText(const SettingsMap &settings);
SetupFile parseSetup(const QByteArray &text);
/// A set-up, or a curve of another program (see headunit/desk/bridges/curvefile.h).
SetupFile readSetup(const QString &path);
/// What stands in a file, but not more than is enough to see that it is too large; a problem where it cannot be read.
QByteArray readText(const QString &path, QString *problem);
/// Returns what went wrong, or an empty text. The file is replaced whole or not at all.
QString writeSetup(const QString &path, const SettingsMap &settings);

/// The changes that \a wanted would make to \a settings, in the order of a file.
QVector<SetupChange> setupChanges(const SettingsMap &settings, const SettingsMap &wanted);
/// "delay.front_left: 0.0 ms → 0.5 ms".
QString setupChangeText(const SetupChange &change);

}  // namespace headunit
