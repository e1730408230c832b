// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/console/consolerecorder.h"

#include "headunit/desk/console/consolemodel.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/pages.h"

#include <QDateTime>
#include <QKeySequence>
#include <QList>
#include <QMutex>

namespace headunit {

namespace {

// The message handler is a plain function, and lines come from any thread.
QMutex logMutex;
QList<ConsoleRecorder *> logReaders;
QtMessageHandler nextHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    nextHandler(type, context, text);
    const QMutexLocker lock(&logMutex);
    for (ConsoleRecorder *reader : qAsConst(logReaders)) {
        QMetaObject::invokeMethod(reader, "takeLogLine", Qt::QueuedConnection, Q_ARG(QString, text));
    }
}

RowKind kindOf(TraceKind kind) {
    switch (kind) {
        case TraceKind::Read:
            return RowKind::Read;
        case TraceKind::Write:
            return RowKind::Write;
        case TraceKind::Announcement:
            return RowKind::Announcement;
        case TraceKind::Window:
            return RowKind::Window;
        case TraceKind::Touch:
            return RowKind::Posted;
        case TraceKind::Call:
            break;
    }
    return RowKind::Call;
}

QString touchCall(const Touch &touch) {
    const QString place = QStringLiteral("(%1, %2)").arg(touch.position.x()).arg(touch.position.y());
    switch (touch.kind) {
        case Touch::Down:
            return QStringLiteral("press") + place;
        case Touch::Up:
            return QStringLiteral("release") + place;
        default:
            return QStringLiteral("key(%1)").arg(QKeySequence(touch.key).toString());
    }
}

QString touchMeaning(const Touch &touch) {
    switch (touch.kind) {
        case Touch::Down:
            return deskText("finger down on %1").arg(touch.object);
        case Touch::Up:
            return deskText("finger up on %1").arg(touch.object);
        default:
            return deskText("key of the keyboard");
    }
}

}  // namespace

ConsoleRecorder::ConsoleRecorder(DeskContext &context, ConsoleModel &model)
    : m_context(context), m_model(model), m_listener([this](const TraceEntry &entry) { takeEntry(entry); }) {
    connect(&context.touches, &TouchLog::touched, this, &ConsoleRecorder::takeTouch);
    const QMutexLocker lock(&logMutex);
    if (logReaders.isEmpty()) {
        nextHandler = qInstallMessageHandler(handleMessage);
    }
    logReaders << this;
}

ConsoleRecorder::~ConsoleRecorder() {
    const QMutexLocker lock(&logMutex);
    logReaders.removeOne(this);
    if (logReaders.isEmpty()) {
        qInstallMessageHandler(nextHandler);
    }
}

void ConsoleRecorder::setReads(bool on) {
    m_listener.setReads(on ? TraceListener::WithReads : TraceListener::WithoutReads);
}

void ConsoleRecorder::append(ConsoleRow row) {
    row.time = QDateTime::currentMSecsSinceEpoch();
    row.touch = m_context.touches.number();
    if (row.page.isEmpty()) {
        row.page = frontPage(m_context.host.screen());
    }
    m_model.append(std::move(row));
}

void ConsoleRecorder::takeEntry(const TraceEntry &entry) {
    ConsoleRow row;
    row.kind = kindOf(entry.kind);
    row.call = entry.call;
    row.meaning = entry.meaning;
    row.key = entry.key;
    row.before = entry.before;
    row.after = entry.after;
    append(std::move(row));
}

void ConsoleRecorder::takeTouch(const Touch &touch) {
    if (touch.kind == Touch::Move || touch.kind == Touch::KeyUp) {
        return;  // what they cause has rows of its own
    }
    ConsoleRow row;
    row.kind = RowKind::Touch;
    row.press = touch.kind != Touch::Up;
    row.page = touch.page;
    row.call = touchCall(touch);
    row.meaning = touchMeaning(touch);
    append(std::move(row));
}

void ConsoleRecorder::takeLogLine(const QString &text) {
    ConsoleRow row;
    row.kind = RowKind::Log;
    row.meaning = text;
    append(std::move(row));
}

}  // namespace headunit
