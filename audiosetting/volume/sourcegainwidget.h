// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/texts.h"
#include "sourcegainsettings.h"

#include <QWidget>

class HorizontalSlider;
class QLabel;
class QPushButton;
class QScrollArea;

namespace cm {
class ScrollManage;
}  // namespace cm

namespace audiosetting {

/// The Source Gain page of every region: the input gains (-10 to 10) of six sources, by slider and by keys.
///
/// A regional page hands over its form and the names of its slots, and leads those slots back to here.
class SourceGainWidget : public QWidget {
public:
    ~SourceGainWidget() override;

    void initUi();
    /// Reads the gains from the store and shows them.
    void resume();
    void retranslateUi();

protected:
    /// The rows in the order of the screen. The fourth is the one in which the regions differ.
    enum RowId { Radio, AndroidAuto, CarPlay, Regional, BtMusic, Usb, RowCount };

    /// A row of the form.
    struct Row {
        int source;       ///< the source's number in the microcontroller and in its key
        int shownSource;  ///< whose gain the slider shows when the page is shown
        int textId;       ///< of the caption; 0 for a caption that is the same in every language
        QLabel *caption;
        QLabel *placeholder;
        QPushButton *plus;
        QPushButton *minus;
        const char *sliderSlot;
        const char *plusSlot;
        const char *minusSlot;
    };

    explicit SourceGainWidget(QWidget *parent);

    /// Hands over the form, before initUi(): its members carry the same names in every region, but for those of the
    /// \a regional row.
    template <class Form> void setForm(const Form &form, const Row &regional);

    /// A slider announced (index, gain); \a index is ignored.
    void changedBySlider(RowId id, int index, int gain);
    void stepUp(RowId id);
    void stepDown(RowId id);
    void updateKeys(RowId id);

    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Sets the slider, whose notification stores and sends a gain that is new to it.
    void loadStored(RowId id);
    void setGain(RowId id, int gain);

    QScrollArea *m_area = nullptr;
    cm::ScrollManage *m_scrollManage = nullptr;
    Row m_rows[RowCount];
    HorizontalSlider *m_sliders[RowCount] = {};
    int m_gains[RowCount] = {};
};

template <class Form> void SourceGainWidget::setForm(const Form &form, const Row &regional) {
    m_area = form.scrollArea;
    m_rows[Radio] = {sourcegain::Radio,
                     sourcegain::Radio,
                     texts::radio,
                     form.txt_Radio,
                     form.radioslider,
                     form.key_radio_plus,
                     form.key_radio_minus,
                     SLOT(onRadioVolumeSliderChanged(int, int)),
                     SLOT(onRadioCameraPlus()),
                     SLOT(onRadioCameraMinus())};
    m_rows[AndroidAuto] = {sourcegain::AndroidAuto,    sourcegain::AndroidAuto,
                           texts::androidAuto,         form.txt_androidauto,
                           form.androidautoslider,     form.key_androidauto_plus,
                           form.key_androidauto_minus, SLOT(onAaVolumeSliderChanged(int, int)),
                           SLOT(onAAPlus()),           SLOT(onAAMinus())};
    m_rows[CarPlay] = {sourcegain::CarPlay,
                       sourcegain::CarPlay,
                       texts::carPlay,
                       form.txt_applecarplay,
                       form.applecarplayslider,
                       form.key_applecarplay_plus,
                       form.key_applecarplay_minus,
                       SLOT(onCplumeSliderChanged(int, int)),
                       SLOT(onCpPlus()),
                       SLOT(onCpMinus())};
    m_rows[Regional] = regional;
    m_rows[BtMusic] = {sourcegain::BluetoothMusic, sourcegain::BluetoothMusic,
                       texts::bluetoothMusic,      form.txt_bluetoothmusic,
                       form.btmusicslider,         form.key_btmusic_plus,
                       form.key_btmusic_minus,     SLOT(onBtMusiclumeSliderChanged(int, int)),
                       SLOT(onBtMusicPlus()),      SLOT(onBtMusicMinus())};
    m_rows[Usb] = {sourcegain::Usb,   sourcegain::Usb,   texts::usb,         form.txt_usb,
                   form.usbslider,    form.key_usb_plus, form.key_usb_minus, SLOT(onUsblumeSliderChanged(int, int)),
                   SLOT(onUsbPlus()), SLOT(onUsbMinus())};
}

}  // namespace audiosetting
