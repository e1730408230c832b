// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class AudiosettingsTop;
}

/// The top bar: title, Back, Close, and "Flat" on the pages that have something to flatten.
class AudiosettingsTop : public QWidget {
    Q_OBJECT
public:
    explicit AudiosettingsTop(QWidget *parent);
    ~AudiosettingsTop() override;

    /// Shows the title of a page and hides "Flat", which the page asks for afterwards.
    void onSetTxtTitle(const QString &title);
    /// Changes the title's text alone.
    void setTitleText(const QString &title);
    /// Sets what "Flat" resets, an audiosetting::FlatType; 0 hides the key. An unknown type shows a key that only
    /// beeps.
    void setBtnResetType(int type);

Q_SIGNALS:
    void backClicked();

protected:
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_key_return_clicked();
    void on_Key_close_clicked();
    void on_Key_update_clicked();

private:
    void nameKeys();
    QScopedPointer<Ui::AudiosettingsTop> m_ui;
    int m_btnResetType = 0;
};
