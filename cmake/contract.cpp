// SPDX-License-Identifier: Apache-2.0
// Every class of the contract and every operation on it, used once: what a head unit's headers must allow. It is
// compiled when an SDK is configured, so that what lacks is named there, in one line, and not in hundreds; it is never
// linked.
#include "appplugin.h"
#include "audioeqtype.h"
#include "audioservice.h"
#include "audiosettingsutils.h"
#include "basewindow.h"
#include "commsystemutils.h"
#include "eventhandler.h"
#include "horizontalslider.h"
#include "keyevent.h"
#include "labelbutton.h"
#include "mcuservice.h"
#include "platformapi.h"
#include "pushbutton.h"
#include "scrollbar.h"
#include "scrollmanage.h"
#include "settingscache.h"
#include "settingsfunc.h"
#include "simpleevent.h"
#include "srcdsplctrl.h"
#include "statusbarcontrol.h"
#include "touchevent.h"
#include "translator.h"
#include "windowinterface.h"

namespace {

template <typename T> T arg();
template <typename T> void returned(T) {}

void check(AppPlugin &object) {
    object.create();
    returned<QList<int>>(object.windowInterfaceID());
    returned<QList<int>>(object.sourceInterfaceID());
    returned<WindowInterface *>(object.requestWindowInterface(arg<int>()));
    returned<SourceInterface *>(object.requestSourceInterface(arg<int>()));
}

void check(qvaudio::AudioService &object) {
    returned<qvaudio::AudioService *>(qvaudio::AudioService::instance());
    object.doBeep(arg<int>());
    object.getBalanceFader(arg<int &>(), arg<int &>());
    object.setBalanceFader(arg<int>(), arg<int>(), arg<bool>());
    returned<AudioEQType>(object.getCurrEQType());
    object.setEQType(arg<AudioEQType>(), arg<bool>());
    returned<int>(object.getCustomEq(arg<int>()));
    object.setCustomEq(arg<int>(), arg<int>(), arg<bool>());
    object.setVolumeLevel(arg<int>(), arg<int>());
    returned<int>(object.getSourceVolByType(arg<int>()));
    (void)static_cast<void (qvaudio::AudioService::*)(int, int, int)>(&qvaudio::AudioService::audioVolumeChanged);
}

void check(AudioSettingsUtils &object) {
    returned<AudioSettingsUtils *>(AudioSettingsUtils::instance());
    returned<int>(object.getValue(arg<const QString &>(), arg<int>()));
    returned<bool>(object.getValue(arg<const QString &>(), arg<bool>()));
    object.setValue(arg<const QString &>(), arg<const QVariant &>(), arg<const QVariant &>(), arg<bool>());
    object.clear(arg<const QString &>());
    object.flatCrossover();
    object.flatTimeDelay();
    object.updateDefeatSetup();
    (void)static_cast<void (AudioSettingsUtils::*)()>(&AudioSettingsUtils::signal_flatCrossover);
    (void)static_cast<void (AudioSettingsUtils::*)()>(&AudioSettingsUtils::signal_flatTimeDelay);
}

void check(WindowInterface &object) {
    object.onCreate();
    object.onDestroy();
    object.onShow();
    object.onHide();
    object.onEnter();
    object.onExit();
    returned<int>(object.attribute());
    returned<int>(object.backEvent());
    returned<int>(object.keyEvent(arg<KeyEvent *>()));
    returned<QString>(object.name());
    returned<QWidget *>(object.mainWidget());
}

void check(cm::BaseWindow &object) {
    new cm::BaseWindow(arg<QObject *>());
    object.onCreate();
    object.onDestroy();
    object.onShow();
    object.onHide();
    object.onEnter();
    object.onExit();
    returned<int>(object.attribute());
    returned<int>(object.backEvent());
    returned<int>(object.keyEvent(arg<KeyEvent *>()));
    returned<QString>(object.name());
    returned<QWidget *>(object.mainWidget());
    object.setMainWidget(arg<QWidget *>(), arg<int>());
}

void check(CommSystemUtils &object) {
    returned<CommSystemUtils *>(CommSystemUtils::instance());
    object.sync_default_font(arg<QWidget *>(), arg<const QString &>());
    object.sync_custom_font(arg<QWidget *>(), arg<QFont &>(), arg<const QString &>());
}

void check(EventHandler &object) {
    returned<EventHandler *>(EventHandler::instance());
    returned<SrcDsplCtrl *>(object.control());
}

void check(HorizontalSlider &object) {
    new HorizontalSlider(arg<const QRect &>(), arg<QWidget *>());
    object.setFreqRange(arg<int>(), arg<int>());
    object.setShowSlider(arg<bool>());
    object.addSliderImage(arg<const QString &>());
    object.setAddPage(arg<const QString &>());
    object.setSubPage(arg<const QString &>());
    object.setValue(arg<int>());
    object.setCurrentLevel(arg<int>());
    returned<int>(object.value());
    returned<bool>(object.getMoveState());
    (void)static_cast<void (HorizontalSlider::*)(int, int)>(&HorizontalSlider::valueChanged);
}

void check(KeyEvent &object) {
    new KeyEvent(arg<QEvent::Type>(), arg<int>());
    returned<int>(object.key());
}

void check(cm::LabelButton &object) {
    new cm::LabelButton(arg<QWidget *>());
    object.setIcon(arg<cm::LabelButton::IconStateID>(), arg<const QUrl &>());
    returned<QUrl>(object.icon(arg<cm::LabelButton::IconStateID>()));
    object.setBgPathNormalOff(arg<const QUrl &>());
    object.setBgPathNormalOn(arg<const QUrl &>());
    object.setBgPathDisable(arg<const QUrl &>());
    returned<QUrl>(object.bgPathNormalOff());
    returned<QUrl>(object.bgPathNormalOn());
    returned<QUrl>(object.bgPathDisable());
    object.setGroupId(arg<int>());
    (void)static_cast<void (cm::LabelButton::*)()>(&cm::LabelButton::clicked);
    (void)static_cast<void (cm::LabelButton::*)(int)>(&cm::LabelButton::clicked);
}

void check(mcu::McuService &object) {
    returned<mcu::McuService *>(mcu::McuService::instance());
    object.setLoudness(arg<int>());
    object.setSubwooferValue(arg<int>());
    object.setSubwooferPhase(arg<int>());
    object.setCrossoverFrontFreq(arg<int>(), arg<int>(), arg<int>());
    object.setCrossoverRearFreq(arg<int>(), arg<int>(), arg<int>());
    object.setLPFValue(arg<int>(), arg<int>(), arg<int>());
    object.setAudioTimerDelay(arg<int>(), arg<int *>());
    object.setAudioVolumeValue(arg<int>(), arg<int>());
    object.setAudioInputGainValue(arg<int>(), arg<int>());
}

void check(cm::PushButton &object) {
    new cm::PushButton(arg<QPushButton *>(), arg<QObject *>());
    object.setLongPressedInterval(arg<int>());
    object.setRepeatInterval(arg<int>());
    (void)static_cast<void (cm::PushButton::*)()>(&cm::PushButton::longPressed);
    (void)static_cast<void (cm::PushButton::*)()>(&cm::PushButton::longPressedRepeat);
}

void check(cm::ScrollBar &) {
    new cm::ScrollBar(arg<QWidget *>(), arg<const QRect &>(), arg<int>());
}

void check(cm::ScrollManage &object) {
    new cm::ScrollManage(arg<QScrollArea *>(), arg<bool>(), arg<bool>());
    returned<bool>(object.eventFilter(arg<QObject *>(), arg<QEvent *>()));
}

void check(mem::SettingsCache &) {
    returned<mem::SettingsCache *>(mem::SettingsCache::instance());
    (void)static_cast<void (mem::SettingsCache::*)(const QString &)>(&mem::SettingsCache::SettingsCacheSig);
}

void check(mem::SettingsFunc &object) {
    returned<mem::SettingsFunc *>(mem::SettingsFunc::instance());
    returned<int>(object.getValue(arg<const QString &>(), arg<int>()));
    object.setValue(arg<const QString &>(), arg<const QVariant &>(), arg<const QVariant &>(), arg<bool>());
}

void check(SrcDsplCtrl &object) {
    returned<int>(object.currentDspl());
}

void check(cm::StatusBarControl &object) {
    returned<cm::StatusBarControl *>(cm::StatusBarControl::instance());
    object.sethide(arg<bool>());
}

void check(Translator &) {
    returned<QString>(Translator::translate(arg<int>()));
}

}  // namespace
