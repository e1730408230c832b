// SPDX-License-Identifier: Apache-2.0
#include "eqband.h"

#include "base/accessibility.h"
#include "base/picture.h"
#include "eqtable.h"
#include "labelbutton.h"
#include "sliderbarwidget.h"

#include <QLabel>

namespace audiosetting {

namespace {

const int barWidth = 16;
const int captionPointSize = 16;

// Geometry in pixels; x counts from the band's own left edge.
const int firstBandX = 3;
const int bandStep = 68;
const QRect sliderRect(0, 68, 36, 164);
const QRect trackRect(10, 68, 16, 164);
const QRect captionRect(-4, 330, 44, 22);
const QRect upKeyRect(-2, 0, 40, 40);
const QRect downKeyRect(-2, 260, 40, 40);

// The irregular last steps are required: the knob ends at the track, and the lowest touch zone is that much longer.
const int centerPoints[] = {0,  5,  11, 16, 22, 28,  33,  39,  44,  50,  56,  61, 67,
                            72, 78, 83, 89, 95, 100, 106, 111, 117, 123, 128, 137};
const int borderPoints[] = {5,  11, 16, 22, 28,  33,  39,  44,  50,  56,  61,  67, 72,
                            78, 83, 89, 95, 100, 106, 111, 117, 123, 128, 135, 137};
const unsigned int pointCount = sizeof(centerPoints) / sizeof(centerPoints[0]);

cm::LabelButton *createStepKey(int band, QWidget *parent, const QRect &geometry, const QString &picture) {
    cm::LabelButton *key = new cm::LabelButton(parent);
    key->setGeometry(geometry);
    key->setGroupId(band);
    const QString path = QStringLiteral("qrc:/corvina_icon/%1_%2.png");
    key->setBgPathNormalOff(QUrl(path.arg(picture, QStringLiteral("n"))));
    key->setBgPathNormalOn(QUrl(path.arg(picture, QStringLiteral("p"))));
    key->setBgPathDisable(QUrl(path.arg(picture, QStringLiteral("d"))));
    return key;
}

}  // namespace

EqBand::EqBand(int band, QWidget *parent, QImage *&knob) {
    const int x = firstBandX + bandStep * band;

    QLabel *track = new QLabel(parent);
    track->setGeometry(trackRect.translated(x, 0));
    track->setPixmap(picture("audiosetting_eq_slider_n"));

    m_slider = new cm::SliderBarWidget(parent);
    m_slider->setId(band);
    m_slider->setGeometry(sliderRect.translated(x, 0));
    m_slider->setImage(knob);
    m_slider->addFreqLevel(eq::levelGains());
    m_slider->setBarWidth(barWidth);
    m_slider->setCenterPoint(centerPoints, pointCount);
    m_slider->setBorderPoint(borderPoints, pointCount);
    m_slider->show();

    m_upKey = createStepKey(band, parent, upKeyRect.translated(x, 0), QStringLiteral("eq_up"));
    m_downKey = createStepKey(band, parent, downKeyRect.translated(x, 0), QStringLiteral("eq_next"));

    QLabel *caption = new QLabel(QLatin1String(eq::bandCaption(band)), parent);
    caption->setGeometry(captionRect.translated(x, 0));
    caption->setAlignment(Qt::AlignCenter);
    QFont captionFont = parent->font();
    captionFont.setPointSize(captionPointSize);
    caption->setFont(captionFont);
    nameControls({{m_slider, caption, nullptr}, {m_upKey, caption, more}, {m_downKey, caption, less}});
}

void EqBand::updateStepKeys() {
    const int level = m_slider->getLevel();
    m_upKey->setEnabled(level >= 1);
    m_downKey->setEnabled(level < eq::maxLevel);
}

}  // namespace audiosetting
