// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"
#include "windowinterface.h"

#include <QMap>
#include <QObject>
#include <QVariant>

/// Attributes that an application may set on its window. None is used by this application.
enum WindowAttribute {
    WindowKeepAlive = 0,
    WindowTitle = 1,
};

namespace cm {

/// Base of every application window. Each operation here does the host's own part; overriders call it last.
class PLATFORM_API BaseWindow : public QObject, public WindowInterface {
    Q_OBJECT
public:
    explicit BaseWindow(QObject *parent = nullptr);
    ~BaseWindow() override;

    void onCreate() override;
    void onDestroy() override;
    void onShow() override;
    void onHide() override;
    void onEnter() override;
    void onExit() override;
    int attribute() override;                ///< 0
    int backEvent() override;                ///< 0
    int keyEvent(KeyEvent *event) override;  ///< 0: the key is the host's
    QString name() override;                 ///< the class name
    QWidget *mainWidget() const override;

    /// Hands over the widget that the host shows for window interface \a id. The host shows it in its screen
    /// and never deletes it before the window; a deleted widget is forgotten.
    void setMainWidget(QWidget *widget, int id);

protected:
    QMap<WindowAttribute, bool> m_flags;
    QMap<WindowAttribute, QString> m_texts;
    QMap<int, QVariant> m_values;

private:
    struct Private;
    Private *const d;
};

}  // namespace cm
