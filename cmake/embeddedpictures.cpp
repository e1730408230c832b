// SPDX-License-Identifier: Apache-2.0
#include "embeddedpictures.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QResource>

#include <dlfcn.h>

namespace {

EmbeddedPictures *theirs = nullptr;

}  // namespace

EmbeddedPictures::EmbeddedPictures(const unsigned char *const *archives, const char *denseFile)
    : m_archives(archives), m_denseFile(denseFile) {
    for (const unsigned char *const *archive = archives; *archive; ++archive) {
        QResource::registerResource(*archive);
    }
    if (QCoreApplication::instance()) {
        addDense();
    } else {
        // Part of the program itself: the display is known once the application is there.
        theirs = this;
        qAddPreRoutine(addDenseLater);
    }
}

EmbeddedPictures::~EmbeddedPictures() {
    for (const unsigned char *const *archive = m_archives; *archive; ++archive) {
        QResource::unregisterResource(*archive);
    }
    if (!m_dense.isEmpty()) {
        QResource::unregisterResource(m_dense);
    }
}

void EmbeddedPictures::addDenseLater() {
    theirs->addDense();
}

void EmbeddedPictures::addDense() {
    // A program may have an application object without a display, to print its help for example.
    const QGuiApplication *const application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (m_dense.isEmpty() && application && application->devicePixelRatio() > 1 &&
        QResource::registerResource(densePath())) {
        m_dense = densePath();
    }
}

QString EmbeddedPictures::densePath() const {
    Dl_info self;
    if (!dladdr(m_archives[0], &self)) {
        return QString();
    }
    // A library's name is its file. A program's is what it was called by, which a search path may have led to.
    const QFileInfo file(QFile::decodeName(self.dli_fname));
    const QString folder = file.isAbsolute() ? file.canonicalPath() : QCoreApplication::applicationDirPath();
    return folder + QLatin1Char('/') + QLatin1String(m_denseFile);
}
