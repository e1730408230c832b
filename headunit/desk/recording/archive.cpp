// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/recording/archive.h"

#include <QDateTime>
#include <QSaveFile>

#include <memory>

#include <archive.h>
#include <archive_entry.h>

namespace headunit {

namespace {

la_ssize_t writeToFile(archive *, void *file, const void *bytes, size_t count) {
    return static_cast<QSaveFile *>(file)->write(static_cast<const char *>(bytes), static_cast<qint64>(count));
}

bool add(archive *packed, const ArchiveEntry &entry) {
    constexpr int readable = 0644;
    const std::unique_ptr<archive_entry, decltype(&archive_entry_free)> header(archive_entry_new(), archive_entry_free);
    archive_entry_set_pathname(header.get(), entry.name.toUtf8().constData());
    archive_entry_set_filetype(header.get(), AE_IFREG);
    archive_entry_set_perm(header.get(), readable);
    archive_entry_set_size(header.get(), entry.bytes.size());
    archive_entry_set_mtime(header.get(), QDateTime::currentSecsSinceEpoch(), 0);
    return archive_write_header(packed, header.get()) == ARCHIVE_OK &&
           archive_write_data(packed, entry.bytes.constData(), static_cast<size_t>(entry.bytes.size())) ==
               entry.bytes.size();
}

bool pack(QSaveFile *file, const QVector<ArchiveEntry> &entries) {
    const std::unique_ptr<archive, decltype(&archive_write_free)> packed(archive_write_new(), archive_write_free);
    archive_write_add_filter_gzip(packed.get());
    archive_write_set_format_pax_restricted(packed.get());
    bool good = archive_write_open(packed.get(), file, nullptr, writeToFile, nullptr) == ARCHIVE_OK;
    for (const ArchiveEntry &entry : entries) {
        good = good && add(packed.get(), entry);
    }
    return archive_write_close(packed.get()) == ARCHIVE_OK && good;
}

}  // namespace

QString writeArchive(const QString &path, const QVector<ArchiveEntry> &entries) {
    QSaveFile file(path);
    const bool good = file.open(QIODevice::WriteOnly) && pack(&file, entries) && file.commit();
    return good ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
}

}  // namespace headunit
