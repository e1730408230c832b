// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QScopedPointer>
#include <QWidget>

class AudioSettingsUtils;

namespace Ui {
class Audiosettingsreset;
}

/// The confirmation that resets all audio settings to the factory state. It lies over the page area; the top bar
/// stays free.
class Audiosettingsreset : public QWidget {
    Q_OBJECT
public:
    explicit Audiosettingsreset(QWidget *parent);
    ~Audiosettingsreset() override;

    void initUi();
    void retranslateUi();

Q_SIGNALS:
    /// The reset is done and its message was shown long enough.
    void acceptClicked();
    /// The driver declined.
    void rejectClicked();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void onAcceptClicked();
    void onRejectClicked();
    void onDelayhidePop();
    // Required: units invoke these four by name, to reset one page alone. Nothing here calls them.
    void makeEQDefaultEffect();
    void makeVolumeDefaultEffect();
    void makeCrossoverDefaultEffect();
    void makeSourceGainDefaultEffect();

private:
    void setAsking(bool asking);

    QScopedPointer<Ui::Audiosettingsreset> m_ui;
    AudioSettingsUtils *m_settings;
    QList<QWidget *> m_question;  ///< what is shown until the driver decides
};
