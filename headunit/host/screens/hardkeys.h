// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

namespace headunit {

/// The keys beside the screen: Home, Back, volume up and down, mute. Codes are those of KeyEvent.
class HardKeys : public QWidget {
    Q_OBJECT
public:
    static constexpr int stripWidth = 112;

    explicit HardKeys(const QRect &geometry, QWidget *parent);

Q_SIGNALS:
    /// A key went down, or is held and repeats.
    void keyPressed(int key);
    void keyReleased(int key);

protected:
    void paintEvent(QPaintEvent *event) override;
};

}  // namespace headunit
