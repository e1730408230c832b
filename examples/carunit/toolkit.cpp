// SPDX-License-Identifier: Apache-2.0
// Windows, fonts, texts, and the host's small services.

#include "basewindow.h"
#include "commsystemutils.h"
#include "eventhandler.h"
#include "settingsfunc.h"
#include "srcdsplctrl.h"
#include "statusbarcontrol.h"
#include "translator.h"
#include "unit.h"

#include <QApplication>
#include <QPointer>
#include <QTranslator>

namespace {

const char family[] = "Roboto";
const int captionSize = 18;  // pt: 24 px at the unit's 96 dpi

QString s_root;
QTranslator *s_english = nullptr;   ///< the texts with numbers; the forms are English by themselves
QTranslator *s_language = nullptr;  ///< texts and forms of another language

template <typename Change> void changeFonts(QWidget *parent, const QString &prefix, Change change) {
    for (QWidget *child : parent->findChildren<QWidget *>()) {
        if (child->objectName().startsWith(prefix)) { child->setFont(change(child->font())); }
    }
}

}  // namespace

namespace carunit {

QString rootFolder() { return s_root; }

void setRootFolder(const QString &folder) { s_root = folder; }

void setUpApplication() {
    QApplication::setFont(QFont(QLatin1String(family), captionSize));
    s_english = new QTranslator(qApp);
    s_english->load(QStringLiteral(":/carunit/carunit_en.qm"));
    s_language = new QTranslator(qApp);
    qApp->installTranslator(s_english);
    setLanguage(mem::SettingsFunc::instance()->getValue(QStringLiteral("carunit/german"), 0) ? QStringLiteral("de")
                                                                                             : QStringLiteral("en"));
}

void setLanguage(const QString &code) {
    const bool german = code == QLatin1String("de");
    mem::SettingsFunc::instance()->setValue(QStringLiteral("carunit/german"), 0, german, true);
    qApp->removeTranslator(s_language);
    if (german && s_language->load(QStringLiteral(":/carunit/carunit_de.qm"))) {
        qApp->installTranslator(s_language);  // which tells every widget that the language changed
    }
}

}  // namespace carunit

QString Translator::translate(int id) {
    const QByteArray number = QByteArray::number(id);
    const QString text = QCoreApplication::translate("Unit", number);
    return text == QLatin1String(number) ? QString() : text;
}

struct EventHandler::Private {
    SrcDsplCtrl control;
};

struct SrcDsplCtrl::Private {};

SrcDsplCtrl::SrcDsplCtrl() : d(nullptr) {}

SrcDsplCtrl::~SrcDsplCtrl() {}

int SrcDsplCtrl::currentDspl() { return 0; }

SINGLETON(EventHandler)

SrcDsplCtrl *EventHandler::control() { return &d->control; }

CommSystemUtils::CommSystemUtils() {}

CommSystemUtils::~CommSystemUtils() {}

CommSystemUtils *CommSystemUtils::instance() {
    static CommSystemUtils utils;
    return &utils;
}

void CommSystemUtils::sync_default_font(QWidget *parent, const QString &prefix) {
    changeFonts(parent, prefix, [](QFont font) {
        font.setFamily(QLatin1String(family));
        return font;
    });
}

void CommSystemUtils::sync_custom_font(QWidget *parent, QFont &font, const QString &prefix) {
    changeFonts(parent, prefix, [&](const QFont &) { return font; });
}

namespace cm {

struct StatusBarControl::Private {};

SINGLETON(StatusBarControl)

void StatusBarControl::sethide(bool) {}  // this unit has no status bar

struct BaseWindow::Private {
    QPointer<QWidget> widget;
};

BaseWindow::BaseWindow(QObject *parent) : QObject(parent), d(new Private) {}

BaseWindow::~BaseWindow() { delete d; }

void BaseWindow::onCreate() {}
void BaseWindow::onDestroy() {}
void BaseWindow::onShow() {}
void BaseWindow::onHide() {}
void BaseWindow::onEnter() {}
void BaseWindow::onExit() {}

int BaseWindow::attribute() { return 0; }

int BaseWindow::backEvent() { return 0; }

int BaseWindow::keyEvent(KeyEvent *) { return 0; }

QString BaseWindow::name() { return QLatin1String(metaObject()->className()); }

QWidget *BaseWindow::mainWidget() const { return d->widget; }

void BaseWindow::setMainWidget(QWidget *widget, int) { d->widget = widget; }

}  // namespace cm
