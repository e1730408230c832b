// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/look.h"

#include <QScopedPointer>
#include <QWidget>

class AudiosettingsTop;
class AudiosettingsRoot;
class AudiosettingsTab;
class c20_060_audiosetting_container_widget;
class Audiosetting_right_general_widget;
class Audiovolumsettings;
class Audiosettingsreset;
class Audiosetting_right_eq_widget;
class Audiosetting_right_factoryeq_widget;
class Audiosetting_right_crossover_widget;
class Audiosetting_right_timing_widget;

namespace Ui {
class c20_060_setup_container;
}

/// Owns every page and decides which one is shown.
///
/// Pages are created when they are first shown and kept; each re-reads its values whenever it is shown, so that
/// switching pages is all that it takes to refresh one. Page ids are those of audiosetting::PageId.
class AudioRootPagtSettings : public QWidget {
    Q_OBJECT
public:
    explicit AudioRootPagtSettings(QWidget *parent);
    ~AudioRootPagtSettings() override;

    /// Shows the page that is due: Volume Settings where another application asks for it, else the current page.
    void onShowInitWidget();
    /// Shows a page; an unknown id shows General.
    void updateCurrentPage(int id);

    // The argument of these has no meaning; callers pass false.
    void showGeneralWidget(bool);
    void showEQWidget(bool);
    void showFactoryEqWidget(bool);
    void showCrossoverWidget(bool);
    void showTimingWidget(bool);
    void showAudiosettingsRoot();

public Q_SLOTS:
    void onPageChanged(int iIdx);
    void onAdvancedChanged();
    void onShowAudioSettings();
    void onShowSourceGain();
    void onShowResetAudiosettings();
    void onBackClicked();
    void hideAudioResetSetting();
    void onSettingsCacheSig(const QString &key);

protected:
    void changeEvent(QEvent *event) override;

private:
    void initContainerUi();
    void hideContainerChilds();
    template <class Page> bool createOnce(Page *&page, QWidget *parent);
    void showTabPage(QWidget *page, int id, int titleId);
    void showFullWidthPage(QWidget *page, int id, int titleId);
    void setTitle(int textId);

    audiosetting::Look m_look;
    int m_currentpageId = 0;
    AudiosettingsTop *m_top = nullptr;
    AudiosettingsRoot *m_settingsRoot = nullptr;
    QScopedPointer<Ui::c20_060_setup_container> m_form;
    c20_060_audiosetting_container_widget *m_container = nullptr;
    AudiosettingsTab *m_tab = nullptr;
    Audiosetting_right_general_widget *m_general = nullptr;
    Audiovolumsettings *m_volume = nullptr;
    QWidget *m_sourceGain = nullptr;
    Audiosettingsreset *m_reset = nullptr;
    Audiosetting_right_eq_widget *m_eq = nullptr;
    Audiosetting_right_factoryeq_widget *m_factoryEq = nullptr;
    Audiosetting_right_crossover_widget *m_crossover = nullptr;
    Audiosetting_right_timing_widget *m_timing = nullptr;
    int m_savedPageId = 0;   ///< where Back leads after a visit that another application asked for
    bool m_reentry = false;  ///< that request came while the application was running
    int m_titleId = 0;       ///< text id of the title shown
};
