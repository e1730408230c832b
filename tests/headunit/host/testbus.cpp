// SPDX-License-Identifier: Apache-2.0
#include "testbus.h"

#include <QFile>

namespace {

constexpr int patience = 60000;  // ms
constexpr char socket[] = "bus";

constexpr char configuration[] = R"(<busconfig>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

}  // namespace

void TestBus::setAddress(const QTemporaryDir &folder) {
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + QFile::encodeName(folder.filePath(socket)));
}

TestBus::TestBus(const QTemporaryDir &folder) {
    QFile file(folder.filePath("bus.conf"));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("%s", qPrintable(file.errorString()));
    }
    file.write(QString(configuration).arg(folder.filePath(socket)).toUtf8());
    file.close();
    m_process.start("dbus-daemon", {"--config-file=" + file.fileName(), "--nofork", "--print-address"});
    if (!m_process.waitForReadyRead(patience)) {  // it listens once it tells its address
        qFatal("dbus-daemon: %s", qPrintable(m_process.errorString()));
    }
}
