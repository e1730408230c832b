// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/livescripttarget.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QScopedValueRollback>
#include <QTimer>

namespace headunit {

void LiveScriptTarget::wait(int ms) {
    if (ms <= 0) {
        QCoreApplication::processEvents();
        return;
    }
    constexpr int timePassed = 1;
    QEventLoop loop;
    const QScopedValueRollback<QEventLoop *> present(m_loop, &loop);
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, [&loop] { loop.exit(timePassed); });
    if (loop.exec() != timePassed && m_interrupt) {
        m_interrupt();  // the unit ends, or the controller is no longer heard
    }
}

QVariantMap LiveScriptTarget::meters() {
    QVariantMap readings;
    if (m_sound) {
        QMetaObject::invokeMethod(m_sound, "readings", Q_RETURN_ARG(QVariantMap, readings));
    }
    return readings;
}

void LiveScriptTarget::endWait() {
    if (m_loop) {
        m_loop->quit();
    }
}

}  // namespace headunit
