// SPDX-License-Identifier: Apache-2.0
#include "damagedfile.h"

#include "diskio.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <vector>

namespace headunit {

namespace {

constexpr size_t kept = 3;
constexpr int largest = 1000000000;

struct Damaged {
    int number;
    QString path;
};

/// The damaged files beside \a path, the oldest first.
std::vector<Damaged> damagedFiles(const QString &path) {
    const QFileInfo info(path);
    const QString start = info.fileName() + QStringLiteral(".damaged-");
    std::vector<Damaged> list;
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QString &name : info.dir().entryList(all)) {
        bool isNumber = false;
        const int number = name.midRef(start.size()).toInt(&isNumber);
        if (isNumber && number > 0 && number < largest && name.startsWith(start)) {
            list.push_back({number, info.dir().filePath(name)});
        }
    }
    std::sort(list.begin(), list.end(), [](const Damaged &a, const Damaged &b) { return a.number < b.number; });
    return list;
}

}  // namespace

bool setDamagedFileAside(const QString &path, QString *newName, QString *reason) {
    std::vector<Damaged> older = damagedFiles(path);
    *newName = QStringLiteral("%1.damaged-%2").arg(path).arg(older.empty() ? 1 : older.back().number + 1);
    const DiskResult result = renameFile(path, *newName);
    if (!result.ok()) {
        *reason = result.error;
        return result.missing;
    }
    for (size_t i = 0; i + kept <= older.size(); ++i) {
        removeFile(older[i].path);  // a folder stays: its content is somebody's
    }
    return true;
}

}  // namespace headunit
