// SPDX-License-Identifier: Apache-2.0
#include "plugin.h"

#include "appplugin.h"
#include "callrecorder.h"
#include "check.h"
#include "options.h"
#include "touchevent.h"
#include "windowinterface.h"

#include <QApplication>
#include <QFileInfo>

namespace conformance {

namespace {

const int windowId = 33;

/// Notes the touches that the plug-in posts, among its calls.
class TouchWatch : public QObject {
public:
    TouchWatch() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == qApp && event->type() == TouchEvent::eventType()) {
            const TouchEvent *const touch = static_cast<TouchEvent *>(event);
            noteCall(QStringLiteral("postTouch(%1, %2, %3)").arg(int(touch->code())).arg(touch->x()).arg(touch->y()));
        }
        return false;
    }
};

QWidget *findVisible(QWidget *below, const QString &name) {
    QWidget *byClass = nullptr;
    for (QWidget *widget : below->findChildren<QWidget *>()) {
        if (!widget->isVisible()) {
            continue;
        }
        if (widget->objectName() == name) {
            return widget;
        }
        if (!byClass && name == QLatin1String(widget->metaObject()->className())) {
            byClass = widget;
        }
    }
    return byClass;
}

}  // namespace

Plugin::Plugin() : m_watch(new TouchWatch) {
    m_screen.setFixedSize(1024, 600);
}

Plugin::~Plugin() {
    delete m_watch;
}

bool Plugin::records() const {
    return options().record;
}

bool Plugin::load() {
    if (options().plugin.isEmpty()) {
        skip(QStringLiteral("no plug-in named (--plugin)"));
        return false;
    }
    m_loader.setFileName(QFileInfo(options().plugin).absoluteFilePath());
    QObject *const root = m_loader.instance();
    m_plugin = qobject_cast<AppPlugin *>(root);
    if (!m_plugin) {
        fail(QStringLiteral("%1 cannot be loaded: %2").arg(options().plugin, m_loader.errorString()));
        return false;
    }
    recordCallsOf(root);
    m_plugin->create();
    m_window = m_plugin->requestWindowInterface(windowId);
    expectTrue("the plug-in has window 33", m_window != nullptr);
    return m_window != nullptr;
}

bool Plugin::open() {
    m_window->onCreate();
    QWidget *const widget = m_window->mainWidget();
    if (!widget) {
        fail(QStringLiteral("mainWidget() after onCreate(): expected a widget, got null"));
        return false;
    }
    widget->setParent(&m_screen);
    widget->setGeometry(m_screen.rect());
    m_window->onShow();
    widget->show();
    show(&m_screen);
    m_window->onEnter();
    m_open = true;
    return true;
}

void Plugin::leave() {
    if (m_open) {
        m_open = false;
        m_window->onExit();
        m_window->mainWidget()->hide();
        m_window->onHide();
    }
}

QWidget *Plugin::find(const QString &name) {
    QWidget *found = &m_screen;
    for (const QString &part : name.split(QLatin1Char('/'))) {
        found = found ? findVisible(found, part) : nullptr;
    }
    return found;
}

}  // namespace conformance
