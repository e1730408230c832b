// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/savefile.h"

#include "headunit/desk/frame/desktext.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSaveFile>

namespace headunit {

namespace {

constexpr int patience = 300;       // ms until it is said how far a job is
constexpr int stepOfSaving = 1000;  // pieces between two looks at the screen

void ask(QFileDialog *dialog, const QStringList &kinds, const std::function<void(const QString &)> &take) {
    dialog->setObjectName(QStringLiteral("file_dialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setNameFilters(kinds);
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog->parent(), take);
    dialog->open();
}

/// The suffix of "Text (*.txt)".
QString suffixOf(const QString &kind) {
    static const QRegularExpression pattern(QStringLiteral("\\*\\.([\\w.]+)"));
    return pattern.match(kind).captured(1);
}

}  // namespace

void askWhereToSave(QWidget *parent, const QString &title, const QStringList &kinds,
                    const std::function<void(const QString &path)> &take, const QString &folder) {
    auto *const dialog = new QFileDialog(parent, title, folder);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(suffixOf(kinds.first()));
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog,
                     [dialog](const QString &kind) { dialog->setDefaultSuffix(suffixOf(kind)); });
    ask(dialog, kinds, take);
}

void askWhatToOpen(QWidget *parent, const QString &title, const QStringList &kinds,
                   const std::function<void(const QString &path)> &take) {
    auto *const dialog = new QFileDialog(parent, title);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    ask(dialog, kinds, take);
}

QString saveFile(QWidget *parent, const QString &path, int count,
                 const std::function<void(QIODevice &file, int index)> &write) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    }
    QProgressDialog progress(deskText("Saving %1").arg(QFileInfo(path).fileName()), deskText("Stop"), 0, count, parent);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(patience);
    for (int index = 0; index < count; ++index) {
        if (index % stepOfSaving == 0) {
            progress.setValue(index);
            if (progress.wasCanceled()) {
                return deskText("stopped");
            }
        }
        write(file, index);
    }
    progress.setValue(count);
    return file.commit() ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
}

}  // namespace headunit
