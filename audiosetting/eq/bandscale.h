// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

namespace audiosetting {

/// The lines behind the EQ page's bands: +12 dB, 0 dB and, as faint as the first, -12 dB.
class BandScale : public QWidget {
    Q_OBJECT
public:
    /// \a lines: y of the three lines' middles, from the top.
    BandScale(QWidget *parent, const int (&lines)[3]);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_lines[3];
};

}  // namespace audiosetting
