// The EQ page's five slots for curves of the driver's own.

#include "audiosetting_right_eq_widget.h"

#include "audioservice.h"
#include "base/buttongroup.h"
#include "base/debuglog.h"
#include "eqsettings.h"
#include "eqtable.h"
#include "pushbutton.h"
#include "sliderbarwidget.h"

#include <QButtonGroup>
#include <QPushButton>
#include <QVariant>

using namespace audiosetting;

namespace {

const int storeHold = 1500;  // ms that a slot key is held to store the curve

// Set on a slot's key by the long press that stored it, so that the release that follows does not recall it.
const char longClick[] = "long_click";

bool isSlot(int slot) {
    return slot >= 0 && slot < eq::slotCount;
}

}  // namespace

void Audiosetting_right_eq_widget::initEqTypeLongPressed() {
    const char *const stores[] = {SLOT(onCustom1LongRelease()), SLOT(onCustom2LongRelease()),
                                  SLOT(onCustom3LongRelease()), SLOT(onCustom4LongRelease()),
                                  SLOT(onCustom5LongRelease())};
    for (int slot = 0; slot < eq::slotCount; ++slot) {
        cm::PushButton *key = new cm::PushButton(qobject_cast<QPushButton *>(m_slotGroup->button(slot)), this);
        key->setLongPressedInterval(storeHold);
        connect(key, SIGNAL(longPressed()), this, stores[slot]);
    }
}

void Audiosetting_right_eq_widget::onButtonCustomPressed(int btnId) {
    if (QAbstractButton *key = m_slotGroup->button(btnId)) {
        key->setProperty(longClick, false);
    }
}

void Audiosetting_right_eq_widget::onbuttonCustomClicked(int iIdx) {
    AUDIO_LOG << "iIdx:" << iIdx;
    if (!isSlot(iIdx) || !eq::slotStored(iIdx).flag()) {
        updateCurrentSelect();
    } else if (m_slotGroup->button(iIdx)->property(longClick).toBool()) {
        eq::highlightedSlot().write(iIdx);
        updateCurrentSelect();
    } else {
        qvaudio::AudioService::instance()->doBeep(0);
        eq::highlightedSlot().write(iIdx);
        updateEqType(iIdx);
        updateCustomEqUi(iIdx);
    }
}

// Storing ---------------------------------------------------------------------------------------------------------

void Audiosetting_right_eq_widget::onCustom1LongRelease() {
    storeSlot(0);
}

void Audiosetting_right_eq_widget::onCustom2LongRelease() {
    storeSlot(1);
}

void Audiosetting_right_eq_widget::onCustom3LongRelease() {
    storeSlot(2);
}

void Audiosetting_right_eq_widget::onCustom4LongRelease() {
    storeSlot(3);
}

void Audiosetting_right_eq_widget::onCustom5LongRelease() {
    storeSlot(4);
}

void Audiosetting_right_eq_widget::storeSlot(int slot) {
    qvaudio::AudioService::instance()->doBeep(0);
    saveCustomEqValue(slot, m_dragSection, m_dragValue);
    recallSlot(slot);
    updateCustomEqUi(slot);
}

void Audiosetting_right_eq_widget::saveCustomEqValue(int slot, int section, int value) {
    AUDIO_LOG << "slot:" << slot << "section:" << section << "value:" << value;
    eq::lastSlot().write(slot);
    if (!isSlot(slot)) {
        AUDIO_LOG << "no such slot:" << slot;
        return;
    }
    m_slotGroup->button(slot)->setProperty(longClick, true);
    for (int band = 0; band < eqBandCount; ++band) {
        updateCustomEqByType(slot, band, m_sliders.at(band)->getLevel());
    }
    eq::slotStored(slot).write(true);
    retranslateUi();
}

void Audiosetting_right_eq_widget::updateCustomEqByType(int slot, int band, int level) {
    if (!isSlot(slot) || band < 0 || band >= eqBandCount) {
        AUDIO_LOG << "no such slot or band:" << slot << band;
        return;
    }
    eq::slotLevel(slot, band).write(level);
}

// Recalling -------------------------------------------------------------------------------------------------------

void Audiosetting_right_eq_widget::updateEqType(int slot) {
    eq::lastSlot().write(slot);
    recallSlot(slot);
    updatePrevNextAllUi();
}

void Audiosetting_right_eq_widget::onSetCustom1() {
    recallSlot(0);
}

void Audiosetting_right_eq_widget::onSetCustom2() {
    recallSlot(1);
}

void Audiosetting_right_eq_widget::onSetCustom3() {
    recallSlot(2);
}

void Audiosetting_right_eq_widget::onSetCustom4() {
    recallSlot(3);
}

void Audiosetting_right_eq_widget::onSetCustom5() {
    recallSlot(4);
}

void Audiosetting_right_eq_widget::recallSlot(int slot) {
    if (!isSlot(slot)) {
        return;
    }
    for (int band = 0; band < eqBandCount; ++band) {
        updateCustomEqValue(band, getCustomEqValue(band, slot));
    }
    updateEqVal();
}

int Audiosetting_right_eq_widget::getCustomEqValue(int band, int slot) {
    return isSlot(slot) ? eq::slotLevel(slot, band).value() : 0;
}

// Selection -------------------------------------------------------------------------------------------------------

bool Audiosetting_right_eq_widget::eqValueCompare(int slot) {
    for (int band = 0; band < eqBandCount; ++band) {
        if (getCustomEqValue(band, slot) != m_sliders.at(band)->getLevel()) {
            return false;
        }
    }
    return isSlot(slot);
}

void Audiosetting_right_eq_widget::updateCurrentSelect() {
    const int highlighted = eq::highlightedSlot().value();
    for (int slot = 0; slot < eq::slotCount; ++slot) {
        if (!eq::slotStored(slot).flag()) {
            continue;
        }
        if (highlighted != eq::noSlot) {
            updateCustomEqUi(highlighted);
            return;
        }
        if (eqValueCompare(slot)) {
            updateCustomEqUi(slot);
            return;
        }
    }
    updateCustomEqUi(eq::noSlot);
}

void Audiosetting_right_eq_widget::updateCustomEqUi(int slot) {
    checkExclusively(m_slotGroup, isSlot(slot) && eq::slotStored(slot).flag() ? slot : eq::noSlot);
}
