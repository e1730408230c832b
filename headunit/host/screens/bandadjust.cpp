#include "headunit/host/screens/bandadjust.h"

#include <QCoreApplication>
#include <QLibrary>

namespace headunit {

QWidget *createBandAdjust(QWidget *parent) {
    QLibrary library(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/libheadunitbandadjust.so"));
    const auto entry = reinterpret_cast<BandAdjustEntry>(library.resolve(bandAdjustEntryName));
    if (!entry) {
        qWarning("no band adjust here: %s", qUtf8Printable(library.errorString()));
        return nullptr;
    }
    return entry(parent);
}

}  // namespace headunit
