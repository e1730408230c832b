// SPDX-License-Identifier: Apache-2.0
#include "appplugin.h"
#include "keyevent.h"
#include "settingscache.h"
#include "settingsfunc.h"
#include "touchevent.h"
#include "unit.h"
#include "windowinterface.h"

#include <QApplication>
#include <QFileInfo>
#include <QJsonObject>
#include <QKeyEvent>
#include <QPluginLoader>
#include <QPushButton>

namespace carunit {

namespace {

const QSize screenSize(1024, 600);
const int windowId = 33;
const int volumePage = 3;  // what another application asks for with "SettingTouchPageType"

}  // namespace

Host::Host() {
    setFixedSize(screenSize);
    const struct {
        const char *name, *caption, *slot;
    } keys[] = {{"home_audio", "Audio settings", SLOT(open())},
                {"home_volumes", "Volumes", SLOT(openVolumes())},
                {"home_english", "English", SLOT(english())},
                {"home_german", "Deutsch", SLOT(german())}};
    int y = 60;
    for (const auto &row : keys) {
        QPushButton *const key = new QPushButton(QLatin1String(row.caption), this);
        key->setObjectName(QLatin1String(row.name));
        key->setGeometry(340, y, 344, 96);
        connect(key, SIGNAL(clicked()), this, row.slot);
        y += 120;
    }
    qApp->installEventFilter(this);
}

Host::~Host() {
    leave();
    QWidget *const widget = m_window ? m_window->mainWidget() : nullptr;
    if (m_window) { m_window->onDestroy(); }
    delete m_root;  // and with it the window
    delete widget;
}

QString Host::load(const QString &file) {
    QPluginLoader loader(QFileInfo(file).absoluteFilePath());  // a bare name is looked for among the plug-ins of Qt
    const QString iid = loader.metaData().value(QStringLiteral("IID")).toString();
    if (!iid.startsWith(QLatin1String("com.norvale.Qt."))) {
        return QStringLiteral("no application (interface id \"%1\")").arg(iid);
    }
    m_root = loader.instance();
    m_plugin = qobject_cast<AppPlugin *>(m_root);
    if (!m_plugin) { return QStringLiteral("cannot be loaded (%1)").arg(loader.errorString()); }
    m_plugin->create();
    m_window = m_plugin->requestWindowInterface(windowId);
    return m_window ? QString() : QStringLiteral("offers no window");
}

void Host::open() {
    if (!m_window || m_open) { return; }
    m_window->onCreate();
    QWidget *const widget = m_window->mainWidget();
    if (widget->parentWidget() != this) {
        widget->setParent(this);
        widget->setGeometry(rect());
    }
    m_window->onShow();
    widget->show();
    widget->raise();
    m_window->onEnter();
    m_open = true;
}

void Host::leave() {
    if (m_open) {
        m_open = false;
        m_window->onExit();
        m_window->mainWidget()->hide();
        m_window->onHide();
    }
}

void Host::openVolumes() {
    const QString key = QStringLiteral("SettingTouchPageType");
    mem::SettingsFunc::instance()->setValue(key, 0, volumePage, true);
    if (m_open) { emit mem::SettingsCache::instance()->SettingsCacheSig(key); }
    open();
}

bool Host::eventFilter(QObject *watched, QEvent *event) {
    if (watched == qApp && event->type() == TouchEvent::eventType()) {
        const int code = static_cast<TouchEvent *>(event)->code();
        if (code == Qx::TouchBack || code == Qx::TouchClose) { leave(); }
    }
    return false;
}

void Host::keyPressEvent(QKeyEvent *event) {
    if (!m_open || (event->key() != Qt::Key_Escape && event->key() != Qt::Key_Home)) { return; }
    const bool back = event->key() == Qt::Key_Escape;
    KeyEvent key(QEvent::KeyPress, back ? KeyEvent::Back : KeyEvent::Home);
    if (m_window->keyEvent(&key) != 1 && !(back && m_window->backEvent() == 1)) { leave(); }
}

}  // namespace carunit
