// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QLabel>
#include <QUrl>

namespace cm {

/// A button that is drawn from pictures. A press that leaves the button before its release is no click.
///
/// The picture paths are Qt properties, so that a form can set them; they take ":/..." and "qrc:/...".
class PLATFORM_API LabelButton : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QUrl bgPathNormalOff READ bgPathNormalOff WRITE setBgPathNormalOff)
    Q_PROPERTY(QUrl bgPathNormalOn READ bgPathNormalOn WRITE setBgPathNormalOn)
    Q_PROPERTY(QUrl bgPathDisable READ bgPathDisable WRITE setBgPathDisable)
public:
    enum IconStateID {
        NormalOff = 0,  ///< not pressed
        NormalOn = 1,   ///< pressed
        Disabled = 3,
    };

    explicit LabelButton(QWidget *parent = nullptr);
    ~LabelButton() override;

    /// Sets the picture of a state. A state without a picture shows that of NormalOff.
    void setIcon(IconStateID state, const QUrl &picture);
    QUrl icon(IconStateID state) const;

    void setBgPathNormalOff(const QUrl &picture) { setIcon(NormalOff, picture); }
    void setBgPathNormalOn(const QUrl &picture) { setIcon(NormalOn, picture); }
    void setBgPathDisable(const QUrl &picture) { setIcon(Disabled, picture); }
    QUrl bgPathNormalOff() const { return icon(NormalOff); }
    QUrl bgPathNormalOn() const { return icon(NormalOn); }
    QUrl bgPathDisable() const { return icon(Disabled); }

    /// The id that clicked(int) carries; 0 unless set.
    void setGroupId(int id);

Q_SIGNALS:
    void clicked();
    void clicked(int groupId);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Private;
    Private *const d;
};

}  // namespace cm
